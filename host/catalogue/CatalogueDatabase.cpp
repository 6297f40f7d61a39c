#include "SystemCatalogue.h"

#include <host/base/HostError.h>
#include <host/catalogue/CatalogueDatabase.h>

#include <QSqlError>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

// SQLite's primary result codes (the low byte of its extended ones).
enum SqliteCode : int {
  kBusy = 5,
  kLocked = 6,
  kReadOnly = 8,
  kInputOutput = 10,
  kCorrupt = CatalogueDatabase::kCorrupt,
  kFull = 13,
  kCannotOpen = 14,
  kNoDatabase = 26,
};

constexpr int kPrimaryMask = 0xFF;

QString NewConnectionName() {
  static std::atomic<unsigned> count{0};
  return QStringLiteral("lumidex-catalogue-%1").arg(++count);
}

const char* UriQuery(CatalogueDatabase::Access access) {
  switch (access) {
    case CatalogueDatabase::Access::ReadWrite:
      return "mode=rwc";
    case CatalogueDatabase::Access::QueryOnly:
      // Not "ro": such a connection cannot tidy away the files that it makes beside the catalogue.
      return "mode=rw";
    case CatalogueDatabase::Access::ReadOnly:
      return "mode=ro";
    case CatalogueDatabase::Access::Frozen:
      return "mode=ro&immutable=1";
  }
  return "mode=ro";
}

int CodeOf(const QSqlError& error) {
  return error.nativeErrorCode().toInt();
}

/// SQLite calls it an error of the disk when a file beside the catalogue cannot grow: the index of its log
/// grows by 32 KiB at a time.
bool IsFullDisk(int code, const ioPath& folder) {
  constexpr std::uintmax_t kLeastRoom = std::uintmax_t{64} * 1024;
  std::error_code error;
  return (code & kPrimaryMask) == kInputOutput &&
         std::filesystem::space(folder.for_system(), error).available < kLeastRoom && !error;
}

}  // namespace

void ThrowCatalogueError(const ioPath& file, const std::string& cause) {
  const std::string name = file.utf8string();
  ThrowHostError(name, "The catalogue " + name + " cannot be used: " + cause + ".");
}

std::string CauseOfSqliteCode(int code, const std::string& sqliteText, int busyTimeoutMs) {
  switch (code & kPrimaryMask) {
    case kBusy:
    case kLocked:
      return "another program has been writing to it for more than " + std::to_string(busyTimeoutMs / 1000) +
             " seconds";
    case kReadOnly:
      return "it is write-protected";
    case kInputOutput:
      return "its disk failed to read or write (" + sqliteText + ")";
    case kCorrupt:
      return "it is damaged (" + sqliteText + ")";
    case kFull:
      return "the disk is full";
    case kCannotOpen:
      return "it or a file beside it cannot be opened (" + sqliteText + ")";
    case kNoDatabase:
      return "it is not a catalogue (" + sqliteText + ")";
    default:
      return sqliteText;
  }
}

QString SqliteUri(const ioPath& absoluteFile, const char* query) {
  const QByteArray encoded = QByteArray::fromStdString(UriPath(absoluteFile)).toPercentEncoding("/");
  return QStringLiteral("file://") + QString::fromLatin1(encoded) + QLatin1Char('?') + QLatin1String(query);
}

CatalogueDatabase::CatalogueDatabase(const ioPath& file, Access access, int busyTimeoutMs,
                                     const ioPath& shownAs)
    : file_(shownAs.empty() ? file : shownAs),
      folder_(file.absolute().parent_path()),
      busyTimeoutMs_(busyTimeoutMs),
      connection_(NewConnectionName()) {
  database_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_);
  database_.setDatabaseName(SqliteUri(file.absolute(), UriQuery(access)));
  database_.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1").arg(busyTimeoutMs));
  try {
    if (!database_.open()) {
      Fail(database_.lastError());
    }
    Execute("PRAGMA foreign_keys = ON");
    Execute(access == Access::ReadWrite ? "PRAGMA synchronous = NORMAL" : "PRAGMA query_only = ON");
  } catch (...) {
    database_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection_);
    throw;
  }
}

CatalogueDatabase::~CatalogueDatabase() {
  database_.close();
  database_ = QSqlDatabase();
  QSqlDatabase::removeDatabase(connection_);
}

void CatalogueDatabase::Execute(const char* sql) const {
  QSqlQuery query(database_);
  if (!query.exec(QLatin1String(sql))) {
    Fail(query.lastError());
  }
}

bool CatalogueDatabase::TryExecute(const char* sql, int& code) const {
  QSqlQuery query(database_);
  const bool done = query.exec(QLatin1String(sql));
  code = done ? 0 : CodeOf(query.lastError());
  return done;
}

QVariant CatalogueDatabase::Value(const char* sql, std::initializer_list<QVariant> values) const {
  QSqlQuery query = Run(sql, values);
  return Next(query) ? query.value(0) : QVariant();
}

qlonglong CatalogueDatabase::StateOfOthers() const {
  return Value("PRAGMA data_version").toLongLong();
}

QSqlQuery CatalogueDatabase::Prepare(const char* sql) const {
  QSqlQuery query(database_);
  query.setForwardOnly(true);
  if (!query.prepare(QLatin1String(sql))) {
    Fail(query.lastError());
  }
  return query;
}

void CatalogueDatabase::Run(QSqlQuery& query) const {
  if (!query.exec()) {
    Fail(query.lastError());
  }
}

QSqlQuery CatalogueDatabase::Run(const char* sql, std::initializer_list<QVariant> values) const {
  QSqlQuery query = Prepare(sql);
  for (const QVariant& value : values) {
    query.addBindValue(value);
  }
  Run(query);
  return query;
}

bool CatalogueDatabase::Next(QSqlQuery& query) const {
  if (query.next()) {
    return true;
  }
  if (query.lastError().isValid()) {
    Fail(query.lastError());
  }
  return false;
}

void CatalogueDatabase::Fail(const std::string& cause) const {
  ThrowCatalogueError(file_, cause);
}

void CatalogueDatabase::Fail(const QSqlError& error) const {
  const QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
  const int code = IsFullDisk(CodeOf(error), folder_) ? kFull : CodeOf(error);
  Fail(CauseOfSqliteCode(code, text.toStdString(), busyTimeoutMs_));
}

ReadTransaction::ReadTransaction(const CatalogueDatabase& database) : database_(database) {
  database_.Execute("BEGIN");
}

ReadTransaction::~ReadTransaction() {
  int ignored = 0;
  database_.TryExecute("ROLLBACK", ignored);
}

WriteTransaction::WriteTransaction(const CatalogueDatabase& database) : database_(database) {
  // Immediate: a transaction that began by reading could not wait for another's write.
  database_.Execute("BEGIN IMMEDIATE");
}

WriteTransaction::~WriteTransaction() {
  if (open_) {
    int ignored = 0;
    database_.TryExecute("ROLLBACK", ignored);
  }
}

void WriteTransaction::Commit() {
  database_.Execute("COMMIT");
  open_ = false;
}

}  // namespace Zenvora::Lumidex::Host
