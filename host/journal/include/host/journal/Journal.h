#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/catalogue/CatalogueDatabase.h>
#include <host/journal/JournalFolder.h>
#include <host/journal/KeptFiles.h>
#include <host/journal/StepKind.h>
#include <host/journal/UndoTypes.h>

#include <zenvora/core/ioPath.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// The engine of undo: the table of steps, the room that is held for them, and the order in which they are
/// recovered, undone, redone, given up and forgotten. What a step does is known to its `StepKind`
/// alone; `UndoJournal` (room history) puts all kinds together and is what programs open.
///
/// One journal of a catalogue can be open at a time, in all processes. All functions block on the disk and
/// throw `HostError` naming file and cause. An object belongs to the thread that opened it.
class Journal {
 public:
  /// Makes or updates the catalogue; waits a moment for another journal of it, and throws when that is not
  /// enough. Nothing is recovered before `Recover`.
  explicit Journal(const ioPath& catalogue);
  ~Journal();
  Journal(const Journal&) = delete;
  Journal& operator=(const Journal&) = delete;

  /// Before `Recover`. `kind` must outlive the journal's last use.
  void Add(StepKind& kind) { kinds_.push_back(&kind); }
  void Recover();

  // For kinds of steps.

  const CatalogueDatabase& Database() const { return database_; }
  const KeptFiles& Kept() const { return kept_; }
  JournalFolder& Folder() { return folder_; }

  /// Before anything is begun: holds room for writing down what happens, for undoing it, and `more`
  /// bytes.
  void HoldRoom(std::uint64_t more = 0);
  /// Throws when the room that was held is in use: then nothing more is begun.
  void RequireRoom() const;
  /// Writes down what happened to files: calls `work`, and when the disk is full once more, in the room that
  /// was held for that.
  template <class Work>
  void Finish(const Work& work);

  /// A step that is under way. Returns its number. May be within a transaction.
  qlonglong Begin(StepType type, const QString& name, std::size_t files = 0, const QByteArray& moves = {});
  void SetState(qlonglong step, State state) const;
  /// What the step's kind packed there.
  QByteArray Moves(qlonglong step) const;
  void SetMoves(qlonglong step, const QByteArray& moves) const;
  /// A step whose first doing is over.
  void Close(qlonglong step, std::size_t files, State state = State::Done) const;
  void SetFiles(qlonglong step, std::size_t files) const;
  /// A step was undone or redone, as far as it could; what fails now is a finding.
  void EndReversal(qlonglong step, State state, UndoResult& result) const;
  /// Forgets a step and removes what is kept for it.
  void Drop(qlonglong step) const;
  /// Something new was done: what was undone cannot be redone any more. Not within a transaction:
  /// what is kept goes at once.
  void DropUndone() const;
  /// A sentence for a person.
  void Note(const std::string& note) { notes_.push_back(note); }
  /// Tells of a step that was being undone or redone, and what became of that now.
  void NoteReversal(const StepRow& step, const UndoResult& result, bool namesFiles);

  // For who opened the journal.

  const std::vector<std::string>& Notes() const { return notes_; }
  /// Undoes the last step that stands, or redoes the one that was undone last. `keepsForRedo`:
  /// false: what was undone, now and before, cannot be redone.
  UndoResult Reverse(bool redo, bool keepsForRedo, const std::atomic<bool>& cancelled,
                     const UndoProgress& progress);
  /// Gives the last step that stands up.
  std::optional<SkippedStep> SkipLast();
  /// Steps that stand and could not be undone, or not whole, if these files were changed for good. The
  /// latest first.
  std::vector<BlockedStep> BlockedBy(const std::vector<ioPath>& files) const;
  /// The latest first.
  std::vector<UndoStep> Steps() const;
  /// Forgets the oldest steps beyond the limits. With `announced`, of what could be undone only what is
  /// too old, and those. Returns how many could have been undone.
  std::size_t Prune(const UndoLimits& limits, const std::vector<UndoStep>* announced);

 private:
  std::vector<StepRow> ReadSteps(const char* condition, std::initializer_list<QVariant> values) const;
  StepKind* KindOf(StepType type) const;
  StepKind& RequireKind(const StepRow& step) const;
  StepTraces TracesOf(const UndoStep& step) const;
  std::vector<BlockedStep> StepsInTheWay(std::int64_t before, const StepTraces& newer) const;

  // Before the catalogue, which may need the room that it holds.
  JournalFolder folder_;
  const Catalogue catalogue_;
  const CatalogueDatabase database_;
  const KeptFiles kept_;
  std::vector<StepKind*> kinds_;
  std::vector<std::string> notes_;
  /// Why the room that was held is in use. Empty: it is not.
  std::string fault_;
};

template <class Work>
void Journal::Finish(const Work& work) {
  try {
    work();
  } catch (const HostError& failure) {
    fault_ = failure.what();
    if (!folder_.Release()) {
      throw;
    }
    work();
  }
}

}  // namespace Zenvora::Lumidex::Host
