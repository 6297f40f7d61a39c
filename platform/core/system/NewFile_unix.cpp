#include "SystemFiles.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/NewFile.h>

#include <cerrno>
#include <fcntl.h>
#include <linux/fs.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Zenvora {

namespace {

/// What a person or a program noted beside the content, and finer rules of who may read it.
bool IsWorthTaking(const std::string& attribute) {
  return attribute.rfind("user.", 0) == 0 || attribute == "system.posix_acl_access";
}

void CopyAttributes(const char* from, int to) {
  constexpr std::size_t kMostBytes = std::size_t{64} * 1024;  // As the system's own limit
  std::string names(kMostBytes, '\0');
  const ssize_t length = listxattr(from, names.data(), names.size());
  std::string value(kMostBytes, '\0');
  for (std::size_t at = 0; length > 0 && at < static_cast<std::size_t>(length);) {
    const std::string name = names.c_str() + at;
    at += name.size() + 1;
    const ssize_t size =
        IsWorthTaking(name) ? getxattr(from, name.c_str(), value.data(), value.size()) : ssize_t{-1};
    if (size >= 0) {
      static_cast<void>(fsetxattr(to, name.c_str(), value.data(), static_cast<std::size_t>(size), 0));
    }
  }
}

}  // namespace

std::FILE* OpenNew(const ioPath& file) {
  return std::fopen(file.native().c_str(), "wbxe");
}

std::FILE* OpenOld(const ioPath& file) {
  const int handle = open(file.native().c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
  std::FILE* const stream = handle < 0 ? nullptr : fdopen(handle, "r+b");
  if (handle >= 0 && stream == nullptr) {
    close(handle);
  }
  return stream;
}

std::error_code TakeRoom(std::FILE* stream, std::uint64_t bytes) {
  const int handle = fileno(stream);
  struct stat facts = {};
  if (fstat(handle, &facts) != 0) {
    return LastLibraryError();
  }
  if (bytes == 0) {
    return {};
  }
  // What the file holds stays as it is. Returns the error instead of setting `errno`.
  const int error = posix_fallocate(handle, 0, static_cast<off_t>(bytes));
  if (error != 0) {
    static_cast<void>(ftruncate(handle, facts.st_size));
  }
  return {error, std::generic_category()};
}

bool SyncStream(std::FILE* stream) {
  return fsync(fileno(stream)) == 0;
}

bool SkipForward(std::FILE* stream, std::size_t count) {
  return fseeko(stream, static_cast<off_t>(count), SEEK_CUR) == 0;
}

bool CutHere(std::FILE* stream) {
  const off_t end = ftello(stream);
  return end >= 0 && std::fflush(stream) == 0 && ftruncate(fileno(stream), end) == 0;
}

std::error_code SetModifiedOf(std::FILE* stream, std::int64_t ns) {
  constexpr std::int64_t kNsPerSecond = 1'000'000'000;
  const std::int64_t rest = (ns % kNsPerSecond + kNsPerSecond) % kNsPerSecond;
  timespec times[2] = {};
  times[0].tv_nsec = UTIME_OMIT;
  times[1].tv_sec = static_cast<time_t>((ns - rest) / kNsPerSecond);
  times[1].tv_nsec = static_cast<long>(rest);
  return futimens(fileno(stream), times) == 0 ? std::error_code() : LastSystemError();
}

void NewFile::CopyRightsOf(const ioPath& file) {
  struct stat facts = {};
  if (stat(file.native().c_str(), &facts) != 0) {
    return;
  }
  const int handle = fileno(stream_);
  // Each for itself: who may not give a file away may still give it to a group of their own.
  static_cast<void>(fchown(handle, facts.st_uid, static_cast<gid_t>(-1)));
  static_cast<void>(fchown(handle, static_cast<uid_t>(-1), facts.st_gid));
  CopyAttributes(file.native().c_str(), handle);
  static_cast<void>(fchmod(handle, facts.st_mode & 0777U));
}

bool NewFile::ShareBlocksOf(const ioPath& file) {
  const int source = open(file.native().c_str(), O_RDONLY | O_CLOEXEC);
  const bool shared = source >= 0 && ioctl(fileno(stream_), FICLONE, source) == 0;
  if (source >= 0) {
    close(source);
  }
  return shared;
}

void SyncFolderOf(const ioPath& file) {
  const ioPath folder = file.parent_path();
  const int handle = open(folder.empty() ? "." : folder.native().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle >= 0) {
    fsync(handle);
    close(handle);
  }
}

}  // namespace Zenvora
