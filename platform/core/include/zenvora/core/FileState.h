#pragma once

#include <zenvora/core/Export.h>
#include <zenvora/core/FileHandle.h>
#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <system_error>
#include <utility>

namespace Zenvora {

/// What the system says of a name, links followed.
struct FileState {
  enum class Kind {
    Missing,  ///< Nothing is there, or a link leads nowhere.
    File,
    Folder,
    Other,    ///< A pipe, a device, a socket.
    Loop,     ///< Links lead in a circle; `error` says so.
    Unknown,  ///< The system did not tell; `error` says why.
  };
  Kind kind = Kind::Unknown;
  std::uint64_t size = 0;       ///< Bytes; of files.
  std::int64_t modifiedNs = 0;  ///< Nanoseconds since 1970-01-01 UTC.
  /// Equal for two names of one file or folder.
  std::pair<std::uint64_t, std::uint64_t> identity;
  /// How many names the file has (hard links), this one counted.
  std::uint64_t names = 0;
  std::error_code error;
};

/// Asks without opening the file's content. Blocks on the disk; safe from any thread; never throws.
ZENVORA_CORE_EXPORT FileState QueryFile(const ioPath& file) noexcept;

/// The same of a file that this process has open.
ZENVORA_CORE_EXPORT FileState QueryOpenFile(FileHandle handle) noexcept;

/// True when both names are of one existing file or folder.
ZENVORA_CORE_EXPORT bool IsSameFile(const ioPath& left, const ioPath& right) noexcept;

/// Makes the folder with its parents; no error when it is there already.
ZENVORA_CORE_EXPORT std::error_code MakeFolders(const ioPath& folder);

}  // namespace Zenvora
