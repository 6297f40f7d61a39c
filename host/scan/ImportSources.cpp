#include "FolderWalker.h"
#include "Housekeeping.h"
#include "PictureHead.h"

#include <host/base/FolderEntries.h>
#include <host/base/HostError.h>
#include <host/catalogue/UndoFolder.h>
#include <host/scan/ImportSources.h>
#include <host/shots/ShotNames.h>
#include <host/shots/ShotSets.h>

#include <zenvora/core/ErrorText.h>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using LeftKind = LeftFile::Kind;

/// Canonical, so that a file has one path however its folder is named.
ioPath CanonicalSource(const ioPath& source) {
  std::error_code error;
  ioPath path = source.canonical(error);
  if (error) {
    const std::string name = source.utf8string();
    ThrowHostError(name, name + " cannot be imported: " + ErrorText(error) + ".");
  }
  return path;
}

class Gatherer {
 public:
  explicit Gatherer(Gathered wanted) : everything_(wanted == Gathered::Everything) {}

  GatheredSources Gather(const std::vector<ioPath>& sources) {
    std::vector<ioPath> roots;
    for (const ioPath& source : sources) {
      const ioPath path = CanonicalSource(source);
      const FileState state = QueryFile(path);
      if (state.kind == FileState::Kind::File) {
        named_.insert(path);
        roots.push_back(path);
      } else if (state.kind == FileState::Kind::Folder) {
        roots.push_back(path);
      } else {
        result_.left.push_back({LeftKind::NoFile, path, "It is a pipe or a device", false});
      }
    }
    Walk(roots);
    AddShotFilesOfNamed();
    Group();
    return std::move(result_);
  }

 private:
  void Walk(const std::vector<ioPath>& roots) {
    FolderWalker walker(
        roots, FolderWalker::Wanted::Files,
        [this](const ioPath& path, const FolderEntry& entry) { return PassOver(path, entry); });
    FolderWalker::Found found;
    while (walker.Next(found)) {
      if (IsHidden(found.path)) {
        Leave(LeftKind::Hidden, found.path);
      } else {
        Add(found.path, found.state);
      }
    }
    for (const ScanFinding& finding : walker.Findings()) {
      const bool isOther = QueryFile(finding.path).kind == FileState::Kind::Other;
      const LeftKind kind = isOther                                   ? LeftKind::NoFile
                            : finding.kind == ScanFinding::Kind::Loop ? LeftKind::Loop
                                                                      : LeftKind::Unreadable;
      result_.left.push_back({kind, finding.path, finding.cause, false});
    }
  }

  bool PassOver(const ioPath& path, const FolderEntry& entry) {
    const bool isFolder = entry.kind == FolderEntry::Kind::Folder;
    if (!everything_) {
      return entry.hidden || (isFolder && IsUndoFolder(path));
    }
    if (isFolder ? IsHousekeepingFolder(path) : IsHousekeepingFile(path)) {
      if (isFolder || entry.kind == FolderEntry::Kind::Other || !MayHoldAPicture(path)) {
        ++result_.housekeeping;
        return true;
      }
      misnamed_.insert(path);
    }
    if (entry.hidden) {
      hidden_.insert(path);
    }
    return false;
  }

  void Leave(LeftKind kind, const ioPath& file) {
    const char* const cause = misnamed_.count(file) > 0
                                  ? "It is named like a housekeeping file, but may be a picture or a video"
                                  : "";
    result_.left.push_back({kind, file, cause, false});
  }

  bool IsHidden(const ioPath& file) const {
    for (ioPath place = file; !hidden_.empty() && place.parent_path() != place; place = place.parent_path()) {
      if (hidden_.count(place) > 0) {
        return true;
      }
    }
    return false;
  }

  void Add(const ioPath& path, const FileState& state) {
    if (states_.emplace(path, state).second) {
      (Leads(path) && beside_.count(path) == 0 ? leaders_ : others_).push_back(path);
    }
  }

  bool Leads(const ioPath& path) const {
    return IsPhotoName(path) || (everything_ && IsFilmName(path.filename().utf8string()));
  }

  /// Each folder is read once, however many of its files were named.
  void AddShotFilesOfNamed() {
    std::unordered_set<ioPath> folders;
    for (const ioPath& file : named_) {
      const ioPath folder = file.parent_path();
      if (!Leads(file) || !folders.insert(folder).second) {
        continue;
      }
      std::error_code ignored;
      for (const FolderEntry& entry : ReadFolderEntries(folder, EntryChoice::NotHidden, ignored)) {
        const ioPath path = folder / entry.name;
        if (entry.kind == FolderEntry::Kind::File && !IsPhotoName(path) &&
            IsShotFile(entry.name.utf8string()) && states_.count(path) == 0) {
          beside_.insert(path);
          Add(path, QueryFile(path));
        }
      }
    }
  }

  void Group() {
    AddShots(GroupShots(leaders_, others_));
    std::vector<ioPath> alone;
    for (const ioPath& other : others_) {
      if (taken_.count(other) > 0 || beside_.count(other) > 0) {
        continue;
      }
      if (everything_ && IsShotFile(other.filename().utf8string())) {
        alone.push_back(other);
      } else {
        Leave(LeftKind::NotAPhoto, other);
      }
    }
    AddShots(GroupShots(alone, {}));
    std::sort(result_.left.begin(), result_.left.end(),
              [](const LeftFile& left, const LeftFile& right) { return left.path < right.path; });
  }

  /// Photos first in their shots, then videos: what lies beside them is known by them.
  void AddShots(std::vector<ShotSet> shots) {
    for (ShotSet& set : shots) {
      const auto rank = [](const ShotFile& file) {
        return IsPhotoName(file.path) ? 0 : IsFilmName(file.path.filename().utf8string()) ? 1 : 2;
      };
      std::stable_sort(
          set.files.begin(), set.files.end(),
          [&rank](const ShotFile& one, const ShotFile& other) { return rank(one) < rank(other); });
      const int best = rank(set.files.front());
      for (const ShotFile& file : set.files) {
        taken_.insert(file.path);
        result_.files.push_back({file.path, states_.at(file.path), IsPhotoName(file.path),
                                 rank(file) == best && best < 2, best == 2, shots_, file.suffix});
      }
      ++shots_;
    }
  }

  const bool everything_;
  GatheredSources result_;
  std::unordered_set<ioPath> named_;
  /// Not asked for by anybody: what is of no use among them is not worth a word.
  std::unordered_set<ioPath> beside_;
  std::unordered_map<ioPath, FileState> states_;
  std::unordered_set<ioPath> hidden_;
  /// By their names housekeeping, by what is in them none.
  std::unordered_set<ioPath> misnamed_;
  /// Photos and videos.
  std::vector<ioPath> leaders_;
  std::vector<ioPath> others_;
  std::unordered_set<ioPath> taken_;
  std::size_t shots_ = 0;
};

}  // namespace

std::string ReasonToLeave(const LeftFile& file) {
  if (!file.cause.empty()) {
    return file.cause;
  }
  return file.kind == LeftKind::Hidden ? "It is hidden"
                                       : "It is not a photo, a video or a file that belongs to one";
}

GatheredSources GatherSources(const std::vector<ioPath>& sources, Gathered wanted) {
  return Gatherer(wanted).Gather(sources);
}

}  // namespace Zenvora::Lumidex::Host
