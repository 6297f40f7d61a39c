#include "SystemFiles.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/PrivateFiles.h>

#include <sys/stat.h>

namespace Zenvora {

std::error_code MakePrivate(const ioPath& place) {
  constexpr mode_t kOthers = S_IRWXG | S_IRWXO;
  struct stat facts = {};
  if (stat(place.native().c_str(), &facts) != 0) {
    return LastSystemError();
  }
  const mode_t mode = facts.st_mode & 07777U;
  return (mode & kOthers) == 0 || chmod(place.native().c_str(), mode & ~kOthers) == 0 ? std::error_code()
                                                                                      : LastSystemError();
}

bool MakePrivateFolder(const ioPath& folder) {
  return mkdir(folder.native().c_str(), S_IRWXU) == 0;
}

}  // namespace Zenvora
