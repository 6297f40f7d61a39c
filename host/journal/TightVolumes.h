#pragma once

#include <host/journal/JournalRoom.h>

namespace Zenvora::Lumidex::Host {

/// Where an edit of all `files` would use up a disk. The new versions are written beside the files; the
/// originals stay, on the disk of the catalogue under a second name, of other disks as copies there. Disks
/// that do not tell their room are skipped. Blocks on the disk.
std::vector<TightVolume> FindTightVolumes(const ioPath& catalogue, const std::vector<ioPath>& files);

}  // namespace Zenvora::Lumidex::Host
