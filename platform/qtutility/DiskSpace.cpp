#include <zenvora/qtutility/SystemDisk.h>

#include <algorithm>
#include <limits>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <sys/statvfs.h>
#endif

namespace Zenvora::Util {

namespace {

constexpr std::int64_t kUnknown = -1;

/// What the system counts in, brought into the range of the answer.
std::int64_t Bytes(std::uint64_t count, std::uint64_t unit) {
  constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  return static_cast<std::int64_t>(unit != 0 && count > kMost / unit ? kMost : count * unit);
}

/// False when there is no such place; `bytes` is set otherwise.
bool Ask(const ioPath& place, std::int64_t& bytes) {
#ifdef _WIN32
  ULARGE_INTEGER available = {};
  if (GetDiskFreeSpaceExW(place.for_system().c_str(), &available, nullptr, nullptr)) {
    bytes = Bytes(available.QuadPart, 1);
    return true;
  }
  const DWORD error = GetLastError();
  bytes = kUnknown;
  // Of a file it says that the folder's name is wrong.
  return error != ERROR_PATH_NOT_FOUND && error != ERROR_FILE_NOT_FOUND && error != ERROR_DIRECTORY;
#else
  struct statvfs facts = {};
  int result = -1;
  do {
    result = statvfs(place.native().c_str(), &facts);
  } while (result != 0 && errno == EINTR);
  if (result != 0) {
    bytes = kUnknown;
    return errno != ENOENT && errno != ENOTDIR;
  }
  // File systems without a size of their own count no blocks at all.
  bytes = facts.f_blocks == 0 ? kUnknown : Bytes(facts.f_bavail, facts.f_frsize);
  return true;
#endif
}

class SystemDiskSpace : public App::IDiskSpace {
 public:
  std::int64_t FreeBytes(const ioPath& place) const override {
    ioPath folder = place.empty() ? ioPath(".") : place;
    std::int64_t bytes = kUnknown;
    while (folder.name_fault().empty() && !Ask(folder, bytes)) {
      const ioPath parent = folder.parent_path();
      if (parent == folder || folder == ioPath(".")) {
        return kUnknown;
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
