#include "SameRoom.h"

#include <host/base/HostError.h>
#include <host/journal/FileMoves.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>

#include <filesystem>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

struct Versions {
  std::string incoming;  ///< Its name among what is kept.
  const QByteArray& wanted;
  const QByteArray& current;
};

Versions VersionsOf(const ChangeRow& change, bool redo) {
  return redo ? Versions{change.KeptAfter(), change.digestAfter, change.digestBefore}
              : Versions{change.KeptBefore(), change.digestBefore, change.digestAfter};
}

void GiveName(IFileAccessLocker& locker, const ChangeRow& change) {
  MoveFile(locker, change.staging, change.path);
  SyncFolderOf(change.path);
}

void WriteAndGiveName(IFileAccessLocker& locker, const KeptFiles& kept, const ChangeRow& change,
                      const Versions& versions) {
  kept.WriteOver(versions.incoming, change.staging);
  if (DigestOf(change.staging) != versions.wanted) {
    ThrowHostError(change.staging.utf8string(),
                   change.staging.utf8string() + " cannot be read back as what was written");
  }
  GiveName(locker, change);
}

/// Nobody else's name would get the other version as well.
bool IsAlone(const ioPath& file) {
  std::error_code error;
  return std::filesystem::is_regular_file(std::filesystem::symlink_status(file.for_system(), error)) &&
         QueryFile(file).names == 1;
}

[[noreturn]] void FailForRoom(const ioPath& photo) {
  BOOST_THROW_EXCEPTION(NoRoomError() << TagFilename(photo.utf8string())
                                      << TagDescription("no room for " + photo.utf8string()));
}

}  // namespace

bool IsSetAside(const ChangeRow& change) {
  return (change.state == State::Undoing || change.state == State::Redoing) && !change.adopted &&
         !change.staging.empty() && QueryFile(change.path).kind == FileState::Kind::Missing &&
         QueryFile(change.staging).kind == FileState::Kind::File;
}

void ReplaceInItsRoom(IFileAccessLocker& locker, const KeptFiles& kept, const ChangeRow& change, bool redo) {
  const Versions versions = VersionsOf(change, redo);
  if (!IsAlone(change.path)) {
    FailForRoom(change.path);
  }
  if (DigestOf(kept.PathOf(versions.incoming)) != versions.wanted) {
    ThrowHostError(change.path.utf8string(), kept.PathOf(versions.incoming).utf8string() +
                                                 " is not what was kept: others have changed it");
  }
  MoveFile(locker, change.path, change.staging);
  // Before anything is written: half a version must never have the photo's name.
  SyncFolderOf(change.path);
  try {
    WriteAndGiveName(locker, kept, change, versions);
  } catch (const NoRoomError&) {
    if (DigestOf(change.staging) != versions.current) {
      ThrowHostError(change.path.utf8string(), "the disk gave no room for what it had promised room for");
    }
    GiveName(locker, change);
    throw;
  }
}

void BringBack(IFileAccessLocker& locker, const KeptFiles& kept, const ChangeRow& change, bool redo) {
  const Versions versions = VersionsOf(change, redo);
  const QByteArray now = DigestOf(change.staging);
  if (now == versions.current || now == versions.wanted) {
    GiveName(locker, change);
  } else {
    WriteAndGiveName(locker, kept, change, versions);
  }
}

}  // namespace Zenvora::Lumidex::Host
