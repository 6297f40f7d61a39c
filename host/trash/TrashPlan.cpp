#include "TrashBeside.h"
#include "TrashFaults.h"

#include <host/pixels/PictureEnd.h>
#include <host/scan/FileVerdicts.h>
#include <host/shots/ShotNames.h>
#include <host/trash/TrashPlan.h>

#include <zenvora/core/FileState.h>
#include <zenvora/quillet/match/MatchTemplate.h>
#include <zenvora/tavolin/Trash.h>

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

SeenFile KnownAs(const PhotoRecord& photo) {
  return {photo.path, photo.size, photo.modifiedNs};
}

class Planner {
 public:
  Planner(const std::vector<SuggestedGroup>& groups, TrashChoice choice, const HasMore& hasMore,
          std::set<ioPath> folders)
      : groups_(groups), choice_(choice), hasMore_(hasMore), links_(WithThoseOf(groups, std::move(folders))) {
    for (const SuggestedGroup& group : groups) {
      const FileState state = QueryFile(KeptOf(group).photo.path);
      if (state.kind == FileState::Kind::File) {
        kept_.insert(state.identity);
      }
    }
  }

  TrashPlan Run() {
    for (const SuggestedGroup& group : groups_) {
      AddGroup(group);
    }
    std::vector<ioPath> going;
    for (const TrashPhoto& photo : plan_.photos) {
      going.push_back(photo.photo.path);
    }
    const std::vector<TrashBeside> beside = FindBeside(going);
    SpareSettings(beside);
    for (const TrashBeside& file : beside) {
      AddAttached(file);
    }
    return std::move(plan_);
  }

 private:
  static std::set<ioPath> WithThoseOf(const std::vector<SuggestedGroup>& groups, std::set<ioPath> folders) {
    for (const SuggestedGroup& group : groups) {
      for (const SimilarMember& member : group.group.members) {
        folders.insert(member.photo.path.parent_path());
      }
    }
    return folders;
  }

  static const SimilarMember& KeptOf(const SuggestedGroup& group) {
    return group.group.members[group.keeper.index];
  }

  /// The middle of a group wanders with each photo that comes, and those at its two ends can differ widely.
  static bool IsLike(const SimilarMember& photo, const SimilarMember& kept) {
    return Quillet::MatchTemplate(photo.features.vector, kept.features.vector) > kSameGroupScore;
  }

  /// What is wrong with the photo to keep.
  struct Fault {
    std::string text;
    bool isRule = false;
  };

  void AddGroup(const SuggestedGroup& group) {
    const ioPath& kept = KeptOf(group).photo.path;
    const FileState state = QueryFile(kept);
    Fault fault;
    if (!IsAsKnown(state, KnownAs(KeptOf(group).photo))) {
      fault.text = "the photo to keep, " + kept.utf8string() + ", " + WhatIsWrong(state);
    } else if (Tavolin::LiesInTrash(kept)) {
      fault.text = "the photo to keep, " + kept.utf8string() + ", is in a trash";
    } else if (IsLink(kept)) {
      // The file that it leads to may lie on what is pulled out, and nobody looks after it here.
      fault.text = "the photo to keep, " + kept.utf8string() + ", is a link to another file";
      fault.isRule = true;
    } else if (group.group.members.size() > 1 && EndsTooSoon(kept)) {
      // As large as it was, and hardly less sharp: nothing else tells it from the whole one.
      fault.text = "the photo to keep, " + kept.utf8string() + ", breaks off before the end of its picture";
    } else if (KeptOf(group).origin && !KeptOf(group).origin->degradation.empty()) {
      fault.text =
          "the photo to keep, " + kept.utf8string() + ", is damaged: " + KeptOf(group).origin->degradation;
    }
    std::set<std::size_t> raws;
    for (std::size_t i = 0; i < group.group.members.size(); ++i) {
      if (i != group.keeper.index) {
        Judge(group, i, fault, raws);
      }
    }
    SettleRaws(group, raws);
  }

  void Judge(const SuggestedGroup& group, std::size_t index, const Fault& fault,
             std::set<std::size_t>& raws) {
    const PhotoRecord& photo = group.group.members[index].photo;
    const ioPath& kept = KeptOf(group).photo.path;
    const FileState state = QueryFile(photo.path);
    // What holds whichever photo is kept comes first: `check` says it, too.
    FileVerdict verdict =
        state.kind == FileState::Kind::File ? JudgeTrash(photo.path, links_) : FileVerdict();
    if (verdict.IsRefused()) {
      plan_.stays.push_back(
          {photo.path, std::move(verdict.text), verdict.kind == FileVerdict::Kind::Kept, {}});
    } else if (!fault.text.empty()) {
      Stay(photo.path, fault.text, fault.isRule);
    } else if (!IsAsKnown(state, KnownAs(photo))) {
      Stay(photo.path, "it " + WhatIsWrong(state), false);
    } else if (kept_.count(state.identity) > 0) {
      Stay(photo.path, "it is another name of a file that is kept", true);
    } else if (ShotKey(photo.path) == ShotKey(kept)) {
      Stay(photo.path, "it is of the same shot as " + kept.filename().utf8string() + ", which is kept", true);
    } else if (!IsLike(group.group.members[index], KeptOf(group))) {
      Stay(photo.path, "it is like others of its group, but not like the photo to keep, " + kept.utf8string(),
           true);
    } else if (const std::string why = WhyKept(VerdictOf(group, index), kept); !why.empty()) {
      plan_.stays.push_back({photo.path, Stays(photo.path, why), true, VerdictOf(group, index).verdict});
    } else if (hasMore_ && hasMore_(photo, KeptOf(group).photo)) {
      Stay(photo.path,
           "it has tags or albums that the photo to keep, " + kept.utf8string() + ", does not have", true);
    } else if (IsRawName(photo.path.filename().utf8string())) {
      raws.insert(index);
    } else {
      Go(group, index);
    }
  }

  static PictureVerdict VerdictOf(const SuggestedGroup& group, std::size_t index) {
    return index < group.verdicts.size() ? group.verdicts[index] : PictureVerdict();
  }

  /// What the pixels of both say against it; empty: nothing.
  std::string WhyKept(const PictureVerdict& judged, const ioPath& kept) const {
    const std::string why = judged.why.empty() ? std::string() : " (" + judged.why + ")";
    switch (judged.verdict) {
      case Verdict::Same:
        return {};
      case Verdict::Alike:
        return choice_ == TrashChoice::SameOrAlike
                   ? std::string()
                   : "it is only alike to " + kept.utf8string() + ", not the same picture" + why;
      case Verdict::Different:
        return "it is a different picture from the photo to keep, " + kept.utf8string() + why;
      case Verdict::Unknown:
        break;
    }
    return "it could not be compared with the photo to keep, " + kept.utf8string() + why;
  }

  /// A raw file is what all other formats are made from: one of the group always stays.
  void SettleRaws(const SuggestedGroup& group, const std::set<std::size_t>& raws) {
    const bool keepsRaw =
        !raws.empty() && std::any_of(group.group.members.begin(), group.group.members.end(),
                                     [&](const SimilarMember& member) { return IsRawOfKept(group, member); });
    for (const std::size_t index : raws) {
      if (keepsRaw) {
        Go(group, index);
      } else {
        Stay(group.group.members[index].photo.path, "it is a raw file, and no raw file of its group is kept",
             true);
      }
    }
  }

  /// A link could lead to one that goes.
  static bool IsRawOfKept(const SuggestedGroup& group, const SimilarMember& member) {
    const ioPath& path = member.photo.path;
    return IsRawName(path.filename().utf8string()) && ShotKey(path) == ShotKey(KeptOf(group).photo.path) &&
           IsAsKnown(QueryFile(path), KnownAs(member.photo)) &&
           (!IsLink(path) || path == KeptOf(group).photo.path) && !EndsTooSoon(path);
  }

  void Go(const SuggestedGroup& group, std::size_t index) {
    const SeenFile photo = KnownAs(group.group.members[index].photo);
    going_.emplace(photo.path, plan_.photos.size());
    plan_.photos.push_back({photo, KnownAs(KeptOf(group).photo), {}, VerdictOf(group, index)});
  }

  void Stay(const ioPath& photo, const std::string& why, bool isRule) {
    plan_.stays.push_back({photo, Stays(photo, why), isRule, {}});
  }

  bool GoesAlong(const TrashBeside& beside) const {
    return !beside.isOthersToo && !beside.owners.empty() &&
           std::all_of(beside.owners.begin(), beside.owners.end(),
                       [this](const ioPath& photo) { return going_.count(photo) > 0; });
  }

  /// Ratings, texts and developments of a copy are somebody's work: where the kept photo has not the very
  /// same, the copy stays with them.
  void SpareSettings(const std::vector<TrashBeside>& beside) {
    std::map<ioPath, std::string> spared;
    for (const TrashBeside& file : beside) {
      if (!IsSettingsName(file.file.filename().utf8string()) || !GoesAlong(file) ||
          QueryFile(file.file).size == 0) {
        continue;
      }
      const auto misses = [&](const ioPath& owner) {
        return FindEqualSettings(file.file, plan_.photos[going_.at(owner)].kept.path).path.empty();
      };
      const auto owner = std::find_if(file.owners.begin(), file.owners.end(), misses);
      if (owner != file.owners.end()) {
        const ioPath& kept = plan_.photos[going_.at(*owner)].kept.path;
        for (const ioPath& photo : file.owners) {
          spared.emplace(photo, "its settings, " + file.file.filename().utf8string() +
                                    ", would be lost: the photo to keep, " + kept.utf8string() +
                                    ", does not have them");
        }
      }
    }
    if (spared.empty()) {
      return;
    }
    std::vector<TrashPhoto> photos = std::move(plan_.photos);
    plan_.photos.clear();
    going_.clear();
    for (TrashPhoto& photo : photos) {
      const auto why = spared.find(photo.photo.path);
      if (why != spared.end()) {
        Stay(photo.photo.path, why->second, true);
      } else {
        going_.emplace(photo.photo.path, plan_.photos.size());
        plan_.photos.push_back(std::move(photo));
      }
    }
  }

  void AddAttached(const TrashBeside& beside) {
    const FileState state = QueryFile(beside.file);
    if (!GoesAlong(beside) || state.kind != FileState::Kind::File || !links_.LinkTo(state).empty()) {
      return;
    }
    // With the last of them.
    std::size_t last = 0;
    for (const ioPath& photo : beside.owners) {
      last = std::max(last, going_.at(photo));
    }
    AttachedFile attached = {{beside.file, state.size, state.modifiedNs}, beside.owners};
    if (IsSettingsName(beside.file.filename().utf8string()) && state.size > 0) {
      attached.equal = FindEqualSettings(beside.file, plan_.photos[last].kept.path);
    }
    plan_.photos[last].attached.push_back(std::move(attached));
  }

  const std::vector<SuggestedGroup>& groups_;
  const TrashChoice choice_;
  const HasMore& hasMore_;
  std::set<FileIdentity> kept_;
  LinkedFiles links_;
  std::unordered_map<ioPath, std::size_t> going_;
  TrashPlan plan_;
};

}  // namespace

std::size_t TrashPlan::CountAlike() const {
  return static_cast<std::size_t>(std::count_if(photos.begin(), photos.end(), [](const TrashPhoto& photo) {
    return photo.verdict.verdict != Verdict::Same;
  }));
}

std::size_t TrashPlan::CountFiles() const {
  std::size_t files = 0;
  for (const TrashPhoto& photo : photos) {
    files += 1 + photo.attached.size();
  }
  return files;
}

std::uint64_t TrashPlan::CountBytes() const {
  std::uint64_t bytes = 0;
  for (const TrashPhoto& photo : photos) {
    bytes += photo.photo.size;
    for (const SeenFile& file : photo.attached) {
      bytes += file.size;
    }
  }
  return bytes;
}

TrashPlan PlanTrash(const std::vector<SuggestedGroup>& groups, TrashChoice choice, const HasMore& hasMore,
                    const std::set<ioPath>& folders) {
  return Planner(groups, choice, hasMore, folders).Run();
}

}  // namespace Zenvora::Lumidex::Host
