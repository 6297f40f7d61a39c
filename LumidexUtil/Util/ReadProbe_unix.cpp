#include "ReadProbe.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace Zenvora::Lumidex {

bool CanBeRead(const ioPath& path) {
  int file = -1;
  do {
    // Not waiting for the writer of a pipe.
    file = ::open(path.native().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
  } while (file < 0 && errno == EINTR);
  return file >= 0 && ::close(file) == 0;
}

}  // namespace Zenvora::Lumidex
