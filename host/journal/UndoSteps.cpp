#include "UndoSteps.h"

#include "TightVolumes.h"

#include <host/base/HostError.h>
#include <host/catalogue/CatalogueSchema.h>
#include <host/catalogue/StepState.h>
#include <host/journal/JournalRoom.h>

#include <zenvora/core/FileState.h>

#include <QString>

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace Zenvora::Lumidex::Host {

namespace {

bool CountsDays(const CatalogueDatabase& database) {
  return database.Value("SELECT count(*) FROM pragma_table_info('steps') WHERE name = 'day'").toInt() > 0;
}

}  // namespace

std::vector<UndoStep> QuerySteps(const CatalogueDatabase& database, const std::vector<KindFacts>& kinds) {
  if (!HasJournal(database)) {
    return {};
  }
  std::map<qlonglong, std::uint64_t> keptBytes;
  std::set<StepType> workBeside;
  for (const KindFacts& kind : kinds) {
    if (kind.keptBytes != nullptr) {
      keptBytes.merge(kind.keptBytes(database));
    }
    if (kind.worksBeside) {
      workBeside.insert(kind.type);
    }
  }
  // A former version had neither.
  const bool isCurrent = CountsDays(database);
  const std::string age = isCurrent ? "(SELECT coalesce(max(d.count), 0) FROM days_of_use d) - s.day" : "0";
  const std::string sql = "SELECT s.number, s.name, s.begun, s.state, s.files, " + age +
                          (isCurrent ? ", s.kind" : ", 0") + " FROM steps s ORDER BY s.number DESC";
  QSqlQuery query = database.Run(sql.c_str(), {});
  std::vector<UndoStep> steps;
  while (database.Next(query)) {
    UndoStep step;
    step.number = query.value(0).toLongLong();
    step.name = query.value(1).toString();
    step.begun = QDateTime::fromString(query.value(2).toString(), Qt::ISODate);
    const auto state = static_cast<State>(query.value(3).toInt());
    step.stands = state == State::Done;
    step.undone = state == State::Undone;
    step.givenUp = state == State::GivenUp;
    step.files = static_cast<std::size_t>(query.value(4).toULongLong());
    step.daysOfUse = query.value(5).toLongLong();
    step.type = static_cast<StepType>(query.value(6).toInt());
    step.keptBytes = keptBytes[step.number];
    step.underWay = IsUnderWay(state) && workBeside.count(step.type) > 0;
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

JournalRoom PlanRoom(const ioPath& catalogue, const std::vector<ioPath>& files, std::vector<UndoStep> steps,
                     const UndoLimits& limits) {
  JournalRoom room;
  room.limit = limits.bytes;
  for (const ioPath& file : files) {
    room.needed += QueryFile(file).size;
  }
  room.total = room.needed;
  room.tight = FindTightVolumes(catalogue, files);
  // What was undone goes when something new is done.
  steps.erase(std::remove_if(steps.begin(), steps.end(), [](const UndoStep& step) { return step.undone; }),
              steps.end());
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

std::vector<UndoStep> StepsToForget(const std::vector<UndoStep>& steps, const UndoLimits& limits) {
  std::vector<UndoStep> beyond = StepsBeyond(steps, limits, 0);
  beyond.erase(std::remove_if(beyond.begin(), beyond.end(),
                              [](const UndoStep& step) { return step.givenUp || step.underWay; }),
               beyond.end());
  return beyond;
}

std::vector<UndoStep> ReadUndoSteps(const ioPath& catalogue, const std::vector<KindFacts>& kinds) {
  if (QueryFile(catalogue).kind == FileState::Kind::Missing) {
    return {};
  }
  const auto database = OpenAsItIs(catalogue);
  RequireKnownVersion(*database);
  return QuerySteps(*database, kinds);
}

}  // namespace Zenvora::Lumidex::Host
