#include "SameRoom.h"

#include <LumidexUtil/UndoFileHolder.h>
#include <host/base/HostError.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/edit/EditSteps.h>
#include <host/shots/PhotoReading.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>

#include <algorithm>
#include <set>
#include <utility>

namespace Zenvora::Lumidex::Host {

void EditSteps::BeginStep(const QString& name) {
  EndStep();
  journal_.HoldRoom();
  step_ = journal_.Begin(StepType::Edit, name);
}

ioPath EditSteps::InsertChange(const ioPath& file, qlonglong goesWith) {
  journal_.RequireRoom();
  ChangeRow change;
  change.path = file;
  change.staging = StagingName(file);
  change.goesWith = goesWith;
  QSqlQuery query = journal_.Database().Run(
      "INSERT INTO changes (step, state, path, side, goes_with) VALUES (?, ?, ?, ?, ?)",
      {step_, static_cast<int>(State::Planned), PathBytes(change.path), PathBytes(change.staging),
       goesWith == 0 ? QVariant(QVariant::LongLong) : QVariant(goesWith)});
  change.number = query.lastInsertId().toLongLong();
  edits_.push_back(std::move(change));
  return edits_.back().staging;
}

ioPath EditSteps::PlanEdit(const ioPath& photo) {
  edits_.clear();
  return InsertChange(photo, 0);
}

ioPath EditSteps::PlanSidecar(const ioPath& sidecar) {
  return InsertChange(sidecar, edits_.front().number);
}

void EditSteps::RegisterFileChange(DataModel& item, const ioPath& newPath) {
  if (step_ == 0) {
    BeginStep(QStringLiteral("edit"));
  }
  auto planned = std::find_if(edits_.begin(), edits_.end(), [path = item.GetPath()](const ChangeRow& change) {
    return change.path == path;
  });
  if (planned == edits_.end()) {
    PlanEdit(item.GetPath());
    planned = edits_.begin();
    planned->staging.clear();
  }
  ChangeRow& change = *planned;
  if (newPath != change.path) {
    change.state = State::Doing;
    change.adopted = true;
    change.staging = newPath;
    StoreChange(journal_.Database(), change, 0);
    return;
  }
  if (keeps_ && journal_.Kept().Keep(change.path, change.KeptBefore())) {
    // Taking it back makes another copy here, and one in the photo's folder.
    const bool isHere =
        QueryFile(change.path).identity.first == QueryFile(journal_.Folder().Path()).identity.first;
    journal_.Folder().HoldForCopy(QueryFile(change.path).size * (isHere ? 2 : 1));
  }
  change.digestBefore = DigestOf(keeps_ ? journal_.Kept().PathOf(change.KeptBefore()) : change.path);
  if (!change.staging.empty()) {
    change.digestAfter = DigestOf(change.staging);
  }
  change.state = State::Doing;
  StoreChange(journal_.Database(), change, journal_.Kept().PathOf(change.KeptBefore()).file_size());
}

void EditSteps::FinishEdit() {
  if (edits_.empty()) {
    return;
  }
  for (const ChangeRow& edit : edits_) {
    SyncFolderOf(edit.path);
  }
  const auto photo = ReadRecord(edits_.front().path);
  journal_.Finish([this, &photo] {
    WriteTransaction transaction(journal_.Database());
    for (const ChangeRow& edit : edits_) {
      SetChangeState(journal_.Database(), edit.number, State::Done);
    }
    if (photo) {
      UpdatePhotoRow(journal_.Database(), *photo);
    }
    transaction.Commit();
  });
  edits_.clear();
}

void EditSteps::DropEdit() {
  if (!edits_.empty()) {
    // Not on the caller's word: the answer of a server can be lost, and the photo be replaced all the same.
    const std::vector<ChangeRow> group = std::exchange(edits_, {});
    journal_.Finish([this, &group] {
      std::vector<ChangeRow> settled = group;
      SettleGroup(settled);
    });
  }
}

void EditSteps::EndStep() {
  if (step_ == 0) {
    return;
  }
  const qlonglong step = std::exchange(step_, 0);
  edits_.clear();
  journal_.Finish([this, step] { SettleStep(step); });
}

/// Finds out what became of each change of an edit step, and closes the step.
void EditSteps::SettleStep(qlonglong step) {
  std::size_t files = 0;
  bool isKept = false;
  for (std::vector<ChangeRow>& group : GroupChanges(ReadChanges(journal_.Database(), step))) {
    files += SettleGroup(group);
    isKept = isKept || std::any_of(group.begin(), group.end(), [this](const ChangeRow& change) {
               return change.adopted || reversal_.IsKept(change, false);
             });
  }
  if (files == 0) {
    journal_.Drop(step);
    return;
  }
  journal_.Close(step, files, isKept ? State::Done : State::GivenUp);
  journal_.DropUndone();
}

/// Finds out what became of a photo and its sidecars. Returns how many of them are the edited ones.
std::size_t EditSteps::SettleGroup(std::vector<ChangeRow>& group) {
  if (group.size() > 1) {
    BringTogether(group);
  }
  std::size_t files = 0;
  for (ChangeRow& change : group) {
    files += change.state == State::Done || SettleChange(change) ? 1 : 0;
  }
  return files;
}

/// Of an edit that stopped between a photo and its sidecar: the other is replaced, too, or else the first
/// gets its original back. Where neither can be done the notes say so.
void EditSteps::BringTogether(std::vector<ChangeRow>& group) {
  std::vector<const ChangeRow*> replaced;
  std::vector<const ChangeRow*> waiting;
  for (const ChangeRow& change : group) {
    if (change.state != State::Doing) {
      // Nothing is replaced before all of them are written down; what is done needs nothing.
      return;
    }
    try {
      (DigestOf(change.path) == change.digestBefore ? waiting : replaced).push_back(&change);
    } catch (const HostError&) {
      // Its own settling tells.
      return;
    }
  }
  if (replaced.empty() || std::all_of(waiting.begin(), waiting.end(),
                                      [this](const ChangeRow* change) { return FinishReplacing(*change); })) {
    return;
  }
  try {
    for (const ChangeRow& change : group) {
      ReplaceBack(change);
    }
  } catch (const Exception& failure) {
    journal_.Note(group.front().path.utf8string() +
                  " and its sidecar disagree, because only one of them was edited (" + failure.what() + ").");
  }
}

/// False when it could not be done; then the file is as it was.
bool EditSteps::FinishReplacing(const ChangeRow& change) {
  try {
    if (DigestOf(change.staging) != change.digestAfter) {
      return false;
    }
    DataModel item;
    item.SetPath(change.path);
    UndoFileHolder holder(nullptr, locker_, item, change.staging, false);
    holder.Process();
    SyncFolderOf(change.path);
    return true;
  } catch (const Exception&) {
    return false;
  }
}

/// The row stays as it is: until it is dropped, it tells that the original is there.
void EditSteps::ReplaceBack(const ChangeRow& change) {
  if (DigestOf(change.path) != change.digestAfter) {
    return;
  }
  change.staging.remove();
  DataModel item;
  item.SetPath(change.path);
  UndoFileHolder holder(nullptr, locker_, item, change.staging, false);
  journal_.Kept().PutBeside(change.KeptBefore(), change.staging);
  holder.Process();
  SyncFolderOf(change.path);
}

/// True when the photo is the edited one; false when it is not, and then nothing is left of the edit.
bool EditSteps::SettleChange(ChangeRow& change) {
  if (change.state == State::Doing && change.adopted) {
    SetChangeState(journal_.Database(), change.number, State::Done);
    return true;
  }
  if (!change.adopted && !change.staging.empty()) {
    change.staging.remove();
  }
  if (change.state == State::Doing) {
    QByteArray now;
    try {
      now = DigestOf(change.path);
    } catch (const HostError& failure) {
      journal_.Note(
          std::string(failure.what()) + '.' +
          (reversal_.IsKept(change, false)
               ? " Its original is kept as " + journal_.Kept().PathOf(change.KeptBefore()).utf8string() + '.'
               : std::string()));
      SetChangeState(journal_.Database(), change.number, State::Done);
      return true;
    }
    if (now != change.digestBefore) {
      // Also when others have changed it again: the original stays at hand.
      change.digestAfter = change.digestAfter.isEmpty() ? now : change.digestAfter;
      change.state = State::Done;
      const auto photo = ReadRecord(change.path);
      WriteTransaction transaction(journal_.Database());
      StoreChange(journal_.Database(), change, journal_.Kept().PathOf(change.KeptBefore()).file_size());
      if (photo) {
        UpdatePhotoRow(journal_.Database(), *photo);
      }
      transaction.Commit();
      return true;
    }
  }
  DropChange(change);
  return false;
}

void EditSteps::DropChange(const ChangeRow& change) const {
  journal_.Database().Run("DELETE FROM changes WHERE number = ?", {change.number});
  // Only now: a row must never speak of what is gone.
  journal_.Kept().Remove(change.KeptBefore());
  journal_.Kept().Remove(change.KeptAfter());
}

UndoResult EditSteps::Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                              const UndoProgress& progress) {
  return reversal_.Run(step, redo, keepsForRedo_, cancelled, progress);
}

void EditSteps::AddTraces(qlonglong step, StepTraces& traces) const {
  for (const ChangeRow& change : ReadChanges(journal_.Database(), step)) {
    if (change.state == State::Done && !change.adopted) {
      traces.changed.insert(change.path.utf8string());
    }
  }
}

std::optional<FileFinding> EditSteps::WhyHeld(qlonglong step) const {
  if (step == step_) {
    return FileFinding{journal_.Database().File(), "The step is not at its end"};
  }
  for (const ChangeRow& change : ReadChanges(journal_.Database(), step)) {
    if (IsSetAside(change)) {
      return FileFinding{change.path, WhyAway(change, "it was not written whole")};
    }
  }
  return std::nullopt;
}

void EditSteps::GiveUp(qlonglong step) {
  for (const ChangeRow& change : ReadChanges(journal_.Database(), step)) {
    // Of an exchange that was interrupted out of reach. What it was made from is kept.
    if (!change.adopted && !change.staging.empty()) {
      change.staging.remove();
    }
  }
}

std::vector<std::string> EditSteps::KeptNames(qlonglong step) const {
  std::vector<std::string> names;
  for (const ChangeRow& change : ReadChanges(journal_.Database(), step)) {
    names.push_back(change.KeptBefore());
    names.push_back(change.KeptAfter());
  }
  return names;
}

void EditSteps::TidyUp() {
  std::set<std::string> wanted;
  for (const ChangeRow& change : ReadAllChanges(journal_.Database())) {
    if (change.state == State::Undone || IsUnderWay(change.state)) {
      wanted.insert(change.KeptAfter());
    }
    if (change.state != State::Undone) {
      wanted.insert(change.KeptBefore());
    }
  }
  SweepKept(wanted);
}

/// A catalogue that was lost, or put back from a copy, must not take the originals of another with it, nor
/// write over them.
void EditSteps::SweepKept(const std::set<std::string>& wanted) {
  const qlonglong last =
      journal_.Database().Value("SELECT seq FROM sqlite_sequence WHERE name = 'changes'").toLongLong();
  const ioPath aside = journal_.Kept().SetAside(last);
  if (!aside.empty()) {
    journal_.Note("Originals that this catalogue does not know were moved to " + aside.utf8string() + ".");
  }
  journal_.Kept().RemoveOthers(wanted);
}

void EditSteps::Recover(StepRow& step) {
  const std::string name = "\"" + step.name.toStdString() + "\"";
  if (step.state == State::Doing) {
    SettleStep(step.number);
    const auto photos = static_cast<std::size_t>(
        journal_.Database()
            .Value("SELECT count(*) FROM changes WHERE goes_with IS NULL AND step = ?", {step.number})
            .toULongLong());
    journal_.Note(name + " was interrupted. Photos edited: " + std::to_string(photos) +
                  "; the others are unchanged.");
    return;
  }
  const std::atomic<bool> never{false};
  journal_.NoteReversal(step, Reverse(step, step.state == State::Redoing, never, nullptr), true);
}

}  // namespace Zenvora::Lumidex::Host
