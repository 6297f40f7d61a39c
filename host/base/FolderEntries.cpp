#include <host/base/FolderEntries.h>

#include <zenvora/core/ErrorText.h>

#include <memory>
#include <string_view>

#ifdef _WIN32
#include <filesystem>
#include <windows.h>
#else
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#endif

namespace Zenvora::Lumidex::Host {

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

#else

namespace {

FolderEntry::Kind KindOfMode(mode_t mode) {
  return S_ISREG(mode)   ? FolderEntry::Kind::File
         : S_ISDIR(mode) ? FolderEntry::Kind::Folder
         : S_ISLNK(mode) ? FolderEntry::Kind::Link
                         : FolderEntry::Kind::Other;
}

FolderEntry::Kind KindOf(int folder, const dirent& entry) {
  // Most file systems tell at once.
  if (entry.d_type != DT_UNKNOWN) {
    return KindOfMode(static_cast<mode_t>(DTTOIF(entry.d_type)));
  }
  struct stat facts = {};
  if (fstatat(folder, entry.d_name, &facts, AT_SYMLINK_NOFOLLOW) != 0) {
    return errno == ENOENT ? FolderEntry::Kind::Other : FolderEntry::Kind::File;
  }
  return KindOfMode(facts.st_mode);
}

}  // namespace

// Not by the standard library, which joins each name with the folder's.
std::vector<FolderEntry> ReadFolderEntries(const ioPath& folder, EntryChoice choice, std::error_code& error) {
  std::vector<FolderEntry> entries;
  error.clear();
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.native().c_str()), closedir);
  if (!stream) {
    error = LastSystemError();
    return entries;
  }
  for (errno = 0; const dirent* const entry = readdir(stream.get()); errno = 0) {
    const std::string_view name = entry->d_name;
    const bool hidden = name.front() == '.';
    if (name != "." && name != ".." && !(hidden && choice == EntryChoice::NotHidden)) {
      entries.push_back({ioPath(entry->d_name), KindOf(dirfd(stream.get()), *entry), hidden});
    }
  }
  if (errno != 0) {
    error = LastSystemError();
  }
  return entries;
}

bool LeadsElsewhere(const ioPath& path) {
  struct stat facts = {};
  return lstat(path.native().c_str(), &facts) == 0 && S_ISLNK(facts.st_mode);
}

#endif

}  // namespace Zenvora::Lumidex::Host
