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
    folder_.SetNeeded(
        database_.Value("SELECT EXISTS (SELECT 1 FROM steps WHERE state <> ?)", {Stored(State::GivenUp)})
            .toBool());
  } catch (const std::exception&) {
    // Then it stays as it was.
  }
}

// --- The table

qlonglong Journal::Begin(StepType type, const QString& name, std::size_t files, const QByteArray& moves) {
  // Empty where the clock is beyond what can be written.
  const QString begun = NotNull(App::GetCurrentDateTime().toUTC().toString(Qt::ISODate));
  return database_
      .Run(
          "INSERT INTO steps (kind, name, begun, state, files, moves, day)"
          " VALUES (?, ?, ?, ?, ?, ?, (SELECT coalesce(max(count), 0) FROM days_of_use))",
          {static_cast<int>(type), NotNull(name), begun, Stored(State::Doing), static_cast<qlonglong>(files),
           moves.isNull() ? QVariant(QVariant::ByteArray) : QVariant(moves)})
      .lastInsertId()
      .toLongLong();
}

std::vector<StepRow> Journal::ReadSteps(const char* condition, std::initializer_list<QVariant> values) const {
  const std::string sql =
      std::string("SELECT number, kind, name, state, moves FROM steps WHERE ") + condition;
  QSqlQuery query = database_.Run(sql.c_str(), values);
  std::vector<StepRow> steps;
  while (database_.Next(query)) {
    steps.push_back({query.value(0).toLongLong(), static_cast<StepType>(query.value(1).toInt()),
                     query.value(2).toString(), static_cast<State>(query.value(3).toInt()),
                     query.value(4).toByteArray()});
  }
  return steps;
}

void Journal::SetState(qlonglong step, State state) const {
  database_.Run("UPDATE steps SET state = ? WHERE number = ?", {static_cast<int>(state), step});
}

QByteArray Journal::Moves(qlonglong step) const {
  QSqlQuery query = database_.Run("SELECT moves FROM steps WHERE number = ?", {step});
  return database_.Next(query) ? query.value(0).toByteArray() : QByteArray();
}

void Journal::SetMoves(qlonglong step, const QByteArray& moves) const {
  database_.Run("UPDATE steps SET moves = ? WHERE number = ?", {moves, step});
}

void Journal::SetFiles(qlonglong step, std::size_t files) const {
  database_.Run("UPDATE steps SET files = ? WHERE number = ?", {static_cast<qlonglong>(files), step});
}

void Journal::Close(qlonglong step, std::size_t files, State state) const {
  database_.Run("UPDATE steps SET state = ?, files = ? WHERE number = ?",
                {static_cast<int>(state), static_cast<qlonglong>(files), step});
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
  database_.Run("DELETE FROM steps WHERE number = ?", {step});
  // Only now: a row must never speak of what is gone.
  for (const std::string& name : kept) {
    kept_.Remove(name);
  }
}

void Journal::DropUndone() const {
  for (const StepRow& step : ReadSteps("state = ?", {Stored(State::Undone)})) {
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
  const auto kind = std::find_if(kinds_.begin(), kinds_.end(),
                                 [type](const StepKind* one) { return one->Facts().type == type; });
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
  std::vector<StepRow> steps =
      redo ? ReadSteps(
                 "state = ? AND number > (SELECT coalesce(max(number), 0) FROM steps WHERE state = ?)"
                 " ORDER BY number LIMIT 1",
                 {Stored(State::Undone), Stored(State::Done)})
           : ReadSteps("state = ? ORDER BY number DESC LIMIT 1", {Stored(State::Done)});
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
  const std::vector<UndoStep> steps = Steps();
  const auto last = std::find_if(steps.begin(), steps.end(), [](const UndoStep& one) { return one.stands; });
  if (last == steps.end()) {
    return std::nullopt;
  }
  SkippedStep step;
  static_cast<UndoStep&>(step) = *last;
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
  std::vector<BlockedStep> blocked;
  for (UndoStep& step : Steps()) {
    if (!step.stands || step.number >= before) {
      continue;
    }
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
  std::vector<KindFacts> kinds;
  for (const StepKind* const kind : kinds_) {
    kinds.push_back(kind->Facts());
  }
  return QuerySteps(database_, kinds);
}

std::size_t Journal::Prune(const UndoLimits& limits, const std::vector<UndoStep>* announced) {
  std::size_t dropped = 0;
  for (const UndoStep& step : StepsBeyond(Steps(), limits, 0)) {
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
  for (StepRow& step : ReadSteps("state IN (?, ?, ?) ORDER BY number",
                                 {Stored(State::Doing), Stored(State::Undoing), Stored(State::Redoing)})) {
    if (StepKind* const kind = KindOf(step.type)) {
      kind->Recover(step);
    }
  }
  // A step that went on beside the journal is done: what was undone before cannot be redone any more.
  for (const StepRow& step :
       ReadSteps("state = ? AND number < (SELECT coalesce(max(number), 0) FROM steps WHERE state = ?)",
                 {Stored(State::Undone), Stored(State::Done)})) {
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
