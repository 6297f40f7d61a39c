#include "SystemFiles.h"

#include <host/base/HostError.h>
#include <host/base/WholeFile.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <atomic>
#include <string>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr int kAttempts = 100;

/// Short, whatever the length of the file's own name, and hidden from scans.
ioPath TemporaryBeside(const ioPath& file) {
  static std::atomic<unsigned> counter{0};
  const std::string name =
      ".lumidex-" + std::to_string(ProcessNumber()) + "-" + std::to_string(++counter) + ".tmp";
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
    written_.CopyRightsOf(target_);
  }
}

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
  if (!MoveOver(temporary_, target_)) {
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
