#include "StagingFolder.h"

#include <host/base/FolderEntries.h>
#include <host/base/HostError.h>

#include <zenvora/app/Application.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/core/Patience.h>

#include <chrono>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

/// Somebody may only be looking whether an import is at work.
constexpr int kLockAttempts = 10;
constexpr std::chrono::milliseconds kLockPause(20);

}  // namespace

StagingFolder::StagingFolder(const ioPath& copies) : copies_(copies), folder_(ImportFolder(copies)) {
  RefuseLinks();
  MakeSafely();
  RefuseLinks();
  if (const std::error_code error = TakeLock()) {
    const bool busy = error == std::errc::resource_unavailable_try_again;
    ThrowHostError(copies.utf8string(),
                   busy ? "Another import is running in " + copies.utf8string() + "."
                        : "Nothing can be copied to " + copies.utf8string() + ": " + ErrorText(error) + ".");
  }
  RemoveParts();
  manifest_ = std::make_unique<ImportManifest>(copies);
}

StagingFolder::~StagingFolder() {
  RemoveParts();
}

ioPath StagingFolder::NextPart(const ioPath& target) {
  const ioPath part = folder_ / ioPath(kPartStart + std::to_string(++parts_));
  return ioPath(part.utf8string() + target.extension().utf8string());
}

void StagingFolder::RefuseLinks() const {
  if (const std::string fault = FindLinkFault(copies_); !fault.empty()) {
    ThrowHostError(copies_.utf8string(), fault);
  }
}

std::error_code StagingFolder::TakeLock() {
  std::error_code error = lock_.Take(folder_ / "lock");
  for (int i = 1; error == std::errc::resource_unavailable_try_again && i < kLockAttempts; ++i) {
    App::SleepFor(kLockPause);
    error = lock_.Take(folder_ / "lock");
  }
  return error;
}

/// With the folders' names on the disk: what is in a folder is lost with it.
void StagingFolder::MakeSafely() const {
  std::vector<ioPath> made;
  for (ioPath place = folder_;
       QueryFile(place).kind == FileState::Kind::Missing && place.parent_path() != place;) {
    made.push_back(place);
    place = place.parent_path();
  }
  if (const std::error_code error = MakeFolders(folder_)) {
    ThrowHostError(copies_.utf8string(),
                   "Nothing can be copied to " + copies_.utf8string() + ": " + ErrorText(error) + ".");
  }
  for (const ioPath& place : made) {
    SyncFolderOf(place);
  }
}

void StagingFolder::RemoveParts() const {
  std::error_code ignored;
  for (const FolderEntry& entry : ReadFolderEntries(folder_, EntryChoice::All, ignored)) {
    if (entry.name.utf8string().rfind(kPartStart, 0) == 0) {
      (folder_ / entry.name).remove();
    }
  }
}

}  // namespace Zenvora::Lumidex::Host
