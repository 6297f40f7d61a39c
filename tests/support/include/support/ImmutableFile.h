#pragma once

#ifndef _WIN32
#include <zenvora/core/ioPath.h>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace Zenvora::Test {

/// A file that nobody may rename, replace or remove while this lives, as `chattr +i` makes it. Only the
/// superuser can, on file systems that have the attribute.
class ImmutableFile {
 public:
  explicit ImmutableFile(const ioPath& file) : handle_(open(file.native().c_str(), O_RDONLY | O_CLOEXEC)) {
    int closed = 0;
    made_ = ioctl(handle_, FS_IOC_GETFLAGS, &flags_) == 0 && (closed = flags_ | FS_IMMUTABLE_FL) != flags_ &&
            ioctl(handle_, FS_IOC_SETFLAGS, &closed) == 0;
  }
  ~ImmutableFile() {
    if (made_) {
      EXPECT_EQ(ioctl(handle_, FS_IOC_SETFLAGS, &flags_), 0);
    }
    close(handle_);
  }
  ImmutableFile(const ImmutableFile&) = delete;
  ImmutableFile& operator=(const ImmutableFile&) = delete;

  bool IsThere() const { return made_; }

 private:
  const int handle_;
  int flags_ = 0;
  bool made_ = false;
};

}  // namespace Zenvora::Test

#define LUMIDEX_IMMUTABLE_OR_SKIP(file)                                        \
  if (!(file).IsThere()) {                                                     \
    GTEST_SKIP() << "this user, or this file system, makes nothing immutable"; \
  }                                                                            \
  static_assert(true)
#endif
