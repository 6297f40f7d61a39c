#include "RawSql.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <iostream>

namespace Zenvora::Test {

QVariant RunSql(const ioPath& file, const std::vector<std::string>& statements) {
  const QString name = QStringLiteral("raw");
  QVariant value;
  {
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    database.setDatabaseName(file.qstring());
    database.open();
    for (const std::string& statement : statements) {
      QSqlQuery query(database);
      if (!query.exec(QString::fromStdString(statement))) {
        std::cerr << statement << ": " << query.lastError().text().toStdString() << '\n';
        value = QVariant();
        break;
      }
      value = query.next() ? query.value(0) : QVariant(true);
    }
    database.close();
  }
  QSqlDatabase::removeDatabase(name);
  return value;
}

}  // namespace Zenvora::Test
