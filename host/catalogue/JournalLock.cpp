#include <host/base/HostError.h>
#include <host/catalogue/JournalLock.h>
#include <host/catalogue/UndoFolder.h>

#include <zenvora/app/Application.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <chrono>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

// As long as the journal itself waits for others.
constexpr std::chrono::milliseconds kPause(50);
constexpr int kAttempts = 40;

}  // namespace

JournalLock::JournalLock(const ioPath& catalogue) {
  const ioPath folder = UndoFolderOf(catalogue.absolute());
  if (QueryFile(folder).kind == FileState::Kind::Missing) {
    return;
  }
  const auto isBusy = [](const std::error_code& error) {
    return error == std::errc::resource_unavailable_try_again;
  };
  std::error_code error = lock_.Take(folder / "lock");
  for (int i = 1; isBusy(error) && i < kAttempts; ++i) {
    App::SleepFor(kPause);
    error = lock_.Take(folder / "lock");
  }
  if (error) {
    ThrowHostError(folder.utf8string(),
                   "Photos were moved, but the undo journal " + folder.utf8string() +
                       " cannot follow them: " +
                       (isBusy(error) ? "another program is renaming or editing photos with it; scan again "
                                        "when that has finished"
                                      : ErrorText(error)));
  }
}

}  // namespace Zenvora::Lumidex::Host
