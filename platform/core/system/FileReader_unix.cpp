#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileReader.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Zenvora {

namespace {

/// A pipe or a device is opened without waiting, and not at all for good.
int OpenWithoutWaiting(const ioPath& file) {
  constexpr int kFlags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  const int handle = open(file.native().c_str(), kFlags | O_NOATIME);
  // Only the owner of a file may read it unnoticed.
  return handle < 0 && errno == EPERM ? open(file.native().c_str(), kFlags) : handle;
}

}  // namespace

FileReader::~FileReader() {
  if (handle_ != kNoFileHandle) {
    close(handle_);
  }
}

std::error_code FileReader::Open(const ioPath& file, From from) {
  if (!file.name_fault().empty()) {
    return std::make_error_code(std::errc::invalid_argument);
  }
  // Opening some devices does something: they are not even opened.
  struct stat facts = {};
  if (stat(file.native().c_str(), &facts) != 0) {
    return LastSystemError();
  }
  if (!S_ISREG(facts.st_mode)) {
    return std::make_error_code(std::errc::not_supported);
  }
  const int handle = OpenWithoutWaiting(file);
  if (handle < 0) {
    return LastSystemError();
  }
  // Somebody may have put something else in its place.
  if (fstat(handle, &facts) != 0 || !S_ISREG(facts.st_mode)) {
    close(handle);
    return std::make_error_code(std::errc::not_supported);
  }
  handle_ = handle;
  if (from == From::Device) {
    posix_fadvise(handle_, 0, 0, POSIX_FADV_DONTNEED);
  }
  posix_fadvise(handle_, 0, 0, POSIX_FADV_SEQUENTIAL);
  return {};
}

std::error_code FileReader::Next(std::string_view& piece) {
  ssize_t count = 0;
  do {
    count = read(handle_, buffer_.get(), kPiece);
  } while (count < 0 && errno == EINTR);
  if (count < 0) {
    return LastSystemError();
  }
  piece = {buffer_.get(), static_cast<std::size_t>(count)};
  return {};
}

std::error_code FileReader::At(std::uint64_t place, std::size_t count, std::string_view& bytes) {
  ssize_t got = 0;
  do {
    got = pread(handle_, buffer_.get(), std::min(count, kPiece), static_cast<off_t>(place));
  } while (got < 0 && errno == EINTR);
  if (got < 0) {
    return LastSystemError();
  }
  bytes = {buffer_.get(), static_cast<std::size_t>(got)};
  return {};
}

FileState FileReader::State() const {
  return QueryOpenFile(handle_);
}

std::error_code SyncFile(const ioPath& file) {
  const int handle = open(file.native().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (handle < 0) {
    return LastSystemError();
  }
  const std::error_code error = fsync(handle) == 0 ? std::error_code() : LastSystemError();
  close(handle);
  return error;
}

}  // namespace Zenvora
