#include <host/base/FolderEntries.h>

#include <zenvora/core/ErrorText.h>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>

namespace Zenvora::Lumidex::Host {

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

}  // namespace Zenvora::Lumidex::Host
