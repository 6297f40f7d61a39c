#include "BlockDevices.h"

#include <zenvora/tavolin/RemovableStorage.h>

#include <fstream>
#include <iterator>
#include <string>

namespace Zenvora::Tavolin {

namespace {

class SystemRemovableStorage : public App::IRemovableStorage {
 public:
  std::vector<ioPath> Removable(const std::vector<ioPath>& folders) const override {
    std::ifstream stream("/proc/self/mountinfo", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    BlockDevices devices("/sys", "/run/udev/data");
    return RemovableFolders(folders, ReadMounts(text), devices);
  }
};

}  // namespace

std::shared_ptr<App::IRemovableStorage> MakeSystemRemovableStorage() {
  return std::make_shared<SystemRemovableStorage>();
}

}  // namespace Zenvora::Tavolin
