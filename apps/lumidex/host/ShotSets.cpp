#include "RenameNames.h"
#include "ShotNames.h"

#include <host/Scanner.h>
#include <host/ShotSets.h>

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

struct Candidate {
  ioPath path;
  std::string folder;
  ShotName name;
  bool named = false;
};

using Members = std::vector<std::size_t>;  // Indices of candidates, ascending.

bool IsHidden(const std::string& name) {
  return name.rfind('.', 0) == 0;
}

class Grouping {
 public:
  void Add(const ioPath& path, bool named) {
    const FileName file = SplitFolder(path);
    const bool joins = named || (!IsHidden(file.name) && IsShotFile(ioPath(file.name)));
    if (!joins || !known_.insert(file.folder + file.name).second) {
      return;
    }
    candidates_.push_back({path, file.folder, SplitShotName(file.name), named});
    names_.insert(file.folder + NameKey(file.name));
  }

  std::vector<ShotSet> Run() {
    for (Candidate& candidate : candidates_) {
      FindVersion(candidate);
    }
    std::vector<ShotSet> sets;
    for (const Members& group : GroupBy(AllMembers(), true)) {
      const bool ambiguous = IsAmbiguous(group);
      for (const Members& part : ambiguous ? GroupBy(group, false) : std::vector<Members>{group}) {
        if (candidates_[part.front()].named) {
          order_.emplace_back(part.front(), sets.size());
          sets.push_back(MakeSet(part));
        }
      }
    }
    return InOrder(sets);
  }

 private:
  void FindVersion(Candidate& candidate) const {
    const std::string owner = VersionOwner(candidate.name);
    if (owner.empty()) {
      return;
    }
    const std::size_t last = candidate.name.suffix.find('.', 1);
    const std::string own = candidate.name.base + candidate.name.suffix.substr(0, last);
    if (IsThere(candidate.folder, owner) && !IsThere(candidate.folder, own)) {
      candidate.name = SplitVersion(candidate.name);
    }
  }

  bool IsThere(const std::string& folder, const std::string& name) const {
    return names_.count(folder + NameKey(name)) > 0;
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
    for (const std::size_t i : members) {
      const Candidate& candidate = candidates_[i];
      const std::string& base = candidate.name.base;
      const auto place =
          places.emplace(candidate.folder + (caseIgnored ? NameKey(base) : base), groups.size());
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
    return !std::all_of(group.begin(), group.end(), [&](std::size_t i) {
      return suffixes.insert(NameKey(candidates_[i].name.suffix)).second;
    });
  }

  ShotSet MakeSet(Members members) const {
    const auto rank = [this](std::size_t i) { return IsPhotoName(candidates_[i].path) ? 0 : 1; };
    std::sort(members.begin(), members.end(), [&](std::size_t a, std::size_t b) {
      return std::make_pair(rank(a), candidates_[a].path) < std::make_pair(rank(b), candidates_[b].path);
    });
    ShotSet set;
    set.name = candidates_[members.front()].name.base;
    for (const std::size_t i : members) {
      set.files.push_back({candidates_[i].path, candidates_[i].name.suffix});
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

  std::vector<Candidate> candidates_;
  std::unordered_set<std::string> known_;
  std::unordered_set<std::string> names_;
  std::vector<std::pair<std::size_t, std::size_t>> order_;
};

}  // namespace

std::vector<ShotSet> GroupShots(const std::vector<ioPath>& named, const std::vector<ioPath>& entries) {
  Grouping grouping;
  for (const ioPath& path : named) {
    grouping.Add(path, true);
  }
  for (const ioPath& path : entries) {
    grouping.Add(path, false);
  }
  return grouping.Run();
}

}  // namespace Zenvora::Lumidex::Host
