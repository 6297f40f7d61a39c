#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileReader.h>

#include <algorithm>
#include <windows.h>

namespace Zenvora {

FileReader::~FileReader() {
  if (handle_ != kNoFileHandle) {
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
  if (!ReadFile(handle_, buffer_.get(), static_cast<DWORD>(kPiece), &count, nullptr) &&
      GetLastError() != ERROR_HANDLE_EOF) {
    return LastSystemError();
  }
  piece = {buffer_.get(), count};
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
  if (!ReadFile(handle_, buffer_.get(), static_cast<DWORD>(std::min(count, kPiece)), &got, &at) &&
      GetLastError() != ERROR_HANDLE_EOF) {
    error = LastSystemError();
  }
  if (!SetFilePointerEx(handle_, own, nullptr, FILE_BEGIN) && !error) {
    error = LastSystemError();
  }
  bytes = {buffer_.get(), got};
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

}  // namespace Zenvora
