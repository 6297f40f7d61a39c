#include "SystemFiles.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>

namespace Zenvora {

namespace {

FileState StateOf(const struct stat& facts) {
  FileState state;
  if (S_ISREG(facts.st_mode)) {
    state.kind = FileState::Kind::File;
  } else if (S_ISDIR(facts.st_mode)) {
    state.kind = FileState::Kind::Folder;
  } else {
    state.kind = FileState::Kind::Other;
  }
  constexpr std::int64_t kNsPerSecond = 1'000'000'000;
  state.size = static_cast<std::uint64_t>(facts.st_size);
  // A file system's nonsense beyond the year 2262 stays some number.
  if (__builtin_mul_overflow(facts.st_mtim.tv_sec, kNsPerSecond, &state.modifiedNs) ||
      __builtin_add_overflow(state.modifiedNs, facts.st_mtim.tv_nsec, &state.modifiedNs)) {
    state.modifiedNs = 0;
  }
  state.names = facts.st_nlink;
  state.identity = {facts.st_dev, facts.st_ino};
  return state;
}

}  // namespace

FileState AskSystem(const ioPath& file) noexcept {
  struct stat facts = {};
  if (stat(file.native().c_str(), &facts) == 0) {
    return StateOf(facts);
  }
  FileState state;
  state.error = LastSystemError();
  if (errno == ENOENT || errno == ENOTDIR) {
    state.kind = FileState::Kind::Missing;
  } else if (errno == ELOOP) {
    state.kind = FileState::Kind::Loop;
  }
  return state;
}

FileState QueryOpenFile(FileHandle handle) noexcept {
  struct stat facts = {};
  if (fstat(handle, &facts) == 0) {
    return StateOf(facts);
  }
  FileState state;
  state.error = LastSystemError();
  return state;
}

std::error_code MakeFolders(const ioPath& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder.native(), error);
  return error;
}

}  // namespace Zenvora
