#pragma once

#include <zenvora/core/ioPath.h>

namespace Zenvora::Test {

/// A file or folder whose content nobody can read while this lives: on Linux for want of permission (which
/// does not stop the superuser), on Windows because somebody holds it alone.
class Closed {
 public:
  explicit Closed(const ioPath& path);
  ~Closed();
  Closed(const Closed&) = delete;
  Closed& operator=(const Closed&) = delete;

 private:
  const ioPath path_;
#ifdef _WIN32
  void* handle_ = nullptr;
#endif
};

/// A pipe that nobody ever writes into: whoever reads it waits for ever.
class Pipe {
 public:
  /// `place`: where it is made, if pipes can lie in folders here.
  explicit Pipe(const ioPath& place);
  ~Pipe();
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  const ioPath& Path() const { return path_; }

 private:
  ioPath path_;
#ifdef _WIN32
  // One for each time that it may be opened.
  void* instances_[16] = {};
#endif
};

}  // namespace Zenvora::Test
