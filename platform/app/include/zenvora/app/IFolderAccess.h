#pragma once

#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

namespace Zenvora::App {

/// What the user may do in a folder; empty stands for the current one. May be asked on any thread; blocks on
/// the disk; never fails: whatever is not a folder, or does not tell, allows nothing.
class IFolderAccess {
 public:
  virtual ~IFolderAccess() = default;

  /// Whether a new file can be made in it. Nothing stays behind.
  virtual bool CanCreateFileIn(const ioPath& folder) const = 0;
  /// Whether files in it can be reached; each may still refuse for itself.
  virtual bool CanReadFileIn(const ioPath& folder) const = 0;
  /// Makes the folder with its parents; true when it is there then. Whoever only looks what would happen
  /// makes none.
  virtual bool MakeFolder(const ioPath& folder) const { return !MakeFolders(folder); }
};

}  // namespace Zenvora::App
