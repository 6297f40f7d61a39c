#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/StepState.h>
#include <host/import/ImportRows.h>

#include <zenvora/app/Application.h>

#include <QString>

namespace Zenvora::Lumidex::Host {

namespace {

/// As the journal has it, in English.
QString StepName(std::size_t files, const ioPath& folder) {
  return QStringLiteral("import %1 %2 to %3")
      .arg(files)
      .arg(files == 1 ? QStringLiteral("file") : QStringLiteral("files"), folder.qstring());
}

void DeleteStep(const CatalogueDatabase& database, qlonglong step) {
  QSqlQuery query = database.Prepare("DELETE FROM steps WHERE number = ?");
  query.addBindValue(step);
  database.Run(query);
}

}  // namespace

std::uint64_t BytesToUndo(const ioPath& source, const ioPath& target) {
  constexpr std::uint64_t kNumbersAndFolderOfTrash = 512;
  // Long rows leave the pages of the table half empty.
  return 2 * (kNumbersAndFolderOfTrash + source.utf8string().size() + 3 * target.utf8string().size());
}

qlonglong ImportRows::Note(qlonglong step, const ioPath& folder,
                           const std::vector<ImportedCopy>& copies) const {
  WriteTransaction transaction(database_);
  if (step == 0) {
    QSqlQuery query = database_.Prepare(
        "INSERT INTO steps (kind, name, begun, state, files, day)"
        " VALUES (?, ?, ?, ?, 0, (SELECT coalesce(max(count), 0) FROM days_of_use))");
    query.addBindValue(static_cast<int>(StepType::Import));
    query.addBindValue(StepName(copies.size(), folder));
    // Empty where the clock is beyond what can be written.
    query.addBindValue(NotNull(App::GetCurrentDateTime().toUTC().toString(Qt::ISODate)));
    query.addBindValue(static_cast<int>(State::Doing));
    database_.Run(query);
    step = query.lastInsertId().toLongLong();
  }
  {
    QSqlQuery query = database_.Prepare(
        "INSERT INTO imported (step, path, source, size, modified_ns, digest) VALUES (?, ?, ?, ?, ?, ?)");
    for (const ImportedCopy& copy : copies) {
      query.addBindValue(step);
      query.addBindValue(PathBytes(copy.path));
      query.addBindValue(PathBytes(copy.source));
      query.addBindValue(static_cast<qlonglong>(copy.size));
      query.addBindValue(static_cast<qlonglong>(copy.modifiedNs));
      query.addBindValue(QByteArray::fromHex(QByteArray::fromStdString(copy.sha256)));
      database_.Run(query);
    }
  }
  transaction.Commit();
  return step;
}

void ImportRows::Drop(qlonglong step, const ioPath& path) const {
  QSqlQuery query = database_.Prepare("DELETE FROM imported WHERE step = ? AND path = ?");
  query.addBindValue(step);
  query.addBindValue(PathBytes(path));
  database_.Run(query);
}

std::size_t ImportRows::Close(qlonglong step) const {
  const std::vector<ImportedCopy> copies = Copies(step);
  if (copies.empty()) {
    DeleteStep(database_, step);
    return 0;
  }
  QSqlQuery query = database_.Prepare("UPDATE steps SET state = ?, files = ?, name = ? WHERE number = ?");
  query.addBindValue(static_cast<int>(State::Done));
  query.addBindValue(static_cast<qlonglong>(copies.size()));
  query.addBindValue(StepName(copies.size(), copies.front().path.parent_path()));
  query.addBindValue(step);
  database_.Run(query);
  return copies.size();
}

std::vector<ImportedCopy> ImportRows::Copies(qlonglong step) const {
  QSqlQuery query = database_.Prepare(
      "SELECT path, source, size, modified_ns, digest FROM imported WHERE step = ? ORDER BY number");
  query.addBindValue(step);
  database_.Run(query);
  std::vector<ImportedCopy> copies;
  while (database_.Next(query)) {
    copies.push_back({PathOf(query.value(0)), PathOf(query.value(1)),
                      static_cast<std::uint64_t>(query.value(2).toLongLong()), query.value(3).toLongLong(),
                      query.value(4).toByteArray().toHex().toStdString()});
  }
  return copies;
}

}  // namespace Zenvora::Lumidex::Host
