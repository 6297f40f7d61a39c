#include "WholeFile.h"

#include <host/HostError.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/Patience.h>

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <process.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zenvora::Lumidex::Host {

namespace fs = std::filesystem;

namespace {

constexpr int kAttempts = 100;
[[maybe_unused]] constexpr int kMostLinks = 40;

/// Short, whatever the length of the file's own name, and hidden from scans.
ioPath TemporaryBeside(const ioPath& file) {
  static std::atomic<unsigned> counter{0};
#ifdef _WIN32
  const int process = _getpid();
#else
  const int process = getpid();
#endif
  const std::string name = ".lumidex-" + std::to_string(process) + "-" + std::to_string(++counter) + ".tmp";
  return file.parent_path() / ioPath(name);
}

/// Never an existing file.
std::FILE* OpenNew(const ioPath& file) {
#ifdef _WIN32
  // Not by `_wfopen`: the oldest C library of Windows cannot refuse an existing file.
  const int handle = _wopen(file.for_system().c_str(),
                            _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
  std::FILE* const stream = handle < 0 ? nullptr : _fdopen(handle, "wb");
  if (handle >= 0 && stream == nullptr) {
    _close(handle);
  }
  return stream;
#else
  return std::fopen(file.for_system().c_str(), "wbxe");
#endif
}

bool Sync(std::FILE* stream) {
#ifdef _WIN32
  return _commit(_fileno(stream)) == 0;
#else
  return fsync(fileno(stream)) == 0;
#endif
}

/// The name itself is only safe when the folder is on the disk, too. Not every file system can do it: no
/// error.
void SyncFolder(const ioPath& file) {
#ifndef _WIN32
  const ioPath folder = file.parent_path();
  const int handle =
      open(folder.empty() ? "." : folder.for_system().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle >= 0) {
    fsync(handle);
    close(handle);
  }
#else
  (void)file;
#endif
}

bool SetTime(const ioPath& file, std::int64_t ms) {
#ifdef _WIN32
  const HANDLE handle = CreateFileW(file.for_system().c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return false;
  }
  // Counted in 100 ns since 1601.
  const auto ticks = static_cast<ULONGLONG>((ms + 11'644'473'600'000LL) * 10'000);
  FILETIME time;
  time.dwLowDateTime = static_cast<DWORD>(ticks);
  time.dwHighDateTime = static_cast<DWORD>(ticks >> 32U);
  const bool done = SetFileTime(handle, nullptr, nullptr, &time) != 0;
  CloseHandle(handle);
  return done;
#else
  timespec times[2] = {};
  times[0].tv_nsec = UTIME_OMIT;
  times[1].tv_sec = static_cast<time_t>(ms / 1000);
  times[1].tv_nsec = static_cast<long>(ms % 1000 * 1'000'000);
  return utimensat(AT_FDCWD, file.for_system().c_str(), times, 0) == 0;
#endif
}

}  // namespace

void ThrowCannotWrite(const ioPath& file, const std::string& cause) {
  ThrowHostError(file.utf8string(), "Cannot write " + file.utf8string() + ": " + cause);
}

WholeFile::WholeFile(const ioPath& file) : named_(file), target_(file) {
  FollowLinks();
  const FileState::Kind kind = QueryFile(target_).kind;
  if (kind == FileState::Kind::Folder || kind == FileState::Kind::Other) {
    ThrowCannotWrite(file, kind == FileState::Kind::Folder ? "it is a folder" : "it is not a regular file");
  }
  if (target_.filename().empty()) {
    ThrowCannotWrite(file, "it names no file");
  }
  for (int attempt = 0; stream_ == nullptr; ++attempt) {
    temporary_ = TemporaryBeside(target_);
    errno = 0;
    stream_ = OpenNew(temporary_);
    if (stream_ == nullptr && (errno != EEXIST || attempt == kAttempts)) {
      Fail(errno);
    }
  }
#ifndef _WIN32
  if (kind == FileState::Kind::File) {
    // Whoever could read the old file can read the new one.
    std::error_code ignored;
    const fs::file_status status = fs::status(target_.native(), ignored);
    fs::permissions(temporary_.native(), status.permissions() & fs::perms::all, ignored);
  }
#endif
}

#ifdef _WIN32

void WholeFile::FollowLinks() {
  std::error_code ignored;
  const ioPath target = target_.canonical(ignored);
  if (!target.empty()) {
    target_ = target;
  }
}

#else

// Also a link that leads nowhere yet: the file appears where it points.
void WholeFile::FollowLinks() {
  std::error_code error;
  for (int links = 0; fs::is_symlink(fs::symlink_status(target_.native(), error)); ++links) {
    const fs::path next = fs::read_symlink(target_.native(), error);
    if (error || links == kMostLinks) {
      ThrowCannotWrite(named_, error ? ErrorText(error) : "its links lead in a circle");
    }
    target_ = ioPath(target_.native().parent_path() / next);
  }
}

#endif

WholeFile::~WholeFile() {
  if (stream_ != nullptr) {
    std::fclose(stream_);
  }
  if (!temporary_.empty()) {
    temporary_.remove();
  }
}

void WholeFile::Write(const QByteArray& bytes) {
  errno = 0;
  if (std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream_) !=
      static_cast<std::size_t>(bytes.size())) {
    Fail(errno);
  }
}

void WholeFile::Commit(bool durable) {
  Close(durable);
  Rename();
  if (durable) {
    SyncFolder(target_);
  }
}

void WholeFile::CommitWithTime(std::int64_t modifiedMs) {
  Close(false);
  if (!SetTime(temporary_, modifiedMs)) {
    ThrowCannotWrite(named_, ErrorText(LastSystemError()));
  }
  Rename();
}

void WholeFile::Close(bool durable) {
  errno = 0;
  if (std::fflush(stream_) != 0 || (durable && !Sync(stream_))) {
    Fail(errno);
  }
  std::FILE* const stream = std::exchange(stream_, nullptr);
  if (std::fclose(stream) != 0) {
    Fail(errno);
  }
}

void WholeFile::Rename() {
#ifdef _WIN32
  // Returns when the new name is on the disk.
  const bool done = Patiently([this] {
    return MoveFileExW(temporary_.for_system().c_str(), target_.for_system().c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
  });
#else
  const bool done = std::rename(temporary_.native().c_str(), target_.native().c_str()) == 0;
#endif
  if (!done) {
    ThrowCannotWrite(named_, ErrorText(LastSystemError()));
  }
  temporary_.clear();
}

void WholeFile::Fail(int error) const {
  ThrowCannotWrite(named_, std::generic_category().message(error == 0 ? EIO : error));
}

}  // namespace Zenvora::Lumidex::Host
