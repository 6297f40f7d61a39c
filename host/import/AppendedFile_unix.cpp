#include "AppendedFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Zenvora::Lumidex::Host {

std::FILE* OpenToAppend(const ioPath& file) {
  const int descriptor =
      open(file.native().c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0666);
  if (descriptor < 0) {
    return nullptr;
  }
  struct stat facts = {};
  if (fstat(descriptor, &facts) != 0 || !S_ISREG(facts.st_mode) || facts.st_nlink > 1) {
    close(descriptor);
    errno = facts.st_nlink > 1 ? EMLINK : EINVAL;
    return nullptr;
  }
  std::FILE* const stream = fdopen(descriptor, "a+b");
  if (stream == nullptr) {
    close(descriptor);
  }
  return stream;
}

bool SyncAppended(std::FILE* stream) {
  return std::fflush(stream) == 0 && fsync(fileno(stream)) == 0;
}

}  // namespace Zenvora::Lumidex::Host
