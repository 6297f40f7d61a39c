#include <host/catalogue/CatalogueRows.h>
#include <host/edit/EditChanges.h>

#include <zenvora/tavolin/Uuid.h>

#include <utility>

namespace Zenvora::Lumidex::Host {

ioPath StagingName(const ioPath& photo) {
  const std::string token = Tavolin::GenerateUuid().left(13).toStdString();
  return photo.parent_path() / ioPath(".lumidex-" + token + photo.extension().utf8string());
}

namespace {

std::vector<ChangeRow> ReadRows(const CatalogueDatabase& database, QSqlQuery query) {
  database.Run(query);
  std::vector<ChangeRow> changes;
  while (database.Next(query)) {
    ChangeRow change;
    change.number = query.value(0).toLongLong();
    change.state = static_cast<State>(query.value(1).toInt());
    change.path = PathOf(query.value(2));
    change.staging = PathOf(query.value(3));
    change.adopted = query.value(4).toBool();
    change.digestBefore = query.value(5).toByteArray();
    change.digestAfter = query.value(6).toByteArray();
    change.goesWith = query.value(7).toLongLong();
    if (!query.value(8).isNull()) {
      change.keptEnding = query.value(8).toString().toStdString();
    }
    changes.push_back(std::move(change));
  }
  return changes;
}

}  // namespace

std::vector<ChangeRow> ReadChanges(const CatalogueDatabase& database, qlonglong step) {
  QSqlQuery query = database.Prepare(
      "SELECT number, state, path, side, adopted, digest_before, digest_after, goes_with, kept_ending"
      " FROM changes WHERE step = ? ORDER BY number");
  query.addBindValue(step);
  return ReadRows(database, query);
}

std::vector<ChangeRow> ReadAllChanges(const CatalogueDatabase& database) {
  return ReadRows(database,
                  database.Prepare("SELECT number, state, path, side, adopted, digest_before, digest_after,"
                                   " goes_with, kept_ending FROM changes"));
}

std::map<qlonglong, std::uint64_t> KeptBytesOfEdits(const CatalogueDatabase& database) {
  QSqlQuery query = database.Run("SELECT step, sum(kept_size) FROM changes GROUP BY step", {});
  std::map<qlonglong, std::uint64_t> bytes;
  while (database.Next(query)) {
    bytes[query.value(0).toLongLong()] = query.value(1).toULongLong();
  }
  return bytes;
}

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

void SetChangeState(const CatalogueDatabase& database, qlonglong change, State state) {
  database.Run("UPDATE changes SET state = ? WHERE number = ?", {static_cast<int>(state), change});
}

void StoreChange(const CatalogueDatabase& database, const ChangeRow& change, std::uint64_t keptSize) {
  database.Run(
      "UPDATE changes SET state = ?, side = ?, adopted = ?, kept_size = ?, digest_before = ?, digest_after = "
      "?"
      " WHERE number = ?",
      {static_cast<int>(change.state), PathBytes(change.staging), change.adopted ? 1 : 0,
       static_cast<qlonglong>(keptSize), change.digestBefore, change.digestAfter, change.number});
}

}  // namespace Zenvora::Lumidex::Host
