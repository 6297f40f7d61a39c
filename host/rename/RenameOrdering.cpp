#include "RenameOrdering.h"

#include <host/base/RenameNames.h>

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <string>
#include <tuple>

namespace Zenvora::Lumidex::Host {

namespace {

struct Rank {
  bool undated = false;
  std::int64_t day = 0;
  int millisecond = 0;
  std::string folder;
  std::string name;
  ioPath path;
};

Rank RankOf(const RenameShot& shot) {
  Rank rank;
  rank.undated = !shot.taken.isValid();
  if (!rank.undated) {
    // As the camera showed it, not as an instant: a clock put back at night would turn the order.
    rank.day = shot.taken.date().toJulianDay();
    rank.millisecond = shot.taken.time().msecsSinceStartOfDay();
  }
  rank.name = NaturalKey(shot.set.name);
  if (!shot.set.files.empty()) {
    rank.path = shot.set.files.front().path;
    rank.folder = NaturalKey(rank.path.parent_path().utf8string());
  }
  return rank;
}

bool IsEarlier(const Rank& a, const Rank& b) {
  return std::tie(a.undated, a.day, a.millisecond, a.name, a.folder, a.path) <
         std::tie(b.undated, b.day, b.millisecond, b.name, b.folder, b.path);
}

bool IsNamedBefore(const Rank& a, const Rank& b) {
  return std::tie(a.folder, a.name, a.path) < std::tie(b.folder, b.name, b.path);
}

}  // namespace

std::vector<std::size_t> OrderShots(const std::vector<RenameShot>& shots, RenameOrder order) {
  std::vector<std::size_t> indices(shots.size());
  std::iota(indices.begin(), indices.end(), std::size_t{0});
  if (order == RenameOrder::AsGiven) {
    return indices;
  }
  std::vector<Rank> ranks;
  ranks.reserve(shots.size());
  std::transform(shots.begin(), shots.end(), std::back_inserter(ranks), RankOf);
  const auto precedes = order == RenameOrder::ByDate ? IsEarlier : IsNamedBefore;
  std::stable_sort(indices.begin(), indices.end(),
                   [&](std::size_t a, std::size_t b) { return precedes(ranks[a], ranks[b]); });
  return indices;
}

}  // namespace Zenvora::Lumidex::Host
