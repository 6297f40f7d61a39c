#pragma once

#include <host/ImportSources.h>

#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Something that would be in the way of taking files in, or of saving them where they lie.
struct CheckFinding {
  enum class Kind {
    Unreadable,  ///< A file that cannot be read, or a folder that could not be looked through.
    Format,      ///< A format that can be read but not written.
    Space,       ///< A volume on which the files have no room a second time.
    Folder,      ///< A folder in which no file can be made.
    File,        ///< A file that cannot be written.
  };
  Kind kind = Kind::Unreadable;
  ioPath path;
  std::string text;  ///< A sentence for a person.
};

/// How much saving the files anew would take on one volume.
struct CheckedVolume {
  ioPath folder;  ///< One of the checked ones on it.
  std::uint64_t files = 0;
  std::uint64_t bytesNeeded = 0;
  std::int64_t bytesFree = -1;  ///< Zero or less: unknown.
};

struct CheckReport {
  std::size_t files = 0;
  /// Ordered by kind, as the checks are made, and then by path.
  std::vector<CheckFinding> findings;
  std::vector<CheckedVolume> volumes;
};

/// Makes all of the library's checks of the files and lists everything that they find, where the checks
/// themselves stop at the first: each is asked for one folder, one file at a time. Changes nothing. Blocks on
/// the disk; main thread only, as all that translates.
CheckReport CheckFiles(const GatheredSources& sources);

}  // namespace Zenvora::Lumidex::Host
