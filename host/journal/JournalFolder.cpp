#include <host/base/HostError.h>
#include <host/catalogue/UndoFolder.h>
#include <host/journal/JournalFolder.h>

#include <zenvora/app/Application.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/PrivateFiles.h>
#include <zenvora/qtutility/DiskQuestions.h>

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr std::chrono::milliseconds kBusyPause(50);
constexpr int kBusyAttempts = 40;
/// Who does not need the journal itself waits for those only that look at it for a moment.
constexpr int kBusyAttemptsBeside = 4;

const char* const kLockName = "lock";
const char* const kReserveName = "reserve";

/// For the log of the catalogue, which the journal keeps short, the files that SQLite makes beside it, and
/// what a change adds to the tables.
constexpr std::uint64_t kOwnBytes = std::uint64_t{1} << 20U;

std::string Unusable(const ioPath& folder, const std::string& cause) {
  return "The undo journal " + folder.utf8string() + " cannot be used: " + cause;
}

[[noreturn]] void Fail(const ioPath& folder, const std::string& cause) {
  ThrowHostError(folder.utf8string(), Unusable(folder, cause));
}

std::string NoRoom(std::uint64_t bytes, const std::error_code& error) {
  return "no step is started without " + std::to_string((bytes >> 20U) + 1) +
         " MiB free for finishing and undoing it (" + ErrorText(error) + ")";
}

/// How much is held in the end: what former steps need, too.
std::uint64_t WholeRoom(const DiskReserve& reserve, std::uint64_t undo) {
  return std::max(kOwnBytes + undo, reserve.Wanted());
}

std::error_code TakePatiently(ProcessLock& lock, const ioPath& file, int attempts) {
  std::error_code error = lock.Take(file);
  for (int i = 1; error == std::errc::resource_unavailable_try_again && i < attempts; ++i) {
    App::SleepFor(kBusyPause);
    error = lock.Take(file);
  }
  return error;
}

void MakeFolder(const ioPath& folder) {
  if (const std::error_code error = MakePrivateFolders(folder)) {
    Fail(folder, ErrorText(error));
  }
}

/// Also a folder that a former program made. Where somebody else owns it, it is theirs to open or to close.
void CloseToOthers(const ioPath& folder) {
  MakePrivate(folder);
  MakePrivate(folder / kLockName);
}

}  // namespace

std::uint64_t JournalFolder::RoomToBegin(const ioPath& catalogue, std::uint64_t undo) {
  const DiskReserve reserve(UndoFolderOf(catalogue) / kReserveName);
  const std::uint64_t whole = WholeRoom(reserve, undo);
  return whole - std::min(whole, reserve.Held());
}

std::string JournalFolder::FindRoomFault(const ioPath& catalogue, std::uint64_t undo) {
  const ioPath folder = UndoFolderOf(catalogue);
  const std::int64_t free = Util::GetAvailableDiskSpace(folder);
  if (free < 0 || RoomToBegin(catalogue, undo) <= static_cast<std::uint64_t>(free)) {
    return {};
  }
  return Unusable(folder, NoRoom(WholeRoom(DiskReserve(folder / kReserveName), undo),
                                 std::make_error_code(std::errc::no_space_on_device)));
}

bool JournalFolder::HoldBeside(const ioPath& catalogue, std::uint64_t undo) {
  const ioPath folder = UndoFolderOf(catalogue);
  MakeFolder(folder);
  ProcessLock lock;
  if (const std::error_code error = TakePatiently(lock, folder / kLockName, kBusyAttemptsBeside)) {
    const std::string fault = error == std::errc::resource_unavailable_try_again
                                  ? FindRoomFault(catalogue, undo)
                                  : Unusable(folder, ErrorText(error));
    if (!fault.empty()) {
      ThrowHostError(folder.utf8string(), fault);
    }
    return false;
  }
  CloseToOthers(folder);
  const DiskReserve reserve(folder / kReserveName);
  const std::uint64_t before = reserve.Wanted();
  const std::uint64_t whole = WholeRoom(reserve, undo);
  if (const std::error_code error = reserve.Hold(whole)) {
    before > 0 ? void(reserve.Hold(before)) : reserve.Remove();
    Fail(folder, NoRoom(whole, error));
  }
  return true;
}

JournalFolder::JournalFolder(const ioPath& catalogue)
    : folder_(UndoFolderOf(catalogue)), reserve_(folder_ / kReserveName) {
  if (QueryFile(folder_ / kLockName).kind == FileState::Kind::File) {
    TakeLock();
  }
}

JournalFolder::~JournalFolder() {
  if (!isOpen_) {
    return;
  }
  if (needed_) {
    // Without room the next run does as well as it can.
    reserve_.Hold(kOwnBytes + copy_);
  } else {
    reserve_.Remove();
  }
}

void JournalFolder::Open() {
  if (isOpen_) {
    return;
  }
  MakeFolder(folder_);
  TakeLock();
}

void JournalFolder::TakeLock() {
  if (const std::error_code error = TakePatiently(lock_, folder_ / kLockName, kBusyAttempts)) {
    Fail(folder_,
         error == std::errc::resource_unavailable_try_again
             ? "another program is renaming or editing photos with it; try again when that has finished"
             : ErrorText(error));
  }
  isOpen_ = true;
  needed_ = reserve_.Wanted() > 0;
  CloseToOthers(folder_);
  const std::uint64_t wanted = reserve_.Wanted();
  copy_ = wanted > kOwnBytes ? wanted - kOwnBytes : 0;
  reserve_.Release();
}

void JournalFolder::Hold(std::uint64_t more) {
  const std::uint64_t bytes = kOwnBytes + copy_ + more;
  if (const std::error_code error = reserve_.Hold(bytes)) {
    Fail(folder_, NoRoom(bytes, error));
  }
}

void JournalFolder::HoldForCopy(std::uint64_t bytes) {
  if (bytes > copy_) {
    const std::uint64_t before = std::exchange(copy_, bytes);
    if (const std::error_code error = reserve_.Hold(kOwnBytes + copy_)) {
      copy_ = before;
      reserve_.Hold(kOwnBytes + copy_);
      Fail(folder_, "there is no room for undoing it (" + ErrorText(error) + ")");
    }
  }
}

bool JournalFolder::Release() {
  return reserve_.Release();
}

}  // namespace Zenvora::Lumidex::Host
