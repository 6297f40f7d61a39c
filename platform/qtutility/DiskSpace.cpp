#include "DiskCalls.h"

#include <zenvora/qtutility/SystemDisk.h>

#include <limits>

namespace Zenvora::Util {

std::int64_t LimitedBytes(std::uint64_t count, std::uint64_t unit) {
  constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  return static_cast<std::int64_t>(unit != 0 && count > kMost / unit ? kMost : count * unit);
}

namespace {

class SystemDiskSpace : public App::IDiskSpace {
 public:
  std::int64_t FreeBytes(const ioPath& place) const override {
    ioPath folder = place.empty() ? ioPath(".") : place;
    std::int64_t bytes = kUnknownBytes;
    while (folder.name_fault().empty() && !AskFreeBytes(folder, bytes)) {
      const ioPath parent = folder.parent_path();
      if (parent == folder || folder == ioPath(".")) {
        return kUnknownBytes;
      }
      folder = parent.empty() ? ioPath(".") : parent;
    }
    return bytes;
  }
};

}  // namespace

std::shared_ptr<App::IDiskSpace> MakeSystemDiskSpace() {
  return std::make_shared<SystemDiskSpace>();
}

}  // namespace Zenvora::Util
