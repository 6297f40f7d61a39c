#include "BlockDevices.h"

#include <zenvora/tavolin/RemovableStorage.h>

#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

namespace Zenvora::Tavolin {

namespace {

/// The folder without links, or the nearest one above that exists.
ioPath ExistingFolder(const ioPath& folder) {
  std::error_code error;
  ioPath at = folder.empty() ? ioPath("/") : folder.absolute();
  for (;;) {
    ioPath found = at.canonical(error);
    const ioPath parent = at.parent_path();
    if (!error || parent == at) {
      return error ? ioPath("/") : found;
    }
    at = parent;
  }
}

class SystemRemovableStorage : public App::IRemovableStorage {
 public:
  std::vector<ioPath> Removable(const std::vector<ioPath>& folders) const override {
    std::ifstream stream("/proc/self/mountinfo", std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    const std::vector<Mount> mounts = ReadMounts(text);
    const Mount* const system = FindMount(mounts, "/");
    BlockDevices devices("/sys", "/run/udev/data");
    std::vector<ioPath> removable;
    for (const ioPath& folder : folders) {
      const std::string place = ExistingFolder(folder).utf8string();
      const Mount* const mount = FindMount(mounts, place);
      if (mount != nullptr && devices.IsRemovable(*mount, place, system)) {
        removable.push_back(folder);
      }
    }
    return removable;
  }
};

}  // namespace

std::shared_ptr<App::IRemovableStorage> MakeSystemRemovableStorage() {
  return std::make_shared<SystemRemovableStorage>();
}

}  // namespace Zenvora::Tavolin
