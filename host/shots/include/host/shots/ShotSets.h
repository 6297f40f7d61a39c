#pragma once

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

struct ShotFile {
  ioPath path;
  /// The end of its name that no rename changes: the extension with its dot (bytes as on the disk); of what
  /// belongs to one file of the shot ("IMG_1.CR2.xmp") both extensions, and a version's number before them
  /// ("IMG_1_02.CR2.xmp"). May be empty.
  std::string suffix;
};

/// The files of one press of the shutter: the photo in its formats and what lies beside it. All are in one
/// folder and bear one name.
struct ShotSet {
  /// The name that they share, as the first file spells it.
  std::string name;
  /// Photos first, then by path. Never empty.
  std::vector<ShotFile> files;
};

/// Groups files into shots: those of one folder whose names without extension are equal, whatever their case
/// and Unicode form. `named`: what the user chose; each of them is in exactly one set, also when its
/// extension is unknown. `entries`: the files (no folders) in the folders of those, or nothing; such as are
/// photos or usually lie beside photos join the sets, the others and hidden ones stay out. The sets are in
/// the order in which the first of their files was named.
///
/// Where names differ by case only, on a disk that tells them apart, each spelling is a shot of its own.
/// Folders are compared as they are spelled: each must be spelled in one way.
///
/// Pure; names that occur twice count once. docs/decisions/rename.md has the reasons.
std::vector<ShotSet> GroupShots(std::vector<ioPath> named, const std::vector<ioPath>& entries);

}  // namespace Zenvora::Lumidex::Host
