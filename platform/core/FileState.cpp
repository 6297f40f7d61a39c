#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <filesystem>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <sys/stat.h>
#endif

namespace Zenvora {

namespace {

#ifdef _WIN32

FileState AskHandle(HANDLE handle) {
  FileState state;
  if (GetFileType(handle) != FILE_TYPE_DISK) {
    // The system tells nothing more of pipes and devices.
    state.kind = FileState::Kind::Other;
    return state;
  }
  BY_HANDLE_FILE_INFORMATION facts;
  if (!GetFileInformationByHandle(handle, &facts)) {
    state.error = LastSystemError();
    return state;
  }
  const auto join = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32U | low; };
  state.kind = (facts.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FileState::Kind::Folder
                                                                        : FileState::Kind::File;
  state.size = join(facts.nFileSizeHigh, facts.nFileSizeLow);
  // The system counts steps of 100 nanoseconds from 1601 on.
  constexpr std::int64_t kStepsTo1970 = 116444736000000000;
  state.modifiedNs = (static_cast<std::int64_t>(
                          join(facts.ftLastWriteTime.dwHighDateTime, facts.ftLastWriteTime.dwLowDateTime)) -
                      kStepsTo1970) *
                     100;
  state.names = facts.nNumberOfLinks;
  state.identity = {facts.dwVolumeSerialNumber, join(facts.nFileIndexHigh, facts.nFileIndexLow)};
  return state;
}

/// Not by the standard's conditions: they take a server that is gone for a file that is.
FileState::Kind KindOfFailure(const std::error_code& error) {
  switch (error.value()) {
    case ERROR_CANT_RESOLVE_FILENAME:
      return FileState::Kind::Loop;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      return FileState::Kind::Missing;
    default:
      return FileState::Kind::Unknown;
  }
}

FileState AskSystem(const ioPath& file) {
  FileState state;
  const HANDLE handle = CreateFileW(file.for_system().c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    state.error = LastSystemError();
  } else {
    state = AskHandle(handle);
    CloseHandle(handle);
  }
  if (state.error) {
    state.kind = KindOfFailure(state.error);
  }
  return state;
}

#else

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

FileState AskSystem(const ioPath& file) {
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

#endif

}  // namespace

FileState QueryFile(const ioPath& file) noexcept {
  // The system would take a name with a NUL for a shorter one.
  if (!file.name_fault().empty()) {
    FileState state;
    state.kind = FileState::Kind::Missing;
    state.error = std::make_error_code(std::errc::no_such_file_or_directory);
    return state;
  }
  return AskSystem(file);
}

#ifdef _WIN32
FileState QueryOpenFile(void* handle) noexcept {
  return AskHandle(handle);
}
#else
FileState QueryOpenFile(int handle) noexcept {
  struct stat facts = {};
  if (fstat(handle, &facts) == 0) {
    return StateOf(facts);
  }
  FileState state;
  state.error = LastSystemError();
  return state;
}
#endif

bool IsSameFile(const ioPath& left, const ioPath& right) noexcept {
  const auto isThere = [](const FileState& state) {
    return state.kind == FileState::Kind::File || state.kind == FileState::Kind::Folder ||
           state.kind == FileState::Kind::Other;
  };
  const FileState a = QueryFile(left);
  const FileState b = QueryFile(right);
  return isThere(a) && isThere(b) && a.identity == b.identity;
}

std::error_code MakeFolders(const ioPath& folder) {
#ifdef _WIN32
  // The standard library loses its way in long names.
  if (QueryFile(folder).kind == FileState::Kind::Folder) {
    return {};
  }
  const ioPath parent = folder.parent_path();
  if (!parent.empty() && parent != folder) {
    if (const std::error_code error = MakeFolders(parent)) {
      return error;
    }
  }
  if (CreateDirectoryW(folder.for_system().c_str(), nullptr)) {
    return {};
  }
  const std::error_code error = LastSystemError();
  // Somebody else was faster.
  return QueryFile(folder).kind == FileState::Kind::Folder ? std::error_code() : error;
#else
  std::error_code error;
  std::filesystem::create_directories(folder.native(), error);
  return error;
#endif
}

}  // namespace Zenvora
