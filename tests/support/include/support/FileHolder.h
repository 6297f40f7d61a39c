#pragma once

#ifdef _WIN32
#include <zenvora/core/ioPath.h>

#include <memory>

namespace Zenvora::Test {

/// Keeps a file open so that nobody else can open, replace or rename it, until told to let go.
class FileHolder {
 public:
  virtual ~FileHolder() = default;
  virtual void LetGo() = 0;
};

/// Held by a thread of this process.
std::unique_ptr<FileHolder> HoldInAThread(const ioPath& file);
/// Held by another process.
std::unique_ptr<FileHolder> HoldInAProcess(const ioPath& file);

}  // namespace Zenvora::Test
#endif
