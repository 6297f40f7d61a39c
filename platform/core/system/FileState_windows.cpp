#include "SystemFiles.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <windows.h>

namespace Zenvora {

namespace {

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

}  // namespace

FileState AskSystem(const ioPath& file) noexcept {
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

FileState QueryOpenFile(FileHandle handle) noexcept {
  return AskHandle(handle);
}

std::error_code MakeFolders(const ioPath& folder) {
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
}

}  // namespace Zenvora
