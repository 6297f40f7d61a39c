#pragma once

#ifndef _WIN32
#include <zenvora/core/ioPath.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/mount.h>
#include <vector>

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
  std::uintmax_t Free() const { return std::filesystem::space(folder_.native()).available; }
  /// Takes the room that is left, but for so many bytes.
  void Fill(std::uintmax_t but = 0) {
    if (const std::uintmax_t free = Free(); free > but) {
      fillers_.push_back(folder_ / ("filler" + std::to_string(fillers_.size())));
      std::ofstream(fillers_.back().native(), std::ios::binary) << std::string(free - but, 'f');
    }
  }
  /// Gives back what was taken.
  void Clear() {
    for (const ioPath& filler : fillers_) {
      filler.remove();
    }
    fillers_.clear();
  }
  /// From now on nothing can be written on it.
  bool MakeReadOnly() const {
    return mounted_ &&
           mount(nullptr, folder_.native().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
  }

 private:
  const ioPath folder_;
  bool mounted_ = false;
  std::vector<ioPath> fillers_;
};

}  // namespace Zenvora::Test

#define LUMIDEX_DISK_OR_SKIP(disk)                        \
  if (!(disk).IsThere()) {                                \
    GTEST_SKIP() << "this user cannot make a small disk"; \
  }                                                       \
  static_assert(true)
#endif
