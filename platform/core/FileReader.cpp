#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileReader.h>

#include <algorithm>
#include <new>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zenvora {

/// Reading past the system's memory wants buffers that begin where a device's block may.
struct FileReader::Buffer {
  static constexpr std::size_t kAlignment = 4096;

  Buffer() : bytes(static_cast<char*>(::operator new (kPiece, std::align_val_t{kAlignment}))) {}
  ~Buffer() { ::operator delete (bytes, std::align_val_t{kAlignment}); }
  Buffer(const Buffer&) = delete;
  Buffer& operator=(const Buffer&) = delete;

  char* const bytes;
};

FileReader::FileReader() : buffer_(std::make_unique<Buffer>()) {}

#ifdef _WIN32

FileReader::~FileReader() {
  if (handle_ != nullptr) {
    CloseHandle(handle_);
  }
}

std::error_code FileReader::Open(const ioPath& file, From from) {
  if (!file.name_fault().empty()) {
    return std::make_error_code(std::errc::invalid_argument);
  }
  const DWORD reading = from == From::Device ? FILE_FLAG_NO_BUFFERING : FILE_FLAG_SEQUENTIAL_SCAN;
  const HANDLE handle = CreateFileW(file.for_system().c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, reading, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return LastSystemError();
  }
  if (GetFileType(handle) != FILE_TYPE_DISK) {
    CloseHandle(handle);
    return std::make_error_code(std::errc::not_supported);
  }
  handle_ = handle;
  return {};
}

std::error_code FileReader::Next(std::string_view& piece) {
  DWORD count = 0;
  if (!ReadFile(handle_, buffer_->bytes, static_cast<DWORD>(kPiece), &count, nullptr) &&
      GetLastError() != ERROR_HANDLE_EOF) {
    return LastSystemError();
  }
  piece = {buffer_->bytes, count};
  return {};
}

std::error_code FileReader::At(std::uint64_t place, std::size_t count, std::string_view& bytes) {
  // With a place given reading moves the file's own place as well.
  LARGE_INTEGER own = {};
  if (!SetFilePointerEx(handle_, {}, &own, FILE_CURRENT)) {
    return LastSystemError();
  }
  OVERLAPPED at = {};
  at.Offset = static_cast<DWORD>(place);
  at.OffsetHigh = static_cast<DWORD>(place >> 32U);
  DWORD got = 0;
  std::error_code error;
  if (!ReadFile(handle_, buffer_->bytes, static_cast<DWORD>(std::min(count, kPiece)), &got, &at) &&
      GetLastError() != ERROR_HANDLE_EOF) {
    error = LastSystemError();
  }
  if (!SetFilePointerEx(handle_, own, nullptr, FILE_BEGIN) && !error) {
    error = LastSystemError();
  }
  bytes = {buffer_->bytes, got};
  return error;
}

FileState FileReader::State() const {
  return QueryOpenFile(handle_);
}

std::error_code SyncFile(const ioPath& file) {
  const HANDLE handle = CreateFileW(file.for_system().c_str(), GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return LastSystemError();
  }
  const std::error_code error = FlushFileBuffers(handle) ? std::error_code() : LastSystemError();
  CloseHandle(handle);
  return error;
}

#else

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
  if (handle_ >= 0) {
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
    count = read(handle_, buffer_->bytes, kPiece);
  } while (count < 0 && errno == EINTR);
  if (count < 0) {
    return LastSystemError();
  }
  piece = {buffer_->bytes, static_cast<std::size_t>(count)};
  return {};
}

std::error_code FileReader::At(std::uint64_t place, std::size_t count, std::string_view& bytes) {
  ssize_t got = 0;
  do {
    got = pread(handle_, buffer_->bytes, std::min(count, kPiece), static_cast<off_t>(place));
  } while (got < 0 && errno == EINTR);
  if (got < 0) {
    return LastSystemError();
  }
  bytes = {buffer_->bytes, static_cast<std::size_t>(got)};
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

#endif

}  // namespace Zenvora
