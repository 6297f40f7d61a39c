#include "SystemFiles.h"

#include <host/base/WholeFile.h>

#include <zenvora/core/Patience.h>

#include <process.h>
#include <system_error>
#include <windows.h>

namespace Zenvora::Lumidex::Host {

void WholeFile::FollowLinks() {
  std::error_code ignored;
  const ioPath target = target_.canonical(ignored);
  if (!target.empty()) {
    target_ = target;
  }
}

int ProcessNumber() {
  return _getpid();
}

bool MoveOver(const ioPath& file, const ioPath& target) {
  // Returns when the new name is on the disk.
  return Patiently([&] {
    return MoveFileExW(file.for_system().c_str(), target.for_system().c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
  });
}

void CopyTimeMade(const ioPath& source, const ioPath& copy) {
  WIN32_FILE_ATTRIBUTE_DATA facts;
  if (!GetFileAttributesExW(source.for_system().c_str(), GetFileExInfoStandard, &facts)) {
    return;
  }
  const HANDLE handle = CreateFileW(copy.for_system().c_str(), FILE_WRITE_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle != INVALID_HANDLE_VALUE) {
    SetFileTime(handle, &facts.ftCreationTime, nullptr, nullptr);
    CloseHandle(handle);
  }
}

}  // namespace Zenvora::Lumidex::Host
