#include "FolderEntries.h"

#include <zenvora/core/ErrorText.h>

#include <filesystem>

#ifdef _WIN32
#include <string_view>
#include <windows.h>
#endif

namespace Zenvora::Lumidex::Host {

namespace fs = std::filesystem;

#ifdef _WIN32

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
      entries.push_back({ioPath(fs::path(found.cFileName)), KindOf(found), hidden});
    }
  } while (FindNextFileW(search, &found));
  if (GetLastError() != ERROR_NO_MORE_FILES) {
    error = LastSystemError();
  }
  FindClose(search);
  return entries;
}

#else

std::vector<FolderEntry> ReadFolderEntries(const ioPath& folder, EntryChoice choice, std::error_code& error) {
  std::vector<FolderEntry> entries;
  fs::directory_iterator entry(folder.native(), error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    FolderEntry found{ioPath(entry->path().filename()), FolderEntry::Kind::Other};
    found.hidden = found.name.native().native().front() == '.';
    if (choice == EntryChoice::NotHidden && found.hidden) {
      continue;
    }
    std::error_code unknown;
    switch (entry->symlink_status(unknown).type()) {
      case fs::file_type::directory:
        found.kind = FolderEntry::Kind::Folder;
        break;
      case fs::file_type::symlink:
        found.kind = FolderEntry::Kind::Link;
        break;
      case fs::file_type::regular:
      case fs::file_type::none:
        found.kind = FolderEntry::Kind::File;
        break;
      default:
        break;
    }
    entries.push_back(found);
  }
  return entries;
}

#endif

}  // namespace Zenvora::Lumidex::Host
