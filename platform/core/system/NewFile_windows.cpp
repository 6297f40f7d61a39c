#include "SystemFiles.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/NewFile.h>

#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <string>
#include <sys/stat.h>
#include <windows.h>

namespace Zenvora {

// Not by `_wfopen`: the oldest C library of Windows cannot refuse an existing file.
std::FILE* OpenNew(const ioPath& file) {
  const int handle = _wopen(file.for_system().c_str(),
                            _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
  std::FILE* const stream = handle < 0 ? nullptr : _fdopen(handle, "wb");
  if (handle >= 0 && stream == nullptr) {
    _close(handle);
  }
  return stream;
}

std::FILE* OpenOld(const ioPath& file) {
  const DWORD attributes = GetFileAttributesW(file.for_system().c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    errno = EINVAL;
    return nullptr;
  }
  const int handle = _wopen(file.for_system().c_str(), _O_RDWR | _O_BINARY | _O_NOINHERIT);
  std::FILE* const stream = handle < 0 ? nullptr : _fdopen(handle, "r+b");
  if (handle >= 0 && stream == nullptr) {
    _close(handle);
  }
  return stream;
}

std::error_code TakeRoom(std::FILE* stream, std::uint64_t bytes) {
  const int handle = _fileno(stream);
  const __int64 size = _filelengthi64(handle);
  if (size < 0 || static_cast<std::uint64_t>(size) >= bytes) {
    return size < 0 ? LastLibraryError() : std::error_code();
  }
  // What a file has room for it has on the disk, here.
  const int error = _chsize_s(handle, static_cast<__int64>(bytes));
  if (error != 0) {
    _chsize_s(handle, size);
    return {error, std::generic_category()};
  }
  return {};
}

bool SyncStream(std::FILE* stream) {
  return _commit(_fileno(stream)) == 0;
}

bool SkipForward(std::FILE* stream, std::size_t count) {
  return _fseeki64(stream, static_cast<__int64>(count), SEEK_CUR) == 0;
}

bool CutHere(std::FILE* stream) {
  const __int64 end = _ftelli64(stream);
  return end >= 0 && std::fflush(stream) == 0 && _chsize_s(_fileno(stream), end) == 0;
}

std::error_code SetModifiedOf(std::FILE* stream, std::int64_t ns) {
  // Counted in steps of 100 ns from 1601 on.
  constexpr std::int64_t kStepsTo1970 = 116444736000000000;
  const std::int64_t steps = ns >= 0 ? ns / 100 : -((99 - ns) / 100);
  const auto ticks = static_cast<ULONGLONG>(steps + kStepsTo1970);
  FILETIME time;
  time.dwLowDateTime = static_cast<DWORD>(ticks);
  time.dwHighDateTime = static_cast<DWORD>(ticks >> 32U);
  const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
  return SetFileTime(handle, nullptr, nullptr, &time) ? std::error_code() : LastSystemError();
}

void NewFile::CopyRightsOf(const ioPath& file) {
  const DWORD from = GetFileAttributesW(file.for_system().c_str());
  const DWORD own = GetFileAttributesW(file_.for_system().c_str());
  if (from != INVALID_FILE_ATTRIBUTES && own != INVALID_FILE_ATTRIBUTES) {
    // Also taken off: some systems give it to names with a leading dot, and it would stay with the photo.
    SetFileAttributesW(file_.for_system().c_str(),
                       (own & ~DWORD{FILE_ATTRIBUTE_HIDDEN}) | (from & FILE_ATTRIBUTE_HIDDEN));
  }
}

bool NewFile::ShareBlocksOf(const ioPath& /*file*/) {
  return false;
}

void SyncFolderOf(const ioPath& /*file*/) {}

}  // namespace Zenvora
