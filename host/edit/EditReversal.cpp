#include "SameRoom.h"

#include <LumidexUtil/UndoFileHolder.h>
#include <host/base/HostError.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/edit/EditReversal.h>
#include <host/journal/KeptFiles.h>
#include <host/shots/PhotoReading.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>

#include <algorithm>

namespace Zenvora::Lumidex::Host {

namespace {

/// All that stays because of one file, each with its cause.
void TellOfGroup(const std::vector<ChangeRow>& group, State goal, const FileFinding& obstacle,
                 UndoResult& result) {
  for (const ChangeRow& change : group) {
    if (change.path == obstacle.file) {
      result.findings.push_back(obstacle);
    } else if (change.state != goal) {
      result.findings.push_back({change.path, change.path.utf8string() +
                                                  " is left as it is, because it belongs to " +
                                                  obstacle.file.utf8string()});
    }
  }
}

}  // namespace

/// Of a photo that has the name of its staging file and could not get its own back.
std::string WhyAway(const ChangeRow& change, const std::string& cause) {
  return change.path.utf8string() + " is missing for now, but its versions are kept (" + cause +
         "). Free space on its disk and run \"lumidex undo\" again";
}

/// Puts the version that is kept in the photo's place and keeps the one that was there.
void EditReversal::Exchange(ChangeRow& change, bool redo) {
  const std::string incoming = redo ? change.KeptAfter() : change.KeptBefore();
  const std::string outgoing = redo ? change.KeptBefore() : change.KeptAfter();
  if (!change.staging.empty()) {
    change.staging.remove();
  }
  change.staging = StagingName(change.path);
  change.state = redo ? State::Redoing : State::Undoing;
  StoreChange(journal_.Database(), change, journal_.Kept().PathOf(incoming).file_size());
  if (redo || keepsForRedo_) {
    try {
      journal_.Kept().Keep(change.path, outgoing);
    } catch (const NoRoomError&) {
      lacksRoomForRedo_ = true;
      throw;
    }
  }
  try {
    journal_.Kept().PutBeside(incoming, change.staging);
  } catch (const NoRoomError&) {
    ExchangeInItsRoom(change, redo);
    return;
  }
  DataModel item;
  item.SetPath(change.path);
  UndoFileHolder holder(nullptr, locker_, item, change.staging, false);
  if (DigestOf(change.staging) != (redo ? change.digestAfter : change.digestBefore)) {
    ThrowHostError(change.path.utf8string(),
                   change.path.utf8string() + " is left as it is: another program changed " +
                       journal_.Kept().PathOf(incoming).utf8string() + ", where its other version was kept");
  }
  holder.Process();
  SyncFolderOf(change.path);
}

void EditReversal::ExchangeInItsRoom(const ChangeRow& change, bool redo) {
  try {
    ReplaceInItsRoom(locker_, journal_.Kept(), change, redo);
  } catch (const NoRoomError&) {
    const ioPath incoming = journal_.Kept().PathOf(redo ? change.KeptAfter() : change.KeptBefore());
    ThrowHostError(change.path.utf8string(),
                   change.path.utf8string() +
                       " is left as it is: its disk has no room for its other version (" +
                       std::to_string(incoming.file_size()) + " bytes). Free space there and try again");
  }
}

void EditReversal::FinishReversal(ChangeRow& change, bool redo) {
  const std::string incoming = redo ? change.KeptAfter() : change.KeptBefore();
  const std::string outgoing = redo ? change.KeptBefore() : change.KeptAfter();
  change.state = redo ? State::Done : State::Undone;
  const auto photo = change.adopted ? std::nullopt : ReadRecord(change.path);
  WriteTransaction transaction(journal_.Database());
  if (change.adopted) {
    PhotoPathUpdate(journal_.Database())
        .Move(redo ? change.path : change.staging, redo ? change.staging : change.path);
    SetChangeState(journal_.Database(), change.number, change.state);
  } else {
    change.staging.clear();
    StoreChange(journal_.Database(), change, journal_.Kept().PathOf(outgoing).file_size());
    if (photo) {
      UpdatePhotoRow(journal_.Database(), *photo);
    }
  }
  transaction.Commit();
  if (!change.adopted) {
    journal_.Kept().Remove(incoming);
  }
}

bool EditReversal::IsKept(const ChangeRow& change, bool redo) const {
  return QueryFile(journal_.Kept().PathOf(redo ? change.KeptAfter() : change.KeptBefore())).kind !=
         FileState::Kind::Missing;
}

/// By what the file is now; empty: it can be.
std::string EditReversal::WhyNotPutBack(const ChangeRow& change, const QByteArray& now, bool redo) const {
  if (now != (redo ? change.digestBefore : change.digestAfter)) {
    return change.path.utf8string() + " was changed later and is left as it is";
  }
  if (!IsKept(change, redo)) {
    return change.path.utf8string() + " is left as it is: its other version is no longer kept";
  }
  return {};
}

/// A photo and its sidecars go back together, or all stay.
std::optional<FileFinding> EditReversal::FindObstacle(const std::vector<ChangeRow>& group, bool redo) const {
  const State goal = redo ? State::Done : State::Undone;
  for (const ChangeRow& change : group) {
    if (change.state == goal || change.adopted) {
      continue;
    }
    try {
      const QByteArray now = DigestOf(change.path);
      const std::string cause = now == (redo ? change.digestAfter : change.digestBefore)
                                    ? std::string()
                                    : WhyNotPutBack(change, now, redo);
      if (!cause.empty()) {
        return FileFinding{change.path, cause};
      }
    } catch (const Exception& failure) {
      return FileFinding{change.path, failure.what()};
    }
  }
  return std::nullopt;
}

/// Nothing has changed when it throws. Nothing is left of the attempt either, except while nobody can tell
/// which version the photo is: then both stay.
void EditReversal::PutBack(ChangeRow& change, bool redo) {
  const QByteArray& wanted = redo ? change.digestAfter : change.digestBefore;
  const QByteArray& current = redo ? change.digestBefore : change.digestAfter;
  const QByteArray now = DigestOf(change.path);
  if (now == wanted && (IsUnderWay(change.state) || now != current)) {
    // Broken off after the exchange, or others were faster: only the last notes are missing.
    if (!change.staging.empty()) {
      change.staging.remove();
    }
    return;
  }
  if (const std::string cause = WhyNotPutBack(change, now, redo); !cause.empty()) {
    ThrowHostError(change.path.utf8string(), cause);
  }
  try {
    Exchange(change, redo);
  } catch (const Exception& failure) {
    if (IsSetAside(change)) {
      ThrowHostError(change.path.utf8string(), WhyAway(change, failure.what()));
    }
    const QByteArray then = DigestOf(change.path);
    if (then == wanted) {
      return;
    }
    if (then == current) {
      journal_.Kept().Remove(redo ? change.KeptBefore() : change.KeptAfter());
      if (!change.staging.empty()) {
        change.staging.remove();
      }
      SetChangeState(journal_.Database(), change.number, redo ? State::Undone : State::Done);
    }
    throw;
  }
}

/// Photos that are not under their names go back there first. False when one cannot; then there is a finding.
bool EditReversal::BringBackAll(const std::vector<ChangeRow>& group, bool redo, UndoResult& result) {
  bool areAllBack = true;
  for (const ChangeRow& change : group) {
    if (IsSetAside(change)) {
      try {
        BringBack(locker_, journal_.Kept(), change, redo);
      } catch (const Exception& failure) {
        result.findings.push_back({change.path, WhyAway(change, failure.what())});
        areAllBack = false;
      }
    }
  }
  return areAllBack;
}

/// Of a step of which something could not be undone or redone.
State EditReversal::StateInPart(qlonglong step, bool anyHope) const {
  if (!anyHope) {
    // Else no older step could ever be undone.
    return State::GivenUp;
  }
  const std::vector<ChangeRow> changes = ReadChanges(journal_.Database(), step);
  // What was undone goes with the next step: only where no photo needs its original.
  const bool allUndone = std::all_of(changes.begin(), changes.end(),
                                     [](const ChangeRow& change) { return change.state == State::Undone; });
  return allUndone ? State::Undone : State::Done;
}

/// False when the file stays; then there is a finding.
bool EditReversal::ReverseOne(ChangeRow& change, bool redo, UndoResult& result, bool& isNoted) {
  try {
    if (!change.adopted) {
      PutBack(change, redo);
    }
  } catch (const Exception& failure) {
    result.findings.push_back({change.path, failure.what()});
    return false;
  }
  ++result.files;
  try {
    FinishReversal(change, redo);
  } catch (const HostError& failure) {
    isNoted = false;
    result.findings.push_back({change.path, std::string(failure.what()) + kNotedLater});
  }
  return true;
}

UndoResult EditReversal::Run(const StepRow& step, bool redo, bool keepsForRedo,
                             const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  UndoResult result;
  result.name = step.name;
  const State goal = redo ? State::Done : State::Undone;
  journal_.SetState(step.number, redo ? State::Redoing : State::Undoing);
  std::vector<std::vector<ChangeRow>> groups = GroupChanges(ReadChanges(journal_.Database(), step.number));
  if (!redo) {
    // A photo that was changed twice goes back step by step.
    std::reverse(groups.begin(), groups.end());
  }
  std::size_t looked = 0;
  bool anyLeft = false;
  bool anyHope = false;
  bool isNoted = true;
  lacksRoomForRedo_ = false;
  keepsForRedo_ = keepsForRedo;
  for (std::vector<ChangeRow>& group : groups) {
    const auto isKept = [this, redo](const ChangeRow& change) { return IsKept(change, redo); };
    const bool isPending = std::any_of(group.begin(), group.end(),
                                       [goal](const ChangeRow& change) { return change.state != goal; });
    if (isPending && cancelled) {
      result.cancelled = true;
      anyLeft = true;
      anyHope = true;
      break;
    }
    if (isPending && !BringBackAll(group, redo, result)) {
      anyLeft = true;
      anyHope = true;
      continue;
    }
    const auto obstacle = isPending && group.size() > 1 ? FindObstacle(group, redo) : std::nullopt;
    if (obstacle) {
      TellOfGroup(group, goal, *obstacle, result);
      anyLeft = true;
      anyHope = anyHope || std::any_of(group.begin(), group.end(), isKept);
    }
    for (ChangeRow& change : group) {
      if (isNoted && !obstacle && change.state != goal && !ReverseOne(change, redo, result, isNoted)) {
        anyLeft = true;
        anyHope = anyHope || isKept(change);
      }
    }
    if (!isNoted) {
      anyLeft = true;
      anyHope = true;
      break;
    }
    if (progress) {
      progress(++looked, groups.size());
    }
  }
  const State state = anyLeft ? StateInPart(step.number, anyHope) : goal;
  try {
    if (state == State::Undone && !keepsForRedo_) {
      // Neither can it be redone.
      journal_.Drop(step.number);
    } else {
      journal_.SetState(step.number, state);
    }
  } catch (const HostError& failure) {
    result.findings.push_back({journal_.Database().File(), std::string(failure.what()) + kNotedLater});
  }
  result.stands = !redo && state == State::Done;
  result.lacksRoomForRedo = lacksRoomForRedo_;
  return result;
}

}  // namespace Zenvora::Lumidex::Host
