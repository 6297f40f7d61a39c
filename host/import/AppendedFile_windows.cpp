#include "AppendedFile.h"

#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace Zenvora::Lumidex::Host {

std::FILE* OpenToAppend(const ioPath& file) {
  const HANDLE handle =
      CreateFileW(file.for_system().c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                  nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  BY_HANDLE_FILE_INFORMATION facts;
  if (handle == INVALID_HANDLE_VALUE) {
    errno = EACCES;
    return nullptr;
  }
  if (!GetFileInformationByHandle(handle, &facts) ||
      (facts.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    CloseHandle(handle);
    errno = ELOOP;
    return nullptr;
  }
  if (facts.nNumberOfLinks > 1) {
    CloseHandle(handle);
    errno = EMLINK;
    return nullptr;
  }
  const int descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_APPEND | _O_BINARY);
  if (descriptor < 0) {
    CloseHandle(handle);
    return nullptr;
  }
  std::FILE* const stream = _fdopen(descriptor, "a+b");
  if (stream == nullptr) {
    _close(descriptor);
  }
  return stream;
}

bool SyncAppended(std::FILE* stream) {
  return std::fflush(stream) == 0 && _commit(_fileno(stream)) == 0;
}

}  // namespace Zenvora::Lumidex::Host
