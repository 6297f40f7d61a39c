#include "UndoSteps.h"

#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/CatalogueSchema.h>
#include <host/catalogue/DaysOfUse.h>
#include <host/journal/Journal.h>

#include <zenvora/app/Application.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <set>

namespace Zenvora::Lumidex::Host {

namespace {

void AddShared(const std::set<std::string>& left, const std::set<std::string>& right,
               std::set<std::string>& shared) {
  std::set_intersection(left.begin(), left.end(), right.begin(), right.end(),
                        std::inserter(shared, shared.end()));
}

/// The files of an older step that stand in another way than it left them.
std::set<std::string> FilesInTheWay(const StepTraces& older, const StepTraces& newer) {
  std::set<std::string> files;
  AddShared(older.changed, newer.changed, files);
  AddShared(older.changed, newer.gone, files);
  AddShared(older.made, newer.changed, files);
  AddShared(older.made, newer.gone, files);
  // What has its name from the older step, and then got another one or went.
  AddShared(older.taken, newer.gone, files);
  // What comes back to a name that was given away since.
  AddShared(older.gone, newer.taken, files);
  return files;
}

}  // namespace

Journal::Journal(const ioPath& catalogue)
    : folder_(catalogue.absolute()),
      // Makes or updates it.
      catalogue_(catalogue, Catalogue::Mode::ReadWrite),
      database_(catalogue, CatalogueDatabase::Access::ReadWrite, Catalogue::kBusyTimeoutMs),
      kept_(folder_.Path()) {
  // What the journal says must be on the disk before the photos change.
  database_.Execute("PRAGMA synchronous = FULL");
  // The log must not need more room than is held for it.
  database_.Execute("PRAGMA wal_autocheckpoint = 64");
  folder_.Open();
}

Journal::~Journal() {
  try {
    folder_.SetNeeded(database_.Value("SELECT EXISTS (SELECT 1 FROM steps WHERE state <> 6)").toBool());
  } catch (const std::exception&) {
    // Then it stays as it was.
  }
}

// --- The table

qlonglong Journal::Begin(StepType type, const QString& name, std::size_t files, const QByteArray& moves) {
  QSqlQuery query = database_.Prepare(
      "INSERT INTO steps (kind, name, begun, state, files, moves, day)"
      " VALUES (?, ?, ?, ?, ?, ?, (SELECT coalesce(max(count), 0) FROM days_of_use))");
  query.addBindValue(static_cast<int>(type));
  query.addBindValue(NotNull(name));
  // Empty where the clock is beyond what can be written.
  query.addBindValue(NotNull(App::GetCurrentDateTime().toUTC().toString(Qt::ISODate)));
  query.addBindValue(static_cast<int>(State::Doing));
  query.addBindValue(static_cast<qlonglong>(files));
  query.addBindValue(moves.isNull() ? QVariant(QVariant::ByteArray) : QVariant(moves));
  database_.Run(query);
  return query.lastInsertId().toLongLong();
}

std::vector<StepRow> Journal::ReadSteps(const char* condition) const {
  const std::string sql =
      std::string("SELECT number, kind, name, state, moves FROM steps WHERE ") + condition;
  QSqlQuery query = database_.Prepare(sql.c_str());
  database_.Run(query);
  std::vector<StepRow> steps;
  while (database_.Next(query)) {
    steps.push_back({query.value(0).toLongLong(), static_cast<StepType>(query.value(1).toInt()),
                     query.value(2).toString(), static_cast<State>(query.value(3).toInt()),
                     query.value(4).toByteArray()});
  }
  return steps;
}

void Journal::SetState(qlonglong step, State state) const {
  QSqlQuery query = database_.Prepare("UPDATE steps SET state = ? WHERE number = ?");
  query.addBindValue(static_cast<int>(state));
  query.addBindValue(step);
  database_.Run(query);
}

QByteArray Journal::Moves(qlonglong step) const {
  QSqlQuery query = database_.Prepare("SELECT moves FROM steps WHERE number = ?");
  query.addBindValue(step);
  database_.Run(query);
  return database_.Next(query) ? query.value(0).toByteArray() : QByteArray();
}

void Journal::SetMoves(qlonglong step, const QByteArray& moves) const {
  QSqlQuery query = database_.Prepare("UPDATE steps SET moves = ? WHERE number = ?");
  query.addBindValue(moves);
  query.addBindValue(step);
  database_.Run(query);
}

void Journal::SetFiles(qlonglong step, std::size_t files) const {
  QSqlQuery query = database_.Prepare("UPDATE steps SET files = ? WHERE number = ?");
  query.addBindValue(static_cast<qlonglong>(files));
  query.addBindValue(step);
  database_.Run(query);
}

void Journal::Close(qlonglong step, std::size_t files, State state) const {
  QSqlQuery query = database_.Prepare("UPDATE steps SET state = ?, files = ? WHERE number = ?");
  query.addBindValue(static_cast<int>(state));
  query.addBindValue(static_cast<qlonglong>(files));
  query.addBindValue(step);
  database_.Run(query);
}

void Journal::EndReversal(qlonglong step, State state, UndoResult& result) const {
  try {
    SetState(step, state);
  } catch (const HostError& failure) {
    result.findings.push_back({database_.File(), std::string(failure.what()) + kNotedLater});
  }
}

void Journal::Drop(qlonglong step) const {
  std::vector<std::string> kept;
  for (const StepKind* const kind : kinds_) {
    const std::vector<std::string> names = kind->KeptNames(step);
    kept.insert(kept.end(), names.begin(), names.end());
  }
  QSqlQuery query = database_.Prepare("DELETE FROM steps WHERE number = ?");
  query.addBindValue(step);
  database_.Run(query);
  // Only now: a row must never speak of what is gone.
  for (const std::string& name : kept) {
    kept_.Remove(name);
  }
}

void Journal::DropUndone() const {
  for (const StepRow& step : ReadSteps("state = 4")) {
    Drop(step.number);
  }
}

// --- Room

void Journal::HoldRoom(std::uint64_t more) {
  fault_.clear();
  folder_.Hold(more);
}

void Journal::RequireRoom() const {
  if (!fault_.empty()) {
    ThrowHostError(database_.File().utf8string(), fault_);
  }
}

// --- Back and again

StepKind* Journal::KindOf(StepType type) const {
  const auto kind =
      std::find_if(kinds_.begin(), kinds_.end(), [type](const StepKind* one) { return one->Type() == type; });
  return kind == kinds_.end() ? nullptr : *kind;
}

StepKind& Journal::RequireKind(const StepRow& step) const {
  StepKind* const kind = KindOf(step.type);
  if (kind == nullptr) {
    ThrowHostError(database_.File().utf8string(),
                   "The journal of " + database_.File().utf8string() + " holds a step of an unknown kind");
  }
  return *kind;
}

UndoResult Journal::Reverse(bool redo, bool keepsForRedo, const std::atomic<bool>& cancelled,
                            const UndoProgress& progress) {
  std::vector<StepRow> steps = ReadSteps(redo ? "state = 4 AND number > (SELECT coalesce(max(number), 0) "
                                                "FROM steps WHERE state = 2) ORDER BY number LIMIT 1"
                                              : "state = 2 ORDER BY number DESC LIMIT 1");
  if (steps.empty()) {
    return {};
  }
  if (!redo && !keepsForRedo) {
    // What could be redone gives its room.
    DropUndone();
  }
  StepRow& step = steps.front();
  UndoResult result = RequireKind(step).Reverse(step, redo, cancelled, progress);
  result.type = step.type;
  return result;
}

std::optional<SkippedStep> Journal::SkipLast() {
  const std::vector<UndoStep> steps = QuerySteps(database_, "s.state = 2 ORDER BY s.number DESC LIMIT 1");
  if (steps.empty()) {
    return std::nullopt;
  }
  SkippedStep step;
  static_cast<UndoStep&>(step) = steps.front();
  step.blocked = StepsInTheWay(step.number, TracesOf(step));
  if (StepKind* const kind = KindOf(step.type)) {
    if (const auto held = kind->WhyHeld(step.number)) {
      ThrowHostError(held->file.utf8string(), held->cause);
    }
    kind->GiveUp(step.number);
  }
  SetState(step.number, State::GivenUp);
  step.givenUp = true;
  return step;
}

StepTraces Journal::TracesOf(const UndoStep& step) const {
  StepTraces traces;
  if (const StepKind* const kind = KindOf(step.type)) {
    kind->AddTraces(step.number, traces);
  }
  return traces;
}

std::vector<BlockedStep> Journal::StepsInTheWay(std::int64_t before, const StepTraces& newer) const {
  const std::string older =
      "s.state = 2 AND s.number < " + std::to_string(before) + " ORDER BY s.number DESC";
  std::vector<BlockedStep> blocked;
  for (UndoStep& step : QuerySteps(database_, older.c_str())) {
    BlockedStep entry;
    for (const std::string& file : FilesInTheWay(TracesOf(step), newer)) {
      entry.files.emplace_back(file);
    }
    if (!entry.files.empty()) {
      entry.step = std::move(step);
      blocked.push_back(std::move(entry));
    }
  }
  return blocked;
}

std::vector<BlockedStep> Journal::BlockedBy(const std::vector<ioPath>& files) const {
  StepTraces traces;
  for (const ioPath& file : files) {
    traces.changed.insert(file.utf8string());
  }
  return StepsInTheWay(std::numeric_limits<std::int64_t>::max(), traces);
}

std::vector<UndoStep> Journal::Steps() const {
  return QuerySteps(database_);
}

std::size_t Journal::Prune(const UndoLimits& limits, const std::vector<UndoStep>* announced) {
  std::size_t dropped = 0;
  for (const UndoStep& step : StepsBeyond(QuerySteps(database_), limits, 0)) {
    const auto isIt = [&step](const UndoStep& other) { return other.number == step.number; };
    const bool mayGo = announced == nullptr || step.givenUp || IsTooOld(step, limits) ||
                       std::any_of(announced->begin(), announced->end(), isIt);
    const StepKind* const kind = KindOf(step.type);
    const bool isHeld = step.underWay || (kind != nullptr && kind->WhyHeld(step.number));
    if (mayGo && !isHeld) {
      Drop(step.number);
      dropped += step.givenUp ? 0 : 1;
    }
  }
  return dropped;
}

// --- Recovery

void Journal::Recover() {
  for (StepRow& step : ReadSteps("state IN (1, 3, 5) ORDER BY number")) {
    if (StepKind* const kind = KindOf(step.type)) {
      kind->Recover(step);
    }
  }
  // Done while an import went on beside it: what was undone before cannot be redone any more.
  for (const StepRow& step :
       ReadSteps("state = 4 AND number < (SELECT coalesce(max(number), 0) FROM steps WHERE state = 2)")) {
    Drop(step.number);
  }
  for (StepKind* const kind : kinds_) {
    kind->TidyUp();
  }
  CountDayOfUse(database_);
}

void Journal::NoteReversal(const StepRow& step, const UndoResult& result, bool namesFiles) {
  const std::size_t left = result.findings.size();
  const std::string note =
      (step.state == State::Redoing ? "Interrupted redo of \"" : "Interrupted undo of \"") +
      step.name.toStdString() + "\" is now complete";
  Note(left == 0 ? note + '.' : note + ", except for:");
  for (const FileFinding& finding : result.findings) {
    Note(namesFiles ? finding.file.utf8string() + ": " + finding.cause : finding.cause + ".");
  }
}

}  // namespace Zenvora::Lumidex::Host
