#pragma once

#include <zenvora/core/ioPath.h>

#include <string>

namespace Zenvora::Lumidex::Host {

/// A file's name, taken apart: both parts together are the name, bytes as on the disk.
struct ShotName {
  std::string base;
  std::string suffix;
};

/// A path taken apart as a text: cheaper than element by element.
struct FileName {
  std::string folder;  ///< With its separator, as spelled; empty: the current one.
  std::string name;
};

FileName SplitFolder(const ioPath& file);

/// The file of that name in the folder of `file`.
ioPath Sibling(const ioPath& file, const std::string& name);

/// The base is what the files of one shot share, the suffix the extension, or both extensions of what
/// belongs to one file of a shot ("IMG_1.CR2.xmp"). A name of nothing but a leading dot's extension is all
/// base.
ShotName SplitShotName(const std::string& name);

/// True for names of photos and of what cameras and programs put beside them, by extension, case ignored.
bool IsShotFile(const ioPath& name);

/// The name of the file whose settings the file holds for a further version of it ("IMG_1.CR2" for
/// "IMG_1_02.CR2.xmp"); empty when the name does not look so.
std::string VersionOwner(const ShotName& name);

/// Takes the version's number from the base to the suffix.
ShotName SplitVersion(const ShotName& name);

}  // namespace Zenvora::Lumidex::Host
