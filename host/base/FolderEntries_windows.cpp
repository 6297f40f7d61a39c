#include <host/base/FolderEntries.h>

#include <zenvora/core/ErrorText.h>

#include <filesystem>
#include <string_view>
#include <windows.h>

namespace Zenvora::Lumidex::Host {

namespace {

FolderEntry::Kind KindOf(const WIN32_FIND_DATAW& found) {
  // Other reparse points are files all the same, kept elsewhere by a cloud service for one.
  const bool leadsElsewhere =
      (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
      (found.dwReserved0 == IO_REPARSE_TAG_SYMLINK || found.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT);
  if (leadsElsewhere) {
    return FolderEntry::Kind::Link;
  }
  return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? FolderEntry::Kind::Folder
                                                                  : FolderEntry::Kind::File;
}

}  // namespace

// Not by the standard library, which knows no links here and gets lost in long names.
std::vector<FolderEntry> ReadFolderEntries(const ioPath& folder, EntryChoice choice, std::error_code& error) {
  std::vector<FolderEntry> entries;
  error.clear();
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileExW((folder / "*").for_system().c_str(), FindExInfoBasic, &found,
                                         FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  if (search == INVALID_HANDLE_VALUE) {
    error = LastSystemError();
    if (error.value() == ERROR_FILE_NOT_FOUND) {
      // The root of a drive has no entries "." and "..": it is empty.
      error.clear();
    }
    return entries;
  }
  do {
    const std::wstring_view name = found.cFileName;
    const bool hidden = name[0] == L'.' || (found.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    if (name != L"." && name != L".." && !(hidden && choice == EntryChoice::NotHidden)) {
      entries.push_back({ioPath(std::filesystem::path(found.cFileName)), KindOf(found), hidden});
    }
  } while (FindNextFileW(search, &found));
  if (GetLastError() != ERROR_NO_MORE_FILES) {
    error = LastSystemError();
  }
  FindClose(search);
  return entries;
}

bool LeadsElsewhere(const ioPath& path) {
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(path.for_system().c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) {
    return false;
  }
  FindClose(search);
  return KindOf(found) == FolderEntry::Kind::Link;
}

}  // namespace Zenvora::Lumidex::Host
