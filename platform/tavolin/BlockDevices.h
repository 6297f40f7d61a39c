#pragma once

#include "MountTable.h"

#include <zenvora/core/ioPath.h>

#include <map>
#include <string>

namespace Zenvora::Tavolin {

/// Which mounts lie on something that can be pulled out, by what the kernel tells of its devices (a tree as
/// under /sys) and the device manager noted down (files as in /run/udev/data). Reads small files; remembers
/// answers, so one object serves one round of questions. One thread.
class BlockDevices {
 public:
  BlockDevices(const ioPath& sysRoot, const ioPath& udevData) : sysRoot_(sysRoot), udevData_(udevData) {}

  /// `system`: the mount of "/", whose disks are nothing to pull out; may be null. `folder`: within the
  /// mount.
  bool IsRemovable(const Mount& mount, const std::string& folder, const Mount* system);

 private:
  /// The device's folder in the tree, without links; empty when there is none.
  ioPath FolderOf(const Mount& mount) const;
  bool IsRemovableDisk(const ioPath& disk) const;

  ioPath sysRoot_;
  ioPath udevData_;
  std::map<ioPath, bool> known_;
};

}  // namespace Zenvora::Tavolin
