#pragma once

#include <zenvora/core/ioPath.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <vector>

namespace Zenvora::Test {

/// A volume of its own with little room, mounted on an existing folder while it lives. Only the superuser can
/// make one; on Windows the program that LUMIDEX_TEST_DISKS names (under Wine tools/windows/small-disk.sh).
class SmallDisk {
 public:
  SmallDisk(const ioPath& folder, std::size_t bytes);
  ~SmallDisk();
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  bool IsThere() const { return mounted_; }
  std::uintmax_t Free() const { return std::filesystem::space(folder_.native() / "").available; }
  /// Takes the room that is left, but for so many bytes.
  void Fill(std::uintmax_t but = 0);
  /// Gives back what was taken.
  void Clear();
  /// From now on nothing can be written on it.
  bool MakeReadOnly() const;

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
