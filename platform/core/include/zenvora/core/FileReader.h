#pragma once

#include <zenvora/core/Export.h>
#include <zenvora/core/FileHandle.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <system_error>

namespace Zenvora {

/// Reads a regular file once, from its beginning to its end, in large pieces, and keeps hold of the very file
/// that was opened, whatever becomes of its name. Nothing of the file changes, where the system lets us not
/// even the time of its last reading. An object belongs to one thread; everything blocks on the disk.
class ZENVORA_CORE_EXPORT FileReader {
 public:
  enum class From {
    Anywhere,  ///< What the system remembers of the file serves.
    Device,    ///< The bytes come from the device, as far as the system lets them: what is remembered is
               ///< dropped.
  };
  /// The largest piece. Bytes; a multiple of every device's blocks.
  static constexpr std::size_t kPiece = std::size_t{1} << 20U;

  FileReader();
  ~FileReader();
  FileReader(const FileReader&) = delete;
  FileReader& operator=(const FileReader&) = delete;

  /// Opens the file, once for each object, without waiting for anybody: pipes, devices and folders are
  /// refused with `not_supported` and not read.
  std::error_code Open(const ioPath& file, From from = From::Anywhere);
  /// The next piece, empty at the end. Valid until the next call.
  std::error_code Next(std::string_view& piece);
  /// At most `count` bytes, and no more than a piece, from a place on; empty at the end. The next piece is
  /// the one that it would have been. Not for a file that is read from its device. Valid until the next call.
  std::error_code At(std::uint64_t place, std::size_t count, std::string_view& bytes);
  /// What the system says now of the file that is open.
  FileState State() const;

 private:
  std::unique_ptr<char, void (*)(char*)> buffer_;
  FileHandle handle_ = kNoFileHandle;
};

/// Waits until all that was written to the file is on the disk. Blocks; any thread.
ZENVORA_CORE_EXPORT std::error_code SyncFile(const ioPath& file);

}  // namespace Zenvora
