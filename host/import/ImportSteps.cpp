#include "ImportManifest.h"

#include <host/base/ContentHash.h>
#include <host/base/FolderEntries.h>
#include <host/base/HostError.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/import/ImportSteps.h>
#include <host/journal/FileMoves.h>
#include <host/shots/ShotNames.h>

#include <zenvora/app/Application.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <algorithm>
#include <exception>
#include <set>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

std::set<ioPath> FoldersOf(const std::vector<ImportedCopy>& copies) {
  std::set<ioPath> folders;
  for (const ImportedCopy& copy : copies) {
    folders.insert(copy.path.parent_path());
  }
  return folders;
}

/// Empty when it cannot be read.
std::string Sha256Of(const ioPath& file, std::error_code& error) {
  return HashFile(file, ContentHash::Kind::Sha256, error).toHex().toStdString();
}

/// By its bytes: a source may be another picture of that size by now.
bool HoldsTheCopy(const ioPath& file, const ImportedCopy& copy) {
  const FileState state = QueryFile(file);
  std::error_code error;
  return state.kind == FileState::Kind::File && state.size == copy.size &&
         Sha256Of(file, error) == copy.sha256;
}

/// A copy that stays where it is.
struct Fault {
  std::string cause;
  /// Another undo may do what this one cannot.
  bool mayPass = false;
};

/// Times are not asked for: a copy whose bytes are the same has not changed.
std::optional<Fault> FindFault(const ImportedCopy& copy) {
  const std::string name = copy.path.utf8string();
  const FileState state = LeadsElsewhere(copy.path) ? FileState() : QueryFile(copy.path);
  if (state.kind == FileState::Kind::Missing) {
    const bool isAway = FindFolderOutOfReach({{copy.path, copy.path}}).has_value();
    return isAway ? Fault{name + " cannot be reached: its disk may not be connected", true}
                  : Fault{name + " no longer exists", false};
  }
  if (state.kind == FileState::Kind::Unknown && state.error) {
    return Fault{name + " cannot be read: " + ErrorText(state.error), true};
  }
  const std::string changed = name + " was changed later and is left as it is";
  if (state.kind != FileState::Kind::File || state.size != copy.size) {
    return Fault{changed, false};
  }
  std::error_code error;
  const std::string digest = Sha256Of(copy.path, error);
  if (error) {
    return Fault{name + " cannot be read: " + ErrorText(error), true};
  }
  return digest == copy.sha256 ? std::nullopt : std::optional(Fault{changed, false});
}

}  // namespace

// --- What was interrupted

bool ImportSteps::IsAtWork(qlonglong step) const {
  const std::set<ioPath> folders = FoldersOf(rows_.Copies(step));
  return std::any_of(folders.begin(), folders.end(), IsImportAtWork);
}

void ImportSteps::RequireIdle(qlonglong step) const {
  for (const ioPath& folder : FoldersOf(rows_.Copies(step))) {
    if (IsImportAtWork(folder)) {
      ThrowHostError(folder.utf8string(),
                     "An import is running in " + folder.utf8string() + ". Try again when it has finished.");
    }
  }
}

std::optional<ioPath> ImportSteps::FindFolderAway(qlonglong step) const {
  std::vector<FileMove> places;
  for (const ImportedCopy& copy : rows_.Copies(step)) {
    places.push_back({copy.path, copy.path});
  }
  const std::optional<ioPath> away = FindFolderOutOfReach(places);
  if (away) {
    return away;
  }
  for (const TrashedFile& file : trash_.Files(step)) {
    if (IsUnderWay(file.state) && trash_.IsOutOfReach(file)) {
      return file.place.file.parent_path();
    }
  }
  return std::nullopt;
}

std::size_t ImportSteps::Settle(qlonglong step) const {
  for (const ImportedCopy& copy : rows_.Copies(step)) {
    const FileState state = QueryFile(copy.path);
    // Of a name that somebody else had before the copy could get it, nothing is ours.
    if (state.kind == FileState::Kind::Missing ||
        (state.kind == FileState::Kind::File &&
         (state.size != copy.size || state.modifiedNs != copy.modifiedNs))) {
      rows_.Drop(step, copy.path);
    }
  }
  return rows_.Close(step);
}

// --- There and back

/// Of moves that stand; the rows of those that were undone, or never came about, go.
std::vector<TrashedFile> ImportSteps::InTrash(qlonglong step) const {
  std::vector<TrashedFile> there;
  for (TrashedFile& file : trash_.Files(step)) {
    if (file.state == State::Undone) {
      QSqlQuery query = database_.Prepare("DELETE FROM trashed WHERE number = ?");
      query.addBindValue(file.number);
      database_.Run(query);
    } else if (file.state != State::Doing || trash_.Settle(file)) {
      there.push_back(std::move(file));
    }
  }
  return there;
}

State ImportSteps::TakeBack(qlonglong step, const std::atomic<bool>& cancelled, const UndoProgress& progress,
                            UndoResult& result) const {
  std::unordered_set<ioPath> gone;
  for (const TrashedFile& file : InTrash(step)) {
    gone.insert(file.file.path);
  }
  std::vector<ImportedCopy> copies = rows_.Copies(step);
  // What stays beside a photo is known when the photos have gone.
  std::stable_partition(copies.begin(), copies.end(), [](const ImportedCopy& copy) {
    return !IsAttachedName(copy.path.filename().utf8string());
  });
  std::unordered_set<std::string> staying;
  bool anyHope = false;
  std::size_t looked = 0;
  for (const ImportedCopy& copy : copies) {
    if (cancelled) {
      result.cancelled = true;
      anyHope = true;
      break;
    }
    const bool isAttached = IsAttachedName(copy.path.filename().utf8string());
    const auto stays = [&](const std::string& cause, bool mayPass) {
      result.findings.push_back({copy.path, cause});
      anyHope = anyHope || mayPass;
      if (!isAttached && QueryFile(copy.path).kind != FileState::Kind::Missing) {
        staying.insert(ShotKey(copy.path));
      }
    };
    if (gone.count(copy.path) > 0) {
      // Since an undo that was interrupted.
    } else if (isAttached && staying.count(ShotKey(copy.path)) > 0) {
      stays(copy.path.utf8string() + " was kept, because its photo was kept", false);
    } else if (const std::optional<Fault> fault = FindFault(copy)) {
      stays(fault->cause, fault->mayPass);
    } else {
      try {
        const FileState state = QueryFile(copy.path);
        trash_.Move(step, {copy.path, state.size, state.modifiedNs}, copy.source);
        gone.insert(copy.path);
        ++result.files;
        result.lastCopies += HoldsTheCopy(copy.source, copy) ? 0 : 1;
      } catch (const std::exception& failure) {
        stays(failure.what(), true);
      }
    }
    if (progress) {
      progress(++looked, copies.size());
    }
  }
  // What others changed since is theirs now, and no reason for older steps to wait.
  return anyHope ? State::Done : gone.empty() ? State::GivenUp : State::Undone;
}

State ImportSteps::DoAgain(qlonglong step, const std::atomic<bool>& cancelled, const UndoProgress& progress,
                           UndoResult& result) const {
  std::vector<TrashedFile> files = trash_.Files(step);
  bool anyBack = false;
  bool anyHope = false;
  std::size_t looked = 0;
  for (TrashedFile& file : files) {
    if (cancelled) {
      result.cancelled = true;
      anyHope = true;
      break;
    }
    bool isHopeless = false;
    try {
      if (file.state != State::Undone) {
        trash_.TakeBack(file, isHopeless);
        ++result.files;
      }
      anyBack = true;
    } catch (const std::exception& failure) {
      result.findings.push_back({file.file.path, failure.what()});
      anyHope = anyHope || !isHopeless;
    }
    if (progress) {
      progress(++looked, files.size());
    }
  }
  return anyBack ? State::Done : anyHope ? State::Undone : State::GivenUp;
}

UndoResult ImportSteps::Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                                const UndoProgress& progress) {
  UndoResult result;
  result.name = step.name;
  RequireIdle(step.number);
  journal_.SetState(step.number, redo ? State::Redoing : State::Undoing);
  const State state = redo ? DoAgain(step.number, cancelled, progress, result)
                           : TakeBack(step.number, cancelled, progress, result);
  journal_.EndReversal(step.number, state, result);
  result.stands = !redo && state == State::Done;
  return result;
}

void ImportSteps::Recover(StepRow& step) {
  if (IsAtWork(step.number)) {
    return;
  }
  const std::string name = "\"" + step.name.toStdString() + "\"";
  if (const std::optional<ioPath> away = FindFolderAway(step.number)) {
    journal_.Note(name + " was interrupted and will be finished once " + away->utf8string() +
                  " can be reached.");
    return;
  }
  if (step.state == State::Doing) {
    const std::size_t files = Settle(step.number);
    journal_.Note(name + " was interrupted. Copies made: " + std::to_string(files) +
                  "; run the same import to copy the rest.");
    return;
  }
  const std::atomic<bool> never{false};
  journal_.NoteReversal(step, Reverse(step, step.state == State::Redoing, never, nullptr), false);
}

void ImportSteps::AddTraces(qlonglong step, StepTraces& traces) const {
  for (const ImportedCopy& copy : rows_.Copies(step)) {
    traces.made.insert(copy.path.utf8string());
  }
  for (const TrashedFile& file : trash_.Files(step)) {
    if (file.state == State::Done) {
      traces.gone.insert(file.file.path.utf8string());
    }
  }
}

}  // namespace Zenvora::Lumidex::Host
