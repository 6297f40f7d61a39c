#pragma once

#include <host/base/DiskReserve.h>
#include <host/base/ProcessLock.h>

#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <string>

namespace Zenvora::Lumidex::Host {

/// The folder beside a catalogue where its journal keeps the versions of photos, its lock, and a reserve of
/// room: what was begun can be finished and undone also when the disk is full. Nobody but its owner may
/// look into it. All functions block on the disk.
class JournalFolder {
 public:
  /// Where the folder is there already, takes the lock and gives the reserve back, so that the catalogue can
  /// be opened on a full disk. Throws `HostError` when another program holds it for longer than a moment.
  explicit JournalFolder(const ioPath& catalogue);
  /// Where there are steps that can be undone, holds the reserve again as far as there is room; else
  /// removes it. To be called when the catalogue is closed.
  ~JournalFolder();
  JournalFolder(const JournalFolder&) = delete;
  JournalFolder& operator=(const JournalFolder&) = delete;

  /// How much more room than it holds by now it needs for beginning something; `undo`: bytes that undoing
  /// adds to the tables.
  static std::uint64_t RoomToBegin(const ioPath& catalogue, std::uint64_t undo = 0);
  /// Why there is no such room, in one sentence; empty: there is, or the disk does not tell.
  static std::string FindRoomFault(const ioPath& catalogue, std::uint64_t undo);
  /// Holds that room for a step that is done without the journal, before it begins. False where another
  /// program has the journal: then the room is only there, and that program may hold it when it closes the
  /// journal; to be tried again once the step has begun. Throws `HostError`.
  static bool HoldBeside(const ioPath& catalogue, std::uint64_t undo);
  /// Makes the folder and takes the lock where that has not been done.
  void Open();
  const ioPath& Path() const { return folder_; }

  /// Holds what the journal itself needs, and `more` bytes. Throws `HostError` when there is no such room:
  /// then nothing may be begun.
  void Hold(std::uint64_t more);
  /// Holds as well, from now on, what exchanging a version needs that was copied and not shared.
  void HoldForCopy(std::uint64_t bytes);
  /// Gives the reserve back for what is to be finished. False when there was none.
  bool Release();
  /// Whether anything can be undone, for the reserve to stay.
  void SetNeeded(bool needed) { needed_ = needed; }

 private:
  void TakeLock();

  const ioPath folder_;
  const DiskReserve reserve_;
  ProcessLock lock_;
  bool isOpen_ = false;
  bool needed_ = false;
  std::uint64_t copy_ = 0;  ///< Bytes for exchanging the largest copied version.
};

}  // namespace Zenvora::Lumidex::Host
