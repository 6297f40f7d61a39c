#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/IFileAccessLocker.h>

namespace Zenvora::Lumidex {

/// Holds a path for a scope: `Lock` at its beginning, `Unlock` at its end, on the same thread. `locker` must
/// outlive it. What `Lock` throws comes out of the constructor, and nothing is held then.
class FileAccessLockerGuard {
 public:
  FileAccessLockerGuard(IFileAccessLocker& locker, const ioPath& path) : locker_(locker), path_(path) {
    locker_.Lock(path_);
  }
  ~FileAccessLockerGuard() { locker_.Unlock(path_); }
  FileAccessLockerGuard(const FileAccessLockerGuard&) = delete;
  FileAccessLockerGuard& operator=(const FileAccessLockerGuard&) = delete;

 private:
  IFileAccessLocker& locker_;
  const ioPath path_;
};

}  // namespace Zenvora::Lumidex
