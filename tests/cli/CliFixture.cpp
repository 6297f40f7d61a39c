#include "CliFixture.h"

#include <host/catalogue/Catalogue.h>

#include <QFile>
#include <QJsonDocument>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>

namespace Zenvora::Test {

namespace {

constexpr int kHangMs = 120'000;
const QString kLockName = QStringLiteral("lock");

}  // namespace

QJsonObject Ran::Json() const {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(out), &error);
  EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString() << " in:\n" << out;
  EXPECT_TRUE(document.isObject()) << out;
  return document.object();
}

CliTest::CliTest() : environment(QProcessEnvironment::systemEnvironment()) {
  environment.insert(QStringLiteral("HOME"), Text(tree.Path()));
  environment.insert(QStringLiteral("XDG_DATA_HOME"), Text(tree.Path("data")));
  environment.insert(QStringLiteral("XDG_CONFIG_HOME"), Text(tree.Path("config")));
  environment.insert(QStringLiteral("XDG_CACHE_HOME"), Text(tree.Path("cache")));
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  environment.insert(QStringLiteral("TZ"), QStringLiteral("UTC"));
  environment.insert(QStringLiteral("LUMIDEX"), QStringLiteral(LUMIDEX_PROGRAM));
  tree.MakeFolder("photos");
}

void CliTest::Start(QProcess& process, const QStringList& arguments) const {
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(Text(tree.Path()));
  process.start(QStringLiteral(LUMIDEX_PROGRAM), arguments);
}

Ran CliTest::Finish(QProcess& process) {
  Ran ran;
  if (process.state() != QProcess::NotRunning && !process.waitForFinished(kHangMs)) {
    ADD_FAILURE() << "the command does not end: " << process.errorString().toStdString();
    process.kill();
    process.waitForFinished();
  }
  ran.crashed = process.exitStatus() != QProcess::NormalExit;
  ran.exitCode = ran.crashed ? -1 : process.exitCode();
  ran.out = process.readAllStandardOutput().toStdString();
  ran.err = process.readAllStandardError().toStdString();
  return ran;
}

Ran CliTest::Run(const QStringList& arguments) const {
  QProcess process;
  Start(process, arguments);
  return Finish(process);
}

Ran CliTest::RunCopy(const QStringList& arguments) const {
#ifdef _WIN32
  const QString copy = Text(tree.MakeFolder("bin") / "lumidex.exe");
  const QString searched = QStringLiteral("PATH");
  const QString places = QStringLiteral(LUMIDEX_LIBRARIES ";") + environment.value(searched);
#else
  const QString copy = Text(tree.MakeFolder("bin") / "lumidex");
  const QString searched = QStringLiteral("LD_LIBRARY_PATH");
  const QString places = QStringLiteral(LUMIDEX_LIBRARIES);
#endif
  EXPECT_TRUE(QFile::copy(QStringLiteral(LUMIDEX_PROGRAM), copy));
  QProcess process;
  QProcessEnvironment withLibraries = environment;
  withLibraries.insert(searched, places);
  process.setProcessEnvironment(withLibraries);
  process.setWorkingDirectory(Text(tree.Path()));
  process.start(copy, arguments);
  return Finish(process);
}

Ran CliTest::RunShell(const std::string& command) const {
  QProcess process;
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(Text(tree.Path()));
  process.start(QStringLiteral("bash"), {QStringLiteral("-c"), QString::fromStdString(command)});
  return Finish(process);
}

void CliTest::MakePhotos(const std::string& folder, const std::string& day, int count) const {
  for (int i = 0; i < count; ++i) {
    std::array<char, 32> time{};
    std::snprintf(time.data(), time.size(), "%02d:%02d:00", 10 + i / 60 % 12, i % 60);
    PhotoTags tags;
    tags.dateTimeOriginal = day + ' ' + time.data();
    WriteJpeg(Photos() / folder / ("img" + std::to_string(i) + ".jpg"), tags);
  }
}

void CliTest::ScanTwoAlbums() const {
  MakePhotos("xmas", "2023:12:24", 21);
  MakePhotos("may", "2023:05:13", 22);
  const Ran scan = Run({"scan", Text(Photos())});
  ASSERT_EQ(scan.exitCode, 0) << scan.err;
}

WriteLock::WriteLock(const ioPath& catalogue) {
  QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), kLockName);
  database.setDatabaseName(catalogue.qstring());
  EXPECT_TRUE(database.open());
  EXPECT_TRUE(QSqlQuery(database).exec(QStringLiteral("BEGIN IMMEDIATE")));
}

WriteLock::~WriteLock() {
  {
    QSqlDatabase database = QSqlDatabase::database(kLockName);
    QSqlQuery(database).exec(QStringLiteral("ROLLBACK"));
    database.close();
  }
  QSqlDatabase::removeDatabase(kLockName);
}

void ChangeCatalogue(const ioPath& catalogue, const char* sql) {
  const QString name = QStringLiteral("change");
  {
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    database.setDatabaseName(catalogue.qstring());
    EXPECT_TRUE(database.open());
    EXPECT_TRUE(QSqlQuery(database).exec(QString::fromLatin1(sql))) << sql;
  }
  QSqlDatabase::removeDatabase(name);
}

std::vector<std::string> NamesIn(const ioPath& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder.native())) {
    names.push_back(ioPath(entry.path().filename()).utf8string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string IntegrityOf(const ioPath& catalogue) {
  const QString name = QStringLiteral("integrity");
  std::string text;
  {
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    database.setDatabaseName(catalogue.qstring());
    if (!database.open()) {
      text = "cannot be opened";
    } else {
      QSqlQuery query(QStringLiteral("PRAGMA integrity_check"), database);
      text = query.next() ? query.value(0).toString().toStdString() : "no answer";
    }
  }
  QSqlDatabase::removeDatabase(name);
  return text;
}

int CountPhotosIn(const ioPath& catalogue) {
  using Lumidex::Host::Catalogue;
  return static_cast<int>(Catalogue(catalogue, Catalogue::Mode::ReadOnly).CountPhotos());
}

}  // namespace Zenvora::Test
