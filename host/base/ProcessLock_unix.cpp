#include <host/base/ProcessLock.h>

#include <zenvora/core/ErrorText.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Zenvora::Lumidex::Host {

std::error_code ProcessLock::Take(const ioPath& file) {
  const int handle = open(file.native().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666);
  if (handle < 0) {
    return LastSystemError();
  }
  if (flock(handle, LOCK_EX | LOCK_NB) != 0) {
    const std::error_code error = errno == EWOULDBLOCK
                                      ? std::make_error_code(std::errc::resource_unavailable_try_again)
                                      : LastSystemError();
    close(handle);
    return error;
  }
  handle_ = handle;
  return {};
}

ProcessLock::~ProcessLock() {
  if (handle_ != kNoFileHandle) {
    close(handle_);
  }
}

}  // namespace Zenvora::Lumidex::Host
