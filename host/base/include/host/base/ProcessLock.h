#pragma once

#include <zenvora/core/FileHandle.h>
#include <zenvora/core/ioPath.h>

#include <system_error>

namespace Zenvora::Lumidex::Host {

/// A file that one process at a time can hold, and that is free again when the process ends, however it does.
class ProcessLock {
 public:
  ProcessLock() = default;
  ~ProcessLock();
  ProcessLock(const ProcessLock&) = delete;
  ProcessLock& operator=(const ProcessLock&) = delete;

  /// Makes the file when it is missing; its folder must exist. `resource_unavailable_try_again` while another
  /// object, of this process or another, holds it; `too_many_symbolic_link_levels` for a link, which is not
  /// followed. Does not wait.
  std::error_code Take(const ioPath& file);

 private:
  FileHandle handle_ = kNoFileHandle;
};

}  // namespace Zenvora::Lumidex::Host
