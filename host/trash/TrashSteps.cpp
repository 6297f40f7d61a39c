#include "TrashFaults.h"

#include <host/base/HostError.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/scan/FileVerdicts.h>
#include <host/shots/ShotNames.h>
#include <host/trash/TrashSteps.h>

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <exception>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// Of a step after files of it were moved back or again.
State StateOfTrash(const std::vector<TrashedFile>& files, State goal, bool anyHope) {
  const auto areAll = [&files](State state) {
    return std::all_of(files.begin(), files.end(),
                       [state](const TrashedFile& file) { return file.state == state; });
  };
  if (areAll(goal)) {
    return goal;
  }
  if (areAll(State::Undone)) {
    return State::Undone;
  }
  // What is gone for good must not keep older steps from being undone.
  return anyHope ? State::Done : State::GivenUp;
}

/// Settings whose photo was to go with them and stays.
bool BelongsToWhatStays(const ioPath& file, const std::vector<FileFinding>& findings) {
  return IsAttachedName(file.filename().utf8string()) &&
         std::any_of(findings.begin(), findings.end(), [shot = ShotKey(file)](const FileFinding& finding) {
           return ShotKey(finding.file) == shot;
         });
}

/// What a step that is done again must look for once more: links may have been made since.
class Links {
 public:
  explicit Links(const std::vector<TrashedFile>& files) {
    std::set<ioPath> folders;
    for (const TrashedFile& file : files) {
      folders.insert(file.file.path.parent_path());
      folders.insert(file.kept.parent_path());
      if (const FileState kept = QueryFile(file.kept); kept.kind == FileState::Kind::File) {
        kept_.insert(kept.identity);
      }
    }
    linked_.emplace(std::move(folders));
  }

  /// Why the file stays, as the plan of the first run would say; empty: nothing is in the way.
  std::string FindFault(const ioPath& file) {
    const FileState state = QueryFile(file);
    if (state.kind != FileState::Kind::File) {
      return {};
    }
    return kept_.count(state.identity) > 0 ? Stays(file, "it is another name of a file that is kept")
                                           : linked_->Judge(file, state).text;
  }

 private:
  std::set<FileIdentity> kept_;
  std::optional<LinkedFiles> linked_;
};

}  // namespace

/// False when the file stays; then there is a finding.
bool TrashSteps::MoveOne(qlonglong step, const SeenFile& file, const ioPath& kept,
                         TrashResult& result) const {
  try {
    result.moved.push_back({file.path, trash_.Move(step, file, kept)});
    ++result.files;
    return true;
  } catch (const std::exception& failure) {
    result.findings.push_back({file.path, failure.what()});
    return false;
  }
}

TrashResult TrashSteps::Run(const QString& name, const std::vector<TrashPhoto>& photos,
                            const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  TrashResult result;
  result.name = name;
  journal_.HoldRoom();
  const qlonglong step = journal_.Begin(StepType::Trash, name);
  std::size_t looked = 0;
  for (const TrashPhoto& photo : photos) {
    if (cancelled) {
      result.cancelled = true;
      break;
    }
    const std::string fault = FindTrashFault(photo);
    if (!fault.empty()) {
      result.findings.push_back({photo.photo.path, fault});
    } else if (MoveOne(step, photo.photo, photo.kept.path, result)) {
      ++result.photos;
      for (const AttachedFile& file : photo.attached) {
        const std::string attachedFault = FindTrashFault(file);
        if (!attachedFault.empty()) {
          result.findings.push_back({file.path, attachedFault});
        } else {
          MoveOne(step, file, photo.kept.path, result);
        }
      }
    }
    if (progress) {
      progress(++looked, photos.size());
    }
  }
  try {
    journal_.Finish([this, step] { Settle(step); });
  } catch (const HostError& failure) {
    result.findings.push_back({journal_.Database().File(), std::string(failure.what()) + kNotedLater});
  }
  return result;
}

/// Closes a step in which files were moved for the first time. Returns how many went.
std::size_t TrashSteps::Settle(qlonglong step) {
  std::size_t files = 0;
  for (TrashedFile& file : trash_.Files(step)) {
    files += file.state == State::Done || trash_.Settle(file) ? 1 : 0;
  }
  if (files == 0) {
    journal_.Drop(step);
    return 0;
  }
  journal_.Close(step, files);
  journal_.DropUndone();
  return files;
}

UndoResult TrashSteps::Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                               const UndoProgress& progress) {
  UndoResult result;
  result.name = step.name;
  const State goal = redo ? State::Done : State::Undone;
  journal_.SetState(step.number, redo ? State::Redoing : State::Undoing);
  std::vector<TrashedFile> files = trash_.Files(step.number);
  if (!redo) {
    std::reverse(files.begin(), files.end());
  }
  std::optional<Links> links = redo ? std::make_optional<Links>(files) : std::nullopt;
  std::size_t looked = 0;
  bool anyHope = false;
  for (TrashedFile& file : files) {
    if (file.state != goal) {
      if (cancelled) {
        result.cancelled = true;
        anyHope = true;
        break;
      }
      const bool isAtHome = redo && file.state == State::Undone;
      std::string fault = !isAtHome ? std::string()
                          : BelongsToWhatStays(file.file.path, result.findings)
                              ? file.file.path.utf8string() + " was kept, because its photo was kept"
                              : links->FindFault(file.file.path);
      if (!fault.empty()) {
        result.findings.push_back({file.file.path, std::move(fault)});
        anyHope = true;
        continue;
      }
      bool isHopeless = false;
      try {
        redo ? trash_.MoveAgain(file) : trash_.TakeBack(file, isHopeless);
        ++result.files;
      } catch (const std::exception& failure) {
        result.findings.push_back({file.file.path, failure.what()});
        anyHope = anyHope || !isHopeless;
      }
    }
    if (progress) {
      progress(++looked, files.size());
    }
  }
  journal_.EndReversal(step.number, StateOfTrash(files, goal, anyHope), result);
  result.stands = !redo && anyHope;
  return result;
}

void TrashSteps::Recover(StepRow& step) {
  const std::string name = "\"" + step.name.toStdString() + "\"";
  for (const TrashedFile& file : trash_.Files(step.number)) {
    if (IsUnderWay(file.state) && trash_.IsOutOfReach(file)) {
      journal_.Note(name + " was interrupted and will be finished once " +
                    file.place.file.parent_path().utf8string() + " can be reached.");
      return;
    }
  }
  if (step.state == State::Doing) {
    const std::size_t done = Settle(step.number);
    journal_.Note(name + " was interrupted. Files moved: " + std::to_string(done) +
                  "; the others are where they were.");
    return;
  }
  const std::atomic<bool> never{false};
  journal_.NoteReversal(step, Reverse(step, step.state == State::Redoing, never, nullptr), false);
}

void TrashSteps::AddTraces(qlonglong step, StepTraces& traces) const {
  for (const TrashedFile& file : trash_.Files(step)) {
    if (file.state == State::Done) {
      traces.gone.insert(file.file.path.utf8string());
    }
  }
}

}  // namespace Zenvora::Lumidex::Host
