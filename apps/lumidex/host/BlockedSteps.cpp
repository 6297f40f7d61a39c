#include "BlockedSteps.h"

#include "CatalogueRows.h"
#include "FileMoves.h"
#include "StepState.h"
#include "UndoSteps.h"

#include <limits>
#include <set>
#include <string>

namespace Zenvora::Lumidex::Host {

namespace {

using Paths = std::set<std::string>;

/// What a step did to files, by their paths.
struct Traces {
  Paths changed;  ///< Other bytes.
  Paths gone;     ///< Renamed, or in the trash.
  Paths taken;    ///< Names that it gave.
};

Paths PathsOf(const CatalogueDatabase& database, const char* sql, qlonglong step) {
  QSqlQuery query = database.Prepare(sql);
  query.addBindValue(step);
  database.Run(query);
  Paths paths;
  while (database.Next(query)) {
    paths.insert(PathOf(query.value(0)).utf8string());
  }
  return paths;
}

Traces TracesOf(const CatalogueDatabase& database, qlonglong step) {
  Traces traces;
  traces.changed =
      PathsOf(database, "SELECT path FROM changes WHERE step = ? AND state = 2 AND adopted = 0", step);
  traces.gone = PathsOf(database, "SELECT path FROM trashed WHERE step = ? AND state = 2", step);
  QSqlQuery query = database.Prepare("SELECT moves FROM steps WHERE number = ? AND moves IS NOT NULL");
  query.addBindValue(step);
  database.Run(query);
  while (database.Next(query)) {
    for (const FileMove& move : UnpackMoves(query.value(0).toByteArray())) {
      traces.gone.insert(move.from.utf8string());
      traces.taken.insert(move.to.utf8string());
    }
  }
  return traces;
}

void AddShared(const Paths& left, const Paths& right, Paths& shared) {
  for (const std::string& path : left) {
    if (right.count(path) > 0) {
      shared.insert(path);
    }
  }
}

/// The files of `older` that stand in another way than it left them.
Paths FilesInTheWay(const CatalogueDatabase& database, qlonglong older, const Traces& newer) {
  const Traces traces = TracesOf(database, older);
  const Paths copies = PathsOf(database, "SELECT path FROM imported WHERE step = ?", older);
  Paths files;
  AddShared(traces.changed, newer.changed, files);
  AddShared(traces.changed, newer.gone, files);
  AddShared(copies, newer.changed, files);
  AddShared(copies, newer.gone, files);
  // What has its name from the older step, and then got another one or went.
  AddShared(traces.taken, newer.gone, files);
  // What comes back to a name that was given away since.
  AddShared(traces.gone, newer.taken, files);
  return files;
}

std::vector<BlockedStep> OlderThan(const CatalogueDatabase& database, qlonglong number, const Traces& newer) {
  const std::string older =
      "s.state = 2 AND s.number < " + std::to_string(number) + " ORDER BY s.number DESC";
  std::vector<BlockedStep> blocked;
  for (UndoStep& step : QuerySteps(database, older.c_str())) {
    BlockedStep entry;
    for (const std::string& file : FilesInTheWay(database, step.number, newer)) {
      entry.files.emplace_back(file);
    }
    if (!entry.files.empty()) {
      entry.step = std::move(step);
      blocked.push_back(std::move(entry));
    }
  }
  return blocked;
}

}  // namespace

std::vector<BlockedStep> StepsBlockedBy(const CatalogueDatabase& database, qlonglong step) {
  return OlderThan(database, step, TracesOf(database, step));
}

std::vector<BlockedStep> StepsBlockedBy(const CatalogueDatabase& database, const std::vector<ioPath>& files) {
  Traces traces;
  for (const ioPath& file : files) {
    traces.changed.insert(file.utf8string());
  }
  return OlderThan(database, std::numeric_limits<qlonglong>::max(), traces);
}

}  // namespace Zenvora::Lumidex::Host
