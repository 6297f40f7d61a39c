#include "SystemCatalogue.h"

#include <host/base/PathText.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/VolumesSeen.h>

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

/// The folder where the volume of a folder that is there is mounted: on Windows its drive, as a rule.
ioPath MountOf(ioPath folder) {
  const std::uint64_t device = QueryFile(folder).identity.first;
  for (;;) {
    const ioPath above = folder.parent_path();
    if (above == folder || above.empty() || QueryFile(above).identity.first != device) {
      return folder;
    }
    folder = above;
  }
}

/// True when something is mounted there, also where it is the root of all.
bool IsMount(const ioPath& folder) {
  return QueryFile(folder).kind == FileState::Kind::Folder && MountOf(folder) == folder;
}

bool IsNotEmpty(const ioPath& folder) {
  std::error_code error;
  const std::filesystem::directory_iterator first(folder.for_system(), error);
  return !error && first != std::filesystem::directory_iterator();
}

}  // namespace

VolumesSeen::VolumesSeen(const CatalogueMoves& catalogue)
    : catalogue_(catalogue), former_(catalogue.Volumes()) {}

void VolumesSeen::Note(const ioPath& photo, const FileState& state) {
  if (devices_.insert(state.identity.first).second) {
    const ioPath mount = MountOf(photo.parent_path());
    now_[PathBytes(mount).toStdString()] = VolumeId(mount);
  }
}

bool VolumesSeen::IsThere(const ioPath& path, const ioPath& found) {
  const std::pair<const std::string, QString>* mount = nullptr;
  for (const auto& volume : former_) {
    if (IsAtOrBelow(path, ioPath(volume.first)) &&
        (mount == nullptr || volume.first.size() > mount->first.size())) {
      mount = &volume;
    }
  }
  if (mount == nullptr) {
    // Nothing tells where its volume was. An unmounted one leaves no folder, or an empty one.
    return IsNotEmpty(path.parent_path());
  }
  const auto [place, isNew] = isSame_.try_emplace(mount->first, false);
  if (isNew) {
    place->second = IsSameVolume(mount->first, mount->second);
  }
  if (place->second) {
    return true;
  }
  // What moved within it shows that it is the one, unless its number says that it is another.
  const ioPath folder(mount->first);
  return IsMount(folder) && IsAtOrBelow(found, folder) &&
         (mount->second.isEmpty() || VolumeId(folder).isEmpty());
}

bool VolumesSeen::IsSameVolume(const std::string& mounted, const QString& id) {
  const ioPath folder(mounted);
  if (!IsMount(folder)) {
    return false;
  }
  if (IsAlwaysMounted(folder)) {
    return true;
  }
  const QString now = VolumeId(folder);
  if (!id.isEmpty() && now == id) {
    return true;
  }
  // Some volumes are given another number each time. Where one of its photos is, it is there.
  constexpr int kMost = 100;
  const std::vector<PhotoRecord> photos = catalogue_.SomeBelow(folder, kMost);
  return std::any_of(photos.begin(), photos.end(), [](const PhotoRecord& photo) {
    const FileState state = QueryFile(photo.path);
    return state.kind == FileState::Kind::File && state.size == photo.size &&
           state.modifiedNs == photo.modifiedNs;
  });
}

void NoteVolumesOf(const Catalogue& catalogue, const std::vector<PhotoRecord>& photos) {
  const CatalogueMoves moves(catalogue.Database());
  VolumesSeen volumes(moves);
  for (const PhotoRecord& photo : photos) {
    volumes.Note(photo.path, QueryFile(photo.path));
  }
  moves.StoreVolumes(volumes.Now());
}

}  // namespace Zenvora::Lumidex::Host
