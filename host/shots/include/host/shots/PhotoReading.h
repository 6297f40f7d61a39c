#pragma once

#include <host/catalogue/Catalogue.h>

#include <zenvora/core/ioPath.h>

#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A file or folder that the scan could not take in.
struct ScanFinding {
  enum class Kind {
    NotAnImage,  ///< Named like a photo, but its content is none.
    Unreadable,  ///< A file or folder that could not be read.
    Loop,  ///< A symbolic link that leads back to a folder above it, or to one already visited. Not followed.
    Ambiguous,  ///< A photo was moved, and it cannot be told which, or where to. It is lost, the files are
                ///< new.
  };
  Kind kind;
  ioPath path;
  std::string cause;
  /// Of what is ambiguous: what `path` may be, or the files that may be `path`.
  std::vector<ioPath> candidates = {};
};

/// Reads one file into a record without id. False when it is no photo or cannot be read; then `finding` is
/// set. Blocks on the disk; any thread.
bool ReadPhoto(const ioPath& file, PhotoRecord& record, ScanFinding& finding);

/// The same for those who do not ask why a file is none.
std::optional<PhotoRecord> ReadRecord(const ioPath& file);

}  // namespace Zenvora::Lumidex::Host
