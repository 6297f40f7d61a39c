#include <zenvora/app/Services.h>
#include <zenvora/qtutility/DiskQuestions.h>
#include <zenvora/qtutility/SystemDisk.h>

namespace Zenvora::Util {

namespace {

std::shared_ptr<App::IFolderAccess> FolderAccess() {
  static const std::shared_ptr<App::IFolderAccess> own = MakeSystemFolderAccess();
  auto service = App::Services::Current().Get<App::IFolderAccess>();
  return service != nullptr ? service : own;
}

std::shared_ptr<App::IDiskSpace> DiskSpace() {
  static const std::shared_ptr<App::IDiskSpace> own = MakeSystemDiskSpace();
  auto service = App::Services::Current().Get<App::IDiskSpace>();
  return service != nullptr ? service : own;
}

}  // namespace

bool CanCreateFileIn(const QString& folder) {
  return CanCreateFileAt(ioPath(folder));
}

bool CanCreateFileAt(const ioPath& folder) {
  return FolderAccess()->CanCreateFileIn(folder);
}

bool CanReadFileIn(const QString& folder) {
  return FolderAccess()->CanReadFileIn(ioPath(folder));
}

bool MakeFolder(const QString& folder) {
  return FolderAccess()->MakeFolder(ioPath(folder));
}

std::int64_t GetAvailableDiskSpace(const ioPath& place) {
  return DiskSpace()->FreeBytes(place);
}

}  // namespace Zenvora::Util
