#pragma once

#include <host/base/ContentHash.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <string>

namespace Zenvora::Lumidex::Host {

/// What came of copying one file.
struct CopyOutcome {
  enum class Status {
    Copied,
    Unreadable,  ///< The source.
    Changed,     ///< The source, while it was read.
    NotWritten,  ///< The copy; the next files may fare better.
    NoRoom,      ///< The disk is full, or the folder takes no files any more: no further copy will do.
    Different,   ///< Read back, the copy is not what was read from the source.
    GivenUp,     ///< On request.
  };
  Status status = Status::Copied;
  /// English, to be put behind a name and a colon; empty when copied.
  std::string cause;
  /// Of the source, as it was read: 64 hexadecimal digits in lower case.
  std::string sha256;
  std::uint64_t size = 0;
  std::int64_t modifiedNs = 0;
};

/// Copies the content of `source`, its time, its permissions and what people noted of it (`NewFile`) into the
/// new file `copy`, which stays only when that went well: not yet safe on the disk, and not compared. Blocks
/// of zeros take no room where the file system can do without. The source is read once; where it turns out to
/// have been changed meanwhile, once more from its beginning. It must be the file `expected`, whatever bears
/// its name by now. Never waits for pipes. Blocks on the disk; any thread.
CopyOutcome CopyToNew(const ioPath& source, const FileState& expected, const ioPath& copy,
                      const KeepGoing& keepGoing);

/// Waits until the copy is on the disk, reads it back from there, past what the system remembers of it as far
/// as it lets us, and compares it with what was read from the source. Blocks on the disk; any thread.
CopyOutcome VerifyCopy(const ioPath& copy, const CopyOutcome& copied);

/// Something that files of one content have in common, and others hardly: made of their size and a few places
/// in them, so that it is found quickly. Empty when the file cannot be read.
std::string SketchOf(const ioPath& file);

/// True when both are readable and hold the same bytes. Stops at the first that differ. `keepGoing` may be
/// null.
bool SameContent(const ioPath& left, const ioPath& right, const KeepGoing& keepGoing);

}  // namespace Zenvora::Lumidex::Host
