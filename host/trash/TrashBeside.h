#pragma once

#include <host/journal/SeenFile.h>

#include <zenvora/core/ioPath.h>

#include <vector>

namespace Zenvora::Lumidex::Host {

/// Settings or a thumbnail, and the photos that they are of.
struct TrashBeside {
  ioPath file;
  std::vector<ioPath> owners;
  /// A video's thumbnail, or the settings of a layered picture.
  bool isOthersToo = false;
};

/// What lies beside the photos, and is no link. Blocks on the disk, as the next one.
std::vector<TrashBeside> FindBeside(const std::vector<ioPath>& photos);

/// Settings beside the kept photo that hold the same bytes, as a file of their own; an empty path: none.
SeenFile FindEqualSettings(const ioPath& settings, const ioPath& kept);

}  // namespace Zenvora::Lumidex::Host
