#include "UndoSteps.h"

#include "TightVolumes.h"

#include <host/base/HostError.h>
#include <host/catalogue/CatalogueSchema.h>
#include <host/catalogue/StepState.h>

#include <zenvora/core/FileState.h>

#include <QString>

#include <string>

namespace Zenvora::Lumidex::Host {

namespace {

bool CountsDays(const CatalogueDatabase& database) {
  return database.Value("SELECT count(*) FROM pragma_table_info('steps') WHERE name = 'day'").toInt() > 0;
}

std::unique_ptr<CatalogueDatabase> OpenToLookAt(const ioPath& catalogue) {
  if (QueryFile(catalogue).kind == FileState::Kind::Missing) {
    return nullptr;
  }
  auto database = OpenAsItIs(catalogue);
  RequireKnownVersion(*database);
  return database;
}

}  // namespace

std::vector<UndoStep> QuerySteps(const CatalogueDatabase& database, const char* condition) {
  if (!HasJournal(database)) {
    return {};
  }
  // A former version had neither.
  const bool isCurrent = CountsDays(database);
  const std::string age = isCurrent ? "(SELECT coalesce(max(d.count), 0) FROM days_of_use d) - s.day" : "0";
  const std::string sql =
      "SELECT s.number, s.name, s.begun, s.state, s.files,"
      " (SELECT total(c.kept_size) FROM changes c WHERE c.step = s.number), " +
      age + (isCurrent ? ", s.kind" : ", 0") + " FROM steps s WHERE " + condition;
  QSqlQuery query = database.Prepare(sql.c_str());
  database.Run(query);
  std::vector<UndoStep> steps;
  while (database.Next(query)) {
    UndoStep step;
    step.number = query.value(0).toLongLong();
    step.name = query.value(1).toString();
    step.begun = QDateTime::fromString(query.value(2).toString(), Qt::ISODate);
    const auto state = static_cast<State>(query.value(3).toInt());
    step.undone = state == State::Undone;
    step.givenUp = state == State::GivenUp;
    step.files = static_cast<std::size_t>(query.value(4).toULongLong());
    step.keptBytes = static_cast<std::uint64_t>(query.value(5).toDouble());
    step.daysOfUse = query.value(6).toLongLong();
    step.type = static_cast<StepType>(query.value(7).toInt());
    step.underWay = step.type == StepType::Import && IsUnderWay(state);
    steps.push_back(std::move(step));
  }
  return steps;
}

std::vector<UndoStep> StepsBeyond(const std::vector<UndoStep>& steps, const UndoLimits& limits,
                                  std::uint64_t needed) {
  std::vector<UndoStep> beyond;
  std::uint64_t bytes = needed;
  bool isFull = false;
  for (const UndoStep& step : steps) {
    if (!step.givenUp) {
      isFull = isFull || IsTooOld(step, limits) || bytes + step.keptBytes > limits.bytes;
      isFull ? beyond.push_back(step) : void(bytes += step.keptBytes);
    }
  }
  isFull = !beyond.empty();
  for (const UndoStep& step : steps) {
    if (step.givenUp) {
      isFull = isFull || IsTooOld(step, limits) || bytes + step.keptBytes > limits.bytes;
      isFull ? beyond.push_back(step) : void(bytes += step.keptBytes);
    }
  }
  return beyond;
}

JournalRoom PlanRoom(const ioPath& catalogue, const std::vector<ioPath>& files, const UndoLimits& limits) {
  JournalRoom room;
  room.limit = limits.bytes;
  for (const ioPath& file : files) {
    room.needed += QueryFile(file).size;
  }
  room.total = room.needed;
  room.tight = FindTightVolumes(catalogue, files);
  const auto database = OpenToLookAt(catalogue);
  if (!database) {
    return room;
  }
  // What was undone goes when something new is done.
  const std::vector<UndoStep> steps = QuerySteps(*database, "s.state <> 4 ORDER BY s.number DESC");
  for (const UndoStep& step : steps) {
    room.total += step.givenUp || IsTooOld(step, limits) ? 0 : step.keptBytes;
  }
  for (UndoStep& step : StepsBeyond(steps, limits, room.needed)) {
    if (!step.givenUp && !IsTooOld(step, limits)) {
      room.forgotten.push_back(std::move(step));
    }
  }
  return room;
}

std::vector<UndoStep> ReadUndoSteps(const ioPath& catalogue) {
  const auto database = OpenToLookAt(catalogue);
  return database ? QuerySteps(*database) : std::vector<UndoStep>();
}

}  // namespace Zenvora::Lumidex::Host
