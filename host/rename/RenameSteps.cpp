#include <host/base/HostError.h>
#include <host/base/LinkSearch.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/journal/LinkSteps.h>
#include <host/rename/RenameLinks.h>
#include <host/rename/RenameSteps.h>
#include <host/scan/FileVerdicts.h>

#include <zenvora/core/NewFile.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>

namespace Zenvora::Lumidex::Host {

namespace {

/// False when one cannot be pointed there; then there is a finding.
bool TryToPoint(const std::vector<LinkChange>& links, bool toNew, UndoResult& result) {
  try {
    PointLinks(links, toNew);
    return true;
  } catch (const HostError& failure) {
    result.findings.push_back(FindingOf(failure));
    return false;
  }
}

}  // namespace

RenameSteps::Drive RenameSteps::DriveMoves(const std::vector<FileMove>& moves, std::size_t at,
                                           std::size_t goal, const std::atomic<bool>& cancelled,
                                           const UndoProgress& progress) {
  Drive drive;
  drive.at = at;
  const std::size_t total = at < goal ? goal - at : at - goal;
  while (drive.at != goal) {
    if (cancelled) {
      drive.cancelled = true;
      break;
    }
    const bool forward = drive.at < goal;
    const FileMove& move = moves[forward ? drive.at : drive.at - 1];
    const ioPath& from = forward ? move.from : move.to;
    try {
      MoveFile(locker_, from, forward ? move.to : move.from);
    } catch (const Exception& failure) {
      drive.failure = FileFinding{from, failure.what()};
      break;
    }
    drive.at += forward ? 1 : std::size_t(-1);
    if (progress) {
      progress(total - (forward ? goal - drive.at : drive.at - goal), total);
    }
  }
  return drive;
}

/// Writes down that the first `at` moves stand, and that nobody works on them any more.
void RenameSteps::Settle(Batch& batch, std::size_t at) {
  SyncFoldersOf(batch.moves);
  const bool wasDone = batch.state == State::Done || batch.state == State::Undoing;
  WriteTransaction transaction(journal_.Database());
  {
    PhotoPathUpdate paths(journal_.Database());
    for (std::size_t i = wasDone ? batch.moves.size() : 0; i != at;) {
      if (i < at) {
        paths.Move(batch.moves[i].from, batch.moves[i].to);
        ++i;
      } else {
        --i;
        paths.Move(batch.moves[i].to, batch.moves[i].from);
      }
    }
  }
  if (at == 0 && batch.state == State::Doing) {
    journal_.Drop(batch.step);
  } else if (at == 0) {
    journal_.SetState(batch.step, State::Undone);
  } else {
    if (at < batch.moves.size()) {
      batch.moves.resize(at);
      journal_.SetMoves(batch.step, PackMoves(batch.moves));
      journal_.SetFiles(batch.step, at);
    }
    journal_.SetState(batch.step, State::Done);
  }
  transaction.Commit();
  if (at > 0 && batch.state == State::Doing) {
    journal_.DropUndone();
  }
}

UndoResult RenameSteps::Run(const QString& name, const RenamePlan& plan, const std::atomic<bool>& cancelled,
                            const UndoProgress& progress) {
  UndoResult result;
  result.name = name;
  if (plan.steps.empty()) {
    return result;
  }
  Batch batch;
  batch.moves = IdentifyMoves(plan.steps);
  // Twice its moves, and the pages with its photos: all is one transaction.
  constexpr std::uint64_t kBytesEach = 8192;
  journal_.HoldRoom(
      std::min<std::uint64_t>(kBytesEach * batch.moves.size(), 3 * journal_.Database().File().file_size()));
  {
    WriteTransaction transaction(journal_.Database());
    batch.step = journal_.Begin(StepType::Rename, name, plan.renames.size(), PackMoves(batch.moves));
    links_.Insert(batch.step, plan.links);
    transaction.Commit();
  }
  const std::vector<LinkChange> links = links_.Links(batch.step);
  try {
    PrepareLinks(links);
  } catch (const HostError& failure) {
    ClearLinks(links);
    journal_.Drop(batch.step);
    result.findings.push_back(FindingOf(failure));
    return result;
  }
  const std::size_t reached = DriveOrReturn(batch, 0, batch.moves.size(), cancelled, progress, result);
  result.files = reached == batch.moves.size() ? plan.renames.size() : reached;
  return result;
}

/// All moves or none: what stops on its way to `goal` goes back to `begin`. Returns where it stands.
std::size_t RenameSteps::DriveOrReturn(Batch& batch, std::size_t begin, std::size_t goal,
                                       const std::atomic<bool>& cancelled, const UndoProgress& progress,
                                       UndoResult& result) {
  // Links lead to the new names while the files have them: they are the last to change, and the first back.
  const std::vector<LinkChange> links = links_.Links(batch.step);
  const bool forward = begin < goal;
  Drive drive;
  drive.at = begin;
  if (forward || TryToPoint(links, false, result)) {
    drive = DriveMoves(batch.moves, begin, goal, cancelled, progress);
  }
  result.cancelled = drive.cancelled;
  if (drive.failure) {
    result.findings.push_back(*drive.failure);
  }
  if (drive.at != goal || (forward && !TryToPoint(links, true, result))) {
    const std::atomic<bool> never{false};
    TryToPoint(links, false, result);
    drive = DriveMoves(batch.moves, drive.at, begin, never, nullptr);
    if (drive.failure) {
      result.findings.push_back(*drive.failure);
    } else if (!forward) {
      TryToPoint(links, true, result);
    }
  }
  try {
    journal_.Finish([this, &batch, &drive] {
      Batch settled = batch;
      Settle(settled, drive.at);
    });
  } catch (const HostError& failure) {
    result.findings.push_back({journal_.Database().File(), std::string(failure.what()) + kNotedLater});
  }
  return drive.at;
}

/// Which links lead to files of the step right before its renames are undone or redone: beside the
/// files, below their folders, and where the step knew some.
std::vector<RenameLink> RenameSteps::FindLinksAgain(qlonglong step,
                                                    const std::vector<RenameMove>& renames) const {
  std::set<ioPath> beside;
  for (const LinkChange& link : links_.Links(step)) {
    beside.insert(link.link.parent_path());
  }
  std::set<ioPath> folders;
  for (const RenameMove& rename : renames) {
    folders.insert(rename.from.parent_path());
  }
  return PlanLinks(FindLinks({beside.begin(), beside.end()}, {folders.begin(), folders.end()}), renames);
}

UndoResult RenameSteps::Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                                const UndoProgress& progress) {
  Batch batch{step.number, redo ? State::Redoing : State::Undoing, UnpackMoves(step.moves)};
  const std::size_t all = batch.moves.size();
  const std::size_t begin = redo ? 0 : all;
  const std::size_t goal = redo ? all : 0;
  UndoResult result;
  result.name = step.name;
  IdentifyAgain(batch.moves, !redo);
  // Others may have made links since, or pointed those to what a photo was called meanwhile.
  const std::vector<RenameLink> links = FindLinksAgain(step.number, NetRenames(batch.moves, !redo));
  {
    WriteTransaction transaction(journal_.Database());
    journal_.SetMoves(batch.step, PackMoves(batch.moves));
    links_.Renew(step.number, links, redo);
    journal_.SetState(batch.step, batch.state);
    transaction.Commit();
  }
  const std::size_t reached = DriveOrReturn(batch, begin, goal, cancelled, progress, result);
  // Of names that are exchanged one moves twice.
  result.files = reached == goal ? NetRenames(batch.moves, false).size()
                                 : (reached > begin ? reached - begin : begin - reached);
  result.stands = !redo && reached > 0;
  return result;
}

void RenameSteps::AddTraces(qlonglong step, StepTraces& traces) const {
  for (const FileMove& move : UnpackMoves(journal_.Moves(step))) {
    traces.gone.insert(move.from.utf8string());
    traces.taken.insert(move.to.utf8string());
  }
}

void RenameSteps::Recover(StepRow& step) {
  Batch batch{step.number, step.state, UnpackMoves(step.moves)};
  const std::string name = "\"" + step.name.toStdString() + "\"";
  if (const std::optional<ioPath> away = FindFolderOutOfReach(batch.moves)) {
    // How far it was can only be seen there.
    journal_.Note(name + " was interrupted and will be finished once " + away->utf8string() +
                  " can be reached.");
    return;
  }
  const std::atomic<bool> never{false};
  const std::size_t all = batch.moves.size();
  const bool backwards = step.state == State::Undoing;
  const std::size_t found = CountDone(batch.moves, backwards);
  const std::size_t goal = backwards ? 0 : all;
  const std::vector<LinkChange> links = links_.Links(step.number);
  UndoResult ofLinks;
  Drive drive;
  drive.at = found;
  if (!backwards || TryToPoint(links, false, ofLinks)) {
    drive = DriveMoves(batch.moves, found, goal, never, nullptr);
  }
  std::string note;
  if (drive.at == goal && (backwards || TryToPoint(links, true, ofLinks))) {
    note = (backwards ? "Interrupted undo of " : "Interrupted step ") + name + " is now complete.";
  } else {
    note = name + " was interrupted and cannot be finished (" +
           (drive.failure ? drive.failure->cause : ofLinks.findings.front().cause) + ")";
    TryToPoint(links, false, ofLinks);
    drive = DriveMoves(batch.moves, drive.at, all - goal, never, nullptr);
    if (!drive.failure && backwards) {
      TryToPoint(links, true, ofLinks);
    }
    note += drive.failure ? ", nor undone (" + drive.failure->cause + ")."
                          : "; the files have their former names.";
  }
  Settle(batch, drive.at);
  journal_.Note(note);
  for (const FileFinding& finding : ofLinks.findings) {
    journal_.Note(finding.cause + '.');
  }
}

std::vector<FileFinding> FindRenameFaults(const RenamePlan& plan) {
  std::vector<FileFinding> faults;
  for (const RenameMove& move : plan.renames) {
    if (FileVerdict verdict = JudgeRename(move.from); verdict.IsRefused()) {
      faults.push_back({move.from, std::move(verdict.text)});
    }
  }
  return faults;
}

}  // namespace Zenvora::Lumidex::Host
