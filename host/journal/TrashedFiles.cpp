#include <host/base/HostError.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/journal/FileMoves.h>
#include <host/journal/TrashedFiles.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/lumidex/FileAccessLockerGuard.h>

#include <filesystem>
#include <string>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// So often another program may be faster with a place.
constexpr int kMostPlaces = 100;

[[noreturn]] void Fail(const ioPath& file, const std::string& what) {
  ThrowHostError(file.utf8string(), what);
}

[[noreturn]] void FailMove(const ioPath& file, const std::string& cause) {
  Fail(file, "Cannot move " + file.utf8string() + " to the trash: " + cause);
}

/// Gives a file a name that nothing has. Returns what failed; then nothing has changed.
std::error_code MoveOrTell(IFileAccessLocker& locker, const ioPath& from, const ioPath& to) {
  std::error_code error;
  {
    const FileAccessLockerGuard guard(locker, from);
    error = MoveToFreeName(from, to);
  }
  if (error && MayPass(error)) {
    MoveFile(locker, from, to);
    return {};
  }
  return error;
}

void SyncNames(const TrashedFile& file) {
  SyncFolderOf(file.place.file);
  SyncFolderOf(file.file.path);
}

/// What is there may be the file.
bool CannotTell(const FileState& state) {
  return state.kind == FileState::Kind::Unknown || state.kind == FileState::Kind::Loop;
}

void TakeIdentity(TrashedFile& file, const FileState& state) {
  file.file.size = state.size;
  file.file.modifiedNs = state.modifiedNs;
  file.device = state.identity.first;
  file.inode = state.identity.second;
}

}  // namespace

// --- The table

std::vector<TrashedFile> TrashedFiles::Files(qlonglong step) const {
  QSqlQuery query = database_.Run(
      "SELECT number, state, path, place, note, photo, kept, device, file, size, modified_ns FROM trashed"
      " WHERE step = ? ORDER BY number",
      {step});
  std::vector<TrashedFile> files;
  while (database_.Next(query)) {
    TrashedFile file;
    file.number = query.value(0).toLongLong();
    file.state = static_cast<State>(query.value(1).toInt());
    file.file.path = PathOf(query.value(2));
    file.place = {PathOf(query.value(3)), PathOf(query.value(4))};
    if (!query.value(5).isNull()) {
      file.photo = query.value(5).toLongLong();
    }
    file.kept = PathOf(query.value(6));
    file.device = static_cast<std::uint64_t>(query.value(7).toLongLong());
    file.inode = static_cast<std::uint64_t>(query.value(8).toLongLong());
    file.file.size = static_cast<std::uint64_t>(query.value(9).toLongLong());
    file.file.modifiedNs = query.value(10).toLongLong();
    files.push_back(std::move(file));
  }
  return files;
}

std::optional<qlonglong> TrashedFiles::PhotoAt(const ioPath& path) const {
  QSqlQuery query = database_.Run("SELECT number FROM photos WHERE path = ?", {PathBytes(path)});
  return database_.Next(query) ? std::optional(query.value(0).toLongLong()) : std::nullopt;
}

void TrashedFiles::Insert(qlonglong step, TrashedFile& file) const {
  QSqlQuery query = database_.Run(
      "INSERT INTO trashed (step, state, path, place, note, photo, kept, device, file, size, modified_ns)"
      " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
      {step, static_cast<int>(file.state), PathBytes(file.file.path), PathBytes(file.place.file),
       PathBytes(file.place.note), file.photo ? QVariant(*file.photo) : QVariant(QVariant::LongLong),
       PathBytes(file.kept), static_cast<qlonglong>(file.device), static_cast<qlonglong>(file.inode),
       static_cast<qlonglong>(file.file.size), static_cast<qlonglong>(file.file.modifiedNs)});
  file.number = query.lastInsertId().toLongLong();
}

void TrashedFiles::Store(const TrashedFile& file) const {
  database_.Run(
      "UPDATE trashed SET state = ?, place = ?, note = ?, device = ?, file = ?, size = ?, modified_ns = ?"
      " WHERE number = ?",
      {static_cast<int>(file.state), PathBytes(file.place.file), PathBytes(file.place.note),
       static_cast<qlonglong>(file.device), static_cast<qlonglong>(file.inode),
       static_cast<qlonglong>(file.file.size), static_cast<qlonglong>(file.file.modifiedNs), file.number});
}

/// The file is in the trash: its photo is lost for now.
void TrashedFiles::NoteMoved(TrashedFile& file) const {
  if (const FileState state = QueryFile(file.place.file); state.kind == FileState::Kind::File) {
    TakeIdentity(file, state);
  }
  file.state = State::Done;
  WriteTransaction transaction(database_);
  Store(file);
  if (file.photo) {
    database_.Run("UPDATE photos SET lost = 1 WHERE number = ? AND path = ?",
                  {*file.photo, PathBytes(file.file.path)});
  }
  transaction.Commit();
}

/// The file is where it was, and so is all that is known of its photo.
void TrashedFiles::NoteBack(TrashedFile& file) const {
  file.state = State::Undone;
  WriteTransaction transaction(database_);
  Store(file);
  if (file.photo) {
    QSqlQuery known = database_.Run("SELECT path FROM photos WHERE number = ? AND lost = 1", {*file.photo});
    if (database_.Next(known)) {
      const ioPath path = PathOf(known.value(0));
      if (path != file.file.path) {
        // A rename that stands gave its path to another photo.
        PhotoPathUpdate(database_).Move(path, file.file.path);
      }
      database_.Run("UPDATE photos SET lost = 0 WHERE number = ?", {*file.photo});
    }
  }
  transaction.Commit();
}

// --- The disk

/// By size and time, since some volumes number their files anew when they are mounted.
bool TrashedFiles::IsIt(const ioPath& name, const TrashedFile& file) const {
  std::error_code error;
  if (std::filesystem::is_symlink(std::filesystem::symlink_status(name.for_system(), error))) {
    return false;
  }
  const FileState state = QueryFile(name);
  return state.kind == FileState::Kind::File && state.size == file.file.size &&
         state.modifiedNs == file.file.modifiedNs;
}

bool TrashedFiles::IsInTrash(const TrashedFile& file) const {
  const FileState state = QueryFile(file.place.file);
  if (state.kind != FileState::Kind::File) {
    return false;
  }
  const bool isNumbered = state.identity == std::make_pair(file.device, file.inode);
  switch (trash_.ReadNote(file.place, file.file.path)) {
    case Tavolin::TrashNoteOf::ThisFile:
      // Some volumes tell other times when they are mounted in summer.
      return isNumbered || state.size == file.file.size;
    case Tavolin::TrashNoteOf::Nobody:
      return isNumbered || IsIt(file.place.file, file);
    case Tavolin::TrashNoteOf::Another:
      // The place may be another file's by now, even of one that is a copy.
      break;
  }
  return false;
}

/// It never left: moved it would not be there.
bool TrashedFiles::IsStillHome(const TrashedFile& file) const {
  return IsIt(file.file.path, file) &&
         QueryFile(file.file.path).identity == std::make_pair(file.device, file.inode);
}

bool TrashedFiles::IsOutOfReach(const TrashedFile& file) const {
  return !trash_.IsInReach(file.place) && !IsIt(file.file.path, file);
}

/// Of a move that did not happen, or of a file that is back. Never that of a file which is there.
void TrashedFiles::RemoveLeftNote(const TrashedFile& file) const {
  if (QueryFile(file.place.file).kind == FileState::Kind::Missing &&
      trash_.ReadNote(file.place, file.file.path) != Tavolin::TrashNoteOf::Another) {
    trash_.RemoveNote(file.place);
  }
}

void TrashedFiles::Drop(TrashedFile& file) const {
  RemoveLeftNote(file);
  if (file.state == State::Redoing) {
    file.state = State::Undone;
    Store(file);
    return;
  }
  database_.Run("DELETE FROM trashed WHERE number = ?", {file.number});
}

/// The row is on the disk. Returns when the file is in the trash.
void TrashedFiles::Drive(TrashedFile& file) const {
  for (int i = 0; i < kMostPlaces; ++i) {
    std::error_code error = trash_.WriteNote(file.place, file.file.path);
    if (!error) {
      error = MoveOrTell(locker_, file.file.path, file.place.file);
      if (!error) {
        SyncNames(file);
        return;
      }
      if (error == std::errc::file_exists) {
        // It is of a file without a note of its own, which must not get this one.
        trash_.RemoveNote(file.place);
      }
    }
    if (error != std::errc::file_exists) {
      FailMove(file.file.path, CauseOfMove(error));
    }
    file.place = trash_.Choose(file.file.path);
    Store(file);
  }
  FailMove(file.file.path, "no free name in the trash");
}

ioPath TrashedFiles::Move(qlonglong step, const SeenFile& known, const ioPath& kept) const {
  TrashedFile file;
  file.file = known;
  file.kept = kept;
  file.photo = PhotoAt(known.path);
  file.place = trash_.Choose(known.path);
  const FileState state = QueryFile(known.path);
  file.device = state.identity.first;
  file.inode = state.identity.second;
  Insert(step, file);
  try {
    Drive(file);
  } catch (...) {
    // Not on the caller's word: the answer of a server can be lost, and the file be there all the same.
    if (!Settle(file)) {
      throw;
    }
    return file.place.file;
  }
  NoteMoved(file);
  return file.place.file;
}

void TrashedFiles::MoveAgain(TrashedFile& file) const {
  if (file.state == State::Redoing && IsInTrash(file) && !IsStillHome(file)) {
    return NoteMoved(file);
  }
  if (file.state == State::Redoing) {
    Drop(file);
  }
  if (QueryFile(file.file.path).kind == FileState::Kind::Missing) {
    Fail(file.file.path, file.file.path.utf8string() + " no longer exists");
  }
  if (!IsIt(file.file.path, file)) {
    Fail(file.file.path, file.file.path.utf8string() + " was changed later and is left as it is");
  }
  if (QueryFile(file.kept).kind != FileState::Kind::File || IsSameFile(file.kept, file.file.path)) {
    Fail(file.file.path, file.file.path.utf8string() + " was kept, because the photo kept in its place, " +
                             file.kept.utf8string() + ", no longer exists");
  }
  file.place = trash_.Choose(file.file.path);
  file.state = State::Redoing;
  Store(file);
  try {
    Drive(file);
  } catch (...) {
    if (!Settle(file)) {
      throw;
    }
    return;
  }
  NoteMoved(file);
}

bool TrashedFiles::Settle(TrashedFile& file) const {
  const bool isHome = !IsInTrash(file) && !CannotTell(QueryFile(file.place.file)) &&
                      QueryFile(file.file.path).kind != FileState::Kind::Missing;
  if (isHome || IsStillHome(file)) {
    Drop(file);
    return false;
  }
  // Or it is gone from both: undoing it will say so.
  NoteMoved(file);
  return true;
}

/// Returns why it could not be moved; empty: it could.
std::string TrashedFiles::MoveHome(const TrashedFile& file) const {
  try {
    std::error_code error = MakeFolders(file.file.path.parent_path());
    error = error ? error : MoveOrTell(locker_, file.place.file, file.file.path);
    return !error                            ? std::string()
           : error == std::errc::file_exists ? "another file has its former name"
                                             : CauseOfMove(error);
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

void TrashedFiles::TakeBack(TrashedFile& file, bool& isHopeless) const {
  isHopeless = false;
  const std::string name = file.file.path.utf8string();
  if (!IsInTrash(file)) {
    if (IsIt(file.file.path, file)) {
      // Others were faster, or it was interrupted: only the last notes are missing.
      RemoveLeftNote(file);
      return NoteBack(file);
    }
    if (!trash_.IsInReach(file.place)) {
      Fail(file.file.path, name + " is in the trash as " + file.place.file.utf8string() +
                               ", which cannot be reached: its disk may not be connected");
    }
    if (const FileState state = QueryFile(file.place.file); CannotTell(state)) {
      Fail(file.file.path, name + " may be in the trash as " + file.place.file.utf8string() +
                               ", which cannot be read: " + ErrorText(state.error));
    }
    isHopeless = true;
    const bool isTaken = QueryFile(file.file.path).kind != FileState::Kind::Missing;
    Fail(file.file.path, name + (isTaken ? " is no longer in the trash; another file has its name"
                                         : " is no longer in the trash and cannot be brought back"));
  }
  const State former = file.state;
  file.state = State::Undoing;
  Store(file);
  const std::string cause = MoveHome(file);
  // The answer of a server can be lost, and the file be back all the same.
  if (!cause.empty() && (IsInTrash(file) || !IsIt(file.file.path, file))) {
    file.state = former == State::Undoing ? State::Done : former;
    Store(file);
    Fail(file.file.path, name + " remains in the trash as " + file.place.file.utf8string() + ": " + cause);
  }
  SyncNames(file);
  RemoveLeftNote(file);
  NoteBack(file);
}

}  // namespace Zenvora::Lumidex::Host
