#include <host/base/ProcessLock.h>

#include <zenvora/core/ErrorText.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace Zenvora::Lumidex::Host {

#ifdef _WIN32

std::error_code ProcessLock::Take(const ioPath& file) {
  const HANDLE handle =
      CreateFileW(file.for_system().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                  FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    const std::error_code error = LastSystemError();
    return error.value() == ERROR_SHARING_VIOLATION
               ? std::make_error_code(std::errc::resource_unavailable_try_again)
               : error;
  }
  BY_HANDLE_FILE_INFORMATION facts;
  if (GetFileInformationByHandle(handle, &facts) &&
      (facts.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    CloseHandle(handle);
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
  }
  handle_ = handle;
  return {};
}

ProcessLock::~ProcessLock() {
  if (handle_ != nullptr) {
    CloseHandle(handle_);
  }
}

#else

std::error_code ProcessLock::Take(const ioPath& file) {
  const int handle = open(file.native().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666);
  if (handle < 0) {
    return LastSystemError();
  }
  if (flock(handle, LOCK_EX | LOCK_NB) != 0) {
    const std::error_code error = errno == EWOULDBLOCK
                                      ? std::make_error_code(std::errc::resource_unavailable_try_again)
                                      : LastSystemError();
    close(handle);
    return error;
  }
  handle_ = handle;
  return {};
}

ProcessLock::~ProcessLock() {
  if (handle_ >= 0) {
    close(handle_);
  }
}

#endif

}  // namespace Zenvora::Lumidex::Host
