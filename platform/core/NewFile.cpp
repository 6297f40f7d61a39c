#include <zenvora/core/ErrorText.h>
#include <zenvora/core/NewFile.h>

#include <cerrno>
#include <string>
#include <utility>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#endif

namespace Zenvora {

namespace {

/// Of the C library, which also Windows' counts in `errno`.
std::error_code LastError() {
  return {errno == 0 ? EIO : errno, std::generic_category()};
}

#ifdef _WIN32

// Not by `_wfopen`: the oldest C library of Windows cannot refuse an existing file.
std::FILE* OpenNew(const ioPath& file) {
  const int handle = _wopen(file.for_system().c_str(),
                            _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
  std::FILE* const stream = handle < 0 ? nullptr : _fdopen(handle, "wb");
  if (handle >= 0 && stream == nullptr) {
    _close(handle);
  }
  return stream;
}

std::FILE* OpenOld(const ioPath& file) {
  const DWORD attributes = GetFileAttributesW(file.for_system().c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    errno = EINVAL;
    return nullptr;
  }
  const int handle = _wopen(file.for_system().c_str(), _O_RDWR | _O_BINARY | _O_NOINHERIT);
  std::FILE* const stream = handle < 0 ? nullptr : _fdopen(handle, "r+b");
  if (handle >= 0 && stream == nullptr) {
    _close(handle);
  }
  return stream;
}

/// The file is as long as it was where this fails.
std::error_code TakeRoom(std::FILE* stream, std::uint64_t bytes) {
  const int handle = _fileno(stream);
  const __int64 size = _filelengthi64(handle);
  if (size < 0 || static_cast<std::uint64_t>(size) >= bytes) {
    return size < 0 ? LastError() : std::error_code();
  }
  // What a file has room for it has on the disk, here.
  const int error = _chsize_s(handle, static_cast<__int64>(bytes));
  if (error != 0) {
    _chsize_s(handle, size);
    return {error, std::generic_category()};
  }
  return {};
}

bool Sync(std::FILE* stream) {
  return _commit(_fileno(stream)) == 0;
}

#else

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

/// The file is as long as it was where this fails.
std::error_code TakeRoom(std::FILE* stream, std::uint64_t bytes) {
  const int handle = fileno(stream);
  struct stat facts = {};
  if (fstat(handle, &facts) != 0) {
    return LastError();
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

bool Sync(std::FILE* stream) {
  return fsync(fileno(stream)) == 0;
}

/// What a person or a program noted beside the content, and finer rules of who may read it.
bool IsWorthTaking(const std::string& attribute) {
  return attribute.rfind("user.", 0) == 0 || attribute == "system.posix_acl_access";
}

void TakeAttributes(const char* from, int to) {
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

#endif

}  // namespace

NewFile::~NewFile() {
  if (stream_ != nullptr) {
    std::fclose(stream_);
  }
  if (!file_.empty() && !stays_) {
    file_.remove();
  }
}

std::error_code NewFile::Create(const ioPath& file) {
  if (!file.name_fault().empty()) {
    return std::make_error_code(std::errc::invalid_argument);
  }
  errno = 0;
  stream_ = OpenNew(file);
  if (stream_ == nullptr) {
    return LastError();
  }
  file_ = file;
  return {};
}

std::error_code NewFile::Reuse(const ioPath& file, std::uint64_t bytes) {
  if (!file.name_fault().empty()) {
    return std::make_error_code(std::errc::invalid_argument);
  }
  errno = 0;
  stream_ = OpenOld(file);
  if (stream_ == nullptr) {
    return LastError();
  }
  if (const std::error_code error = TakeRoom(stream_, bytes)) {
    return error;
  }
  file_ = file;
  stays_ = true;
  skipped_ = true;
  return {};
}

#ifdef _WIN32

void NewFile::TakeRightsOf(const ioPath& file) {
  const DWORD from = GetFileAttributesW(file.for_system().c_str());
  const DWORD own = GetFileAttributesW(file_.for_system().c_str());
  if (from != INVALID_FILE_ATTRIBUTES && own != INVALID_FILE_ATTRIBUTES) {
    // Also taken off: some systems give it to names with a leading dot, and it would stay with the photo.
    SetFileAttributesW(file_.for_system().c_str(),
                       (own & ~DWORD{FILE_ATTRIBUTE_HIDDEN}) | (from & FILE_ATTRIBUTE_HIDDEN));
  }
}

bool NewFile::ShareBlocksOf(const ioPath& /*file*/) {
  return false;
}

#else

void NewFile::TakeRightsOf(const ioPath& file) {
  struct stat facts = {};
  if (stat(file.native().c_str(), &facts) != 0) {
    return;
  }
  const int handle = fileno(stream_);
  // Each for itself: who may not give a file away may still give it to a group of their own.
  static_cast<void>(fchown(handle, facts.st_uid, static_cast<gid_t>(-1)));
  static_cast<void>(fchown(handle, static_cast<uid_t>(-1), facts.st_gid));
  TakeAttributes(file.native().c_str(), handle);
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

#endif

std::error_code NewFile::Write(const void* bytes, std::size_t count) {
  errno = 0;
  return std::fwrite(bytes, 1, count, stream_) == count ? std::error_code() : LastError();
}

std::error_code NewFile::Skip(std::size_t count) {
  errno = 0;
  skipped_ = true;
#ifdef _WIN32
  return _fseeki64(stream_, static_cast<__int64>(count), SEEK_CUR) == 0 ? std::error_code() : LastError();
#else
  return fseeko(stream_, static_cast<off_t>(count), SEEK_CUR) == 0 ? std::error_code() : LastError();
#endif
}

std::error_code NewFile::EndSkipped() {
  if (!std::exchange(skipped_, false)) {
    return {};
  }
#ifdef _WIN32
  const __int64 end = _ftelli64(stream_);
  const bool done = end >= 0 && std::fflush(stream_) == 0 && _chsize_s(_fileno(stream_), end) == 0;
#else
  const off_t end = ftello(stream_);
  const bool done = end >= 0 && std::fflush(stream_) == 0 && ftruncate(fileno(stream_), end) == 0;
#endif
  return done ? std::error_code() : LastError();
}

std::error_code NewFile::SetModified(std::int64_t ns) {
  errno = 0;
  if (const std::error_code error = EndSkipped()) {
    return error;
  }
  // What is written later would change it again.
  if (std::fflush(stream_) != 0) {
    return LastError();
  }
#ifdef _WIN32
  // Counted in steps of 100 ns from 1601 on.
  constexpr std::int64_t kStepsTo1970 = 116444736000000000;
  const std::int64_t steps = ns >= 0 ? ns / 100 : -((99 - ns) / 100);
  const auto ticks = static_cast<ULONGLONG>(steps + kStepsTo1970);
  FILETIME time;
  time.dwLowDateTime = static_cast<DWORD>(ticks);
  time.dwHighDateTime = static_cast<DWORD>(ticks >> 32U);
  const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream_)));
  return SetFileTime(handle, nullptr, nullptr, &time) ? std::error_code() : LastSystemError();
#else
  constexpr std::int64_t kNsPerSecond = 1'000'000'000;
  const std::int64_t rest = (ns % kNsPerSecond + kNsPerSecond) % kNsPerSecond;
  timespec times[2] = {};
  times[0].tv_nsec = UTIME_OMIT;
  times[1].tv_sec = static_cast<time_t>((ns - rest) / kNsPerSecond);
  times[1].tv_nsec = static_cast<long>(rest);
  return futimens(fileno(stream_), times) == 0 ? std::error_code() : LastSystemError();
#endif
}

std::error_code NewFile::Close(bool durable) {
  errno = 0;
  if (const std::error_code error = EndSkipped()) {
    return error;
  }
  if (std::fflush(stream_) != 0 || (durable && !Sync(stream_))) {
    return LastError();
  }
  std::FILE* const stream = std::exchange(stream_, nullptr);
  return std::fclose(stream) == 0 ? std::error_code() : LastError();
}

void SyncFolderOf(const ioPath& file) {
#ifdef _WIN32
  static_cast<void>(file);
#else
  const ioPath folder = file.parent_path();
  const int handle = open(folder.empty() ? "." : folder.native().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle >= 0) {
    fsync(handle);
    close(handle);
  }
#endif
}

}  // namespace Zenvora
