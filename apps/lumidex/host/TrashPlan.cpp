#include "FolderEntries.h"
#include "JudgedPictures.h"
#include "PictureEnd.h"
#include "RenameNames.h"
#include "ShotNames.h"

#include <host/FileVerdicts.h>
#include <host/Scanner.h>
#include <host/ShotSets.h>
#include <host/TrashPlan.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/quillet/MatchTemplate.h>
#include <zenvora/tavolin/Trash.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Identity = std::pair<std::uint64_t, std::uint64_t>;

SeenFile KnownAs(const PhotoRecord& photo) {
  return {photo.path, photo.size, photo.modifiedNs};
}

bool IsLink(const ioPath& file) {
  std::error_code error;
  return std::filesystem::is_symlink(std::filesystem::symlink_status(file.for_system(), error));
}

bool IsAsKnown(const FileState& state, const SeenFile& file) {
  return state.kind == FileState::Kind::File && state.size == file.size &&
         state.modifiedNs == file.modifiedNs;
}

/// To be put behind the name.
std::string WhatIsWrong(const FileState& state) {
  switch (state.kind) {
    case FileState::Kind::Missing:
      return "is not there any more";
    case FileState::Kind::File:
      return "has been changed since it was looked at";
    default:
      return state.error ? "cannot be looked at (" + ErrorText(state.error) + ")" : "is no file any more";
  }
}

std::string Stays(const ioPath& photo, const std::string& why) {
  return photo.utf8string() + " stays: " + why + ".";
}

class Planner {
 public:
  Planner(const std::vector<SuggestedGroup>& groups, TrashChoice choice, const HasMore& hasMore)
      : groups_(groups), choice_(choice), hasMore_(hasMore) {
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
    AddAppendices();
    return std::move(plan_);
  }

 private:
  static const SimilarMember& KeptOf(const SuggestedGroup& group) {
    return group.group.members[group.keeper.index];
  }

  /// The middle of a group wanders with each photo that comes, and those at its two ends can differ widely.
  static bool IsLike(const SimilarMember& photo, const SimilarMember& kept) {
    return Quillet::MatchTemplate(photo.features.vector, kept.features.vector) > kSameGroupScore;
  }

  void AddGroup(const SuggestedGroup& group) {
    const ioPath& kept = KeptOf(group).photo.path;
    const FileState state = QueryFile(kept);
    std::string fault;
    if (!IsAsKnown(state, KnownAs(KeptOf(group).photo))) {
      fault = "the one to keep, " + kept.utf8string() + ", " + WhatIsWrong(state);
    } else if (Tavolin::LiesInTrash(kept)) {
      fault = "the one to keep, " + kept.utf8string() + ", is in a trash itself";
    } else if (group.group.members.size() > 1 && EndsTooSoon(kept)) {
      // As large as it was, and hardly less sharp: nothing else tells it from the whole one.
      fault = "the one to keep, " + kept.utf8string() + ", breaks off before the end of its picture";
    } else if (KeptOf(group).origin && !KeptOf(group).origin->degradation.empty()) {
      fault = "the one to keep, " + kept.utf8string() + ", is damaged: " + KeptOf(group).origin->degradation;
    }
    std::set<std::size_t> raws;
    for (std::size_t i = 0; i < group.group.members.size(); ++i) {
      if (i != group.keeper.index) {
        Judge(group, i, fault, raws);
      }
    }
    SettleRaws(group, raws);
  }

  void Judge(const SuggestedGroup& group, std::size_t index, const std::string& fault,
             std::set<std::size_t>& raws) {
    const PhotoRecord& photo = group.group.members[index].photo;
    const ioPath& kept = KeptOf(group).photo.path;
    const FileState state = QueryFile(photo.path);
    if (!fault.empty()) {
      Stay(photo.path, fault, false);
    } else if (!IsAsKnown(state, KnownAs(photo))) {
      Stay(photo.path, "it " + WhatIsWrong(state), false);
    } else if (FileVerdict verdict = JudgeTrash(photo.path); verdict.IsRefused()) {
      plan_.stays.push_back(
          {photo.path, std::move(verdict.text), verdict.kind == FileVerdict::Kind::Kept, {}});
    } else if (kept_.count(state.identity) > 0) {
      Stay(photo.path, "it is another name of a file that is kept", true);
    } else if (ShotKey(photo.path) == ShotKey(kept)) {
      Stay(photo.path, "it is of the same shot as " + kept.filename().utf8string() + ", which is kept", true);
    } else if (!IsLike(group.group.members[index], KeptOf(group))) {
      Stay(photo.path, "it is like others of its group, but not like the one to keep, " + kept.utf8string(),
           true);
    } else if (const std::string why = WhyKept(VerdictOf(group, index), kept); !why.empty()) {
      plan_.stays.push_back({photo.path, Stays(photo.path, why), true, VerdictOf(group, index).verdict});
    } else if (hasMore_ && hasMore_(photo, KeptOf(group).photo)) {
      Stay(photo.path, "it has tags or albums that " + kept.utf8string() + ", which is kept, has not", true);
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
        return "it shows something else than the one to keep, " + kept.utf8string() + why;
      case Verdict::Unknown:
        break;
    }
    return "it could not be compared with the one to keep, " + kept.utf8string() + why;
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

  void AddAppendices() {
    std::map<ioPath, std::vector<ioPath>> folders;
    for (const TrashPhoto& photo : plan_.photos) {
      folders[photo.photo.path.parent_path()].push_back(photo.photo.path);
    }
    for (auto& [folder, photos] : folders) {
      std::vector<ioPath> files;
      std::error_code error;
      for (const FolderEntry& entry : ReadFolderEntries(folder, EntryChoice::NotHidden, error)) {
        if (entry.kind == FolderEntry::Kind::File || entry.kind == FolderEntry::Kind::Link) {
          files.push_back(folder / entry.name);
        }
      }
      // What cannot be listed stays: nothing is lost by that.
      for (const ShotSet& set : GroupShots(std::move(photos), files)) {
        AddAppendices(set);
      }
    }
  }

  void AddAppendices(const ShotSet& set) {
    Owners all;
    // By their extensions. Where case counts, two photos can differ in nothing else.
    std::unordered_map<std::string, Owners> byExtension;
    for (const ShotFile& file : set.files) {
      if (IsPhotoName(file.path)) {
        Take(file.path, all);
        Take(file.path, byExtension[NameKey(file.suffix)]);
      } else if (!IsAppendixName(file.path.filename().utf8string())) {
        // A film's thumbnail, or the settings of a layered picture.
        all.anyStays = true;
      }
    }
    for (const ShotFile& file : set.files) {
      if (!IsPhotoName(file.path) && IsAppendixName(file.path.filename().utf8string()) &&
          !IsLink(file.path)) {
        const auto owners = byExtension.find(NameKey(OwnerExtension(file.suffix)));
        AddAppendix(file.path, owners != byExtension.end() ? owners->second : all);
      }
    }
  }

  /// Photos to which what lies beside them belongs.
  struct Owners {
    std::vector<ioPath> going;
    bool anyStays = false;
  };

  void Take(const ioPath& photo, Owners& owners) const {
    if (going_.count(photo) > 0) {
      owners.going.push_back(photo);
    } else {
      owners.anyStays = true;
    }
  }

  void AddAppendix(const ioPath& file, const Owners& owners) {
    const FileState state = QueryFile(file);
    if (owners.anyStays || owners.going.empty() || state.kind != FileState::Kind::File) {
      return;
    }
    // With the last of them.
    std::size_t last = 0;
    for (const ioPath& photo : owners.going) {
      last = std::max(last, going_.at(photo));
    }
    plan_.photos[last].appendix.push_back({{file, state.size, state.modifiedNs}, owners.going});
  }

  const std::vector<SuggestedGroup>& groups_;
  const TrashChoice choice_;
  const HasMore& hasMore_;
  std::set<Identity> kept_;
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
    files += 1 + photo.appendix.size();
  }
  return files;
}

std::uint64_t TrashPlan::CountBytes() const {
  std::uint64_t bytes = 0;
  for (const TrashPhoto& photo : photos) {
    bytes += photo.photo.size;
    for (const SeenFile& file : photo.appendix) {
      bytes += file.size;
    }
  }
  return bytes;
}

TrashPlan PlanTrash(const std::vector<SuggestedGroup>& groups, TrashChoice choice, const HasMore& hasMore) {
  return Planner(groups, choice, hasMore).Run();
}

std::string FindTrashFault(const SeenFile& photo, const SeenFile& kept) {
  const FileState keptState = QueryFile(kept.path);
  if (!IsAsKnown(keptState, kept)) {
    return Stays(photo.path, "the one to keep, " + kept.path.utf8string() + ", " + WhatIsWrong(keptState));
  }
  const FileState state = QueryFile(photo.path);
  if (!IsAsKnown(state, photo)) {
    return Stays(photo.path, "it " + WhatIsWrong(state));
  }
  if (IsLink(photo.path) || state.identity == keptState.identity) {
    return Stays(photo.path, "it is another name of a file that is kept");
  }
  return {};
}

std::string FindTrashFault(const TrashPhoto& photo) {
  const std::string fault = FindTrashFault(photo.photo, photo.kept);
  // Two files can change their names within a second and be of one size: a look at both is certain.
  if (fault.empty() && photo.verdict.why == kIdenticalFiles &&
      !HoldTheSameBytes(photo.photo.path, photo.kept.path)) {
    return Stays(photo.photo.path, "it has been changed since it was compared");
  }
  return fault;
}

std::string FindTrashFault(const TrashAppendix& appendix) {
  for (const ioPath& photo : appendix.photos) {
    if (QueryFile(photo).kind != FileState::Kind::Missing) {
      return Stays(appendix.path, "so does " + photo.filename().utf8string() + ", to which it belongs");
    }
  }
  const FileState state = QueryFile(appendix.path);
  if (!IsAsKnown(state, appendix)) {
    return Stays(appendix.path, "it " + WhatIsWrong(state));
  }
  return IsLink(appendix.path) ? Stays(appendix.path, "it is a link to another file") : std::string();
}

}  // namespace Zenvora::Lumidex::Host
