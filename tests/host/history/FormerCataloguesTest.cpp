#include "FolderTrash.h"
#include "RawSql.h"

#include <LumidexUtil/FileAccessLocker.h>
#include <host/catalogue/Catalogue.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/history/UndoJournal.h>
#include <host/journal/FileMoves.h>
#include <host/scan/Scanner.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QStringList>

#include <atomic>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using Zenvora::Test::ReadFile;
using Zenvora::Test::RunSql;
using Files = std::map<std::string, std::string>;

Files FilesIn(const ioPath& folder) {
  Files files;
  for (const auto& entry : fs::directory_iterator(folder.for_system())) {
    files[ioPath(entry.path().filename()).utf8string()] = ReadFile(ioPath(entry.path()));
  }
  return files;
}

/// The catalogue of a former version, with its photos, its kept originals and its trash.
class FormerCatalogues : public testing::TestWithParam<int> {
 protected:
  FormerCatalogues() {
    const ioPath from(LUMIDEX_FORMER_CATALOGUES);
    for (const char* const folder : {"photos", "undo", "trash", "before"}) {
      if (HasJournal() || ioPath(folder) != ioPath("undo")) {
        fs::copy((from / folder).for_system(), Folder(folder).for_system(), fs::copy_options::recursive);
      }
    }
    if (HasTrash()) {
      SetTime(tree_.Path("trash/0-trash.jpg"), kTrashedNs);
      EXPECT_FALSE(trash_.WriteNote({tree_.Path("trash/0-trash.jpg"), tree_.Path("trash/0-trash.jpg.note")},
                                    tree_.Path("photos/trash.jpg")));
    } else {
      fs::rename(tree_.Path("trash/0-trash.jpg").for_system(), tree_.Path("photos/trash.jpg").for_system());
    }
    const QString script =
        QString::fromStdString(ReadFile(from / ioPath("schema" + std::to_string(GetParam()) + ".sql")));
    std::vector<std::string> statements;
    for (const QString& statement : Filled(script).split(QStringLiteral(";\n"))) {
      if (!statement.trimmed().isEmpty()) {
        statements.push_back(statement.toStdString());
      }
    }
    RunSql(file_, statements);
  }

  bool HasJournal() const { return GetParam() >= 2; }
  bool HasTrash() const { return GetParam() >= 4; }
  bool HasTags() const { return GetParam() >= 5; }
  bool HasDigests() const { return GetParam() >= 6; }

  ioPath Folder(const std::string& name) const {
    return name == "undo" ? tree_.Path("catalogue.sqlite.undo") : tree_.Path(ioPath(name));
  }

  static void SetTime(const ioPath& file, std::int64_t ns) {
    const std::string content = ReadFile(file);
    ASSERT_TRUE(file.remove());
    NewFile again;
    ASSERT_FALSE(again.Create(file));
    ASSERT_FALSE(again.Write(content.data(), content.size()));
    ASSERT_FALSE(again.SetModified(ns));
    ASSERT_FALSE(again.Close(false));
    again.Release();
  }

  /// With the paths of this tree in place of the marks.
  QString Filled(QString script) const {
    const auto hex = [](const QByteArray& bytes) {
      return "X'" + QString::fromLatin1(bytes.toHex()) + QLatin1Char('\'');
    };
    const QRegularExpression path(QStringLiteral("CAST\\('@ROOT@/([^']*)' AS BLOB\\)"));
    for (auto match = path.match(script); match.hasMatch(); match = path.match(script)) {
      script.replace(match.capturedStart(), match.capturedLength(),
                     hex(PathBytes(tree_.Path(ioPath(match.captured(1).toStdString())))));
    }
    const QRegularExpression move(QStringLiteral("X'@MOVE /([^ ]*) > /([^@]*)@'"));
    for (auto match = move.match(script); match.hasMatch(); match = move.match(script)) {
      FileMove moved;
      moved.from = tree_.Path(ioPath(match.captured(1).toStdString()));
      moved.to = tree_.Path(ioPath(match.captured(2).toStdString()));
      script.replace(match.capturedStart(), match.capturedLength(), hex(PackMoves({moved})));
    }
    EXPECT_FALSE(script.contains(QLatin1Char('@')));
    return script;
  }

  /// Tables and columns, as they are now.
  std::map<std::string, std::string> Columns() const {
    std::map<std::string, std::string> columns;
    const QString tables =
        RunSql(file_, {"SELECT group_concat(name) FROM sqlite_master WHERE type = 'table' AND name NOT LIKE "
                       "'sqlite_%'"})
            .toString();
    for (const QString& table : tables.split(QLatin1Char(','))) {
      // Opening a journal counts a day.
      if (table == QLatin1String("days_of_use")) {
        continue;
      }
      const std::string name = table.toStdString();
      columns[name] = RunSql(file_, {"SELECT group_concat('quote(' || name || ')', ' || ''|'' || ') FROM "
                                     "pragma_table_info('" +
                                     name + "')"})
                          .toString()
                          .toStdString();
    }
    return columns;
  }
  /// All that these columns hold.
  std::string Content(const std::map<std::string, std::string>& columns) const {
    std::string content;
    for (const auto& [table, list] : columns) {
      content += table + ":\n" +
                 RunSql(file_, {"SELECT group_concat(line, char(10)) FROM (SELECT " + list +
                                " AS line FROM " + table + " ORDER BY line)"})
                     .toString()
                     .toStdString() +
                 "\n";
    }
    return content;
  }

  static constexpr std::int64_t kTrashedNs = 1'715'940'240'000'000'000;

  const Zenvora::Test::TempTree tree_;
  const ioPath file_ = tree_.Path("catalogue.sqlite");
  const Zenvora::Test::FolderTrash trash_{tree_.Path("trash")};
  const boost::intrusive_ptr<IFileAccessLocker> locker_ = FileAccessLocker::Create();
  const std::atomic<bool> never_{false};
};

TEST_P(FormerCatalogues, KeepAllThatTheyKnow) {
  const auto columns = Columns();
  EXPECT_EQ(columns.size(), GetParam() == 1   ? 4U
                            : GetParam() == 2 ? 6U
                            : GetParam() == 3 ? 10U
                            : GetParam() == 4 ? 11U
                            : GetParam() == 5 ? 14U
                                              : 22U);
  const std::string before = Content(columns);
  ASSERT_NE(before.find("Trip, May 2024"), std::string::npos);
  ASSERT_EQ(before.find("rotate right") != std::string::npos, HasJournal());
  {
    const Catalogue catalogue(file_, Catalogue::Mode::ReadWrite);
    EXPECT_EQ(catalogue.Photos().size(), HasTrash() ? 3U : 4U);
    EXPECT_EQ(catalogue.CountPhotos(), 5U);
  }
  EXPECT_EQ(Content(columns), before);
  EXPECT_EQ(RunSql(file_, {"PRAGMA user_version"}).toInt(), Catalogue::kSchemaVersion);
  EXPECT_EQ(RunSql(file_, {"PRAGMA integrity_check"}).toString(), QStringLiteral("ok"));
  // Nor does a journal drop what it finds.
  UndoJournal(file_, *locker_, trash_);
  EXPECT_EQ(Content(columns), before);
  EXPECT_EQ(FilesIn(Folder("undo")).count("1-before.jpg"), HasJournal() ? 1U : 0U);
}

TEST_P(FormerCatalogues, KnowPhotosThatMovedSince) {
  const ioPath photo = tree_.Path("photos/b.jpg");
  const ioPath moved = tree_.Path("photos/elsewhere.jpg");
  fs::rename(photo.for_system(), moved.for_system());
  Catalogue catalogue(file_, Catalogue::Mode::ReadWrite);
  const auto id = [this](const ioPath& path) {
    return RunSql(file_, {"SELECT id FROM photos WHERE lost = 0 AND hex(path) = '" +
                          PathBytes(path).toHex().toUpper().toStdString() + "'"})
        .toString();
  };
  const QString before = id(photo);
  ASSERT_FALSE(before.isEmpty());
  const ScanResult result = Scan(catalogue, {tree_.Path("photos")}, ScanOptions(), nullptr);
  // Older ones hold nothing by which a content could be known again.
  EXPECT_EQ(result.moved, HasDigests() ? 1U : 0U);
  EXPECT_EQ(id(moved) == before, HasDigests());
  EXPECT_EQ(RunSql(file_, {"SELECT count(*) FROM photos WHERE lost = 0 AND length(edges) = 20"}).toInt(),
            HasTrash() ? 3 : 4);
}

TEST_P(FormerCatalogues, TakeBackWhatAFormerProgramDid) {
  UndoJournal journal(file_, *locker_, trash_);
  EXPECT_THAT(journal.RecoveryNotes(), IsEmpty());
  if (HasJournal()) {
    const UndoResult again = journal.RedoLast(never_, nullptr);
    EXPECT_EQ(again.name, QStringLiteral("rotate left"));
    EXPECT_EQ(again.files, 1U);
    EXPECT_NE(ReadFile(tree_.Path("photos/c.jpg")), ReadFile(tree_.Path("before/c.jpg")));
  }
  std::vector<std::string> names;
  for (UndoResult result = journal.UndoLast(never_, nullptr); !result.name.isEmpty() && names.size() < 10;
       result = journal.UndoLast(never_, nullptr)) {
    EXPECT_THAT(result.findings, IsEmpty()) << result.findings[0].cause;
    names.push_back(result.name.toStdString());
  }
  if (HasTags()) {
    EXPECT_THAT(names, ElementsAre("rotate left", "move similar photos to the trash", "tag +Garden",
                                   "shift dates by +1h", "rotate right", "rename 1 photo"));
  } else if (HasTrash()) {
    EXPECT_THAT(names, ElementsAre("rotate left", "move similar photos to the trash", "shift dates by +1h",
                                   "rotate right", "rename 1 photo"));
  } else if (HasJournal()) {
    EXPECT_THAT(names, ElementsAre("rotate left", "shift dates by +1h", "rotate right", "rename 1 photo"));
  } else {
    EXPECT_THAT(names, IsEmpty());
    return;
  }
  Files expected = FilesIn(Folder("before"));
  expected.erase("lost.jpg");
  EXPECT_EQ(FilesIn(Folder("photos")), expected);
  const Catalogue catalogue(file_, Catalogue::Mode::ReadOnly);
  std::map<std::string, std::string> cameras;
  for (const PhotoRecord& photo : catalogue.Photos()) {
    cameras[photo.path.filename().utf8string()] = photo.camera.toStdString();
  }
  EXPECT_EQ(
      cameras,
      (Files{{"a.jpg", "Model A"}, {"b.jpg", "Model B"}, {"c.jpg", "Model C"}, {"trash.jpg", "Model E"}}));
}

INSTANTIATE_TEST_SUITE_P(All, FormerCatalogues, testing::Range(1, 7));

}  // namespace
}  // namespace Zenvora::Lumidex::Host
