#include "FolderEntries.h"
#include "FolderWalker.h"
#include "ShotNames.h"

#include <host/HostError.h>
#include <host/ImportSources.h>
#include <host/Scanner.h>
#include <host/ShotSets.h>

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
        result_.left.push_back({LeftKind::NoFile, path, "It is a pipe or a device"});
      }
    }
    Walk(roots);
    AddSideFilesOfNamed();
    Group();
    return std::move(result_);
  }

 private:
  void Walk(const std::vector<ioPath>& roots) {
    FolderWalker walker(roots, FolderWalker::Wanted::Files);
    FolderWalker::Found found;
    while (walker.Next(found)) {
      Add(found.path, found.state);
    }
    for (const ScanFinding& finding : walker.Findings()) {
      const bool isOther = QueryFile(finding.path).kind == FileState::Kind::Other;
      const LeftKind kind = isOther                                   ? LeftKind::NoFile
                            : finding.kind == ScanFinding::Kind::Loop ? LeftKind::Loop
                                                                      : LeftKind::Unreadable;
      result_.left.push_back({kind, finding.path, finding.cause});
    }
  }

  void Add(const ioPath& path, const FileState& state) {
    if (states_.emplace(path, state).second) {
      (IsPhotoName(path) ? photos_ : others_).push_back(path);
    }
  }

  /// Each folder is read once, however many of its files were named.
  void AddSideFilesOfNamed() {
    std::unordered_set<ioPath> folders;
    for (const ioPath& file : named_) {
      const ioPath folder = file.parent_path();
      if (!IsPhotoName(file) || !folders.insert(folder).second) {
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
    std::size_t shot = 0;
    std::unordered_set<ioPath> taken;
    for (const ShotSet& set : GroupShots(photos_, others_)) {
      for (const ShotFile& file : set.files) {
        taken.insert(file.path);
        result_.files.push_back({file.path, states_.at(file.path), IsPhotoName(file.path), shot});
      }
      ++shot;
    }
    for (const ioPath& other : others_) {
      if (taken.count(other) == 0 && beside_.count(other) == 0) {
        const bool side = IsShotFile(other.filename().utf8string());
        result_.left.push_back({LeftKind::NotAPhoto, other, side ? "It belongs to no photo here" : ""});
      }
    }
    std::sort(result_.left.begin(), result_.left.end(),
              [](const LeftFile& left, const LeftFile& right) { return left.path < right.path; });
  }

  GatheredSources result_;
  std::unordered_set<ioPath> named_;
  /// Not asked for by anybody: what is of no use among them is not worth a word.
  std::unordered_set<ioPath> beside_;
  std::unordered_map<ioPath, FileState> states_;
  std::vector<ioPath> photos_;
  std::vector<ioPath> others_;
};

}  // namespace

GatheredSources GatherSources(const std::vector<ioPath>& sources) {
  return Gatherer().Gather(sources);
}

}  // namespace Zenvora::Lumidex::Host
