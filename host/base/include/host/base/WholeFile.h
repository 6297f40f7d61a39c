#pragma once

#include <zenvora/core/NewFile.h>
#include <zenvora/core/ioPath.h>

#include <QByteArray>

#include <cstdint>
#include <string>
#include <system_error>

namespace Zenvora::Lumidex::Host {

/// A file that appears under its name whole or not at all: it is written beside it and renamed at the end.
/// Without `Commit` nothing is left. All functions throw `HostError` naming the file and the cause.
class WholeFile {
 public:
  /// `file`: its folder must exist. What is there now stays until `Commit`; through a symbolic link the file
  /// that the link names is meant. Refuses devices, folders and all else that is no regular file.
  explicit WholeFile(const ioPath& file);
  ~WholeFile();
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;

  void Write(const QByteArray& bytes);
  /// `durable`: first wait until the bytes are on the disk, so that a power cut cannot leave an empty file
  /// either.
  void Commit(bool durable);
  /// The same, and gives the file the time, in milliseconds since 1970-01-01 UTC.
  void CommitWithTime(std::int64_t modifiedMs);

 private:
  void Check(const std::error_code& error) const;
  void FollowLinks();
  void Rename();

  ioPath named_;  ///< As the caller said it, for messages.
  ioPath target_;
  ioPath temporary_;
  NewFile written_;
};

/// "Cannot write <file>: <cause>" as a `HostError`.
[[noreturn]] void ThrowCannotWrite(const ioPath& file, const std::string& cause);

}  // namespace Zenvora::Lumidex::Host
