#pragma once

#include <LumidexUtil/Export.h>

#include <zenvora/core/IRefCountable.h>
#include <zenvora/core/RefCountImpl.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/IFileAccessLocker.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <memory>

namespace Zenvora::Lumidex {

/// Lets the threads of the process take turns on files, and waits a while for a file that another program
/// keeps to itself. It does not keep other programs out: the file is opened for a moment only, to see whether
/// it can be read.
///
/// Two spellings or links of one file are two paths to it. It remembers every path that it ever saw, so one
/// that lives as long as the program suits thousands of files, not endless streams of names.
///
/// Thread-safety: all operations from any thread; threads with different paths do not wait for each other. It
/// must not be destroyed while a path is held.
class LUMIDEXUTIL_EXPORT FileAccessLocker : public virtual IRefCountable, public virtual IFileAccessLocker {
 public:
  /// A new locker in which every path is free.
  static boost::intrusive_ptr<IFileAccessLocker> Create();

  unsigned int AddRef() const override;
  unsigned int GetRefCount() const override;
  unsigned int Release() const override;

  /// Blocks until the calling thread holds `path`, then until the file can be opened for reading, but no
  /// longer than 50 attempts 10 ms apart. The path is held afterwards in any case; a file that could not be
  /// opened is only worth a warning in the log. A thread must not lock what it holds. Throws
  /// `std::system_error` when the system has no more locks.
  void Lock(const ioPath& path) override;
  /// Gives back a path that the calling thread holds.
  void Unlock(const ioPath& path) override;

 private:
  class LUMIDEXUTIL_NO_EXPORT Impl;

  FileAccessLocker();
  ~FileAccessLocker() override;

  RefCountImpl refCount_;
  std::unique_ptr<Impl> impl_;
};

}  // namespace Zenvora::Lumidex
