#include <host/SimilarKeeper.h>

#include <zenvora/core/ioPath.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <numeric>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// Of two decodings of one scene the sharpness differs by some hundredths.
constexpr double kAsSharp = 0.9;

std::int64_t PixelsOf(const SimilarMember& member) {
  return std::int64_t{member.features.width} * member.features.height;
}

bool HasCameraDate(const SimilarMember& member) {
  return member.photo.takenSource == DateSource::Original ||
         member.photo.takenSource == DateSource::Digitised;
}

bool HasCameraData(const SimilarMember& member) {
  return HasCameraDate(member) || !member.photo.camera.isEmpty();
}

/// Those that are left, of a group.
class Candidates {
 public:
  explicit Candidates(const std::vector<SimilarMember>& members) : members_(members), left_(members.size()) {
    std::iota(left_.begin(), left_.end(), std::size_t{0});
  }

  /// Leaves behind those that are not good, unless none is.
  template <class IsGood>
  void Weigh(KeeperReason reason, const IsGood& isGood) {
    std::vector<std::size_t> good;
    std::copy_if(left_.begin(), left_.end(), std::back_inserter(good),
                 [&](std::size_t index) { return isGood(members_[index]); });
    if (!good.empty() && good.size() < left_.size()) {
      left_ = std::move(good);
      choice_.reasons.push_back(reason);
    }
  }

  /// The most that any of them has.
  template <class Measure>
  auto Most(const Measure& measure) const {
    auto most = measure(members_[left_.front()]);
    for (const std::size_t index : left_) {
      most = std::max(most, measure(members_[index]));
    }
    return most;
  }

  ioPath FirstPath() const {
    const std::size_t first =
        *std::min_element(left_.begin(), left_.end(), [this](std::size_t left, std::size_t right) {
          return members_[left].photo.path < members_[right].photo.path;
        });
    return members_[first].photo.path;
  }

  KeeperChoice Choice() const {
    KeeperChoice choice = choice_;
    choice.index = left_.front();
    return choice;
  }

 private:
  const std::vector<SimilarMember>& members_;
  std::vector<std::size_t> left_;
  KeeperChoice choice_;
};

}  // namespace

const char* KeeperReasonName(KeeperReason reason) {
  switch (reason) {
    case KeeperReason::Largest:
      return "largest";
    case KeeperReason::Sharpest:
      return "sharpest";
    case KeeperReason::CameraData:
      return "has camera data";
    case KeeperReason::Earliest:
      return "earliest";
    case KeeperReason::FirstName:
      return "first by name";
  }
  return "";
}

KeeperChoice SuggestKeeper(const std::vector<SimilarMember>& members) {
  Candidates candidates(members);
  candidates.Weigh(KeeperReason::Largest, [most = candidates.Most(PixelsOf)](const SimilarMember& member) {
    return PixelsOf(member) == most;
  });
  const auto sharpness = [](const SimilarMember& member) { return member.features.sharpness; };
  candidates.Weigh(KeeperReason::Sharpest, [most = candidates.Most(sharpness)](const SimilarMember& member) {
    return member.features.sharpness >= most * kAsSharp;
  });
  candidates.Weigh(KeeperReason::CameraData, HasCameraData);
  // The times of files say when they were copied. Undated photos come last.
  const auto earliness = [](const SimilarMember& member) {
    return HasCameraDate(member) ? -member.photo.taken.toMSecsSinceEpoch()
                                 : std::numeric_limits<qint64>::min();
  };
  candidates.Weigh(KeeperReason::Earliest,
                   [&, most = candidates.Most(earliness)](const SimilarMember& member) {
                     return earliness(member) == most;
                   });
  candidates.Weigh(KeeperReason::FirstName, [first = candidates.FirstPath()](const SimilarMember& member) {
    return member.photo.path == first;
  });
  return candidates.Choice();
}

}  // namespace Zenvora::Lumidex::Host
