#include "DiskCalls.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Zenvora::Util {

// A file that never gets a name: nothing to clean up.
bool CreatesFileIn(const ioPath& folder) {
  const char* const name = folder.native().c_str();
  int handle = -1;
  do {
    handle = open(name, O_TMPFILE | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
  } while (handle < 0 && errno == EINTR);
  if (handle >= 0) {
    close(handle);
    return true;
  }
  // What file systems and kernels say that cannot make such a file.
  if (errno != EOPNOTSUPP && errno != EISDIR && errno != EINVAL) {
    return false;
  }
  struct stat facts = {};
  return stat(name, &facts) == 0 && S_ISDIR(facts.st_mode) &&
         faccessat(AT_FDCWD, name, W_OK | X_OK, AT_EACCESS) == 0;
}

// The way through the folder tells; its permission bits tell only a part.
bool IsReached(const ioPath& folder) {
  struct stat facts = {};
  return stat((folder / ".").native().c_str(), &facts) == 0;
}

}  // namespace Zenvora::Util
