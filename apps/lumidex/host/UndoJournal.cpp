#include "AlbumSteps.h"
#include "BlockedSteps.h"
#include "CatalogueDatabase.h"
#include "CatalogueRows.h"
#include "CatalogueSchema.h"
#include "DaysOfUse.h"
#include "EditChanges.h"
#include "FileMoves.h"
#include "ImportSteps.h"
#include "JournalFolder.h"
#include "KeptFiles.h"
#include "LinkSteps.h"
#include "SameRoom.h"
#include "StepState.h"
#include "TagSteps.h"
#include "TrashSteps.h"
#include "UndoSteps.h"

#include <LumidexUtil/UndoFileHolder.h>
#include <host/Catalogue.h>
#include <host/PhotoReading.h>
#include <host/ShotNames.h>
#include <host/UndoJournal.h>

#include <zenvora/app/Application.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>

#include <boost/exception/get_error_info.hpp>

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

struct StepRow {
  qlonglong number = 0;
  QString name;
  State state = State::Doing;
  StepKind kind = StepKind::Unknown;
  std::vector<FileMove> moves;
};

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
  // What is gone for good must not keep older steps from being taken back.
  return anyHope ? State::Done : State::GivenUp;
}

/// Settings whose photo was to go with them and stays.
bool BelongsToWhatStays(const ioPath& file, const std::vector<UndoFinding>& findings) {
  return IsAppendixName(file.filename().utf8string()) &&
         std::any_of(findings.begin(), findings.end(), [shot = ShotKey(file)](const UndoFinding& finding) {
           return ShotKey(finding.file) == shot;
         });
}

/// All that stays because of one file, each with its cause.
void TellOfGroup(const std::vector<ChangeRow>& group, State goal, const UndoFinding& obstacle,
                 UndoResult& result) {
  for (const ChangeRow& change : group) {
    if (change.path == obstacle.file) {
      result.findings.push_back(obstacle);
    } else if (change.state != goal) {
      result.findings.push_back(
          {change.path,
           change.path.utf8string() + " is left as it is, too: it goes with " + obstacle.file.utf8string()});
    }
  }
}

UndoFinding FindingOf(const HostError& failure) {
  const std::string* const file = boost::get_error_info<TagFilename>(failure);
  return {file != nullptr ? ioPath(*file) : ioPath(), failure.what()};
}

/// Photos with their sidecars, of which all or none is to be changed.
std::vector<std::vector<ChangeRow>> GroupChanges(std::vector<ChangeRow> changes) {
  std::vector<std::vector<ChangeRow>> groups;
  for (ChangeRow& change : changes) {
    const bool joins =
        change.goesWith != 0 && !groups.empty() && groups.back().front().number == change.goesWith;
    if (!joins) {
      groups.emplace_back();
    }
    groups.back().push_back(std::move(change));
  }
  return groups;
}

/// What the photo's file says, for the catalogue.
std::optional<PhotoRecord> Read(const ioPath& photo) {
  PhotoRecord record;
  ScanFinding ignored;
  return ReadPhoto(photo, record, ignored) ? std::make_optional(record) : std::nullopt;
}

/// Of a photo that has the name of its staging file and could not get its own back.
std::string WhyAway(const ChangeRow& change, const std::string& cause) {
  return change.path.utf8string() + " is not in its place for now, its versions are kept (" + cause +
         "). Make room on its disk and run \"lumidex undo\" again";
}

/// What became of a step whose reversal is finished by the next run.
std::string NoteOfReversal(const std::string& name, bool redo, const UndoResult& result) {
  const std::size_t left = result.findings.size();
  const std::string note =
      name + " had been broken off while it was " + (redo ? "done again" : "taken back") + "; now it is";
  if (left == 0) {
    return note + '.';
  }
  return note + ", but for " + std::to_string(left) + (left == 1 ? " file:" : " files:");
}

/// Behind the sentence that tells why something could not be written down.
const char* const kNotedLater = " What was done stays, and the next run writes it down.";

}  // namespace

class UndoJournal::Impl {
 public:
  Impl(const ioPath& catalogue, IFileAccessLocker& locker, const Tavolin::ITrash& trash);
  ~Impl();

  UndoResult Rename(const QString& name, const RenamePlan& plan, const std::atomic<bool>& cancelled,
                    const UndoProgress& progress);
  TrashResult MoveToTrash(const QString& name, const std::vector<TrashPhoto>& photos,
                          const std::atomic<bool>& cancelled, const UndoProgress& progress);
  UndoResult ChangeTags(const QString& name, const TagWishes& wishes);
  std::vector<AcceptResult> AcceptAlbums(const QString& name, const std::vector<Album>& proposals);
  ioPath PlanEdit(const ioPath& photo);
  ioPath PlanSidecar(const ioPath& sidecar);
  void FinishEdit();
  void DropEdit();
  void BeginStep(const QString& name, StepKind kind = StepKind::Edit);
  void EndStep();
  void RegisterFileChange(DataModel& item, const ioPath& newPath);
  UndoResult Reverse(bool redo, const std::atomic<bool>& cancelled, const UndoProgress& progress);
  std::optional<SkippedStep> SkipLast();
  std::vector<UndoStep> Steps() const { return QuerySteps(database_); }
  std::size_t Prune(const UndoLimits& limits, const std::vector<UndoStep>* announced);
  std::vector<BlockedStep> BlockedBy(const std::vector<ioPath>& files) const {
    return StepsBlockedBy(database_, files);
  }
  void KeepOriginals(bool keep) { keeps_ = keep; }
  void KeepForRedo(bool keep) { keepsForRedo_ = keep; }
  /// Writes down what happened to files. When the disk is full, in the room that was held for that.
  template <class Work>
  void Finish(const Work& work);

  std::vector<std::string> notes;

 private:
  struct Drive {
    std::size_t at = 0;
    bool cancelled = false;
    std::optional<UndoFinding> failure;
  };

  void Recover();
  void SweepKept(const std::set<std::string>& wanted);
  void RecoverMoves(StepRow& step);
  void StoreMoves(const StepRow& step);
  void RecoverChanges(StepRow& step);
  void RecoverTrash(StepRow& step);
  void RecoverImport(const StepRow& step);
  ioPath InsertChange(const ioPath& file, qlonglong goesWith);
  std::size_t SettleGroup(std::vector<ChangeRow>& group);
  void BringTogether(std::vector<ChangeRow>& group);
  bool FinishReplacing(const ChangeRow& change);
  void ReplaceBack(const ChangeRow& change);
  bool SettleChange(ChangeRow& change);

  Drive DriveMoves(const std::vector<FileMove>& moves, std::size_t at, std::size_t goal,
                   const std::atomic<bool>& cancelled, const UndoProgress& progress);
  bool PointLinks(const std::vector<LinkChange>& links, bool toNew, UndoResult& result) const;
  std::size_t DriveOrReturn(StepRow& step, std::size_t begin, std::size_t goal,
                            const std::atomic<bool>& cancelled, const UndoProgress& progress,
                            UndoResult& result);
  void SettleMoves(StepRow& step, std::size_t at);
  UndoResult ReverseMoves(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                          const UndoProgress& progress);
  UndoResult ReverseChanges(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                            const UndoProgress& progress);
  bool MoveOne(const SeenFile& file, const ioPath& kept, TrashResult& result) const;
  void SettleTrash(qlonglong step);
  UndoResult ReverseTags(const StepRow& step, bool redo);
  UndoResult ReverseAlbums(const StepRow& step, bool redo);
  UndoResult ReverseImport(const StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                           const UndoProgress& progress);
  void EndReversal(qlonglong step, State state, UndoResult& result) const;
  UndoResult ReverseStep(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                         const UndoProgress& progress);
  UndoResult ReverseTrash(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                          const UndoProgress& progress);
  bool IsKept(const ChangeRow& change, bool redo) const;
  void PutBack(ChangeRow& change, bool redo);
  std::string WhyNotPutBack(const ChangeRow& change, const QByteArray& now, bool redo) const;
  std::optional<UndoFinding> FindObstacle(const std::vector<ChangeRow>& group, bool redo) const;
  bool ReverseOne(ChangeRow& change, bool redo, UndoResult& result, bool& isNoted);
  State StateInPart(qlonglong step, bool anyHope) const;
  void FinishReversal(ChangeRow& change, bool redo);
  void Exchange(ChangeRow& change, bool redo);
  void ExchangeInItsRoom(const ChangeRow& change, bool redo);
  bool BringBackAll(const std::vector<ChangeRow>& group, bool redo, UndoResult& result);

  void Prepare(std::uint64_t more = 0);
  qlonglong InsertStep(StepKind kind, const QString& name, std::size_t files, const QByteArray& moves);
  std::vector<StepRow> ReadSteps(const char* condition, bool withMoves) const;
  void SetState(const char* table, qlonglong number, State state) const;
  /// A step whose first doing is over.
  void CloseStep(qlonglong step, std::size_t files, State state = State::Done) const;
  void DropChange(const ChangeRow& change) const;
  void DropStep(qlonglong step) const;
  bool HasPhotoAway(qlonglong step) const;
  void DropUndone() const;
  void SettleStep(const StepRow& step);

  IFileAccessLocker& locker_;
  // Before the catalogue, which may need the room that it holds.
  JournalFolder folder_;
  const Catalogue catalogue_;
  const CatalogueDatabase database_;
  const KeptFiles kept_;
  const TrashSteps trash_;
  const TagSteps tags_;
  const AlbumSteps albums_;
  const ImportSteps imports_;
  const LinkRows links_;
  qlonglong step_ = 0;
  bool keeps_ = true;
  bool keepsForRedo_ = true;
  /// Why the room that was held is in use: nothing more is begun. Empty: it is not.
  std::string fault_;
  /// What is taken back lacks the room for the version that redo would need.
  bool lacksRoomForRedo_ = false;
  /// The edit under way: a photo, then its sidecars.
  std::vector<ChangeRow> edits_;
};

UndoJournal::Impl::Impl(const ioPath& catalogue, IFileAccessLocker& locker, const Tavolin::ITrash& trash)
    : locker_(locker),
      folder_(catalogue.absolute()),
      // Makes or updates it.
      catalogue_(catalogue, Catalogue::Mode::ReadWrite),
      database_(catalogue, CatalogueDatabase::Access::ReadWrite, Catalogue::kBusyTimeoutMs),
      kept_(folder_.Path()),
      trash_(database_, locker, trash),
      tags_(database_),
      albums_(database_),
      imports_(database_, trash_),
      links_(database_) {
  // What the journal says must be on the disk before the photos change.
  database_.Execute("PRAGMA synchronous = FULL");
  // The log must not need more room than is held for it.
  database_.Execute("PRAGMA wal_autocheckpoint = 64");
  folder_.Open();
  Recover();
  CountDayOfUse(database_);
}

UndoJournal::Impl::~Impl() {
  try {
    folder_.SetNeeded(database_.Value("SELECT EXISTS (SELECT 1 FROM steps WHERE state <> 6)").toBool());
  } catch (const std::exception&) {
    // Then it stays as it was.
  }
}

template <class Work>
void UndoJournal::Impl::Finish(const Work& work) {
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

// --- The tables

qlonglong UndoJournal::Impl::InsertStep(StepKind kind, const QString& name, std::size_t files,
                                        const QByteArray& moves) {
  QSqlQuery query = database_.Prepare(
      "INSERT INTO steps (kind, name, begun, state, files, moves, day)"
      " VALUES (?, ?, ?, ?, ?, ?, (SELECT coalesce(max(count), 0) FROM days_of_use))");
  query.addBindValue(static_cast<int>(kind));
  query.addBindValue(NotNull(name));
  // Empty where the clock is beyond what can be written.
  query.addBindValue(NotNull(App::GetCurrentDateTime().toUTC().toString(Qt::ISODate)));
  query.addBindValue(static_cast<int>(State::Doing));
  query.addBindValue(static_cast<qlonglong>(files));
  query.addBindValue(moves.isNull() ? QVariant(QVariant::ByteArray) : QVariant(moves));
  database_.Run(query);
  return query.lastInsertId().toLongLong();
}

std::vector<StepRow> UndoJournal::Impl::ReadSteps(const char* condition, bool withMoves) const {
  const std::string sql =
      std::string("SELECT number, name, state, kind, moves FROM steps WHERE ") + condition;
  QSqlQuery query = database_.Prepare(sql.c_str());
  database_.Run(query);
  std::vector<StepRow> steps;
  while (database_.Next(query)) {
    StepRow step;
    step.number = query.value(0).toLongLong();
    step.name = query.value(1).toString();
    step.state = static_cast<State>(query.value(2).toInt());
    step.kind = static_cast<StepKind>(query.value(3).toInt());
    if (withMoves && !query.value(4).isNull()) {
      step.moves = UnpackMoves(query.value(4).toByteArray());
    }
    steps.push_back(std::move(step));
  }
  return steps;
}

void UndoJournal::Impl::SetState(const char* table, qlonglong number, State state) const {
  const std::string sql = std::string("UPDATE ") + table + " SET state = ? WHERE number = ?";
  QSqlQuery query = database_.Prepare(sql.c_str());
  query.addBindValue(static_cast<int>(state));
  query.addBindValue(number);
  database_.Run(query);
}

void UndoJournal::Impl::CloseStep(qlonglong step, std::size_t files, State state) const {
  QSqlQuery query = database_.Prepare("UPDATE steps SET state = ?, files = ? WHERE number = ?");
  query.addBindValue(static_cast<int>(state));
  query.addBindValue(static_cast<qlonglong>(files));
  query.addBindValue(step);
  database_.Run(query);
}

void UndoJournal::Impl::DropChange(const ChangeRow& change) const {
  QSqlQuery query = database_.Prepare("DELETE FROM changes WHERE number = ?");
  query.addBindValue(change.number);
  database_.Run(query);
  // Only now: a row must never speak of what is gone.
  kept_.Remove(change.KeptBefore());
  kept_.Remove(change.KeptAfter());
}

void UndoJournal::Impl::DropStep(qlonglong step) const {
  const std::vector<ChangeRow> changes = ReadChanges(database_, step);
  QSqlQuery query = database_.Prepare("DELETE FROM steps WHERE number = ?");
  query.addBindValue(step);
  database_.Run(query);
  for (const ChangeRow& change : changes) {
    kept_.Remove(change.KeptBefore());
    kept_.Remove(change.KeptAfter());
  }
}

/// Not within a transaction: what is kept goes at once.
void UndoJournal::Impl::DropUndone() const {
  for (const StepRow& step : ReadSteps("state = 4", false)) {
    DropStep(step.number);
  }
}

/// Then what is kept of the step is all that there is of the photo.
bool UndoJournal::Impl::HasPhotoAway(qlonglong step) const {
  const std::vector<ChangeRow> changes = ReadChanges(database_, step);
  return std::any_of(changes.begin(), changes.end(), IsSetAside);
}

/// Without `announced` all that is beyond the limits goes; with it, of what could be taken back only that.
std::size_t UndoJournal::Impl::Prune(const UndoLimits& limits, const std::vector<UndoStep>* announced) {
  std::size_t dropped = 0;
  for (const UndoStep& step : StepsBeyond(QuerySteps(database_), limits, 0)) {
    const auto isIt = [&step](const UndoStep& other) { return other.number == step.number; };
    const bool mayGo = announced == nullptr || step.givenUp || IsTooOld(step, limits) ||
                       std::any_of(announced->begin(), announced->end(), isIt);
    if (mayGo && step.number != step_ && !step.underWay && !HasPhotoAway(step.number)) {
      DropStep(step.number);
      dropped += step.givenUp ? 0 : 1;
    }
  }
  return dropped;
}

// --- Renames

UndoJournal::Impl::Drive UndoJournal::Impl::DriveMoves(const std::vector<FileMove>& moves, std::size_t at,
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
      drive.failure = UndoFinding{from, failure.what()};
      break;
    }
    drive.at += forward ? 1 : std::size_t(-1);
    if (progress) {
      progress(total - (forward ? goal - drive.at : drive.at - goal), total);
    }
  }
  return drive;
}

void UndoJournal::Impl::StoreMoves(const StepRow& step) {
  QSqlQuery query = database_.Prepare("UPDATE steps SET moves = ? WHERE number = ?");
  query.addBindValue(PackMoves(step.moves));
  query.addBindValue(step.number);
  database_.Run(query);
}

/// Writes down that the first `at` moves stand, and that nobody works on them any more.
void UndoJournal::Impl::SettleMoves(StepRow& step, std::size_t at) {
  SyncFoldersOf(step.moves);
  const bool wasDone = step.state == State::Done || step.state == State::Undoing;
  WriteTransaction transaction(database_);
  {
    PhotoPathUpdate paths(database_);
    for (std::size_t i = wasDone ? step.moves.size() : 0; i != at;) {
      if (i < at) {
        paths.Move(step.moves[i].from, step.moves[i].to);
        ++i;
      } else {
        --i;
        paths.Move(step.moves[i].to, step.moves[i].from);
      }
    }
  }
  if (at == 0 && step.state == State::Doing) {
    DropStep(step.number);
  } else if (at == 0) {
    SetState("steps", step.number, State::Undone);
  } else {
    if (at < step.moves.size()) {
      step.moves.resize(at);
      StoreMoves(step);
      QSqlQuery query = database_.Prepare("UPDATE steps SET files = ? WHERE number = ?");
      query.addBindValue(static_cast<qlonglong>(at));
      query.addBindValue(step.number);
      database_.Run(query);
    }
    SetState("steps", step.number, State::Done);
  }
  transaction.Commit();
  if (at > 0 && step.state == State::Doing) {
    DropUndone();
  }
}

UndoResult UndoJournal::Impl::Rename(const QString& name, const RenamePlan& plan,
                                     const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  UndoResult result;
  result.name = name;
  if (plan.steps.empty()) {
    return result;
  }
  StepRow step;
  step.moves = IdentifyMoves(plan.steps);
  // Twice its moves, and the pages with its photos: all is one transaction.
  constexpr std::uint64_t kBytesEach = 8192;
  Prepare(std::min<std::uint64_t>(kBytesEach * step.moves.size(), 3 * database_.File().file_size()));
  {
    WriteTransaction transaction(database_);
    step.number = InsertStep(StepKind::Rename, name, plan.renames.size(), PackMoves(step.moves));
    links_.Insert(step.number, plan.links);
    transaction.Commit();
  }
  const std::vector<LinkChange> links = links_.Links(step.number);
  try {
    PrepareLinks(links);
  } catch (const HostError& failure) {
    ClearLinks(links);
    DropStep(step.number);
    result.findings.push_back(FindingOf(failure));
    return result;
  }
  const std::size_t reached = DriveOrReturn(step, 0, step.moves.size(), cancelled, progress, result);
  result.files = reached == step.moves.size() ? plan.renames.size() : reached;
  return result;
}

/// False when one cannot be pointed there; then there is a finding.
bool UndoJournal::Impl::PointLinks(const std::vector<LinkChange>& links, bool toNew,
                                   UndoResult& result) const {
  try {
    Host::PointLinks(links, toNew);
    return true;
  } catch (const HostError& failure) {
    result.findings.push_back(FindingOf(failure));
    return false;
  }
}

/// All moves or none: what stops on its way to `goal` goes back to `begin`. Returns where it stands.
std::size_t UndoJournal::Impl::DriveOrReturn(StepRow& step, std::size_t begin, std::size_t goal,
                                             const std::atomic<bool>& cancelled, const UndoProgress& progress,
                                             UndoResult& result) {
  // Links lead to the new names while the files have them: they are the last to change, and the first back.
  const std::vector<LinkChange> links = links_.Links(step.number);
  const bool forward = begin < goal;
  Drive drive;
  drive.at = begin;
  if (forward || PointLinks(links, false, result)) {
    drive = DriveMoves(step.moves, begin, goal, cancelled, progress);
  }
  result.cancelled = drive.cancelled;
  if (drive.failure) {
    result.findings.push_back(*drive.failure);
  }
  if (drive.at != goal || (forward && !PointLinks(links, true, result))) {
    const std::atomic<bool> never{false};
    PointLinks(links, false, result);
    drive = DriveMoves(step.moves, drive.at, begin, never, nullptr);
    if (drive.failure) {
      result.findings.push_back(*drive.failure);
    } else if (!forward) {
      PointLinks(links, true, result);
    }
  }
  try {
    Finish([this, &step, &drive] {
      StepRow settled = step;
      SettleMoves(settled, drive.at);
    });
  } catch (const HostError& failure) {
    result.findings.push_back({database_.File(), std::string(failure.what()) + kNotedLater});
  }
  return drive.at;
}

UndoResult UndoJournal::Impl::ReverseMoves(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                                           const UndoProgress& progress) {
  const std::size_t all = step.moves.size();
  const std::size_t begin = redo ? 0 : all;
  const std::size_t goal = redo ? all : 0;
  UndoResult result;
  result.name = step.name;
  step.state = redo ? State::Redoing : State::Undoing;
  IdentifyAgain(step.moves, !redo);
  // Others may have made links since, or pointed those to what a photo was called meanwhile.
  const std::vector<RenameLink> links = links_.FindAgain(step.number, NetRenames(step.moves, !redo));
  {
    WriteTransaction transaction(database_);
    StoreMoves(step);
    links_.Renew(step.number, links, redo);
    SetState("steps", step.number, step.state);
    transaction.Commit();
  }
  const std::size_t reached = DriveOrReturn(step, begin, goal, cancelled, progress, result);
  // Of names that are exchanged one moves twice.
  result.files = reached == goal ? NetRenames(step.moves, false).size()
                                 : (reached > begin ? reached - begin : begin - reached);
  result.stands = !redo && reached > 0;
  return result;
}

// --- Edits

/// Before anything is begun: room for writing down what happens, for taking it back, and `more` bytes.
void UndoJournal::Impl::Prepare(std::uint64_t more) {
  fault_.clear();
  folder_.Hold(more);
}

void UndoJournal::Impl::BeginStep(const QString& name, StepKind kind) {
  if (step_ != 0) {
    EndStep();
  }
  Prepare();
  step_ = InsertStep(kind, name, 0, {});
}

ioPath UndoJournal::Impl::InsertChange(const ioPath& file, qlonglong goesWith) {
  if (!fault_.empty()) {
    ThrowHostError(database_.File().utf8string(), fault_);
  }
  ChangeRow change;
  change.path = file;
  change.side = SideName(file);
  change.goesWith = goesWith;
  QSqlQuery query =
      database_.Prepare("INSERT INTO changes (step, state, path, side, goes_with) VALUES (?, ?, ?, ?, ?)");
  query.addBindValue(step_);
  query.addBindValue(static_cast<int>(State::Planned));
  query.addBindValue(PathBytes(change.path));
  query.addBindValue(PathBytes(change.side));
  query.addBindValue(goesWith == 0 ? QVariant(QVariant::LongLong) : QVariant(goesWith));
  database_.Run(query);
  change.number = query.lastInsertId().toLongLong();
  edits_.push_back(std::move(change));
  return edits_.back().side;
}

ioPath UndoJournal::Impl::PlanEdit(const ioPath& photo) {
  edits_.clear();
  return InsertChange(photo, 0);
}

ioPath UndoJournal::Impl::PlanSidecar(const ioPath& sidecar) {
  return InsertChange(sidecar, edits_.front().number);
}

void UndoJournal::Impl::RegisterFileChange(DataModel& item, const ioPath& newPath) {
  if (step_ == 0) {
    BeginStep(QStringLiteral("edit"));
  }
  auto planned = std::find_if(edits_.begin(), edits_.end(), [path = item.GetPath()](const ChangeRow& change) {
    return change.path == path;
  });
  if (planned == edits_.end()) {
    PlanEdit(item.GetPath());
    planned = edits_.begin();
    planned->side.clear();
  }
  ChangeRow& change = *planned;
  if (newPath != change.path) {
    change.state = State::Doing;
    change.adopted = true;
    change.side = newPath;
    StoreChange(database_, change, 0);
    return;
  }
  if (keeps_ && kept_.Keep(change.path, change.KeptBefore())) {
    // Taking it back makes another copy here, and one in the photo's folder.
    const bool isHere = QueryFile(change.path).identity.first == QueryFile(folder_.Path()).identity.first;
    folder_.HoldForCopy(QueryFile(change.path).size * (isHere ? 2 : 1));
  }
  change.digestBefore = DigestOf(keeps_ ? kept_.PathOf(change.KeptBefore()) : change.path);
  if (!change.side.empty()) {
    change.digestAfter = DigestOf(change.side);
  }
  change.state = State::Doing;
  StoreChange(database_, change, kept_.PathOf(change.KeptBefore()).file_size());
}

void UndoJournal::Impl::FinishEdit() {
  if (edits_.empty()) {
    return;
  }
  for (const ChangeRow& edit : edits_) {
    SyncFolderOf(edit.path);
  }
  const auto photo = Read(edits_.front().path);
  Finish([this, &photo] {
    WriteTransaction transaction(database_);
    for (const ChangeRow& edit : edits_) {
      SetState("changes", edit.number, State::Done);
    }
    if (photo) {
      UpdatePhotoRow(database_, *photo);
    }
    transaction.Commit();
  });
  edits_.clear();
}

void UndoJournal::Impl::DropEdit() {
  if (!edits_.empty()) {
    // Not on the caller's word: the answer of a server can be lost, and the photo be replaced all the same.
    const std::vector<ChangeRow> group = std::exchange(edits_, {});
    Finish([this, &group] {
      std::vector<ChangeRow> settled = group;
      SettleGroup(settled);
    });
  }
}

void UndoJournal::Impl::EndStep() {
  if (step_ == 0) {
    return;
  }
  StepRow step;
  step.number = std::exchange(step_, 0);
  edits_.clear();
  Finish([this, &step] { SettleStep(step); });
}

/// Finds out what became of each change of an edit step, and closes the step.
void UndoJournal::Impl::SettleStep(const StepRow& step) {
  std::size_t files = 0;
  bool isKept = false;
  for (std::vector<ChangeRow>& group : GroupChanges(ReadChanges(database_, step.number))) {
    files += SettleGroup(group);
    isKept = isKept || std::any_of(group.begin(), group.end(), [this](const ChangeRow& change) {
               return change.adopted || IsKept(change, false);
             });
  }
  if (files == 0) {
    DropStep(step.number);
    return;
  }
  CloseStep(step.number, files, isKept ? State::Done : State::GivenUp);
  DropUndone();
}

/// Finds out what became of a photo and its sidecars. Returns how many of them are the edited ones.
std::size_t UndoJournal::Impl::SettleGroup(std::vector<ChangeRow>& group) {
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
void UndoJournal::Impl::BringTogether(std::vector<ChangeRow>& group) {
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
    notes.push_back(group.front().path.utf8string() +
                    " and its sidecar do not agree any more: only one of them is edited (" + failure.what() +
                    ").");
  }
}

/// False when it could not be done; then the file is as it was.
bool UndoJournal::Impl::FinishReplacing(const ChangeRow& change) {
  try {
    if (DigestOf(change.side) != change.digestAfter) {
      return false;
    }
    DataModel item;
    item.SetPath(change.path);
    UndoFileHolder holder(nullptr, locker_, item, change.side, false);
    holder.Process();
    SyncFolderOf(change.path);
    return true;
  } catch (const Exception&) {
    return false;
  }
}

/// The row stays as it is: until it is dropped, it tells that the original is there.
void UndoJournal::Impl::ReplaceBack(const ChangeRow& change) {
  if (DigestOf(change.path) != change.digestAfter) {
    return;
  }
  change.side.remove();
  DataModel item;
  item.SetPath(change.path);
  UndoFileHolder holder(nullptr, locker_, item, change.side, false);
  kept_.PutBeside(change.KeptBefore(), change.side);
  holder.Process();
  SyncFolderOf(change.path);
}

/// True when the photo is the edited one; false when it is not, and then nothing is left of the edit.
bool UndoJournal::Impl::SettleChange(ChangeRow& change) {
  if (change.state == State::Doing && change.adopted) {
    SetState("changes", change.number, State::Done);
    return true;
  }
  if (!change.adopted && !change.side.empty()) {
    change.side.remove();
  }
  if (change.state == State::Doing) {
    QByteArray now;
    try {
      now = DigestOf(change.path);
    } catch (const HostError& failure) {
      notes.push_back(std::string(failure.what()) + '.' +
                      (IsKept(change, false) ? " Its original is kept as " +
                                                   kept_.PathOf(change.KeptBefore()).utf8string() + '.'
                                             : std::string()));
      SetState("changes", change.number, State::Done);
      return true;
    }
    if (now != change.digestBefore) {
      // Also when others have changed it again: the original stays at hand.
      change.digestAfter = change.digestAfter.isEmpty() ? now : change.digestAfter;
      change.state = State::Done;
      const auto photo = Read(change.path);
      WriteTransaction transaction(database_);
      StoreChange(database_, change, kept_.PathOf(change.KeptBefore()).file_size());
      if (photo) {
        UpdatePhotoRow(database_, *photo);
      }
      transaction.Commit();
      return true;
    }
  }
  DropChange(change);
  return false;
}

/// Puts the version that is kept in the photo's place and keeps the one that was there.
void UndoJournal::Impl::Exchange(ChangeRow& change, bool redo) {
  const std::string incoming = redo ? change.KeptAfter() : change.KeptBefore();
  const std::string outgoing = redo ? change.KeptBefore() : change.KeptAfter();
  if (!change.side.empty()) {
    change.side.remove();
  }
  change.side = SideName(change.path);
  change.state = redo ? State::Redoing : State::Undoing;
  StoreChange(database_, change, kept_.PathOf(incoming).file_size());
  if (redo || keepsForRedo_) {
    try {
      kept_.Keep(change.path, outgoing);
    } catch (const NoRoomError&) {
      lacksRoomForRedo_ = true;
      throw;
    }
  }
  try {
    kept_.PutBeside(incoming, change.side);
  } catch (const NoRoomError&) {
    ExchangeInItsRoom(change, redo);
    return;
  }
  DataModel item;
  item.SetPath(change.path);
  UndoFileHolder holder(nullptr, locker_, item, change.side, false);
  if (DigestOf(change.side) != (redo ? change.digestAfter : change.digestBefore)) {
    ThrowHostError(change.path.utf8string(),
                   change.path.utf8string() + " is left as it is: others have changed " +
                       kept_.PathOf(incoming).utf8string() + ", where its other version was kept");
  }
  holder.Process();
  SyncFolderOf(change.path);
}

void UndoJournal::Impl::ExchangeInItsRoom(const ChangeRow& change, bool redo) {
  try {
    ReplaceInItsRoom(locker_, kept_, change, redo);
  } catch (const NoRoomError&) {
    const ioPath incoming = kept_.PathOf(redo ? change.KeptAfter() : change.KeptBefore());
    ThrowHostError(change.path.utf8string(),
                   change.path.utf8string() +
                       " is left as it is: its disk has no room for its other version (" +
                       std::to_string(incoming.file_size()) + " bytes). Make room there and try again");
  }
}

void UndoJournal::Impl::FinishReversal(ChangeRow& change, bool redo) {
  const std::string incoming = redo ? change.KeptAfter() : change.KeptBefore();
  const std::string outgoing = redo ? change.KeptBefore() : change.KeptAfter();
  change.state = redo ? State::Done : State::Undone;
  const auto photo = change.adopted ? std::nullopt : Read(change.path);
  WriteTransaction transaction(database_);
  if (change.adopted) {
    PhotoPathUpdate(database_).Move(redo ? change.path : change.side, redo ? change.side : change.path);
    SetState("changes", change.number, change.state);
  } else {
    change.side.clear();
    StoreChange(database_, change, kept_.PathOf(outgoing).file_size());
    if (photo) {
      UpdatePhotoRow(database_, *photo);
    }
  }
  transaction.Commit();
  if (!change.adopted) {
    kept_.Remove(incoming);
  }
}

bool UndoJournal::Impl::IsKept(const ChangeRow& change, bool redo) const {
  return QueryFile(kept_.PathOf(redo ? change.KeptAfter() : change.KeptBefore())).kind !=
         FileState::Kind::Missing;
}

/// By what the file is now; empty: it can be.
std::string UndoJournal::Impl::WhyNotPutBack(const ChangeRow& change, const QByteArray& now,
                                             bool redo) const {
  if (now != (redo ? change.digestBefore : change.digestAfter)) {
    return change.path.utf8string() + " has been changed since and is left as it is";
  }
  if (!IsKept(change, redo)) {
    return change.path.utf8string() + " is left as it is: its other version is not kept any more";
  }
  return {};
}

/// A photo and its sidecars go back together, or all stay.
std::optional<UndoFinding> UndoJournal::Impl::FindObstacle(const std::vector<ChangeRow>& group,
                                                           bool redo) const {
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
        return UndoFinding{change.path, cause};
      }
    } catch (const Exception& failure) {
      return UndoFinding{change.path, failure.what()};
    }
  }
  return std::nullopt;
}

/// Nothing has changed when it throws. Nothing is left of the attempt either, except while nobody can tell
/// which version the photo is: then both stay.
void UndoJournal::Impl::PutBack(ChangeRow& change, bool redo) {
  const QByteArray& wanted = redo ? change.digestAfter : change.digestBefore;
  const QByteArray& current = redo ? change.digestBefore : change.digestAfter;
  const QByteArray now = DigestOf(change.path);
  if (now == wanted && (IsUnderWay(change.state) || now != current)) {
    // Broken off after the exchange, or others were faster: only the last notes are missing.
    if (!change.side.empty()) {
      change.side.remove();
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
      kept_.Remove(redo ? change.KeptBefore() : change.KeptAfter());
      if (!change.side.empty()) {
        change.side.remove();
      }
      SetState("changes", change.number, redo ? State::Undone : State::Done);
    }
    throw;
  }
}

/// Photos that are not under their names go back there first. False when one cannot; then there is a finding.
bool UndoJournal::Impl::BringBackAll(const std::vector<ChangeRow>& group, bool redo, UndoResult& result) {
  bool areAllBack = true;
  for (const ChangeRow& change : group) {
    if (IsSetAside(change)) {
      try {
        BringBack(locker_, kept_, change, redo);
      } catch (const Exception& failure) {
        result.findings.push_back({change.path, WhyAway(change, failure.what())});
        areAllBack = false;
      }
    }
  }
  return areAllBack;
}

/// Of a step of which something could not be taken back or done again.
State UndoJournal::Impl::StateInPart(qlonglong step, bool anyHope) const {
  if (!anyHope) {
    // Else no older step could ever be taken back.
    return State::GivenUp;
  }
  const std::vector<ChangeRow> changes = ReadChanges(database_, step);
  // What was taken back goes with the next step: only where no photo needs its original.
  const bool allUndone = std::all_of(changes.begin(), changes.end(),
                                     [](const ChangeRow& change) { return change.state == State::Undone; });
  return allUndone ? State::Undone : State::Done;
}

/// False when the file stays; then there is a finding.
bool UndoJournal::Impl::ReverseOne(ChangeRow& change, bool redo, UndoResult& result, bool& isNoted) {
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

UndoResult UndoJournal::Impl::ReverseChanges(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                                             const UndoProgress& progress) {
  UndoResult result;
  result.name = step.name;
  const State goal = redo ? State::Done : State::Undone;
  SetState("steps", step.number, redo ? State::Redoing : State::Undoing);
  std::vector<std::vector<ChangeRow>> groups = GroupChanges(ReadChanges(database_, step.number));
  if (!redo) {
    // A photo that was changed twice goes back step by step.
    std::reverse(groups.begin(), groups.end());
  }
  std::size_t looked = 0;
  bool anyLeft = false;
  bool anyHope = false;
  bool isNoted = true;
  lacksRoomForRedo_ = false;
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
      // Neither can it be done again.
      DropStep(step.number);
    } else {
      SetState("steps", step.number, state);
    }
  } catch (const HostError& failure) {
    result.findings.push_back({database_.File(), std::string(failure.what()) + kNotedLater});
  }
  result.stands = !redo && state == State::Done;
  result.lacksRoomForRedo = lacksRoomForRedo_;
  return result;
}

// --- The trash

/// False when the file stays; then there is a finding.
bool UndoJournal::Impl::MoveOne(const SeenFile& file, const ioPath& kept, TrashResult& result) const {
  try {
    result.moved.push_back({file.path, trash_.Move(step_, file, kept)});
    ++result.files;
    return true;
  } catch (const std::exception& failure) {
    result.findings.push_back({file.path, failure.what()});
    return false;
  }
}

TrashResult UndoJournal::Impl::MoveToTrash(const QString& name, const std::vector<TrashPhoto>& photos,
                                           const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  TrashResult result;
  result.name = name;
  BeginStep(name, StepKind::Trash);
  std::size_t looked = 0;
  for (const TrashPhoto& photo : photos) {
    if (cancelled) {
      result.cancelled = true;
      break;
    }
    const std::string fault = FindTrashFault(photo);
    if (!fault.empty()) {
      result.findings.push_back({photo.photo.path, fault});
    } else if (MoveOne(photo.photo, photo.kept.path, result)) {
      ++result.photos;
      for (const TrashAppendix& file : photo.appendix) {
        const std::string appendixFault = FindTrashFault(file);
        if (!appendixFault.empty()) {
          result.findings.push_back({file.path, appendixFault});
        } else {
          MoveOne(file, photo.kept.path, result);
        }
      }
    }
    if (progress) {
      progress(++looked, photos.size());
    }
  }
  try {
    Finish([this, step = std::exchange(step_, 0)] { SettleTrash(step); });
  } catch (const HostError& failure) {
    result.findings.push_back({database_.File(), std::string(failure.what()) + kNotedLater});
  }
  return result;
}

/// Closes a step in which files were moved for the first time.
void UndoJournal::Impl::SettleTrash(qlonglong step) {
  std::size_t files = 0;
  for (TrashedFile& file : trash_.Files(step)) {
    files += file.state == State::Done || trash_.Settle(file) ? 1 : 0;
  }
  if (files == 0) {
    DropStep(step);
    return;
  }
  CloseStep(step, files);
  DropUndone();
}

/// The files have moved, whatever the catalogue says to it: that is told, and the next run writes it down.
void UndoJournal::Impl::EndReversal(qlonglong step, State state, UndoResult& result) const {
  try {
    SetState("steps", step, state);
  } catch (const HostError& failure) {
    result.findings.push_back({database_.File(), std::string(failure.what()) + kNotedLater});
  }
}

UndoResult UndoJournal::Impl::ReverseTrash(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                                           const UndoProgress& progress) {
  UndoResult result;
  result.name = step.name;
  const State goal = redo ? State::Done : State::Undone;
  SetState("steps", step.number, redo ? State::Redoing : State::Undoing);
  std::vector<TrashedFile> files = trash_.Files(step.number);
  if (!redo) {
    std::reverse(files.begin(), files.end());
  }
  std::size_t looked = 0;
  bool anyHope = false;
  for (TrashedFile& file : files) {
    if (file.state != goal) {
      if (cancelled) {
        result.cancelled = true;
        anyHope = true;
        break;
      }
      if (redo && file.state == State::Undone && BelongsToWhatStays(file.file.path, result.findings)) {
        result.findings.push_back(
            {file.file.path, file.file.path.utf8string() + " stays: so does what it belongs to"});
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
  EndReversal(step.number, StateOfTrash(files, goal, anyHope), result);
  result.stands = !redo && anyHope;
  return result;
}

// --- Tags

UndoResult UndoJournal::Impl::ChangeTags(const QString& name, const TagWishes& wishes) {
  UndoResult result;
  result.name = name;
  Prepare();
  WriteTransaction transaction(database_);
  const qlonglong step = InsertStep(StepKind::Tags, name, 0, {});
  result.files = tags_.Apply(step, wishes);
  if (result.files == 0) {
    return result;
  }
  CloseStep(step, result.files);
  transaction.Commit();
  DropUndone();
  return result;
}

UndoResult UndoJournal::Impl::ReverseTags(const StepRow& step, bool redo) {
  UndoResult result;
  result.name = step.name;
  WriteTransaction transaction(database_);
  result.files = tags_.Reverse(step.number, redo);
  SetState("steps", step.number, redo ? State::Done : State::Undone);
  transaction.Commit();
  return result;
}

// --- Albums and imports

std::vector<AcceptResult> UndoJournal::Impl::AcceptAlbums(const QString& name,
                                                          const std::vector<Album>& proposals) {
  WriteTransaction transaction(database_);
  const qlonglong step = InsertStep(StepKind::Albums, name, 0, {});
  std::vector<AcceptResult> results = albums_.Accept(step, proposals);
  bool anyChange = false;
  qlonglong photos = 0;
  for (const AcceptResult& result : results) {
    anyChange = anyChange || result.created || result.photosAdded > 0;
    photos += result.photosAdded;
  }
  if (anyChange) {
    CloseStep(step, static_cast<std::size_t>(photos));
    transaction.Commit();
    DropUndone();
  }
  return results;
}

UndoResult UndoJournal::Impl::ReverseAlbums(const StepRow& step, bool redo) {
  UndoResult result;
  result.name = step.name;
  WriteTransaction transaction(database_);
  result.files = albums_.Reverse(step.number, redo, result.findings);
  SetState("steps", step.number, redo ? State::Done : State::Undone);
  transaction.Commit();
  return result;
}

UndoResult UndoJournal::Impl::ReverseImport(const StepRow& step, bool redo,
                                            const std::atomic<bool>& cancelled,
                                            const UndoProgress& progress) {
  UndoResult result;
  result.name = step.name;
  imports_.RequireIdle(step.number);
  SetState("steps", step.number, redo ? State::Redoing : State::Undoing);
  const State state = imports_.Reverse(step.number, redo, cancelled, progress, result);
  EndReversal(step.number, state, result);
  result.stands = !redo && state == State::Done;
  return result;
}

UndoResult UndoJournal::Impl::Reverse(bool redo, const std::atomic<bool>& cancelled,
                                      const UndoProgress& progress) {
  std::vector<StepRow> steps = ReadSteps(redo ? "state = 4 AND number > (SELECT coalesce(max(number), 0) "
                                                "FROM steps WHERE state = 2) ORDER BY number LIMIT 1"
                                              : "state = 2 ORDER BY number DESC LIMIT 1",
                                         true);
  if (steps.empty()) {
    return {};
  }
  if (!redo && !keepsForRedo_) {
    // What could be done again gives its room.
    DropUndone();
  }
  UndoResult result = ReverseStep(steps.front(), redo, cancelled, progress);
  result.kind = steps.front().kind;
  return result;
}

UndoResult UndoJournal::Impl::ReverseStep(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                                          const UndoProgress& progress) {
  switch (step.kind) {
    case StepKind::Rename:
      return ReverseMoves(step, redo, cancelled, progress);
    case StepKind::Edit:
      return ReverseChanges(step, redo, cancelled, progress);
    case StepKind::Trash:
      return ReverseTrash(step, redo, cancelled, progress);
    case StepKind::Tags:
      return ReverseTags(step, redo);
    case StepKind::Import:
      return ReverseImport(step, redo, cancelled, progress);
    case StepKind::Albums:
      return ReverseAlbums(step, redo);
    case StepKind::Unknown:
      break;
  }
  ThrowHostError(database_.File().utf8string(),
                 "The journal of " + database_.File().utf8string() + " holds a step of an unknown kind");
}

std::optional<SkippedStep> UndoJournal::Impl::SkipLast() {
  const std::vector<UndoStep> steps = QuerySteps(database_, "s.state = 2 ORDER BY s.number DESC LIMIT 1");
  if (steps.empty()) {
    return std::nullopt;
  }
  SkippedStep step;
  static_cast<UndoStep&>(step) = steps.front();
  step.blocked = StepsBlockedBy(database_, step.number);
  const std::vector<ChangeRow> changes = ReadChanges(database_, step.number);
  for (const ChangeRow& change : changes) {
    if (IsSetAside(change)) {
      ThrowHostError(change.path.utf8string(), WhyAway(change, "it was not written whole"));
    }
  }
  for (const ChangeRow& change : changes) {
    // Of an exchange that was broken off out of reach. What it was made from is kept.
    if (!change.adopted && !change.side.empty()) {
      change.side.remove();
    }
  }
  SetState("steps", step.number, State::GivenUp);
  step.givenUp = true;
  return step;
}

// --- Recovery

void UndoJournal::Impl::Recover() {
  for (StepRow& step : ReadSteps("state IN (1, 3, 5) ORDER BY number", true)) {
    if (step.kind == StepKind::Trash) {
      RecoverTrash(step);
    } else if (step.kind == StepKind::Rename) {
      RecoverMoves(step);
    } else if (step.kind == StepKind::Import) {
      RecoverImport(step);
    } else {
      RecoverChanges(step);
    }
  }
  // Done while an import went on beside it: what was taken back before cannot be done again any more.
  for (const StepRow& step : ReadSteps(
           "state = 4 AND number < (SELECT coalesce(max(number), 0) FROM steps WHERE state = 2)", false)) {
    DropStep(step.number);
  }
  std::set<std::string> wanted;
  for (const StepRow& step : ReadSteps("kind = 2", false)) {
    for (const ChangeRow& change : ReadChanges(database_, step.number)) {
      if (change.state == State::Undone || IsUnderWay(change.state)) {
        wanted.insert(change.KeptAfter());
      }
      if (change.state != State::Undone) {
        wanted.insert(change.KeptBefore());
      }
    }
  }
  SweepKept(wanted);
}

/// A catalogue that was lost, or put back from a copy, must not take the originals of another with it, nor
/// write over them.
void UndoJournal::Impl::SweepKept(const std::set<std::string>& wanted) {
  const qlonglong last =
      database_.Value("SELECT seq FROM sqlite_sequence WHERE name = 'changes'").toLongLong();
  const ioPath aside = kept_.SetAside(last);
  if (!aside.empty()) {
    notes.push_back("Originals that this catalogue does not know were moved to " + aside.utf8string() + ".");
  }
  kept_.RemoveOthers(wanted);
}

void UndoJournal::Impl::RecoverMoves(StepRow& step) {
  const std::string name = "\"" + step.name.toStdString() + "\"";
  if (const std::optional<ioPath> away = FindFolderOutOfReach(step.moves)) {
    // How far it was can only be seen there.
    notes.push_back(name + " had been broken off and is finished once " + away->utf8string() +
                    " can be reached again.");
    return;
  }
  const std::atomic<bool> never{false};
  const std::size_t all = step.moves.size();
  const bool backwards = step.state == State::Undoing;
  const std::size_t found = CountDone(step.moves, backwards);
  const std::size_t goal = backwards ? 0 : all;
  const std::vector<LinkChange> links = links_.Links(step.number);
  UndoResult ofLinks;
  Drive drive;
  drive.at = found;
  if (!backwards || PointLinks(links, false, ofLinks)) {
    drive = DriveMoves(step.moves, found, goal, never, nullptr);
  }
  std::string note = name + " had been broken off";
  if (drive.at == goal && (backwards || PointLinks(links, true, ofLinks))) {
    note += goal == 0 ? " while it was taken back; now it is." : " and is finished now.";
  } else {
    note += " and cannot be finished (" +
            (drive.failure ? drive.failure->cause : ofLinks.findings.front().cause) + ")";
    PointLinks(links, false, ofLinks);
    drive = DriveMoves(step.moves, drive.at, all - goal, never, nullptr);
    if (!drive.failure && backwards) {
      PointLinks(links, true, ofLinks);
    }
    note += drive.failure ? ", nor taken back (" + drive.failure->cause + ")." : "; it is as before now.";
  }
  SettleMoves(step, drive.at);
  notes.push_back(note);
  for (const UndoFinding& finding : ofLinks.findings) {
    notes.push_back(finding.cause + '.');
  }
}

void UndoJournal::Impl::RecoverChanges(StepRow& step) {
  const std::string name = "\"" + step.name.toStdString() + "\"";
  if (step.state == State::Doing) {
    SettleStep(step);
    const auto photos = static_cast<std::size_t>(
        database_
            .Value(("SELECT count(*) FROM changes WHERE goes_with IS NULL AND step = " +
                    std::to_string(step.number))
                       .c_str())
            .toULongLong());
    notes.push_back(name + " had been broken off after " + std::to_string(photos) +
                    (photos == 1 ? " photo." : " photos.") + " The others are as they were.");
    return;
  }
  const bool redo = step.state == State::Redoing;
  const std::atomic<bool> never{false};
  const UndoResult result = ReverseChanges(step, redo, never, nullptr);
  notes.push_back(NoteOfReversal(name, redo, result));
  for (const UndoFinding& finding : result.findings) {
    notes.push_back(finding.file.utf8string() + ": " + finding.cause);
  }
}

void UndoJournal::Impl::RecoverTrash(StepRow& step) {
  const std::string name = "\"" + step.name.toStdString() + "\"";
  for (const TrashedFile& file : trash_.Files(step.number)) {
    if (IsUnderWay(file.state) && trash_.IsOutOfReach(file)) {
      notes.push_back(name + " had been broken off and is finished once " +
                      file.place.file.parent_path().utf8string() + " can be reached again.");
      return;
    }
  }
  if (step.state == State::Doing) {
    SettleTrash(step.number);
    const auto done = static_cast<std::size_t>(
        database_.Value(("SELECT files FROM steps WHERE number = " + std::to_string(step.number)).c_str())
            .toULongLong());
    notes.push_back(name + " had been broken off after " + std::to_string(done) +
                    (done == 1 ? " file." : " files.") + " The others are where they were.");
    return;
  }
  const bool redo = step.state == State::Redoing;
  const std::atomic<bool> never{false};
  const UndoResult result = ReverseTrash(step, redo, never, nullptr);
  notes.push_back(NoteOfReversal(name, redo, result));
  for (const UndoFinding& finding : result.findings) {
    notes.push_back(finding.cause + ".");
  }
}

void UndoJournal::Impl::RecoverImport(const StepRow& step) {
  if (imports_.IsAtWork(step.number)) {
    return;
  }
  const std::string name = "\"" + step.name.toStdString() + "\"";
  if (const std::optional<ioPath> away = imports_.FindFolderAway(step.number)) {
    notes.push_back(name + " had been broken off and is finished once " + away->utf8string() +
                    " can be reached again.");
    return;
  }
  if (step.state == State::Doing) {
    const std::size_t files = imports_.Settle(step.number);
    notes.push_back(name + " had been broken off; " + std::to_string(files) +
                    (files == 1 ? " copy is" : " copies are") + " there. The same import copies the rest.");
    return;
  }
  const bool redo = step.state == State::Redoing;
  const std::atomic<bool> never{false};
  const UndoResult result = ReverseImport(step, redo, never, nullptr);
  notes.push_back(NoteOfReversal(name, redo, result));
  for (const UndoFinding& finding : result.findings) {
    notes.push_back(finding.cause + ".");
  }
}

// --- The journal

const char* StepKindName(StepKind kind) {
  switch (kind) {
    case StepKind::Rename:
      return "rename";
    case StepKind::Edit:
      return "edit";
    case StepKind::Trash:
      return "trash";
    case StepKind::Tags:
      return "tags";
    case StepKind::Import:
      return "import";
    case StepKind::Albums:
      return "albums";
    case StepKind::Unknown:
      break;
  }
  return "unknown";
}

UndoJournal::UndoJournal(const ioPath& catalogue, IFileAccessLocker& locker)
    : UndoJournal(catalogue, locker, Tavolin::DesktopTrash()) {}

UndoJournal::UndoJournal(const ioPath& catalogue, IFileAccessLocker& locker, const Tavolin::ITrash& trash)
    : impl_(std::make_unique<Impl>(catalogue, locker, trash)) {}

UndoJournal::~UndoJournal() = default;

const std::vector<std::string>& UndoJournal::RecoveryNotes() const {
  return impl_->notes;
}

UndoResult UndoJournal::Rename(const QString& name, const RenamePlan& plan,
                               const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  return impl_->Rename(name, plan, cancelled, progress);
}

TrashResult UndoJournal::MoveToTrash(const QString& name, const std::vector<TrashPhoto>& photos,
                                     const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  impl_->EndStep();
  return impl_->MoveToTrash(name, photos, cancelled, progress);
}

UndoResult UndoJournal::ChangeTags(const QString& name, const TagWishes& wishes) {
  impl_->EndStep();
  return impl_->ChangeTags(name, wishes);
}

std::vector<AcceptResult> UndoJournal::AcceptAlbums(const QString& name,
                                                    const std::vector<Album>& proposals) {
  impl_->EndStep();
  return impl_->AcceptAlbums(name, proposals);
}

ioPath UndoJournal::PlanEdit(const ioPath& photo) {
  return impl_->PlanEdit(photo);
}

ioPath UndoJournal::PlanSidecar(const ioPath& sidecar) {
  return impl_->PlanSidecar(sidecar);
}

void UndoJournal::FinishEdit() {
  impl_->FinishEdit();
}

void UndoJournal::DropEdit() {
  impl_->DropEdit();
}

void UndoJournal::BeginStep(const QString& name) {
  impl_->BeginStep(name);
}

void UndoJournal::EndStep() {
  impl_->EndStep();
}

bool UndoJournal::Undo() {
  const std::atomic<bool> never{false};
  const UndoResult result = UndoLast(never, nullptr);
  return result.files > 0;
}

bool UndoJournal::Redo() {
  const std::atomic<bool> never{false};
  return RedoLast(never, nullptr).files > 0;
}

void UndoJournal::RegisterFileChange(DataModel& item, const ioPath& newPath) {
  impl_->RegisterFileChange(item, newPath);
}

UndoResult UndoJournal::UndoLast(const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  impl_->EndStep();
  return impl_->Reverse(false, cancelled, progress);
}

std::vector<BlockedStep> UndoJournal::BlockedBy(const std::vector<ioPath>& files) const {
  return impl_->BlockedBy(files);
}

std::optional<SkippedStep> UndoJournal::SkipLast() {
  impl_->EndStep();
  return impl_->SkipLast();
}

UndoResult UndoJournal::RedoLast(const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  impl_->EndStep();
  return impl_->Reverse(true, cancelled, progress);
}

std::vector<UndoStep> UndoJournal::Steps() const {
  return impl_->Steps();
}

void UndoJournal::KeepOriginals(bool keep) {
  impl_->EndStep();
  impl_->KeepOriginals(keep);
}

void UndoJournal::KeepForRedo(bool keep) {
  impl_->KeepForRedo(keep);
}

std::size_t UndoJournal::Prune(const UndoLimits& limits) {
  return impl_->Prune(limits, nullptr);
}

std::size_t UndoJournal::Prune(const UndoLimits& limits, const std::vector<UndoStep>& announced) {
  return impl_->Prune(limits, &announced);
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
           database.Value("SELECT EXISTS (SELECT 1 FROM steps WHERE state IN (1, 3, 5))").toBool();
  } catch (const HostError&) {
    // Whoever needs it will say why it cannot be used.
    return false;
  }
}

}  // namespace Zenvora::Lumidex::Host
