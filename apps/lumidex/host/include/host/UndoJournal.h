#pragma once

#include <host/Catalogue.h>
#include <host/HostError.h>
#include <host/RenamePlan.h>
#include <host/StepKind.h>
#include <host/Tags.h>
#include <host/TrashPlan.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/Album.h>
#include <zenvora/lumidex/IFileAccessLocker.h>
#include <zenvora/lumidex/IUndo.h>

#include <QDateTime>
#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Tavolin {
class ITrash;
}

namespace Zenvora::Lumidex::Host {

/// What the journal knows of a step.
struct UndoStep {
  std::int64_t number = 0;  ///< Grows with every step; never used twice.
  StepKind kind = StepKind::Unknown;
  QString name;                 ///< What the person did.
  QDateTime begun;              ///< UTC; invalid: the clock showed no year from 1 to 9999.
  bool undone = false;          ///< Taken back; it can be done again.
  bool givenUp = false;         ///< Can be neither taken back nor done again.
  bool underWay = false;        ///< An import that goes on now.
  std::size_t files = 0;        ///< Files that it changed or moved.
  std::uint64_t keptBytes = 0;  ///< What is kept for it, as if nothing were shared with the photos.
  std::int64_t daysOfUse = 0;   ///< How many days the journal was used on since.
};

/// A step that cannot be taken back, or not whole, for what was done since.
struct BlockedStep {
  UndoStep step;
  std::vector<ioPath> files;  ///< That stand in another way than it left them.
};

/// A step that was given up. `blocked`: the older ones that wait for it in vain.
struct SkippedStep : UndoStep {
  std::vector<BlockedStep> blocked;
};

/// A file that could not be treated as asked.
struct UndoFinding {
  ioPath file;
  std::string cause;  ///< One English sentence that names the file.
};

/// What a batch of renames, an undo or a redo did.
struct UndoResult {
  StepKind kind = StepKind::Unknown;
  QString name;           ///< Of the step; empty: there was none.
  std::size_t files = 0;  ///< Changed or renamed.
  bool cancelled = false;
  bool stands = false;  ///< Of an undo: not all of the step could be taken back, and older ones wait for it.
  /// Of an undo: something was left for want of the room that redo needs (`UndoJournal::KeepForRedo`).
  bool lacksRoomForRedo = false;
  /// Of the undo of an import: copies in the trash now whose sources are not to be found.
  std::size_t lastCopies = 0;
  std::vector<UndoFinding> findings;
};

/// A file that went to the trash.
struct TrashMove {
  ioPath from;
  ioPath to;
};

/// What a move to the trash did. `files`: photos and what went along with them.
struct TrashResult : UndoResult {
  std::size_t photos = 0;
  std::vector<TrashMove> moved;
};

/// Which tags photos are to get and to lose.
struct TagWishes {
  std::vector<ioPath> photos;  ///< By the paths that the catalogue has them under.
  std::vector<Tag> add;
  std::vector<Tag> remove;  ///< None that is to be added.
};

/// What is kept at most, the latest steps first. Days are days of use: such on which the journal was opened.
struct UndoLimits {
  static constexpr int kDefaultDays = 90;
  static constexpr std::uint64_t kDefaultBytes = std::uint64_t{5} << 30U;
  int days = kDefaultDays;
  std::uint64_t bytes = kDefaultBytes;
};

/// How far a piece of work is: files done, files in all.
using UndoProgress = std::function<void(std::size_t, std::size_t)>;

/// The history of what was done to photo files, kept in the catalogue: what is to be done is on the disk
/// before it is done, and the originals lie in a folder beside the catalogue (its name with ".undo") until
/// they are too old or too many. Room for finishing a step and for taking it back is held there before the
/// step begins: both work when the disk is full. docs/decisions/undo.md tells how, docs/formats/catalogue.md
/// has the tables.
///
/// Whatever was under way when the program or the machine stopped is finished or taken back when the next
/// journal is opened, as soon as its photos can be reached. One journal of a catalogue can be open at a time,
/// in all processes.
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
  ~UndoJournal() override;
  UndoJournal(const UndoJournal&) = delete;
  UndoJournal& operator=(const UndoJournal&) = delete;

  /// What recovery found and did, in sentences for a person; empty as a rule.
  const std::vector<std::string>& RecoveryNotes() const;

  /// Renames the files of a plan as one step, all or none: when one cannot be renamed, or on `cancelled`,
  /// those renamed before get their old names back. What fails is recognised before anything is renamed where
  /// it can be. Nothing is ever replaced. Catalogued photos keep their records.
  UndoResult Rename(const QString& name, const RenamePlan& plan, const std::atomic<bool>& cancelled,
                    const UndoProgress& progress);

  /// Moves photos to the trash as one step, each for itself: what stays is a finding, and on `cancelled` what
  /// has gone stays there. Each is looked at once more right before it goes (`FindTrashFault`). The catalogue
  /// has the photos for lost while they are there. Undo brings them back to where they were, if nothing is
  /// there now, with all that the catalogue knew of them.
  TrashResult MoveToTrash(const QString& name, const std::vector<TrashPhoto>& photos,
                          const std::atomic<bool>& cancelled, const UndoProgress& progress);

  /// Gives photos tags and takes some from them, as one step: all or, when it throws, none. The files are not
  /// touched. `files` of the result: photos that have other tags now; 0: there is no step.
  UndoResult ChangeTags(const QString& name, const TagWishes& wishes);

  /// Accepts albums as one step: all or, when it throws, none (`Catalogue::AcceptAlbum`). Without a change
  /// there is no step. Undo takes out what they gained, and the albums that were made.
  std::vector<AcceptResult> AcceptAlbums(const QString& name, const std::vector<Album>& proposals);

  /// The name for the side file of an edit of `photo`, in its folder: hidden, and removed by recovery when it
  /// is still there. To be called within a step, before the side file is made.
  ioPath PlanEdit(const ioPath& photo);
  /// The same for a sidecar that is edited together with the photo planned last: undo and redo change both or
  /// none, and so does recovery. `RegisterFileChange` must be called for all of them before the first is
  /// replaced.
  ioPath PlanSidecar(const ioPath& sidecar);
  /// The edit planned last is in place: `RegisterFileChange` was called and the photo replaced.
  void FinishEdit();
  /// The edit planned last did not happen: nothing is left of it, unless the photo says otherwise.
  void DropEdit();

  /// Whether the originals of edits to come are kept, as they are at first. A step without them is given up
  /// from its beginning: it cannot be taken back.
  void KeepOriginals(bool keep);
  /// Whether what undo replaces is kept for redo, as it is at first. Without, undo needs no new room beside
  /// the catalogue, but what was taken back, now and before, cannot be done again.
  void KeepForRedo(bool keep);

  void BeginStep(const QString& name) override;
  /// A step without changes is forgotten.
  void EndStep() override;
  bool Undo() override;
  bool Redo() override;
  void RegisterFileChange(DataModel& item, const ioPath& newPath) override;

  /// Takes back the last step that stands. A photo that others changed since is left as it is, with a
  /// finding, and can be tried again; a step of which no other version is kept is given up, with findings.
  UndoResult UndoLast(const std::atomic<bool>& cancelled, const UndoProgress& progress);
  /// Gives the last step that stands up: it stays as it is for good, and the next undo takes the one before.
  /// What is kept of it goes when `Prune` forgets it. Returns the step; empty: there was none.
  std::optional<SkippedStep> SkipLast();
  /// Steps that stand and could not be taken back, or not whole, if these files were changed for good. The
  /// latest first.
  std::vector<BlockedStep> BlockedBy(const std::vector<ioPath>& files) const;
  /// Does again what was taken back last.
  UndoResult RedoLast(const std::atomic<bool>& cancelled, const UndoProgress& progress);

  /// All steps, the latest first.
  std::vector<UndoStep> Steps() const;
  /// Forgets the oldest steps that are beyond the limits, with their originals. Returns how many of them
  /// could have been taken back.
  std::size_t Prune(const UndoLimits& limits);
  /// The same, but of what could be taken back only what is too old, and those that were announced
  /// (`PlanRoom`): the others stay, whatever the limits say.
  std::size_t Prune(const UndoLimits& limits, const std::vector<UndoStep>& announced);

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

/// True when something was under way in the journal of the catalogue, or cannot be ruled out: opening an
/// `UndoJournal` then recovers. Cheap, and makes no catalogue.
bool NeedsRecovery(const ioPath& catalogue);

}  // namespace Zenvora::Lumidex::Host
