#include "TightVolumes.h"

#include <host/journal/JournalFolder.h>

#include <zenvora/core/FileState.h>
#include <zenvora/qtutility/DiskQuestions.h>

#include <algorithm>
#include <map>

namespace Zenvora::Lumidex::Host {

namespace {

struct Files {
  ioPath folder;
  std::uint64_t sum = 0;
  std::uint64_t largest = 0;
};

/// The nearest folder that is there already.
ioPath StandingFolder(ioPath folder) {
  while (QueryFile(folder).kind == FileState::Kind::Missing && folder.parent_path() != folder &&
         !folder.parent_path().empty()) {
    folder = folder.parent_path();
  }
  return folder;
}

void AddIfTight(const ioPath& folder, std::uint64_t needed, std::vector<TightVolume>& tight) {
  const std::int64_t free = Util::GetAvailableDiskSpace(folder);
  if (free >= 0 && needed > static_cast<std::uint64_t>(free)) {
    tight.push_back({folder, needed, free});
  }
}

}  // namespace

std::vector<TightVolume> FindTightVolumes(const ioPath& catalogue, const std::vector<ioPath>& files) {
  std::map<std::uint64_t, Files> volumes;
  for (const ioPath& file : files) {
    const FileState state = QueryFile(file);
    if (state.kind == FileState::Kind::File) {
      Files& volume = volumes[state.identity.first];
      volume.folder = volume.folder.empty() ? file.parent_path() : volume.folder;
      volume.sum += state.size;
      volume.largest = std::max(volume.largest, state.size);
    }
  }
  std::vector<TightVolume> tight;
  if (volumes.empty()) {
    return tight;
  }
  const ioPath home = StandingFolder(catalogue.absolute().parent_path());
  const std::uint64_t homeDevice = QueryFile(home).identity.first;
  std::uint64_t atHome = JournalFolder::RoomToBegin(catalogue.absolute());
  std::uint64_t largestCopy = 0;
  for (const auto& [device, volume] : volumes) {
    atHome += volume.sum;
    if (device != homeDevice) {
      largestCopy = std::max(largestCopy, volume.largest);
      AddIfTight(volume.folder, volume.largest, tight);
    }
  }
  AddIfTight(home, atHome + largestCopy, tight);
  return tight;
}

}  // namespace Zenvora::Lumidex::Host
