#pragma once

#include <zenvora/core/FileReader.h>
#include <zenvora/core/ioPath.h>

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <string_view>
#include <system_error>

namespace Zenvora::Lumidex::Host {

/// Asked after each piece of a file, with the bytes done so far; false gives the file up.
using KeepGoing = std::function<bool(std::uint64_t bytes)>;

/// SHA-1 or SHA-256 (FIPS 180-4) of bytes that come in pieces, by the library of the system that knows the
/// machine's own instructions for it. An object belongs to one thread. Throws `HostError` when the system has
/// no such hash.
class ContentHash {
 public:
  enum class Kind { Sha1, Sha256 };

  explicit ContentHash(Kind kind = Kind::Sha256);
  ~ContentHash();
  ContentHash(const ContentHash&) = delete;
  ContentHash& operator=(const ContentHash&) = delete;

  void Add(std::string_view bytes);
  /// Adds what is left to read of an open file, piece by piece. Blocks on the disk. `operation_canceled` when
  /// given up; `device_or_resource_busy` when the file grows meanwhile: one that grows as fast as it is read
  /// would have no end.
  std::error_code Add(FileReader& reader, const KeepGoing& keepGoing = {});
  /// The digest, 20 or 32 bytes. Nothing can be added afterwards.
  QByteArray Finish();

 private:
  const Kind kind_;
  void* state_ = nullptr;
};

/// The digest of a file's content; empty when it cannot be read, as `FileReader` and `ContentHash::Add` tell.
/// Blocks on the disk; takes the memory of a piece; any thread.
QByteArray HashFile(const ioPath& file, ContentHash::Kind kind, std::error_code& error,
                    const KeepGoing& keepGoing = {});

}  // namespace Zenvora::Lumidex::Host
