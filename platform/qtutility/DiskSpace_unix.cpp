#include "DiskCalls.h"

#include <cerrno>
#include <sys/statvfs.h>

namespace Zenvora::Util {

bool AskFreeBytes(const ioPath& place, std::int64_t& bytes) {
  struct statvfs facts = {};
  int result = -1;
  do {
    result = statvfs(place.native().c_str(), &facts);
  } while (result != 0 && errno == EINTR);
  if (result != 0) {
    bytes = kUnknownBytes;
    return errno != ENOENT && errno != ENOTDIR;
  }
  // File systems without a size of their own count no blocks at all.
  bytes = facts.f_blocks == 0 ? kUnknownBytes : LimitedBytes(facts.f_bavail, facts.f_frsize);
  return true;
}

}  // namespace Zenvora::Util
