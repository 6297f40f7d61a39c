#include <zenvora/qtutility/SystemDisk.h>

#ifdef _WIN32
#include <QString>
#include <QUuid>

#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zenvora::Util {

namespace {

#ifdef _WIN32

/// Gone with its handle, hence also when the process is killed.
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

#else

/// A file that never gets a name: nothing to clean up.
bool CreatesFileIn(const ioPath& folder) {
  const char* const name = folder.native().c_str();
  int handle = -1;
  do {
    handle = open(name, O_TMPFILE | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
  } while (handle < 0 && errno == EINTR);
  if (handle >= 0) {
    close(handle);
    return true;
  }
  // What file systems and kernels say that cannot make such a file.
  if (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL) {
    return false;
  }
  struct stat facts = {};
  return stat(name, &facts) == 0 && S_ISDIR(facts.st_mode) &&
         faccessat(AT_FDCWD, name, W_OK | X_OK, AT_EACCESS) == 0;
}

/// The way through the folder tells; its permission bits tell only a part.
bool IsReached(const ioPath& folder) {
  struct stat facts = {};
  return stat((folder / ".").native().c_str(), &facts) == 0;
}

#endif

class SystemFolderAccess : public App::IFolderAccess {
 public:
  bool CanCreateFileIn(const ioPath& folder) const override {
    const ioPath place = folder.empty() ? ioPath(".") : folder;
    return place.name_fault().empty() && CreatesFileIn(place);
  }
  bool CanReadFileIn(const ioPath& folder) const override {
    const ioPath place = folder.empty() ? ioPath(".") : folder;
    return place.name_fault().empty() && IsReached(place);
  }
};

}  // namespace

std::shared_ptr<App::IFolderAccess> MakeSystemFolderAccess() {
  return std::make_shared<SystemFolderAccess>();
}

}  // namespace Zenvora::Util
