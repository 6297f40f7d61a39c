#pragma once

#include <zenvora/core/ioPath.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <initializer_list>

class QSqlError;

namespace Zenvora::Lumidex::Host {

/// One connection to a catalogue's file. Failures are thrown as `HostError`, naming the file and the cause.
/// Belongs to the thread that made it.
class CatalogueDatabase {
 public:
  enum class Access {
    ReadWrite,  ///< Made when missing.
    QueryOnly,  ///< Writes nothing but what SQLite needs beside the file while it is open.
    ReadOnly,   ///< Like it, but the file itself cannot be changed even by recovering it.
    Frozen,     ///< Takes no locks and makes no files: for looking, and for media that cannot be written.
  };

  /// SQLite's code for a damaged file.
  static constexpr int kCorrupt = 11;

  /// `shownAs`: how the file is called in messages; empty: as it is.
  CatalogueDatabase(const ioPath& file, Access access, int busyTimeoutMs, const ioPath& shownAs = {});
  ~CatalogueDatabase();
  CatalogueDatabase(const CatalogueDatabase&) = delete;
  CatalogueDatabase& operator=(const CatalogueDatabase&) = delete;

  const ioPath& File() const { return file_; }

  void Execute(const char* sql) const;
  /// False instead of throwing; `code` is SQLite's.
  bool TryExecute(const char* sql, int& code) const;
  /// The first column of the first row; invalid when there is none.
  QVariant Value(const char* sql, std::initializer_list<QVariant> values = {}) const;
  /// A number that is another one as soon as another connection has written; own writes leave it.
  qlonglong StateOfOthers() const;
  /// A statement that reads forward only, to be run with `Run`.
  QSqlQuery Prepare(const char* sql) const;
  void Run(QSqlQuery& query) const;
  /// Runs a statement once, with the values of its question marks in their order.
  QSqlQuery Run(const char* sql, std::initializer_list<QVariant> values) const;
  /// The next row. Unlike `QSqlQuery::next` it tells a failure from the end.
  bool Next(QSqlQuery& query) const;

  [[noreturn]] void Fail(const std::string& cause) const;

 private:
  [[noreturn]] void Fail(const QSqlError& error) const;

  const ioPath file_;
  const ioPath folder_;
  const int busyTimeoutMs_;
  const QString connection_;
  QSqlDatabase database_;
};

/// What is read while it lives is of one moment, whoever writes meanwhile.
class ReadTransaction {
 public:
  explicit ReadTransaction(const CatalogueDatabase& database);
  ~ReadTransaction();
  ReadTransaction(const ReadTransaction&) = delete;
  ReadTransaction& operator=(const ReadTransaction&) = delete;

 private:
  const CatalogueDatabase& database_;
};

/// A transaction that may write, from its start on; undone unless committed.
class WriteTransaction {
 public:
  explicit WriteTransaction(const CatalogueDatabase& database);
  ~WriteTransaction();
  WriteTransaction(const WriteTransaction&) = delete;
  WriteTransaction& operator=(const WriteTransaction&) = delete;

  void Commit();

 private:
  const CatalogueDatabase& database_;
  bool open_ = true;
};

/// Throws a `HostError`: "The catalogue <file> cannot be used: <cause>."
[[noreturn]] void ThrowCatalogueError(const ioPath& file, const std::string& cause);

/// The cause of a failure with SQLite's result code, for a person. Pure.
std::string CauseOfSqliteCode(int code, const std::string& sqliteText, int busyTimeoutMs);

/// SQLite's name of a file, which keeps every byte of a path. Pure.
QString SqliteUri(const ioPath& absoluteFile, const char* query);

}  // namespace Zenvora::Lumidex::Host
