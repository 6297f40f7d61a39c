#include "DiskCalls.h"

#include <windows.h>

namespace Zenvora::Util {

bool AskFreeBytes(const ioPath& place, std::int64_t& bytes) {
  ULARGE_INTEGER available = {};
  if (GetDiskFreeSpaceExW(place.for_system().c_str(), &available, nullptr, nullptr)) {
    bytes = LimitedBytes(available.QuadPart, 1);
    return true;
  }
  const DWORD error = GetLastError();
  bytes = kUnknownBytes;
  // Of a file it says that the folder's name is wrong.
  return error != ERROR_PATH_NOT_FOUND && error != ERROR_FILE_NOT_FOUND && error != ERROR_DIRECTORY;
}

}  // namespace Zenvora::Util
