#include "DiskCalls.h"

#include <zenvora/qtutility/SystemDisk.h>

namespace Zenvora::Util {

namespace {

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
