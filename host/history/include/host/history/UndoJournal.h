#pragma once

#include <host/albums/AlbumSteps.h>
#include <host/edit/EditSteps.h>
#include <host/import/ImportSteps.h>
#include <host/journal/Journal.h>
#include <host/journal/TrashedFiles.h>
#include <host/journal/UndoTypes.h>
#include <host/rename/RenameSteps.h>
#include <host/tags/TagSteps.h>
#include <host/trash/TrashSteps.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/IFileAccessLocker.h>
#include <zenvora/lumidex/IUndo.h>

#include <QString>

#include <atomic>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Tavolin {
class ITrash;
}

namespace Zenvora::Lumidex::Host {

/// The history of what was done to photo files and in the catalogue, with all kinds of steps: what programs
/// open. What is to be done is on the disk before it is done, and the originals lie in a folder beside the
/// catalogue (its name with ".undo") until they are too old or too many. Room for finishing a step and for
/// undoing it is held there before the step begins: both work when the disk is full.
/// docs/decisions/undo.md tells how, docs/formats/catalogue.md has the tables.
///
/// Whatever was under way when the program or the machine stopped is finished or undone when the next
/// journal is opened, as soon as its photos can be reached. One journal of a catalogue can be open at a time,
/// in all processes: it is opened for a step, and closed after it.
///
/// All functions block on the disk and throw `HostError` naming file and cause. An object belongs to the
/// thread that opened it.
class UndoJournal : public IUndo {
 public:
  /// Makes or updates the catalogue, waits a moment for another journal of it, throws when that is not
  /// enough, and recovers. `locker` must outlive it.
  UndoJournal(const ioPath& catalogue, IFileAccessLocker& locker);
  /// With another trash than the desktop's, which must outlive it, too.
  UndoJournal(const ioPath& catalogue, IFileAccessLocker& locker, const Tavolin::ITrash& trash);

  /// What recovery found and did, in sentences for a person; empty as a rule.
  const std::vector<std::string>& RecoveryNotes() const { return journal_.Notes(); }

  /// What begins steps, each for its kind.
  RenameSteps& Renames();
  EditSteps& Edits() { return edits_; }
  TrashSteps& Trash();
  TagSteps& Tags();
  AlbumSteps& Albums();

  /// Whether the originals of edits to come are kept (`EditSteps::KeepOriginals`).
  void KeepOriginals(bool keep);
  /// Whether what undo replaces is kept for redo, as it is at first. Without, undo needs no new room beside
  /// the catalogue, but what was undone, now and before, cannot be redone.
  void KeepForRedo(bool keep);

  void BeginStep(const QString& name) override { edits_.BeginStep(name); }
  /// A step without changes is forgotten.
  void EndStep() override { edits_.EndStep(); }
  bool Undo() override;
  bool Redo() override;
  void RegisterFileChange(DataModel& item, const ioPath& newPath) override {
    edits_.RegisterFileChange(item, newPath);
  }

  /// Undoes the last step that stands. A photo that others changed since is left as it is, with a
  /// finding, and can be tried again; a step of which no other version is kept is given up, with findings.
  UndoResult UndoLast(const std::atomic<bool>& cancelled, const UndoProgress& progress);
  /// Gives the last step that stands up: it stays as it is for good, and the next undo takes the one before.
  /// What is kept of it goes when `Prune` forgets it. Returns the step; empty: there was none.
  std::optional<SkippedStep> SkipLast();
  /// Steps that stand and could not be undone, or not whole, if these files were changed for good. The
  /// latest first.
  std::vector<BlockedStep> BlockedBy(const std::vector<ioPath>& files) const {
    return journal_.BlockedBy(files);
  }
  /// Redoes what was undone last.
  UndoResult RedoLast(const std::atomic<bool>& cancelled, const UndoProgress& progress);

  /// All steps, the latest first.
  std::vector<UndoStep> Steps() const { return journal_.Steps(); }
  /// Forgets the oldest steps that are beyond the limits, with their originals. Returns how many of them
  /// could have been undone.
  std::size_t Prune(const UndoLimits& limits) { return journal_.Prune(limits, nullptr); }
  /// The same, but of what could be undone only what is too old, and those that were announced
  /// (`PlanRoom`): the others stay, whatever the limits say.
  std::size_t Prune(const UndoLimits& limits, const std::vector<UndoStep>& announced) {
    return journal_.Prune(limits, &announced);
  }

 private:
  Journal journal_;
  const TrashedFiles trashed_;
  RenameSteps renames_;
  EditSteps edits_;
  TrashSteps trash_;
  TagSteps tags_;
  AlbumSteps albums_;
  ImportSteps imports_;
  bool keepsForRedo_ = true;
};

/// All steps, the latest first, without opening the journal: others may be at work. From a catalogue that
/// need not be there, nor writable, nor of this version. Throws `HostError`.
std::vector<UndoStep> ReadUndoSteps(const ioPath& catalogue);

/// True when something was under way in the journal of the catalogue, or cannot be ruled out: opening an
/// `UndoJournal` then recovers. Cheap, and makes no catalogue.
bool NeedsRecovery(const ioPath& catalogue);

}  // namespace Zenvora::Lumidex::Host
