#include "TrashBeside.h"

#include "TrashFaults.h"

#include <host/base/FolderEntries.h>
#include <host/base/RenameNames.h>
#include <host/pixels/JudgedPictures.h>
#include <host/shots/ShotNames.h>
#include <host/shots/ShotSets.h>

#include <zenvora/core/FileState.h>

#include <map>
#include <string>
#include <system_error>
#include <unordered_map>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// What cannot be listed stays: nothing is lost by that.
std::vector<ioPath> FilesOf(const ioPath& folder) {
  std::vector<ioPath> files;
  std::error_code ignored;
  for (const FolderEntry& entry : ReadFolderEntries(folder, EntryChoice::NotHidden, ignored)) {
    if (entry.kind == FolderEntry::Kind::File || entry.kind == FolderEntry::Kind::Link) {
      files.push_back(folder / entry.name);
    }
  }
  return files;
}

void AddBeside(const ShotSet& set, std::vector<TrashBeside>& beside) {
  TrashBeside all;
  // By their extensions. Where case counts, two photos can differ in nothing else.
  std::unordered_map<std::string, std::vector<ioPath>> byExtension;
  for (const ShotFile& file : set.files) {
    if (IsPhotoName(file.path)) {
      all.owners.push_back(file.path);
      byExtension[NameKey(file.suffix)].push_back(file.path);
    } else if (!IsAttachedName(file.path.filename().utf8string())) {
      all.isOthersToo = true;
    }
  }
  for (const ShotFile& file : set.files) {
    if (!IsPhotoName(file.path) && IsAttachedName(file.path.filename().utf8string()) && !IsLink(file.path)) {
      const auto owners = byExtension.find(NameKey(OwnerExtension(file.suffix)));
      beside.push_back(owners != byExtension.end() ? TrashBeside{{}, owners->second, false} : all);
      beside.back().file = file.path;
    }
  }
}

}  // namespace

std::vector<TrashBeside> FindBeside(const std::vector<ioPath>& photos) {
  std::map<ioPath, std::vector<ioPath>> folders;
  for (const ioPath& photo : photos) {
    folders[photo.parent_path()].push_back(photo);
  }
  std::vector<TrashBeside> beside;
  for (auto& [folder, inside] : folders) {
    for (const ShotSet& set : GroupShots(std::move(inside), FilesOf(folder))) {
      AddBeside(set, beside);
    }
  }
  return beside;
}

SeenFile FindEqualSettings(const ioPath& settings, const ioPath& kept) {
  const FileState state = QueryFile(settings);
  for (const ShotSet& set : GroupShots({kept}, FilesOf(kept.parent_path()))) {
    for (const ShotFile& file : set.files) {
      const FileState other = QueryFile(file.path);
      if (IsSettingsName(file.path.filename().utf8string()) && !IsLink(file.path) &&
          other.kind == FileState::Kind::File && other.size == state.size && file.path != settings &&
          HoldTheSameBytes(settings, file.path)) {
        return {file.path, other.size, other.modifiedNs};
      }
    }
  }
  return {};
}

}  // namespace Zenvora::Lumidex::Host
