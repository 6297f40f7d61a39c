#pragma once

#include <zenvora/core/IRefCountable.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/Export.h>

namespace Zenvora::Lumidex {

/// Lets the threads of a process take turns on files, each named by its path. Two paths of one file, such as
/// through a link, are two paths.
///
/// Thread-safety: all operations from any thread. The order of the virtual operations is part of the binary
/// interface: those of `IRefCountable`, then `Lock`, `Unlock`.
class ZENVORA_LUMIDEX_EXPORT IFileAccessLocker : public virtual IRefCountable {
 protected:
  ~IFileAccessLocker() override;

 public:
  /// Blocks until the calling thread holds `path`. Not recursive: a thread that holds the path already must
  /// not ask for it again.
  virtual void Lock(const ioPath& path) = 0;
  /// Gives back a path that the calling thread holds.
  virtual void Unlock(const ioPath& path) = 0;
};

}  // namespace Zenvora::Lumidex
