#include <zenvora/core/ErrorText.h>
#include <zenvora/strandel/PhotoSource.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Zenvora::Strandel {

PhotoSource::~PhotoSource() {
  if (handle_ >= 0) {
    close(handle_);
  }
}

bool PhotoSource::Open(const ioPath& file, std::string& cause) {
  const char* name = file.native().c_str();
  struct stat facts = {};
  // Asked before opening, since opening alone can wake a device; and after, in case another file took the
  // name.
  if (stat(name, &facts) != 0) {
    cause = SystemErrorText(errno);
    return false;
  }
  if (S_ISREG(facts.st_mode)) {
    handle_ = open(name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (handle_ < 0 || fstat(handle_, &facts) != 0) {
      cause = SystemErrorText(errno);
      return false;
    }
  }
  if (!S_ISREG(facts.st_mode)) {
    cause = "It is not a regular file";
    return false;
  }
  size_ = static_cast<std::uint64_t>(facts.st_size);
  return true;
}

std::size_t PhotoSource::ReadDirectly(std::uint64_t offset, void* to, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t got =
        pread(handle_, static_cast<char*>(to) + done, count - done, static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) {
      continue;
    }
    if (got < 0) {
      failure_ = SystemErrorText(errno);
    }
    if (got <= 0) {
      break;
    }
    done += static_cast<std::size_t>(got);
  }
  return done;
}

}  // namespace Zenvora::Strandel
