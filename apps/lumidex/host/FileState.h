#pragma once

#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <system_error>
#include <utility>

namespace Zenvora::Lumidex::Host {

/// What the system says of a name, links followed.
struct FileState {
  enum class Kind {
    Missing,  ///< Nothing is there, or a link leads nowhere.
    File,
    Folder,
    Other,    ///< A pipe, a device, a socket.
    Unknown,  ///< The system did not tell; `error` says why.
  };
  Kind kind = Kind::Unknown;
  std::uint64_t size = 0;       ///< Bytes; of files.
  std::int64_t modifiedNs = 0;  ///< Nanoseconds since 1970-01-01 UTC.
  /// Equal for two names of one file or folder.
  std::pair<std::uint64_t, std::uint64_t> identity;
  std::error_code error;
};

/// Asks without opening the file. Never throws.
FileState QueryFile(const ioPath& file);

}  // namespace Zenvora::Lumidex::Host
