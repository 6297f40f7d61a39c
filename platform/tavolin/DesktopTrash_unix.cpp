#include "TrashRules.h"

#include <zenvora/app/Application.h>
#include <zenvora/app/UserFolders.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/tavolin/Trash.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace Zenvora::Tavolin {

namespace {

constexpr std::size_t kLongestName = 255;
constexpr unsigned kMostNames = 100'000;
constexpr mode_t kPrivate = 0700;

/// What a rename cannot leave: a mount, and in it a file system, of which some mounts hold several.
struct Volume {
  std::uint64_t mount = 0;
  std::uint64_t device = 0;

  bool operator==(const Volume& other) const {
    return std::tie(mount, device) == std::tie(other.mount, other.device);
  }
};

std::error_code FindVolume(const ioPath& folder, Volume& volume) {
  struct statx facts = {};
  if (statx(AT_FDCWD, folder.native().c_str(), 0, STATX_BASIC_STATS | STATX_MNT_ID, &facts) == 0) {
    volume.mount = (facts.stx_mask & STATX_MNT_ID) != 0 ? facts.stx_mnt_id : 0;
    volume.device = std::uint64_t{facts.stx_dev_major} << 32U | facts.stx_dev_minor;
    return {};
  }
  return LastSystemError();
}

bool IsOn(const ioPath& folder, const Volume& volume) {
  Volume found;
  return !FindVolume(folder, found) && found == volume;
}

bool IsNothing(const ioPath& name) {
  struct stat facts = {};
  return lstat(name.native().c_str(), &facts) != 0 && errno == ENOENT;
}

ioPath NearestThere(ioPath folder) {
  while (QueryFile(folder).kind == FileState::Kind::Missing && folder != folder.parent_path()) {
    folder = folder.parent_path();
  }
  return folder;
}

/// A folder of this user that nobody put a link in the place of. Made when it is missing.
std::error_code MakeOwnFolder(const ioPath& folder) {
  if (mkdir(folder.native().c_str(), kPrivate) == 0) {
    return {};
  }
  const std::error_code error = LastSystemError();
  struct stat facts = {};
  if (lstat(folder.native().c_str(), &facts) != 0) {
    return error;
  }
  if (!S_ISDIR(facts.st_mode)) {
    return std::make_error_code(std::errc::not_a_directory);
  }
  return facts.st_uid == geteuid() ? std::error_code()
                                   : std::make_error_code(std::errc::operation_not_permitted);
}

/// In their own home people may put links.
std::error_code MakeHomeFolder(const ioPath& folder) {
  if (mkdir(folder.native().c_str(), kPrivate) == 0) {
    return {};
  }
  const std::error_code error = LastSystemError();
  return QueryFile(folder).kind == FileState::Kind::Folder ? std::error_code() : error;
}

/// Only where nobody can take away or exchange what others have in it.
bool IsSharedSafely(const ioPath& folder) {
  struct stat facts = {};
  return lstat(folder.native().c_str(), &facts) == 0 && S_ISDIR(facts.st_mode) &&
         (facts.st_mode & S_ISVTX) != 0;
}

ioPath FilesOf(const ioPath& trash) {
  return trash / "files";
}

ioPath NotesOf(const ioPath& trash) {
  return trash / "info";
}

ioPath TrashOf(const TrashPlace& place) {
  return place.note.parent_path().parent_path();
}

ioPath HomeTrash() {
  const ioPath data = App::FolderOfUser(App::UserFolder::Data);
  return data.empty() ? ioPath() : data / "Trash";
}

bool IsInSharedFolder(const ioPath& trash) {
  return trash.parent_path().filename() == ioPath(".Trash");
}

/// By its name, so that it stays what it is when the user's data folder becomes another one.
bool IsHomeTrash(const ioPath& trash) {
  return !IsInSharedFolder(trash) && trash.filename() == ioPath("Trash");
}

/// The top folder of the volume that a trash outside of the home is for.
ioPath TopOf(const ioPath& trash) {
  const ioPath folder = trash.parent_path();
  return IsInSharedFolder(trash) ? folder.parent_path() : folder;
}

[[noreturn]] void Refuse(const ioPath& file, const std::string& cause) {
  TrashException error;
  error << TagFilename(file.utf8string())
        << TagDescription("Cannot move " + file.utf8string() + " to the trash: " + cause);
  BOOST_THROW_EXCEPTION(error);
}

[[noreturn]] void RefuseFolder(const ioPath& file, const ioPath& folder, const std::error_code& error) {
  Refuse(file, "there is none on its volume, and " + folder.utf8string() +
                   " cannot be used for one: " + ErrorText(error));
}

/// The search for a trash for one file.
class Search {
 public:
  explicit Search(const ioPath& file) : file_(file) {
    std::error_code error;
    folder_ = file.parent_path().canonical(error);
    error = error ? error : FindVolume(folder_, volume_);
    if (error) {
      Refuse(file, ErrorText(error));
    }
  }

  ioPath Run() const {
    const ioPath home = HomeTrash();
    if (!home.empty() && IsOn(NearestThere(home), volume_)) {
      MakeInHome(home);
      // A link may lead out of the volume.
      if (IsOn(FilesOf(home), volume_)) {
        return home;
      }
    }
    return MakeOnVolume();
  }

 private:
  void MakeInHome(const ioPath& trash) const {
    std::error_code error = MakeFolders(trash.parent_path());
    for (const ioPath& folder : {trash, FilesOf(trash), NotesOf(trash)}) {
      error = error ? error : MakeHomeFolder(folder);
    }
    if (error) {
      Refuse(file_, trash.utf8string() + " cannot be used: " + ErrorText(error));
    }
  }

  ioPath MakeOnVolume() const {
    ioPath top = folder_;
    while (top != top.parent_path() && IsOn(top.parent_path(), volume_)) {
      top = top.parent_path();
    }
    const std::string user = std::to_string(geteuid());
    const ioPath shared = top / ".Trash";
    if (IsSharedSafely(shared) && !MakeWhole(shared / ioPath(user))) {
      return shared / ioPath(user);
    }
    const ioPath own = top / ioPath(".Trash-" + user);
    if (const std::error_code error = MakeWhole(own)) {
      RefuseFolder(file_, own, error);
    }
    return own;
  }

  static std::error_code MakeWhole(const ioPath& trash) {
    std::error_code error = MakeOwnFolder(trash);
    for (const ioPath& folder : {FilesOf(trash), NotesOf(trash)}) {
      error = error ? error : MakeOwnFolder(folder);
    }
    return error;
  }

  const ioPath& file_;
  ioPath folder_;
  Volume volume_;
};

std::size_t LongestNameIn(const ioPath& folder) {
  const long most = pathconf(folder.native().c_str(), _PC_NAME_MAX);
  return most > 0 ? std::min(kLongestName, static_cast<std::size_t>(most)) : kLongestName;
}

/// Links above the file resolved as far as its folders are there: some may have gone since it went.
ioPath WithoutLinks(const ioPath& file, std::error_code& error) {
  const ioPath folder = file.parent_path();
  if (folder == file) {
    return file;
  }
  const ioPath above = QueryFile(folder).kind == FileState::Kind::Missing ? WithoutLinks(folder, error)
                                                                          : folder.canonical(error);
  return above / file.filename();
}

/// As a note names the file: relative to its volume where the trash goes along with that.
std::error_code NotedPath(const TrashPlace& place, const ioPath& file, std::string& noted) {
  const ioPath trash = TrashOf(place);
  if (IsHomeTrash(trash)) {
    noted = file.utf8string();
    return {};
  }
  std::error_code error;
  const ioPath path = WithoutLinks(file, error);
  if (error) {
    return error;
  }
  std::string top = TopOf(trash).utf8string();
  top += top.back() == '/' ? "" : "/";
  noted = path.utf8string();
  if (noted.compare(0, top.size(), top) != 0) {
    return std::make_error_code(std::errc::cross_device_link);
  }
  noted.erase(0, top.size());
  return {};
}

class FreedesktopTrash : public ITrash {
 public:
  TrashPlace Choose(const ioPath& file) const override {
    const ioPath trash = Search(file).Run();
    const ioPath files = FilesOf(trash);
    const ioPath notes = NotesOf(trash);
    const std::size_t longest = LongestNameIn(files);
    const std::string name = file.filename().utf8string();
    for (unsigned number = 1; number <= kMostNames; ++number) {
      const std::string tried = NameInTrash(name, number, longest);
      TrashPlace place{files / ioPath(tried), notes / ioPath(tried + kTrashNoteEnd)};
      if (IsNothing(place.file) && IsNothing(place.note)) {
        return place;
      }
    }
    Refuse(file, trash.utf8string() + " holds too many files of that name");
  }

  std::error_code WriteNote(const TrashPlace& place, const ioPath& file) const override {
    std::string noted;
    if (const std::error_code error = NotedPath(place, file, noted)) {
      return error;
    }
    const std::string text = TrashNoteText(noted, App::GetCurrentDateTime());
    NewFile note;
    std::error_code error = note.Create(place.note);
    error = error ? error : note.Write(text.data(), text.size());
    error = error ? error : note.Close(true);
    if (!error) {
      note.Release();
      SyncFolderOf(place.note);
    }
    return error;
  }

  TrashNoteOf ReadNote(const TrashPlace& place, const ioPath& file) const override {
    // Opening what is no file could wait for ever.
    if (QueryFile(place.note).kind != FileState::Kind::File) {
      return TrashNoteOf::Nobody;
    }
    std::ifstream stream(place.note.native(), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    const std::optional<std::string> noted = PathInTrashNote(text);
    std::string wanted;
    return !noted                                                ? TrashNoteOf::Nobody
           : !NotedPath(place, file, wanted) && *noted == wanted ? TrashNoteOf::ThisFile
                                                                 : TrashNoteOf::Another;
  }

  void RemoveNote(const TrashPlace& place) const override { place.note.remove(); }

  bool IsInReach(const TrashPlace& place) const override {
    const auto isThere = [](const ioPath& folder) {
      return QueryFile(folder).kind == FileState::Kind::Folder;
    };
    const ioPath trash = TrashOf(place);
    const ioPath files = place.file.parent_path();
    // Who empties the trash of the home may take its folders, too. But a link that leads nowhere may lead to
    // a volume that is away.
    return isThere(files) || (IsHomeTrash(trash) && isThere(trash.parent_path()) &&
                              (IsNothing(trash) || (isThere(trash) && IsNothing(files))));
  }
};

}  // namespace

ITrash::~ITrash() = default;

TrashException::~TrashException() noexcept = default;

const ITrash& DesktopTrash() {
  static const FreedesktopTrash trash;
  return trash;
}

bool LiesInTrash(const ioPath& file) {
  std::error_code error;
  const ioPath path = WithoutLinks(file, error);
  const ioPath home = HomeTrash().canonical(error);
  for (ioPath folder = path.parent_path(); folder != folder.parent_path(); folder = folder.parent_path()) {
    const std::string name = folder.filename().utf8string();
    if ((!home.empty() && folder == home) || name == ".Trash" || name.rfind(".Trash-", 0) == 0) {
      return true;
    }
  }
  return false;
}

}  // namespace Zenvora::Tavolin
