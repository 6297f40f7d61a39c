#include <host/catalogue/CatalogueSchema.h>
#include <host/history/UndoJournal.h>
#include <host/journal/JournalRoom.h>

#include <zenvora/core/FileState.h>
#include <zenvora/tavolin/Trash.h>

#include <initializer_list>

namespace Zenvora::Lumidex::Host {

UndoJournal::UndoJournal(const ioPath& catalogue, IFileAccessLocker& locker)
    : UndoJournal(catalogue, locker, Tavolin::DesktopTrash()) {}

UndoJournal::UndoJournal(const ioPath& catalogue, IFileAccessLocker& locker, const Tavolin::ITrash& trash)
    : journal_(catalogue),
      trashed_(journal_.Database(), locker, trash),
      renames_(journal_, locker),
      edits_(journal_, locker),
      trash_(journal_, trashed_),
      tags_(journal_),
      albums_(journal_),
      imports_(journal_, trashed_) {
  for (StepKind* const kind :
       std::initializer_list<StepKind*>{&renames_, &edits_, &trash_, &tags_, &albums_, &imports_}) {
    journal_.Add(*kind);
  }
  journal_.Recover();
}

RenameSteps& UndoJournal::Renames() {
  edits_.EndStep();
  return renames_;
}

TrashSteps& UndoJournal::Trash() {
  edits_.EndStep();
  return trash_;
}

TagSteps& UndoJournal::Tags() {
  edits_.EndStep();
  return tags_;
}

AlbumSteps& UndoJournal::Albums() {
  edits_.EndStep();
  return albums_;
}

void UndoJournal::KeepOriginals(bool keep) {
  edits_.EndStep();
  edits_.KeepOriginals(keep);
}

void UndoJournal::KeepForRedo(bool keep) {
  keepsForRedo_ = keep;
  edits_.KeepForRedo(keep);
}

bool UndoJournal::Undo() {
  const std::atomic<bool> never{false};
  return UndoLast(never, nullptr).files > 0;
}

bool UndoJournal::Redo() {
  const std::atomic<bool> never{false};
  return RedoLast(never, nullptr).files > 0;
}

UndoResult UndoJournal::UndoLast(const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  edits_.EndStep();
  return journal_.Reverse(false, keepsForRedo_, cancelled, progress);
}

UndoResult UndoJournal::RedoLast(const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  edits_.EndStep();
  return journal_.Reverse(true, keepsForRedo_, cancelled, progress);
}

std::optional<SkippedStep> UndoJournal::SkipLast() {
  edits_.EndStep();
  return journal_.SkipLast();
}

std::vector<UndoStep> ReadUndoSteps(const ioPath& catalogue) {
  return ReadUndoSteps(catalogue, {RenameSteps::kFacts, EditSteps::kFacts, TrashSteps::kFacts,
                                   TagSteps::kFacts, AlbumSteps::kFacts, ImportSteps::kFacts});
}

bool NeedsRecovery(const ioPath& catalogue) {
  if (QueryFile(catalogue).kind != FileState::Kind::File) {
    return false;
  }
  try {
    const CatalogueDatabase database(catalogue, CatalogueDatabase::Access::QueryOnly,
                                     Catalogue::kBusyTimeoutMs);
    // Also in a catalogue of a former version: what the former program left must not wait for another run.
    return HasJournal(database) &&
           database
               .Value("SELECT EXISTS (SELECT 1 FROM steps WHERE state IN (?, ?, ?))",
                      {Stored(State::Doing), Stored(State::Undoing), Stored(State::Redoing)})
               .toBool();
  } catch (const HostError&) {
    // Whoever needs it will say why it cannot be used.
    return false;
  }
}

}  // namespace Zenvora::Lumidex::Host
