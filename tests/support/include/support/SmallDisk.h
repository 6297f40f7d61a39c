#pragma once

#ifndef _WIN32
#include <zenvora/core/ioPath.h>

#include <string>
#include <sys/mount.h>

namespace Zenvora::Test {

/// A volume of its own with little room, mounted on an existing folder while it lives. Only the superuser can
/// make one.
class SmallDisk {
 public:
  SmallDisk(const ioPath& folder, std::size_t bytes) : folder_(folder) {
    const std::string options = "size=" + std::to_string(bytes);
    mounted_ = mount("lumidex-test", folder.native().c_str(), "tmpfs", 0, options.c_str()) == 0;
  }
  ~SmallDisk() {
    if (mounted_) {
      umount2(folder_.native().c_str(), MNT_DETACH);
    }
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  bool IsThere() const { return mounted_; }
  /// From now on nothing can be written on it.
  bool MakeReadOnly() const {
    return mounted_ &&
           mount(nullptr, folder_.native().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
  }

 private:
  const ioPath folder_;
  bool mounted_ = false;
};

}  // namespace Zenvora::Test
#endif
