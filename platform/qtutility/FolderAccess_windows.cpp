#include "DiskCalls.h"

#include <QString>
#include <QUuid>

#include <windows.h>

namespace Zenvora::Util {

// Gone with its handle, hence also when the process is killed.
bool CreatesFileIn(const ioPath& folder) {
  const ioPath probe =
      folder / ioPath(QStringLiteral("~") + QUuid::createUuid().toString(QUuid::WithoutBraces) +
                      QStringLiteral(".tmp"));
  HANDLE handle =
      CreateFileW(probe.for_system().c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                  FILE_ATTRIBUTE_TEMPORARY | FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  return handle != INVALID_HANDLE_VALUE && CloseHandle(handle) != 0;
}

bool IsReached(const ioPath& folder) {
  HANDLE handle = CreateFileW(folder.for_system().c_str(), FILE_LIST_DIRECTORY,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                              FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return false;
  }
  BY_HANDLE_FILE_INFORMATION facts;
  const bool isFolder =
      GetFileInformationByHandle(handle, &facts) && (facts.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  CloseHandle(handle);
  return isFolder;
}

}  // namespace Zenvora::Util
