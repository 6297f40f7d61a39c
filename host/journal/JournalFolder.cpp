#include <host/base/HostError.h>
#include <host/catalogue/UndoFolder.h>
#include <host/journal/JournalFolder.h>

#include <zenvora/app/Application.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/PrivateFiles.h>

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr std::chrono::milliseconds kBusyPause(50);
constexpr int kBusyAttempts = 40;

const char* const kLockName = "lock";
const char* const kReserveName = "reserve";

/// For the log of the catalogue, which the journal keeps short, the files that SQLite makes beside it, and
/// what a change adds to the tables.
constexpr std::uint64_t kOwnBytes = std::uint64_t{1} << 20U;

[[noreturn]] void Fail(const ioPath& folder, const std::string& cause) {
  ThrowHostError(folder.utf8string(),
                 "The undo journal " + folder.utf8string() + " cannot be used: " + cause);
}

}  // namespace

std::uint64_t JournalFolder::RoomToBegin(const ioPath& catalogue) {
  const std::uint64_t held = DiskReserve(UndoFolderOf(catalogue) / kReserveName).Wanted();
  return held < kOwnBytes ? kOwnBytes - held : 0;
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
  if (const std::error_code error = MakePrivateFolders(folder_)) {
    Fail(folder_, ErrorText(error));
  }
  TakeLock();
}

void JournalFolder::TakeLock() {
  std::error_code error = lock_.Take(folder_ / kLockName);
  for (int i = 1; error == std::errc::resource_unavailable_try_again && i < kBusyAttempts; ++i) {
    App::SleepFor(kBusyPause);
    error = lock_.Take(folder_ / kLockName);
  }
  if (error) {
    Fail(folder_,
         error == std::errc::resource_unavailable_try_again
             ? "another program is renaming or editing photos with it; try again when that has finished"
             : ErrorText(error));
  }
  isOpen_ = true;
  needed_ = reserve_.Wanted() > 0;
  // Also a folder that a former program made. Where somebody else owns it, it is theirs to open or to close.
  MakePrivate(folder_);
  MakePrivate(folder_ / kLockName);
  const std::uint64_t wanted = reserve_.Wanted();
  copy_ = wanted > kOwnBytes ? wanted - kOwnBytes : 0;
  reserve_.Release();
}

void JournalFolder::Hold(std::uint64_t more) {
  const std::uint64_t bytes = kOwnBytes + copy_ + more;
  if (const std::error_code error = reserve_.Hold(bytes)) {
    Fail(folder_, "no step is started without " + std::to_string((bytes >> 20U) + 1) +
                      " MiB free for finishing and undoing it (" + ErrorText(error) + ")");
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
