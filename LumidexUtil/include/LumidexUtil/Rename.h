#pragma once

#include <LumidexUtil/Export.h>

#include <zenvora/core/Exception.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/IFileAccessLocker.h>

namespace Zenvora::Util {

/// A file could not be renamed: nothing has changed on the disk. Carries `TagFilename` (the source),
/// `TagDescription` (a sentence with both names) and `TagCallStack`.
class LUMIDEXUTIL_EXPORT ExceptionRename : public Exception {
 public:
  ExceptionRename() = default;
  ExceptionRename(const ExceptionRename&) = default;
  ExceptionRename(ExceptionRename&&) = default;
  ExceptionRename& operator=(const ExceptionRename&) = default;
  ExceptionRename& operator=(ExceptionRename&&) = default;
  ~ExceptionRename() noexcept override;
};

/// Renames or moves a file within its volume, holding `from` through `locker` meanwhile, and tries again for
/// about a second while the system refuses: other programs keep files open for a moment. An existing file at
/// `to` is replaced in one step; whoever does not want that must look before. `to` is not locked.
///
/// Nothing happens when both paths are equal. Throws `ExceptionRename` after 20 attempts 50 ms apart, and
/// whatever `locker` throws. Safe from any thread that may block for a second, and for half a second more
/// when `from` cannot be read (`FileAccessLocker::Lock`); `from` must not be held by the calling thread.
LUMIDEXUTIL_EXPORT void Rename(Lumidex::IFileAccessLocker& locker, const ioPath& from, const ioPath& to);

}  // namespace Zenvora::Util
