#include "MovedCompanions.h"

#include "FolderEntries.h"
#include "ShotNames.h"

#include <host/Scanner.h>
#include <host/ShotSets.h>

#include <zenvora/core/FileState.h>

#include <map>
#include <system_error>
#include <unordered_map>

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

}  // namespace

std::vector<MovedName> FindMovedCompanions(const std::vector<MovedName>& photos) {
  std::map<ioPath, std::vector<ioPath>> folders;
  std::unordered_map<ioPath, ioPath> former;
  for (const auto& [from, to] : photos) {
    folders[to.parent_path()].push_back(to);
    former.emplace(to, from);
  }
  std::vector<MovedName> companions;
  for (auto& [folder, named] : folders) {
    for (const ShotSet& set : GroupShots(std::move(named), FilesOf(folder))) {
      for (const ShotFile& file : set.files) {
        if (IsPhotoName(file.path)) {
          continue;
        }
        for (const ShotFile& photo : set.files) {
          const auto from = former.find(photo.path);
          const ioPath name = from == former.end() ? ioPath() : FormerName(file, from->second);
          if (!name.empty() && name != file.path && QueryFile(name).kind == FileState::Kind::Missing) {
            companions.emplace_back(name, file.path);
            break;
          }
        }
      }
    }
  }
  return companions;
}

}  // namespace Zenvora::Lumidex::Host
