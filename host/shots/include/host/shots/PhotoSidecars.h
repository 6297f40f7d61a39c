#pragma once

#include <zenvora/core/ioPath.h>

#include <vector>

namespace Zenvora::Lumidex::Host {

/// A photo with what must change along with it.
struct EditTask {
  ioPath photo;
  /// The .xmp files beside it that belong to it, by their true names; whether an edit changes something in
  /// them is another question.
  std::vector<ioPath> sidecars;
};

/// Finds the sidecars of photos (canonical paths, each once), in their order. "IMG_1.CR2.xmp" belongs to
/// IMG_1.CR2. "IMG_1.xmp" belongs to the raw file of that shot, which is where programs look for it; without
/// one to the first of the shot's photos, by path. So a sidecar is nobody's or one photo's, and stays as it
/// is while only another format of the shot is edited. Links lead to the files that are edited, but not to
/// the sidecar that lies beside another photo and belongs to it. Reads each folder once, and those of links;
/// a folder that cannot be listed has no sidecars. Blocks on the disk.
std::vector<EditTask> FindSidecars(const std::vector<ioPath>& photos);

}  // namespace Zenvora::Lumidex::Host
