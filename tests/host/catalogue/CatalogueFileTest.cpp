#include "RawSql.h"
#include "Records.h"

#include <host/catalogue/Catalogue.h>
#include <host/catalogue/CatalogueDatabase.h>
#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/SmallDisk.h>
#include <support/TempTree.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QSqlDatabase>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

namespace fs = std::filesystem;

using Test::Closed;
using Test::ErrorOf;
using Test::IsSuperuser;
using Test::Photo;
using Test::Photos;
using Test::Pipe;
using Test::ReadFile;
using Test::RunSql;
using Test::TempTree;
using Mode = Catalogue::Mode;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class CatalogueFile : public testing::Test {
 protected:
  TempTree tree_;
  const ioPath file_ = tree_.Path("catalogue.sqlite");

  std::string OpeningError(const ioPath& file, Mode mode) const {
    return ErrorOf([&] { Catalogue(file, mode); });
  }
  void MakeFilled(int photos = 3) const { Catalogue(file_, Mode::ReadWrite).Store(Photos("/p/", photos)); }
  std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(tree_.Path().native())) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }
};

TEST_F(CatalogueFile, IsMadeWithItsFolders) {
  const ioPath file = tree_.Path("new/folder/c.sqlite");
  Catalogue(file, Mode::ReadWrite).Store({Photo("/p/a")});
  EXPECT_EQ(Catalogue(file, Mode::ReadOnly).CountPhotos(), 1U);
}

TEST_F(CatalogueFile, HasAVersionAnOwnerAndALog) {
  MakeFilled();
  EXPECT_EQ(RunSql(file_, {"PRAGMA user_version"}).toInt(), Catalogue::kSchemaVersion);
  EXPECT_EQ(RunSql(file_, {"PRAGMA application_id"}).toInt(), 0x4C4D4458);
  EXPECT_EQ(RunSql(file_, {"PRAGMA journal_mode"}).toString(), QStringLiteral("wal"));
  EXPECT_EQ(RunSql(file_, {"PRAGMA integrity_check"}).toString(), QStringLiteral("ok"));
}

TEST_F(CatalogueFile, IsOneFileWhenClosed) {
  MakeFilled();
  EXPECT_EQ(Names(), std::set<std::string>{"catalogue.sqlite"});
}

TEST_F(CatalogueFile, LeavesNoConnectionBehind) {
  const QStringList before = QSqlDatabase::connectionNames();
  {
    const Catalogue first(file_, Mode::ReadWrite);
    const Catalogue second(file_, Mode::ReadOnly);
    EXPECT_GT(QSqlDatabase::connectionNames().size(), before.size());
  }
  EXPECT_NE(OpeningError(tree_.Write("text", "no database at all"), Mode::ReadWrite), "(no error)");
  EXPECT_EQ(QSqlDatabase::connectionNames(), before);
}

TEST_F(CatalogueFile, MayHaveAnyName) {
#ifdef _WIN32
  const std::vector<const char*> names = {"gr\xC3\xBC\xC3\x9F \xF0\x9F\x93\xB7.sqlite", "a&b#c%20 d.sqlite"};
#else
  const std::vector<const char*> names = {"\xFF\xFE.sqlite", "a?b#c%20 d.sqlite", "new\nline.sqlite"};
#endif
  for (const char* name : names) {
    const ioPath file = tree_.Path(name);
    Catalogue(file, Mode::ReadWrite).Store({Photo("/p/a")});
    EXPECT_GT(file.file_size(), 0U);
    EXPECT_EQ(Catalogue(file, Mode::ReadOnly).CountPhotos(), 1U);
  }
}

TEST_F(CatalogueFile, IsNeverWaitedForWhenItIsAPipe) {
  const Pipe pipe(file_);
  for (const Mode mode : {Mode::ReadWrite, Mode::ReadOnly}) {
    EXPECT_THAT(OpeningError(pipe.Path(), mode),
                AllOf(HasSubstr(pipe.Path().utf8string()), HasSubstr("not a regular file")));
  }
}

TEST_F(CatalogueFile, SaysSoWhenItCannotBeOpened) {
  if (IsSuperuser()) {
    GTEST_SKIP() << "this user may read every file";
  }
  MakeFilled();
  {
    const Closed closed(file_);
    for (const Mode mode : {Mode::ReadWrite, Mode::ReadOnly}) {
      EXPECT_THAT(OpeningError(file_, mode), AllOf(HasSubstr(file_.utf8string()), Not(HasSubstr("damaged"))));
    }
  }
  EXPECT_EQ(Catalogue(file_, Mode::ReadOnly).CountPhotos(), 3U);
}

TEST_F(CatalogueFile, IsMadeAgainWhenItsFirstTransactionWasBrokenOff) {
  // As a kill leaves a file that a program was just making: half its pages written, and the journal that
  // takes them back.
  const ioPath original = tree_.Path("original");
  const ioPath journal(file_.utf8string() + "-journal");
  {
    CatalogueDatabase database(original, CatalogueDatabase::Access::ReadWrite, 0);
    database.Execute("PRAGMA cache_size = 1");
    database.Execute("BEGIN IMMEDIATE");
    database.Execute("CREATE TABLE photos (number INTEGER PRIMARY KEY, data BLOB)");
    for (int i = 0; i < 50; ++i) {
      database.Execute("INSERT INTO photos (data) VALUES (randomblob(4000))");
    }
    fs::copy_file(original.native(), file_.native());
    fs::copy_file(original.native().native() + fs::path("-journal").native(), journal.native());
    database.Execute("ROLLBACK");
  }
  ASSERT_GT(file_.file_size(), 0U);
  EXPECT_THAT(OpeningError(file_, Mode::ReadOnly), HasSubstr("run a scan"));
  Catalogue(file_, Mode::ReadWrite).Store({Photo("/p/a")});
  EXPECT_EQ(Catalogue(file_, Mode::ReadOnly).CountPhotos(), 1U);
}

TEST_F(CatalogueFile, IsNeverThereByHalves) {
  // Whoever looks while catalogues are made sees none, or all of one.
  std::vector<ioPath> files;
  for (int i = 0; i < 20; ++i) {
    files.push_back(tree_.Path("c" + std::to_string(i) + ".sqlite"));
  }
  std::atomic<bool> made{false};
  std::thread watcher([&] {
    for (std::size_t i = 0; i < files.size();) {
      // Before the look: one may be made in between.
      const bool allMade = made;
      if (files[i].exists()) {
        EXPECT_EQ(OpeningError(files[i], Mode::ReadOnly), "(no error)");
        ++i;
      } else if (allMade) {
        ADD_FAILURE() << files[i].utf8string();
        break;
      }
    }
  });
  for (const ioPath& file : files) {
    Catalogue(file, Mode::ReadWrite);
  }
  made = true;
  watcher.join();
  for (const ioPath& file : files) {
    // When two close it at once, neither may be the last one, who tidies up.
    const Catalogue last(file, Mode::ReadWrite);
  }
  EXPECT_EQ(Names().size(), files.size());
}

TEST_F(CatalogueFile, IsFilledWhenItIsEmpty) {
  tree_.Write("catalogue.sqlite", "");
  EXPECT_THAT(OpeningError(file_, Mode::ReadOnly), HasSubstr("run a scan"));
  MakeFilled();
  EXPECT_EQ(Catalogue(file_, Mode::ReadOnly).CountPhotos(), 3U);
}

TEST_F(CatalogueFile, MustExistForReading) {
  EXPECT_THAT(OpeningError(file_, Mode::ReadOnly),
              AllOf(HasSubstr(file_.utf8string()), HasSubstr("does not exist"), HasSubstr("scan")));
  EXPECT_FALSE(file_.exists());
}

TEST_F(CatalogueFile, MustNotBeAFolder) {
  for (const Mode mode : {Mode::ReadWrite, Mode::ReadOnly}) {
    EXPECT_THAT(OpeningError(tree_.Path(), mode), HasSubstr("it is a folder"));
  }
}

TEST_F(CatalogueFile, MustHaveAName) {
  EXPECT_THAT(OpeningError(ioPath(), Mode::ReadWrite), HasSubstr("its name is empty"));
}

TEST_F(CatalogueFile, CannotLieBelowAFile) {
  const ioPath file = tree_.Write("file", "x") / "c.sqlite";
  EXPECT_THAT(OpeningError(file, Mode::ReadWrite), AllOf(HasSubstr(file.utf8string()), HasSubstr("folder")));
}

TEST_F(CatalogueFile, MustBeADatabase) {
  const std::string text(5000, 't');
  for (const std::string& content : {text, std::string("short"), std::string(4096, '\0')}) {
    const ioPath file = tree_.Write("text", content);
    for (const Mode mode : {Mode::ReadWrite, Mode::ReadOnly}) {
      EXPECT_THAT(OpeningError(file, mode),
                  AllOf(HasSubstr(file.utf8string()), HasSubstr("not a catalogue")));
      EXPECT_EQ(ReadFile(file), content);
    }
  }
}

TEST_F(CatalogueFile, IsLeftAloneWhenItIsAnotherProgramsDatabase) {
  for (const char* setUp :
       {"PRAGMA application_id = 77", "PRAGMA journal_mode = WAL", "PRAGMA user_version = 1"}) {
    const ioPath file = tree_.Path("other.sqlite");
    file.remove();
    RunSql(file, {setUp, "CREATE TABLE theirs (a)", "INSERT INTO theirs VALUES (1)"});
    const std::string before = ReadFile(file);
    const std::set<std::string> names = Names();
    for (const Mode mode : {Mode::ReadWrite, Mode::ReadOnly}) {
      EXPECT_THAT(OpeningError(file, mode),
                  AllOf(HasSubstr(file.utf8string()), HasSubstr("another program")));
      EXPECT_EQ(ReadFile(file), before);
      EXPECT_EQ(Names(), names);
    }
  }
}

TEST_F(CatalogueFile, IsLeftAloneWhenANewerProgramMadeIt) {
  MakeFilled();
  RunSql(file_, {"PRAGMA user_version = 99"});
  const std::string before = ReadFile(file_);
  for (const Mode mode : {Mode::ReadWrite, Mode::ReadOnly}) {
    EXPECT_THAT(OpeningError(file_, mode), AllOf(HasSubstr("newer version"), HasSubstr("99")));
    EXPECT_EQ(ReadFile(file_), before);
  }
}

TEST_F(CatalogueFile, IsNotBroughtUpToDateByReaders) {
  MakeFilled();
  RunSql(file_, {"PRAGMA user_version = 0"});
  const std::string before = ReadFile(file_);
  EXPECT_THAT(OpeningError(file_, Mode::ReadOnly),
              AllOf(HasSubstr("older version"), HasSubstr("run a scan")));
  EXPECT_EQ(ReadFile(file_), before);
}

/// What later versions added is taken out again.
void MakeOlder(const ioPath& file, int version) {
  if (version == 6) {
    ASSERT_TRUE(RunSql(file, {"UPDATE photos SET reading = 2", "PRAGMA user_version = 6"}).isValid());
    return;
  }
  std::vector<std::string> statements = {"DROP TABLE verdicts",
                                         "DROP TABLE origins",
                                         "ALTER TABLE features DROP COLUMN checked",
                                         "DROP TABLE imported",
                                         "DROP TABLE album_change_attributes",
                                         "DROP TABLE album_change_photos",
                                         "DROP TABLE album_changes",
                                         "DROP TABLE days_of_use",
                                         "UPDATE photos SET reading = 1",
                                         "DROP TABLE volumes",
                                         "DROP TABLE link_changes",
                                         "DROP INDEX photos_by_edges",
                                         "DROP INDEX photos_by_camera_id",
                                         "ALTER TABLE photos DROP COLUMN tail",
                                         "ALTER TABLE photos DROP COLUMN edges",
                                         "ALTER TABLE photos DROP COLUMN content",
                                         "ALTER TABLE photos DROP COLUMN camera_id",
                                         "ALTER TABLE steps DROP COLUMN kind",
                                         "ALTER TABLE steps DROP COLUMN day",
                                         "ALTER TABLE changes DROP COLUMN kept_ending",
                                         "ALTER TABLE changes DROP COLUMN goes_with"};
  if (version == 5) {
    // As much as its programs read of a photo.
    statements.emplace_back("UPDATE photos SET reading = 1");
  }
  if (version < 5) {
    statements.insert(statements.end(),
                      {"DROP TABLE tag_changes", "DROP TABLE photo_tags", "DROP TABLE tags",
                       "ALTER TABLE photos DROP COLUMN latitude", "ALTER TABLE photos DROP COLUMN longitude",
                       "ALTER TABLE photos DROP COLUMN reading"});
  }
  if (version < 4) {
    statements.emplace_back("DROP TABLE trashed");
  }
  if (version < 3) {
    statements.insert(statements.end(), {"DROP TABLE cluster_photos", "DROP TABLE clusters",
                                         "DROP TABLE features", "DROP TABLE analysers"});
  }
  if (version < 2) {
    statements.insert(statements.end(), {"DROP TABLE changes", "DROP TABLE steps"});
  }
  statements.push_back("PRAGMA user_version = " + std::to_string(version));
  ASSERT_TRUE(RunSql(file, statements).isValid());
}

/// The whole content of the tables of the first version, then of the second.
std::string Content(const ioPath& file, int version) {
  std::string content;
  for (const char* const rows :
       {"number || id || hex(path) || size || modified_ns || taken || taken_source || camera || lost FROM "
        "photos",
        "number || id || name || first_day FROM albums", "album || position || photo FROM album_photos",
        "album || attribute || value FROM album_attributes"}) {
    const std::string columns(rows);
    const std::size_t from = columns.find(" FROM ");
    content +=
        RunSql(file, {"SELECT group_concat(" + columns.substr(0, from) + ", ';')" + columns.substr(from)})
            .toString()
            .toStdString() +
        '\n';
  }
  if (version > 1) {
    content +=
        RunSql(file, {"SELECT group_concat(number || name || begun || state || files, ';') FROM steps"})
            .toString()
            .toStdString();
  }
  return content;
}

class FormerCatalogue : public CatalogueFile, public testing::WithParamInterface<int> {
 protected:
  FormerCatalogue() {
    Catalogue catalogue(file_, Mode::ReadWrite);
    catalogue.Store(Photos("/p/", 3));
    catalogue.MarkLost({"/p/1"});
    DataModel model(QStringLiteral("Trip"), QStringLiteral("proposed"), ItemType::Album);
    model.SetDateTime(QDateTime(QDate(2021, 5, 1), QTime(0, 0)));
    const QString first = catalogue.Photos()[0].id;
    catalogue.AcceptAlbum(Album(model, {first}, {{DataAttributeId::CoverPhoto, first}}));
    RunSql(file_,
           {"INSERT INTO steps (number, name, begun, state) VALUES (7, 'x', '2026-01-01T00:00:00Z', 2)"});
    MakeOlder(file_, GetParam());
  }
};

TEST_P(FormerCatalogue, IsBroughtUpToDateWithAllThatItHolds) {
  const std::string before = Content(file_, GetParam());
  ASSERT_THAT(before, HasSubstr("Model X"));
  ASSERT_THAT(before, HasSubstr("Trip"));
  EXPECT_THAT(OpeningError(file_, Mode::ReadOnly), HasSubstr("older version"));
  EXPECT_EQ(Catalogue(file_, Mode::ReadWrite).Photos().size(), 2U);
  EXPECT_EQ(Content(file_, GetParam()), before);
  EXPECT_EQ(RunSql(file_, {"PRAGMA user_version"}).toInt(), Catalogue::kSchemaVersion);
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM cluster_photos"}), QVariant(0));
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM trashed"}), QVariant(0));
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM photo_tags"}), QVariant(0));
  // So that the next scan reads them again.
  EXPECT_TRUE(Catalogue(file_, Mode::ReadOnly).Stamps("/p").at("/p/0").isOutdated);
  EXPECT_EQ(RunSql(file_, {"PRAGMA foreign_key_check"}), QVariant(true));
}

TEST_P(FormerCatalogue, IsBroughtUpToDateOnceBySeveralAtOneTime) {
  const std::string before = Content(file_, GetParam());
  std::vector<std::thread> threads;
  std::atomic<int> sound{0};
  for (int i = 0; i < 6; ++i) {
    threads.emplace_back([&] {
      sound +=
          ErrorOf([&] { EXPECT_EQ(Catalogue(file_, Mode::ReadWrite).CountPhotos(), 3U); }) == "(no error)"
              ? 1
              : 0;
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(sound, 6);
  EXPECT_EQ(Content(file_, GetParam()), before);
  EXPECT_EQ(RunSql(file_, {"PRAGMA user_version"}).toInt(), Catalogue::kSchemaVersion);
}

/// Of the versions behind which tables were added.
class FormerCatalogueWithoutTables : public FormerCatalogue {};

TEST_P(FormerCatalogueWithoutTables, StaysAsItWasWhenItCannotBeBroughtUpToDate) {
  // A table that the next version wants to make.
  RunSql(file_, {GetParam() < 2   ? "CREATE TABLE changes (a)"
                 : GetParam() < 3 ? "CREATE TABLE clusters (a)"
                 : GetParam() < 4 ? "CREATE TABLE trashed (a)"
                 : GetParam() < 5 ? "CREATE TABLE tags (a)"
                                  : "CREATE TABLE imported (a)"});
  const std::string before = Content(file_, GetParam());
  EXPECT_THAT(OpeningError(file_, Mode::ReadWrite), HasSubstr("already exists"));
  EXPECT_EQ(RunSql(file_, {"PRAGMA user_version"}).toInt(), GetParam());
  EXPECT_EQ(Content(file_, GetParam()), before);
  // What the version has stays; of the next ones there is nothing but that table.
  const int tables = RunSql(file_, {"SELECT count(*) FROM sqlite_master WHERE name IN"
                                    " ('steps', 'features', 'trashed_by_step', 'tag_changes')"})
                         .toInt();
  EXPECT_EQ(tables, GetParam() - 1);
}

INSTANTIATE_TEST_SUITE_P(Versions, FormerCatalogue, testing::Values(1, 2, 3, 4, 5, 6));
INSTANTIATE_TEST_SUITE_P(Versions, FormerCatalogueWithoutTables, testing::Values(1, 2, 3, 4, 5));

TEST_F(CatalogueFile, SaysThatItIsDamaged) {
  MakeFilled(2000);
  std::string bytes = ReadFile(file_);
  // All but the first page, which tells whose file it is.
  std::fill(bytes.begin() + 4096, bytes.end(), '\x55');
  const std::string damaged = bytes;
  tree_.Write("catalogue.sqlite", damaged);
  for (const Mode mode : {Mode::ReadWrite, Mode::ReadOnly}) {
    const std::string error = ErrorOf([&] { Catalogue(file_, mode).Photos(); });
    EXPECT_THAT(error, AllOf(HasSubstr(file_.utf8string()), HasSubstr("damaged")));
  }
  EXPECT_EQ(ReadFile(file_), damaged);
}

TEST_F(CatalogueFile, IsSoundWithItsLogWhenItWasLeftHalfWritten) {
  const ioPath left = tree_.Path("left.sqlite");
  {
    Catalogue catalogue(file_, Mode::ReadWrite);
    catalogue.Store(Photos("/p/", 300));
    fs::copy_file(file_.native(), left.native());
    fs::copy_file(file_.utf8string() + "-wal", left.utf8string() + "-wal");
  }
  // As a kill in the midst of moving the log's pages leaves it: the header tells of pages that are not there
  // yet.
  std::string bytes = ReadFile(left);
  constexpr std::size_t kPageCount = 28;
  bytes.replace(kPageCount, 4, std::string("\0\0\x01\0", 4));
  tree_.Write("left.sqlite", bytes);
  EXPECT_EQ(Catalogue(left, Mode::ReadOnly).CountPhotos(), 300U);
  EXPECT_EQ(Catalogue(left, Mode::ReadWrite).CountPhotos(), 300U);
  EXPECT_EQ(RunSql(left, {"PRAGMA integrity_check"}).toString(), QStringLiteral("ok"));
}

TEST_F(CatalogueFile, SaysThatItWasCutShort) {
  MakeFilled(2000);
  const std::string bytes = ReadFile(file_);
  tree_.Write("catalogue.sqlite", bytes.substr(0, bytes.size() / 2));
  EXPECT_THAT(ErrorOf([&] { Catalogue(file_, Mode::ReadWrite).Photos(); }),
              AllOf(HasSubstr(file_.utf8string()), HasSubstr("damaged")));
}

TEST_F(CatalogueFile, IsReadWithoutLeavingATrace) {
  MakeFilled();
  const std::string before = ReadFile(file_);
  {
    Catalogue catalogue(file_, Mode::ReadOnly);
    EXPECT_EQ(catalogue.Photos().size(), 3U);
    EXPECT_NE(ErrorOf([&] { catalogue.Store({Photo("/p/new")}); }), "(no error)");
    EXPECT_NE(ErrorOf([&] { catalogue.MarkLost({"/p/0"}); }), "(no error)");
  }
  EXPECT_EQ(ReadFile(file_), before);
  EXPECT_EQ(Names(), std::set<std::string>{"catalogue.sqlite"});
}

TEST_F(CatalogueFile, IsReadWhereNoFilesCanBeMadeBesideIt) {
  MakeFilled();
  // Nobody, whatever the rights, can make a file of this name.
  tree_.MakeFolder("catalogue.sqlite-wal");
  EXPECT_EQ(Catalogue(file_, Mode::ReadOnly).Photos().size(), 3U);
  EXPECT_THAT(ErrorOf([&] { Catalogue(file_, Mode::ReadWrite).Store({Photo("/p/new")}); }),
              HasSubstr(file_.utf8string()));
}

TEST_F(CatalogueFile, IsReadWhileAnotherWrites) {
  Catalogue writer(file_, Mode::ReadWrite);
  writer.Store(Photos("/p/", 3));
  const Catalogue reader(file_, Mode::ReadOnly);
  EXPECT_EQ(reader.CountPhotos(), 3U);
  writer.Store(Photos("/q/", 3));
  EXPECT_EQ(reader.CountPhotos(), 6U);
}

TEST_F(CatalogueFile, MustBeWritableForWriting) {
  if (IsSuperuser()) {
    GTEST_SKIP() << "this user may write every file";
  }
  MakeFilled();
  fs::permissions(file_.native(), fs::perms::owner_read);
  EXPECT_THAT(OpeningError(file_, Mode::ReadWrite), HasSubstr("write-protected"));
  EXPECT_EQ(Catalogue(file_, Mode::ReadOnly).CountPhotos(), 3U);
#ifndef _WIN32
  fs::permissions(tree_.Path().native(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(Catalogue(file_, Mode::ReadOnly).CountPhotos(), 3U);
  fs::permissions(tree_.Path().native(), fs::perms::owner_all);
#endif
}

#ifndef _WIN32
TEST_F(CatalogueFile, KeepsWhatWasStoredWhenTheDiskIsFull) {
  QProcess writer;
  writer.start(QStringLiteral(CATALOGUE_WRITER),
               {file_.qstring(), QStringLiteral("/p/"), QString::number(300 * 1024)});
  ASSERT_TRUE(writer.waitForFinished(120'000));
  EXPECT_EQ(writer.exitCode(), 3);
  const QList<QByteArray> lines = writer.readAllStandardOutput().trimmed().split('\n');
  ASSERT_GT(lines.size(), 1);
  EXPECT_THAT(lines.back().toStdString(), AllOf(HasSubstr(file_.utf8string()), HasSubstr("disk")));

  EXPECT_EQ(Catalogue(file_, Mode::ReadWrite).CountPhotos(), lines.at(lines.size() - 2).toULong());
  EXPECT_EQ(RunSql(file_, {"PRAGMA integrity_check"}).toString(), QStringLiteral("ok"));
}
#else
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(CatalogueFile, KeepsWhatWasStoredWhenTheDiskIsFull);
#endif

TEST_F(CatalogueFile, KeepsWholeBatchesWhenItsWriterIsKilled) {
  std::size_t least = 0;
  for (int round = 0; round < 5; ++round) {
    QProcess writer;
    writer.start(QStringLiteral(CATALOGUE_WRITER), {file_.qstring(), QStringLiteral("/%1/").arg(round)});
    QByteArray output;
    while (output.count('\n') < 5 + 7 * round) {
      ASSERT_TRUE(writer.waitForReadyRead(120'000));
      output += writer.readAll();
    }
    writer.kill();
    ASSERT_TRUE(writer.waitForFinished(120'000));
    output += writer.readAll();
    const QList<QByteArray> lines = output.split('\n');
    least += lines.at(lines.size() - 2).toULong();

    const std::size_t stored = Catalogue(file_, Mode::ReadOnly).CountPhotos();
    EXPECT_GE(stored, least);
    EXPECT_EQ(stored % 100, 0U);
    EXPECT_EQ(RunSql(file_, {"PRAGMA integrity_check"}).toString(), QStringLiteral("ok"));
    least = stored;
  }
}

TEST_F(CatalogueFile, TakesAwayWhatKilledRunsLeftOfDrafts) {
  for (const char* name : {"catalogue.sqlite.new-0123abcd-ef01", "catalogue.sqlite.new-0123abcd-ef01-journal",
                           "catalogue.sqlite.new-0123abcd-ef02-wal"}) {
    tree_.Write(name, "half a catalogue");
  }
  // Somebody else's, all of them.
  const std::set<std::string> others = {"catalogue.sqlite.new-name", "catalogue.sqlite.new-0123abcd-ef01.txt",
                                        "other.sqlite.new-0123abcd-ef01",
                                        "catalogue.sqlite.new-0123abcd-ef0X"};
  for (const std::string& name : others) {
    tree_.Write(name, "");
  }
  tree_.MakeFolder("catalogue.sqlite.new-0123abcd-ef03");
  MakeFilled();
  std::set<std::string> names = others;
  names.insert({"catalogue.sqlite", "catalogue.sqlite.new-0123abcd-ef03"});
  EXPECT_EQ(Names(), names);
}

TEST_F(CatalogueFile, IsMadeByManyAtOnce) {
  std::vector<std::thread> makers;
  std::atomic<int> failed{0};
  for (int i = 0; i < 6; ++i) {
    makers.emplace_back([this, &failed] {
      try {
        Catalogue(file_, Mode::ReadWrite).Photos();
      } catch (const HostError&) {
        ++failed;
      }
    });
  }
  for (std::thread& maker : makers) {
    maker.join();
  }
  EXPECT_EQ(failed, 0);
  // When two close it at once, neither may be the last one, who tidies up.
  { const Catalogue last(file_, Mode::ReadWrite); }
  EXPECT_EQ(Names(), std::set<std::string>{"catalogue.sqlite"});
}

TEST_F(CatalogueFile, IsInTheUsersDataFolderByDefault) {
  EXPECT_EQ(Catalogue::DefaultFile(),
            ioPath(qgetenv("XDG_DATA_HOME").toStdString()) / "lumidex" / "catalogue.sqlite");
}

/// SQLite calls it an error of the disk when the index of its log cannot grow.
TEST_F(CatalogueFile, TellsOfAFullDisk) {
  Zenvora::Test::SmallDisk disk(tree_.MakeFolder("disk"), std::size_t{1} << 20U);
  LUMIDEX_DISK_OR_SKIP(disk);
  const ioPath file = tree_.Path("disk/c.sqlite");
  Catalogue(file, Mode::ReadWrite);
  int failed = 0;
  for (const std::uintmax_t left : {0U, 4096U, 8192U, 20000U, 40000U}) {
    disk.Fill(left);
    try {
      const CatalogueDatabase database(file, CatalogueDatabase::Access::ReadWrite, 1000);
      WriteTransaction transaction(database);
      database.Execute("CREATE TABLE large (bytes BLOB)");
      database.Execute("INSERT INTO large VALUES (zeroblob(100000))");
      transaction.Commit();
    } catch (const HostError& failure) {
      EXPECT_THAT(failure.what(), HasSubstr("the disk is full")) << left;
      ++failed;
    }
    disk.Clear();
  }
  EXPECT_GT(failed, 1);
}

struct CodeRow {
  int code;
  const char* expected;
};

class SqliteCodes : public testing::TestWithParam<CodeRow> {};

TEST_P(SqliteCodes, HaveCausesForPeople) {
  EXPECT_THAT(CauseOfSqliteCode(GetParam().code, "own words", 10'000), HasSubstr(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(Table, SqliteCodes,
                         testing::Values(CodeRow{5, "more than 10 seconds"}, CodeRow{6, "another program"},
                                         CodeRow{5 | 2 << 8, "another program"},
                                         CodeRow{8, "write-protected"}, CodeRow{10, "own words"},
                                         CodeRow{11, "damaged"}, CodeRow{13, "disk is full"},
                                         CodeRow{14, "cannot be opened"}, CodeRow{26, "not a catalogue"},
                                         CodeRow{1, "own words"}));

#ifdef _WIN32
TEST(SqliteUri, NamesDrivesAndShares) {
  EXPECT_EQ(SqliteUri("C:\\a b\\c.sqlite", "mode=ro").toStdString(), "file:///C%3A/a%20b/c.sqlite?mode=ro");
  EXPECT_EQ(SqliteUri("\\\\srv\\sh\\c.sqlite", "mode=ro").toStdString(), "file:////srv/sh/c.sqlite?mode=ro");
}
#else
TEST(SqliteUri, KeepsEveryByteOfAPath) {
  EXPECT_EQ(SqliteUri("/a b/\xFF?#%.sqlite", "mode=ro").toStdString(),
            "file:///a%20b/%FF%3F%23%25.sqlite?mode=ro");
}
#endif

}  // namespace
}  // namespace Zenvora::Lumidex::Host
