#include <host/base/RenameNames.h>
#include <host/shots/ShotNames.h>
#include <host/shots/ShotSets.h>

#include <algorithm>
#include <cstddef>
#include <deque>
#include <filesystem>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

struct Candidate {
  Candidate(ioPath&& file, FileName&& text, bool byName)
      : path(std::move(file)), spelled(std::move(text)), name(SplitShotName(spelled.Name())), named(byName) {}

  ioPath path;
  FileName spelled;
  ShotName name;
  bool named;
};

using Members = std::vector<std::size_t>;  // Indices of candidates, ascending.

bool IsHidden(std::string_view name) {
  return name.substr(0, 1) == ".";
}

class Grouping {
 public:
  explicit Grouping(std::size_t named) { known_.reserve(named); }

  void Add(ioPath path, bool named) {
    FileName text(path);
    const bool joins = named || (!IsHidden(text.Name()) && IsShotFile(text.Name()));
    if (!joins || known_.count(path.native().native()) > 0) {
      return;
    }
    const Candidate& candidate = candidates_.emplace_back(std::move(path), std::move(text), named);
    known_.insert(candidate.path.native().native());
  }

  /// To be called once.
  std::vector<ShotSet> Run() {
    for (Candidate& candidate : candidates_) {
      FindVersion(candidate);
    }
    std::vector<ShotSet> sets;
    for (Members& group : GroupBy(AllMembers(), true)) {
      if (IsAmbiguous(group)) {
        for (Members& part : GroupBy(group, false)) {
          AddSet(std::move(part), sets);
        }
      } else {
        AddSet(std::move(group), sets);
      }
    }
    return InOrder(sets);
  }

 private:
  void FindVersion(Candidate& candidate) {
    const std::string owner = VersionOwner(candidate.name);
    if (owner.empty()) {
      return;
    }
    const std::size_t last = candidate.name.suffix.find('.', 1);
    const std::string own = candidate.name.base + candidate.name.suffix.substr(0, last);
    const std::string_view folder = candidate.spelled.Folder();
    if (IsThere(folder, owner) && !IsThere(folder, own)) {
      candidate.name = SplitVersion(candidate.name);
    }
  }

  /// Seldom asked.
  bool IsThere(std::string_view folder, const std::string& name) {
    if (keys_.empty()) {
      for (const Candidate& candidate : candidates_) {
        keys_.insert(KeyOf(candidate.spelled.Folder(), candidate.spelled.Name()));
      }
    }
    return keys_.count(KeyOf(folder, name)) > 0;
  }

  Members AllMembers() const {
    Members all(candidates_.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
      all[i] = i;
    }
    return all;
  }

  std::vector<Members> GroupBy(const Members& members, bool caseIgnored) const {
    std::unordered_map<std::string, std::size_t> places;
    std::vector<Members> groups;
    places.reserve(members.size());
    groups.reserve(members.size());
    for (const std::size_t i : members) {
      const std::string_view folder = candidates_[i].spelled.Folder();
      const std::string& base = candidates_[i].name.base;
      const auto place =
          places.emplace(caseIgnored ? KeyOf(folder, base) : std::string(folder) += base, groups.size());
      if (place.second) {
        groups.emplace_back();
      }
      groups[place.first->second].push_back(i);
    }
    return groups;
  }

  /// True when the group cannot be one shot, since it has two files of one kind.
  bool IsAmbiguous(const Members& group) const {
    std::unordered_set<std::string> suffixes;
    return group.size() > 1 && !std::all_of(group.begin(), group.end(), [&](std::size_t i) {
             return suffixes.insert(NameKey(candidates_[i].name.suffix)).second;
           });
  }

  void AddSet(Members members, std::vector<ShotSet>& sets) {
    if (candidates_[members.front()].named) {
      order_.emplace_back(members.front(), sets.size());
      sets.push_back(MakeSet(std::move(members)));
    }
  }

  ShotSet MakeSet(Members members) {
    const auto rank = [this](std::size_t i) { return IsPhotoName(candidates_[i].path) ? 0 : 1; };
    std::sort(members.begin(), members.end(), [&](std::size_t a, std::size_t b) {
      const int order = rank(a) - rank(b);
      return order != 0 ? order < 0 : candidates_[a].path < candidates_[b].path;
    });
    ShotSet set;
    set.name = candidates_[members.front()].name.base;
    set.files.reserve(members.size());
    for (const std::size_t i : members) {
      set.files.push_back({std::move(candidates_[i].path), std::move(candidates_[i].name.suffix)});
    }
    return set;
  }

  std::vector<ShotSet> InOrder(std::vector<ShotSet>& sets) {
    std::sort(order_.begin(), order_.end());
    std::vector<ShotSet> ordered;
    ordered.reserve(sets.size());
    for (const auto& [first, set] : order_) {
      ordered.push_back(std::move(sets[set]));
    }
    return ordered;
  }

  /// They stay where they are, and so do their paths' bytes.
  std::deque<Candidate> candidates_;
  std::unordered_set<std::basic_string_view<std::filesystem::path::value_type>> known_;
  std::unordered_set<std::string> keys_;
  std::vector<std::pair<std::size_t, std::size_t>> order_;
};

}  // namespace

std::vector<ShotSet> GroupShots(std::vector<ioPath> named, const std::vector<ioPath>& entries) {
  Grouping grouping(named.size());
  for (ioPath& path : named) {
    grouping.Add(std::move(path), true);
  }
  for (const ioPath& path : entries) {
    grouping.Add(path, false);
  }
  return grouping.Run();
}

}  // namespace Zenvora::Lumidex::Host
