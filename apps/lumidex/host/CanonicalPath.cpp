#include "CanonicalPath.h"

#include <filesystem>

#ifdef _WIN32
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/WindowsNames.h>

#include <string>
#include <windows.h>
#endif

namespace Zenvora::Lumidex::Host {

#ifdef _WIN32

ioPath CanonicalPath(const ioPath& path, std::error_code& error) {
  const HANDLE handle = CreateFileW(path.for_system().c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    error = LastSystemError();
    return {};
  }
  constexpr DWORD kLongestPath = 32768;
  std::wstring name(kLongestPath, L'\0');
  name.resize(GetFinalPathNameByHandleW(handle, name.data(), kLongestPath, FILE_NAME_NORMALIZED));
  error = name.empty() ? LastSystemError() : std::error_code();
  CloseHandle(handle);
  return ioPath(std::filesystem::path(WindowsNames::Plain(name)));
}

#else

ioPath CanonicalPath(const ioPath& path, std::error_code& error) {
  return ioPath(std::filesystem::canonical(path.native(), error));
}

#endif

}  // namespace Zenvora::Lumidex::Host
