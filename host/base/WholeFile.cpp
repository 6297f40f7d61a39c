#include <host/base/HostError.h>
#include <host/base/WholeFile.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/Patience.h>

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <system_error>

#ifdef _WIN32
#include <process.h>
#include <windows.h>
#else
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
  std::error_code error;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    temporary_ = TemporaryBeside(target_);
    error = written_.Create(temporary_);
    if (error != std::errc::file_exists) {
      break;
    }
  }
  Check(error);
  if (kind == FileState::Kind::File) {
    // Whoever could read the old file can read the new one.
    written_.TakeRightsOf(target_);
  }
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

WholeFile::~WholeFile() = default;

void WholeFile::Write(const QByteArray& bytes) {
  Check(written_.Write(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

void WholeFile::Commit(bool durable) {
  Check(written_.Close(durable));
  Rename();
  if (durable) {
    SyncFolderOf(target_);
  }
}

void WholeFile::CommitWithTime(std::int64_t modifiedMs) {
  constexpr std::int64_t kNsPerMs = 1'000'000;
  Check(written_.SetModified(modifiedMs * kNsPerMs));
  Check(written_.Close(false));
  Rename();
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
  written_.Release();
}

void WholeFile::Check(const std::error_code& error) const {
  if (error) {
    ThrowCannotWrite(named_, ErrorText(error));
  }
}

}  // namespace Zenvora::Lumidex::Host
