#include <host/base/FolderEntries.h>
#include <host/base/RenameNames.h>
#include <host/shots/PhotoSidecars.h>
#include <host/shots/ShotNames.h>
#include <host/shots/ShotSets.h>

#include <zenvora/core/FileState.h>

#include <map>
#include <system_error>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

bool IsSidecar(const ShotFile& file) {
  constexpr char kExtension[] = ".xmp";
  return NameKey(file.path.extension().utf8string()) == kExtension;
}

/// The one photo of the shot that the sidecar belongs to; null: none that is there.
const ioPath* OwnerOf(const ShotFile& sidecar, const ShotSet& set) {
  const std::string extension = NameKey(OwnerExtension(sidecar.suffix));
  const ioPath* first = nullptr;
  for (const ShotFile& file : set.files) {
    if (!IsPhotoName(file.path)) {
      continue;
    }
    if (!extension.empty() && NameKey(file.suffix) == extension) {
      return &file.path;
    }
    const bool isRaw = IsRawName(file.path.filename().utf8string());
    if (extension.empty() && (first == nullptr || (isRaw && !IsRawName(first->filename().utf8string())))) {
      first = &file.path;
    }
  }
  return first;
}

/// The files of a folder that could be sidecars or share one.
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

ioPath TrueName(const ioPath& file) {
  std::error_code error;
  const ioPath path = file.canonical(error);
  return error ? file : path;
}

/// True when the sidecar, reached by a link, lies beside a photo that it belongs to and that is another one:
/// it changes with that.
bool IsOfAnother(const ioPath& sidecar, const ioPath& photo) {
  for (const ShotSet& set : GroupShots({sidecar}, FilesOf(sidecar.parent_path()))) {
    for (const ShotFile& file : set.files) {
      const ioPath* const owner = file.path == sidecar ? OwnerOf(file, set) : nullptr;
      if (owner != nullptr) {
        return TrueName(*owner) != TrueName(photo);
      }
    }
  }
  return false;
}

}  // namespace

std::vector<EditTask> FindSidecars(const std::vector<ioPath>& photos) {
  std::vector<EditTask> tasks;
  std::unordered_map<ioPath, std::size_t> places;
  std::map<ioPath, std::vector<ioPath>> folders;
  for (const ioPath& photo : photos) {
    places.emplace(photo, tasks.size());
    tasks.push_back({photo, {}});
    folders[photo.parent_path()].push_back(photo);
  }
  // Two links may lead to one file.
  std::unordered_set<ioPath> taken;
  for (auto& [folder, named] : folders) {
    for (const ShotSet& set : GroupShots(std::move(named), FilesOf(folder))) {
      for (const ShotFile& file : set.files) {
        const ioPath* const owner = IsSidecar(file) ? OwnerOf(file, set) : nullptr;
        const auto place = owner == nullptr ? places.end() : places.find(*owner);
        if (place == places.end() || QueryFile(file.path).kind == FileState::Kind::Missing) {
          continue;
        }
        const ioPath sidecar = TrueName(file.path);
        const bool isElsewhere = sidecar != file.path && IsOfAnother(sidecar, *owner);
        if (!isElsewhere && taken.insert(sidecar).second) {
          tasks[place->second].sidecars.push_back(sidecar);
        }
      }
    }
  }
  return tasks;
}

}  // namespace Zenvora::Lumidex::Host
