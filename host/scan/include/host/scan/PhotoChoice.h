#pragma once

#include <host/base/FileFinding.h>
#include <host/base/HostError.h>

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What a batch rename is made of.
struct RenameChoice {
  /// The files to be renamed, each once, in the order in which they were named: folders spelled in one way,
  /// names as on the disk.
  std::vector<ioPath> named;
  /// The other files in their folders, hidden ones too; for `GroupShots`.
  std::vector<ioPath> files;
  /// Everything else in their folders, these files and links too; for `MakeRenamePlan`.
  std::vector<ioPath> entries;
  /// All symbolic links there, and below the folders that were named; for `PlanLinks` and `TornLinks`.
  std::vector<ioPath> links;
  /// Links to files among what was named: they keep their names.
  std::size_t linksNamed = 0;
};

/// Reads the folders of what a person named (absolute paths) once each. A file stands for itself, a folder
/// for its own photos that are not hidden, by name, digits by their value; what is below it stays out.
/// Symbolic links are left out.
///
/// Throws `HostError` when one of the names is of no file and no folder, or a folder cannot be read: a plan
/// that knows half a folder is none. Blocks on the disk.
RenameChoice ChooseForRename(const std::vector<ioPath>& arguments);

/// Photos whose content is to be changed.
struct EditChoice {
  /// Each once, by its one true name: where a link was named, the photo that it leads to.
  std::vector<ioPath> photos;
  std::vector<FileFinding> refused;
};

/// What stands against editing by way of a symbolic link: it leads nowhere, back to itself, or to where
/// nobody can look. To be put behind its name; empty: nothing does, or it is none. Blocks on the disk.
std::string FindEditLinkFault(const ioPath& link);

/// As above, but what cannot be taken is refused with its cause instead: what is missing, hidden, no file,
/// not named like a photo, in a folder that cannot be read, or a link in a folder that is named like
/// a photo and leads to none. Sidecars and thumbnails that are named along
/// with their photo are skipped. Does not look into the files. Blocks on the disk.
EditChoice ChooseForEdit(const std::vector<ioPath>& arguments);

}  // namespace Zenvora::Lumidex::Host
