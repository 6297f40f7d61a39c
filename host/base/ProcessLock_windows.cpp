#include <host/base/ProcessLock.h>

#include <zenvora/core/ErrorText.h>

#include <windows.h>

namespace Zenvora::Lumidex::Host {

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
  if (handle_ != kNoFileHandle) {
    CloseHandle(handle_);
  }
}

}  // namespace Zenvora::Lumidex::Host
