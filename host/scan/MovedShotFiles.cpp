#include "MovedShotFiles.h"

#include <host/base/FolderEntries.h>
#include <host/shots/ShotNames.h>
#include <host/shots/ShotSets.h>

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <map>
#include <system_error>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

std::vector<ioPath> FilesOf(const ioPath& folder) {
  std::vector<ioPath> files;
  std::error_code ignored;
  for (const FolderEntry& entry : ReadFolderEntries(folder, EntryChoice::NotHidden, ignored)) {
    if (entry.kind == FolderEntry::Kind::File) {
      files.push_back(folder / entry.name);
    }
  }
  return files;
}

/// By one of the photos that moved, the name that the file had beside it.
ioPath FormerName(const ShotFile& file, const ioPath& photo) {
  return Sibling(photo, SplitShotName(photo.filename().utf8string()).base + file.suffix);
}

/// A file that still is under the former name has not moved, unless another one that moved has that name now.
void DropStaying(std::vector<MovedName>& files) {
  const auto isThere = [](const MovedName& name) {
    return QueryFile(name.first).kind != FileState::Kind::Missing;
  };
  const auto doubtful = std::stable_partition(files.begin(), files.end(),
                                              [&isThere](const MovedName& name) { return !isThere(name); });
  std::vector<MovedName> open(doubtful, files.end());
  files.erase(doubtful, files.end());
  for (std::size_t before = 0; before != open.size();) {
    before = open.size();
    std::unordered_set<ioPath> present;
    for (const std::vector<MovedName>* const names : {&std::as_const(files), &std::as_const(open)}) {
      for (const MovedName& name : *names) {
        present.insert(name.second);
      }
    }
    open.erase(std::remove_if(open.begin(), open.end(),
                              [&present](const MovedName& name) { return present.count(name.first) == 0; }),
               open.end());
  }
  files.insert(files.end(), open.begin(), open.end());
}

}  // namespace

std::vector<MovedName> FindMovedShotFiles(const std::vector<MovedName>& photos) {
  std::map<ioPath, std::vector<ioPath>> folders;
  std::unordered_map<ioPath, ioPath> former;
  for (const auto& [from, to] : photos) {
    folders[to.parent_path()].push_back(to);
    former.emplace(to, from);
  }
  std::vector<MovedName> files;
  for (auto& [folder, named] : folders) {
    for (const ShotSet& set : GroupShots(std::move(named), FilesOf(folder))) {
      for (const ShotFile& file : set.files) {
        if (IsPhotoName(file.path)) {
          continue;
        }
        for (const ShotFile& photo : set.files) {
          const auto from = former.find(photo.path);
          const ioPath name = from == former.end() ? ioPath() : FormerName(file, from->second);
          if (!name.empty() && name != file.path) {
            files.emplace_back(name, file.path);
            break;
          }
        }
      }
    }
  }
  DropStaying(files);
  return files;
}

}  // namespace Zenvora::Lumidex::Host
