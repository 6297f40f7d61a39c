#include <zenvora/core/FileProbes.h>

#include <cerrno>
#include <exception>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Zenvora {

namespace {

int OpenOnce(const char* file, int flags) {
  int handle = -1;
  do {
    handle = open(file, flags | O_CLOEXEC | O_NOCTTY);
  } while (handle < 0 && errno == EINTR);
  return handle;
}

bool IsRegular(const char* file) {
  struct stat facts = {};
  return stat(file, &facts) == 0 && S_ISREG(facts.st_mode);
}

bool Opens(const ioPath& file, int flags) {
  // The system would take a name with a NUL for a shorter one.
  if (!file.name_fault().empty()) {
    return false;
  }
  const char* const name = file.native().c_str();
  int handle = OpenOnce(name, flags | O_NONBLOCK);
  // A file server asks for its file back: worth the moment that it may take.
  if (handle < 0 && errno == EWOULDBLOCK && IsRegular(name)) {
    handle = OpenOnce(name, flags);
  }
  return handle >= 0 && close(handle) == 0;
}

}  // namespace

bool OpensForReading(const ioPath& file) noexcept {
  return Opens(file, O_RDONLY);
}

bool OpensForAppending(const ioPath& file) noexcept {
  return Opens(file, O_WRONLY | O_APPEND);
}

bool HasWritePermission(const ioPath& file) noexcept {
  // As Qt asks, and also for names that are no text.
  return file.name_fault().empty() && access(file.native().c_str(), W_OK) == 0;
}

bool IsWriteProtected(const ioPath& file) noexcept {
  constexpr mode_t kAnybodyWrites = S_IWUSR | S_IWGRP | S_IWOTH;
  struct stat facts = {};
  if (!file.name_fault().empty() || stat(file.native().c_str(), &facts) != 0) {
    return false;
  }
  return !HasWritePermission(file) || (geteuid() == 0 && (facts.st_mode & kAnybodyWrites) == 0);
}

bool IsImmutable(const ioPath& file) noexcept {
  struct statx facts = {};
  return file.name_fault().empty() &&
         statx(AT_FDCWD, file.native().c_str(), AT_SYMLINK_NOFOLLOW, STATX_TYPE, &facts) == 0 &&
         (facts.stx_attributes & (STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND)) != 0;
}

bool IsOursToMove(const ioPath& file) noexcept {
  struct stat facts = {};
  struct stat folder = {};
  const uid_t user = geteuid();
  if (user == 0 || lstat(file.native().c_str(), &facts) != 0) {
    return true;
  }
  try {
    const ioPath parent = file.parent_path();
    const char* const name = parent.empty() ? "." : parent.native().c_str();
    return stat(name, &folder) != 0 || (folder.st_mode & S_ISVTX) == 0 || facts.st_uid == user ||
           folder.st_uid == user;
  } catch (const std::exception&) {
    return true;
  }
}

}  // namespace Zenvora
