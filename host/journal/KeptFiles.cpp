#include <host/base/ContentHash.h>
#include <host/base/HostError.h>
#include <host/journal/KeptFiles.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/tavolin/Uuid.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr int kTokenLength = 13;
constexpr std::size_t kPiece = std::size_t{256} * 1024;

bool IsForWantOfRoom(const std::error_code& error) {
#ifdef EDQUOT
  if (error.category() == std::generic_category() && error.value() == EDQUOT) {
    return true;
  }
#endif
  return error == std::errc::no_space_on_device;
}

[[noreturn]] void Fail(const ioPath& file, const std::string& what, const std::error_code& error) {
  const std::string text = what + ' ' + file.utf8string() + ": " + ErrorText(error);
  if (IsForWantOfRoom(error)) {
    BOOST_THROW_EXCEPTION(NoRoomError() << TagFilename(file.utf8string()) << TagDescription(text));
  }
  ThrowHostError(file.utf8string(), text);
}

/// Opening what is no file could wait for ever.
void RequireFile(const ioPath& file) {
  const FileState state = QueryFile(file);
  if (state.kind != FileState::Kind::File) {
    Fail(file, "Cannot read",
         state.error ? state.error : std::make_error_code(std::errc::no_such_file_or_directory));
  }
}

/// Hands the content of a file on, piece by piece.
template <class Take>
void ReadAll(const ioPath& file, const Take& take) {
  RequireFile(file);
  std::ifstream stream(file.for_system(), std::ios::binary);
  std::vector<char> piece(kPiece);
  while (stream) {
    stream.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    take(piece.data(), static_cast<std::size_t>(stream.gcount()));
  }
  if (!stream.eof()) {
    Fail(file, "Cannot read", std::make_error_code(std::errc::io_error));
  }
}

/// The last of a new file that has its content.
std::error_code Finish(NewFile& file, std::int64_t modifiedNs) {
  std::error_code error = file.SetModified(modifiedNs);
  error = error ? error : file.Close(true);
  if (!error) {
    file.Release();
  }
  return error;
}

/// False where the file system cannot, and then there is no new file.
bool ShareBlocks(const ioPath& from, const ioPath& to) {
  const FileState state = QueryFile(from);
  NewFile twin;
  if (twin.Create(to)) {
    return false;
  }
  twin.CopyRightsOf(from);
  return twin.ShareBlocksOf(from) && !Finish(twin, state.modifiedNs);
}

void RequireWritten(const std::error_code& error, const ioPath& to) {
  if (error) {
    Fail(to, "Cannot write", error);
  }
}

/// `copy` is `to`, open and to be written from its beginning.
void Fill(NewFile& copy, const ioPath& from, const ioPath& to) {
  const FileState state = QueryFile(from);
  copy.CopyRightsOf(from);
  ReadAll(from, [&](const char* bytes, std::size_t count) { RequireWritten(copy.Write(bytes, count), to); });
  RequireWritten(Finish(copy, state.modifiedNs), to);
}

void Copy(const ioPath& from, const ioPath& to) {
  NewFile copy;
  RequireWritten(copy.Create(to), to);
  Fill(copy, from, to);
}

/// False where the disk cannot keep what it has promised: it writes every change to another place.
bool FillReused(const ioPath& from, const ioPath& file) {
  NewFile copy;
  RequireWritten(copy.Reuse(file, QueryFile(from).size), file);
  try {
    Fill(copy, from, file);
    return true;
  } catch (const NoRoomError&) {
    return false;
  }
}

void Require(const std::error_code& error, const ioPath& file) {
  if (error) {
    Fail(file, "Cannot move", error);
  }
}

/// 0 for what is no name of a version.
std::int64_t NumberOf(const std::string& name) {
  // No catalogue gets further.
  constexpr std::size_t kMostDigits = 15;
  const std::size_t digits = std::min(name.find_first_not_of("0123456789"), name.size());
  const bool isVersion = name.compare(digits, 7, "-before") == 0 || name.compare(digits, 6, "-after") == 0;
  return isVersion && digits > 0 && digits <= kMostDigits ? std::stoll(name.substr(0, digits)) : 0;
}

/// True when a copy in the other direction takes room as well: nothing can be shared between the two folders.
bool Reproduce(const ioPath& from, const ioPath& to) {
  RequireFile(from);
  if (ShareBlocks(from, to)) {
    SyncFolderOf(to);
    return false;
  }
  // Who has the file under another name might change it where it lies; a link's second name would lead there,
  // too, or nowhere.
  std::error_code error;
  const bool isLink = std::filesystem::is_symlink(std::filesystem::symlink_status(from.for_system(), error));
  const bool isAlone = !isLink && QueryFile(from).names == 1;
  const bool mayNotShare = isAlone && AddName(from, to);
  if (!isAlone || mayNotShare) {
    Copy(from, to);
  }
  SyncFolderOf(to);
  return mayNotShare || QueryFile(from).identity.first != QueryFile(to).identity.first;
}

}  // namespace

QByteArray DigestOf(const ioPath& file) {
  RequireFile(file);
  std::error_code error;
  QByteArray digest = HashFile(file, ContentHash::Kind::Sha1, error);
  if (error) {
    Fail(file, "Cannot read", error);
  }
  return digest;
}

bool KeptFiles::Keep(const ioPath& file, const std::string& name) const {
  PathOf(name).remove();
  return Reproduce(file, PathOf(name));
}

void KeptFiles::PutBeside(const std::string& name, const ioPath& staging) const {
  Reproduce(PathOf(name), staging);
}

void KeptFiles::WriteOver(const std::string& name, const ioPath& file) const {
  RequireFile(PathOf(name));
  if (!FillReused(PathOf(name), file)) {
    // Emptied, the file gives its room back before it takes other room.
    std::ofstream emptied(file.for_system(), std::ios::binary | std::ios::trunc);
    emptied.close();
    if (!FillReused(PathOf(name), file)) {
      Fail(file, "Cannot write", std::make_error_code(std::errc::no_space_on_device));
    }
  }
}

void KeptFiles::Remove(const std::string& name) const {
  PathOf(name).remove();
}

std::vector<ioPath> KeptFiles::Names() const {
  std::error_code error;
  std::vector<ioPath> names;
  for (std::filesystem::directory_iterator entry(folder_.for_system(), error), end; !error && entry != end;
       entry.increment(error)) {
    names.emplace_back(entry->path().filename());
  }
  return names;
}

void KeptFiles::RemoveOthers(const std::set<std::string>& wanted) const {
  for (const ioPath& name : Names()) {
    if (NumberOf(name.utf8string()) > 0 && wanted.count(name.utf8string()) == 0) {
      (folder_ / name).remove();
    }
  }
}

ioPath KeptFiles::SetAside(std::int64_t last) const {
  ioPath aside;
  for (const ioPath& name : Names()) {
    if (NumberOf(name.utf8string()) > last) {
      if (aside.empty()) {
        aside = folder_ / ioPath("others-" + Tavolin::GenerateUuid().left(kTokenLength).toStdString());
        Require(MakeFolders(aside), aside);
      }
      Require(MoveToFreeName(folder_ / name, aside / name), folder_ / name);
    }
  }
  return aside;
}

}  // namespace Zenvora::Lumidex::Host
