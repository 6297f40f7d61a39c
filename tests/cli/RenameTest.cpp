#include "ChangeFixture.h"

#include <host/catalogue/Catalogue.h>
#include <support/LeftOut.h>
#include <support/SmallDisk.h>

#include <zenvora/core/FileState.h>

#include <QJsonArray>

#include <filesystem>
#include <optional>
#include <system_error>

namespace Zenvora::Test {
namespace {

class RenameCommand : public ChangeTest {};

TEST_F(RenameCommand, GivesNewNamesAndTakesThemBack) {
  const std::string first = ReadFile(Photo("b.jpg", "2024:05:18 10:00:00"));
  const std::string second = ReadFile(Photo("a.jpg", "2024:05:17 10:00:00"));
  const std::int64_t time = QueryFile(Photos() / "a.jpg").modifiedNs;
  const Ran ran = Rename("{date}_{number:3}");
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(ran.out, "2 photos renamed; \"lumidex undo\" undoes it.\n");
  EXPECT_THAT(ran.err, IsEmpty());
  EXPECT_THAT(Names(), ElementsAre("2024-05-17_001.jpg", "2024-05-18_002.jpg"));
  EXPECT_EQ(ReadFile(Photos() / "2024-05-17_001.jpg"), second);

  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("a.jpg", "b.jpg"));
  EXPECT_EQ(ReadFile(Photos() / "a.jpg"), second);
  EXPECT_EQ(ReadFile(Photos() / "b.jpg"), first);
  EXPECT_EQ(QueryFile(Photos() / "a.jpg").modifiedNs, time);

  EXPECT_EQ(Run({"redo"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("2024-05-17_001.jpg", "2024-05-18_002.jpg"));
}

TEST_F(RenameCommand, ShowsInADryRunWhatTheRunDoes) {
  Photo("b.jpg");
  Photo("a.jpg");
  tree.Write("photos/a.xmp", "settings");
  const Ran shown = Rename("{number}", {"--dry-run", "photos"});
  EXPECT_EQ(shown.exitCode, 0);
  EXPECT_THAT(shown.out, HasSubstr(Photos().utf8string() + "\n  a.jpg  ->  1.jpg\n  a.xmp  ->  1.xmp\n"));
  EXPECT_THAT(shown.out, HasSubstr("2 photos (3 files) would be renamed. This was a dry run"));
  EXPECT_THAT(Names(), ElementsAre("a.jpg", "a.xmp", "b.jpg"));
  EXPECT_FALSE(tree.Path("data").exists());

  const QJsonObject dry = Rename("{number}", {"--dry-run", "--json", "photos"}).Json();
  const QJsonObject wet = Rename("{number}", {"--json", "photos"}).Json();
  EXPECT_EQ(dry["renames"].toArray().size(), 3);
  for (const char* const same : {"renames", "problems", "photos", "photosRenamed", "filesRenamed",
                                 "filesUnchanged", "fileTimes", "refused", "catalogue"}) {
    EXPECT_EQ(dry[same], wet[same]) << same;
  }
  for (const auto& move : wet["renames"].toArray()) {
    EXPECT_FALSE(ioPath(move.toObject()["from"].toString()).exists());
    EXPECT_TRUE(ioPath(move.toObject()["to"].toString()).exists());
  }
}

TEST_F(RenameCommand, WritesOneDocumentWithAllItsMembers) {
  Photo("a.jpg");
  Photo("b.jpg");
  tree.Write("photos/2.jpg", "in the way");
  const Ran ran = Rename("{number}", {"--json", "--skip-problems", "photos/a.jpg", "photos/b.jpg"});
  EXPECT_EQ(ran.exitCode, 3);
  EXPECT_THAT(ran.err, IsEmpty());
  const QJsonObject document = ran.Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.rename"));
  EXPECT_EQ(document["version"].toInt(), 1);
  EXPECT_EQ(document["catalogue"].toString(), Text(DefaultCatalogue()));
  EXPECT_FALSE(document["dryRun"].toBool(true));
  EXPECT_FALSE(document["interrupted"].toBool(true));
  EXPECT_FALSE(document["refused"].toBool(true));
  EXPECT_EQ(document["photos"].toInt(), 2);
  EXPECT_EQ(document["photosRenamed"].toInt(), 1);
  EXPECT_EQ(document["filesRenamed"].toInt(), 1);
  EXPECT_EQ(document["filesUnchanged"].toInt(-1), 0);
  EXPECT_EQ(document["fileTimes"].toInt(-1), 0);
  EXPECT_TRUE(document["canBeUndone"].toBool());
  EXPECT_TRUE(document["recovered"].isArray());
  EXPECT_TRUE(document["findings"].isArray());
  const QJsonObject move = document["renames"].toArray()[0].toObject();
  EXPECT_EQ(move["from"].toString(), Text(Photos() / "a.jpg"));
  EXPECT_EQ(move["to"].toString(), Text(Photos() / "1.jpg"));
  ASSERT_EQ(document["problems"].toArray().size(), 1);
  const QJsonObject problem = document["problems"].toArray()[0].toObject();
  EXPECT_EQ(problem["kind"].toString(), QStringLiteral("taken"));
  EXPECT_EQ(problem["path"].toString(), Text(Photos() / "b.jpg"));
  EXPECT_EQ(problem["target"].toString(), Text(Photos() / "2.jpg"));
  EXPECT_EQ(problem["other"].toString(), Text(Photos() / "2.jpg"));
  EXPECT_FALSE(problem["cause"].toString().isEmpty());
}

TEST_F(RenameCommand, ExchangesNames) {
  const std::string first = ReadFile(Photo("1.jpg", "2024:05:18 10:00:00"));
  const std::string second = ReadFile(Photo("2.jpg", "2024:05:17 10:00:00"));
  EXPECT_EQ(Rename("{number}", {"--order", "date", "photos"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("1.jpg", "2.jpg"));
  EXPECT_EQ(ReadFile(Photos() / "1.jpg"), second);
  EXPECT_EQ(ReadFile(Photos() / "2.jpg"), first);
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("1.jpg", "2.jpg"));
  EXPECT_EQ(ReadFile(Photos() / "1.jpg"), first);
  EXPECT_EQ(ReadFile(Photos() / "2.jpg"), second);
}

TEST_F(RenameCommand, KeepsWhatBelongsTogetherTogether) {
  Photo("IMG_7.JPG");
  tree.Write("photos/IMG_7.CR2", "raw");
  tree.Write("photos/IMG_7.CR2.xmp", "settings");
  tree.Write("photos/IMG_7.txt", "not of the shot");
  const Ran ran = Rename("{datetime}", {"photos/IMG_7.JPG"});
  EXPECT_EQ(ran.exitCode, 0) << ran.out << ran.err;
  EXPECT_THAT(ran.out, HasSubstr("1 photo (3 files) renamed"));
  EXPECT_THAT(Names(), ElementsAre("2024-05-17_10-00-00.CR2", "2024-05-17_10-00-00.CR2.xmp",
                                   "2024-05-17_10-00-00.JPG", "IMG_7.txt"));
}

TEST_F(RenameCommand, RenamesNothingWhenOneNameIsTaken) {
  Photo("a.jpg");
  Photo("b.jpg");
  tree.Write("photos/Trip 2.jpg", "in the way");
  for (const char* const option : {"--dry-run", "--quiet"}) {
    const Ran ran = Rename("Trip {number}", {option, "photos/a.jpg", "photos/b.jpg"});
    EXPECT_EQ(ran.exitCode, 1);
    EXPECT_THAT(ran.out, HasSubstr("Cannot be renamed:\n  " + (Photos() / "b.jpg").utf8string() +
                                   "  Trip 2.jpg is the name of another file: Trip 2.jpg\n"));
    EXPECT_THAT(ran.out, HasSubstr("1 of 2 photos"));
    EXPECT_THAT(Names(), ElementsAre("Trip 2.jpg", "a.jpg", "b.jpg"));
  }
  EXPECT_FALSE(DefaultCatalogue().exists());
}

TEST_F(RenameCommand, GivesOneNameToNoTwoPhotos) {
  Photo("a.jpg");
  Photo("b.jpg");
  const QJsonObject document = Rename("same", {"--json", "photos"}).Json();
  EXPECT_TRUE(document["refused"].toBool());
  EXPECT_EQ(document["filesRenamed"].toInt(-1), 0);
  EXPECT_EQ(document["problems"].toArray().size(), 2);
  EXPECT_THAT(Names(), ElementsAre("a.jpg", "b.jpg"));
  // With nothing left to rename there is nothing that was done in part.
  EXPECT_EQ(Rename("same", {"--skip-problems", "photos"}).exitCode, 1);
}

TEST_F(RenameCommand, ChangesNothingButTheCaseOfAName) {
  Photo("img_1.jpg");
  EXPECT_EQ(Rename("IMG_{number}").exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("IMG_1.jpg"));
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("img_1.jpg"));
}

TEST_F(RenameCommand, TellsWhenThereIsNothingToDo) {
  Photo("x1.jpg");
  const Ran ran = Rename("x{number}");
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(ran.out, "1 file has its new name already.\nNothing to rename.\n");
  EXPECT_FALSE(DefaultCatalogue().exists());

  tree.MakeFolder("empty");
  const Ran empty = Rename("x{number}", {"empty"});
  EXPECT_EQ(empty.exitCode, 1);
  EXPECT_THAT(empty.err, HasSubstr("no photos"));
}

TEST_F(RenameCommand, NumbersInTheOrderAskedFor) {
  Photo("IMG_10.jpg", "2024:05:16 10:00:00");
  Photo("IMG_9.jpg", "2024:05:17 10:00:00");
  const struct {
    QStringList more;
    std::string nine;
  } rows[] = {{{"photos"}, "1_IMG_9.jpg"},
              {{"--order", "name", "photos/IMG_10.jpg", "photos/IMG_9.jpg"}, "1_IMG_9.jpg"},
              {{"--order", "given", "photos/IMG_10.jpg", "photos/IMG_9.jpg"}, "2_IMG_9.jpg"},
              {{"--order", "date", "photos"}, "2_IMG_9.jpg"},
              {{"--start", "41", "photos"}, "41_IMG_9.jpg"}};
  for (const auto& row : rows) {
    const Ran ran = Rename("{number}_{name}", row.more + QStringList{"--dry-run"});
    EXPECT_EQ(ran.exitCode, 0);
    EXPECT_THAT(ran.out, HasSubstr("->  " + row.nine)) << row.more.join(QLatin1Char(' ')).toStdString();
  }
}

TEST_F(RenameCommand, TakesOnlyThePhotosOfAFolderAndNothingBelow) {
  Photo("a.jpg");
  Photo("below/b.jpg");
  Photo(".hidden.jpg");
  tree.Write("photos/notes.txt", "");
  EXPECT_EQ(Rename("x{number}").exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre(".hidden.jpg", "below", "notes.txt", "x1.jpg"));
  EXPECT_THAT(NamesIn(Photos() / "below"), ElementsAre("b.jpg"));
  // What is named itself is meant.
  EXPECT_EQ(Rename("y", {"photos/notes.txt"}).exitCode, 0);
  EXPECT_TRUE((Photos() / "y.txt").exists());
}

TEST_F(RenameCommand, KnowsOneFolderInAllItsSpellings) {
  Photo("a.jpg");
  Photo("b.jpg");
  const Ran ran = Rename("x{number}", {"photos/a.jpg", "./photos/../photos/b.jpg", "photos"});
  EXPECT_EQ(ran.exitCode, 0) << ran.out;
  EXPECT_THAT(Names(), ElementsAre("x1.jpg", "x2.jpg"));
}

TEST_F(RenameCommand, UsesTheTimesOfFilesThatSayNothingAndTellsSo) {
  const ioPath photo = WriteJpeg(Photos() / "plain.jpg");
  std::filesystem::last_write_time(photo.native(),
                                   std::filesystem::last_write_time(photo.native()) - std::chrono::hours(1));
  Photo("dated.jpg");
  const Ran ran = Rename("{datetime}");
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.out, HasSubstr("1 photo has no date; the time of its file is used."));
  EXPECT_TRUE((Photos() / "2024-05-17_10-00-00.jpg").exists());
}

TEST_F(RenameCommand, RefusesPhotosWithoutAnyDate) {
  tree.Write("photos/fake.jpg", "this is no image");
  const Ran ran = Rename("{date}");
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr("fake.jpg  has no readable date: "));
}

TEST_F(RenameCommand, TakesDatesFromTheCatalogueOnlyOfUnchangedFiles) {
  constexpr int kManyPhotos = 210;
  MakePhotos("many", "2024:05:17", kManyPhotos);
  ASSERT_EQ(Run({"scan", Text(Photos())}).exitCode, 0);
  // What the catalogue says is believed.
  ChangeCatalogue(DefaultCatalogue(), "UPDATE photos SET taken = '1999' || substr(taken, 5)");
  PhotoTags changed;
  changed.dateTimeOriginal = "2011:01:02 03:04:05";
  changed.model = "another";
  WriteJpeg(Photos() / "many" / "img7.jpg", changed);
  const Ran ran = Rename("{date:yyyy}-{name}", {"--dry-run", "photos/many"});
  EXPECT_EQ(ran.exitCode, 0) << ran.out;
  EXPECT_THAT(ran.out, HasSubstr("->  1999-img6.jpg"));
  EXPECT_THAT(ran.out, HasSubstr("->  2011-img7.jpg"));
}

TEST_F(RenameCommand, KeepsTheRecordsOfCataloguedPhotos) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"scan", Text(Photos())}).exitCode, 0);
  EXPECT_EQ(Rename("x{number}").exitCode, 0);
  const QJsonObject scan = Run({"scan", "--json", Text(Photos())}).Json();
  EXPECT_EQ(scan["unchanged"].toInt(), 1);
  EXPECT_EQ(scan["lost"].toInt(-1), 0);
  EXPECT_EQ(scan["added"].toInt(-1), 0);
}

TEST_F(RenameCommand, RenamesNothingWhenAFileIsMissing) {
  Photo("a.jpg");
  for (const char* const option : {"--dry-run", "--skip-problems"}) {
    const Ran ran = Rename("x{number}", {option, "photos/a.jpg", "photos/gone.jpg"});
    EXPECT_EQ(ran.exitCode, 4);
    EXPECT_THAT(ran.err, HasSubstr((Photos() / "gone.jpg").utf8string() + " does not exist"));
    EXPECT_THAT(ran.out, IsEmpty());
    EXPECT_THAT(Names(), ElementsAre("a.jpg"));
  }
}

TEST_F(RenameCommand, RefusesPatternsThatMakeNoSense) {
  Photo("a.jpg");
  const struct {
    const char* pattern;
    const char* text;
  } rows[] = {{"", "must not be empty"},
              {"{datum}", "at character 1"},
              {"x{number", "at character"},
              {"x/{number}", "at character 2"},
              {"{date:mm}", "at character"}};
  for (const auto& row : rows) {
    const Ran ran = Rename(QString::fromLatin1(row.pattern));
    EXPECT_EQ(ran.exitCode, 2) << row.pattern;
    EXPECT_THAT(ran.err, HasSubstr(row.text)) << row.pattern;
    EXPECT_THAT(ran.err, HasSubstr("--pattern"));
  }
  EXPECT_EQ(Run({"rename", "photos"}).exitCode, 2);
  EXPECT_EQ(Run({"rename", "--pattern", "x"}).exitCode, 2);
  EXPECT_EQ(Rename("x", {"--order", "size", "photos"}).exitCode, 2);
  EXPECT_EQ(Rename("x", {"--start", "-1", "photos"}).exitCode, 2);
  EXPECT_THAT(Names(), ElementsAre("a.jpg"));
}

TEST_F(RenameCommand, RefusesNamesThatNoSystemTakes) {
  Photo("a.jpg");
  EXPECT_EQ(Rename(QString(252, QLatin1Char('n'))).exitCode, 1);
  EXPECT_EQ(Rename("CON").exitCode, 1);
  EXPECT_EQ(Rename(QString(251, QLatin1Char('n'))).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre(std::string(251, 'n') + ".jpg"));
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("a.jpg"));
}

TEST_F(RenameCommand, TakesPatternsAndNamesOfAllLanguages) {
  const std::string old = "Пейзаж с озером.jpg";
  Photo(old);
  EXPECT_EQ(Rename(QStringLiteral("東京 {name}")).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("東京 " + old));
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre(old));
}

TEST_F(RenameCommand, PassesAnUnusableCatalogueOverInADryRunOnly) {
  Photo("a.jpg");
  tree.Write("data/lumidex/catalogue.sqlite", "this is no database, but long enough to be asked");
  EXPECT_EQ(Rename("x{number}", {"--dry-run", "photos"}).exitCode, 0);
  const Ran ran = Rename("x{number}");
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr(DefaultCatalogue().utf8string()));
  EXPECT_THAT(Names(), ElementsAre("a.jpg"));
}

#ifndef _WIN32

TEST_F(RenameCommand, RenamesFilesWhoseNamesAreNoText) {
  const std::string odd = "a\n\x1b[31m b.jpg";
  const std::string bytes = "z\xFF.jpg";
  Photo(odd);
  Photo(bytes);
  const Ran shown = Rename("{number} x", {"--dry-run", "photos"});
  EXPECT_EQ(shown.exitCode, 0);
  EXPECT_THAT(shown.out, HasSubstr("a\\n\\x1b[31m b.jpg  ->  1 x.jpg"));
  EXPECT_THAT(shown.out, Not(HasSubstr("\x1b")));
  const QJsonObject document = Rename("{number} x", {"--json", "photos"}).Json();
  EXPECT_THAT(Names(), ElementsAre("1 x.jpg", "2 x.jpg"));
  EXPECT_EQ(
      QByteArray::fromBase64(document["renames"].toArray()[1].toObject()["fromBytes"].toString().toLatin1())
          .toStdString(),
      (Photos() / bytes).utf8string());
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre(odd, bytes));
}

TEST_F(RenameCommand, LeavesAFolderAloneThatCannotBeWritten) {
  std::error_code ignored;
  // No permission stops the superuser.
  const bool mounts = IsSuperuser();
  std::optional<SmallDisk> disk;
  if (mounts) {
    disk.emplace(Photos(), 1U << 20U);
  }
  Photo("a.jpg");
  Photo("b.jpg");
  if (mounts && !disk->MakeReadOnly()) {
    GTEST_SKIP() << "no volume can be mounted here, and no folder is closed to the superuser";
  }
  std::filesystem::permissions(Photos().native(), std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::remove, ignored);
  const Ran ran = Rename("x{number}");
  const Ran edit = Run({"rotate", "right", "photos"});
  std::filesystem::permissions(Photos().native(), std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::add, ignored);
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.out, HasSubstr("Cannot rename " + (Photos() / "a.jpg").utf8string()));
  EXPECT_THAT(ran.out, HasSubstr("Nothing was renamed."));
  EXPECT_EQ(edit.exitCode, 4);
  EXPECT_THAT(edit.out, HasSubstr("Nothing was changed."));
  EXPECT_THAT(Names(), ElementsAre("a.jpg", "b.jpg"));
  EXPECT_EQ(Run({"undo"}).exitCode, 1);
}

#else

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(RenameCommand, RenamesFilesWhoseNamesAreNoText);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(RenameCommand, LeavesAFolderAloneThatCannotBeWritten);

#endif

TEST_F(RenameCommand, LeavesLinksTheirNames) {
  const ioPath photo = WriteJpeg(tree.Path("elsewhere/real.jpg"));
  LUMIDEX_LINK_OR_SKIP(photo, Photos() / "link.jpg");
  LUMIDEX_LINK_OR_SKIP("nowhere.xmp", Photos() / "link.xmp");
  const Ran ran = Rename("x{number}");
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr("1 symbolic link"));
  EXPECT_THAT(Names(), ElementsAre("link.jpg", "link.xmp"));
  EXPECT_EQ(Rename("y", {"photos/link.jpg"}).exitCode, 1);
}

TEST_F(RenameCommand, PointsLinksToTheNewNamesAndBack) {
  Photo("p.jpg", "2024:05:17 10:00:00");
  Photo("q.jpg", "2024:05:18 10:00:00");
  tree.MakeFolder("photos/best/of");
  LUMIDEX_LINK_OR_SKIP("p.jpg", Photos() / "fav.jpg");
  LUMIDEX_LINK_OR_SKIP("fav.jpg", Photos() / "chain.jpg");
  LUMIDEX_LINK_OR_SKIP(Photos() / "q.jpg", Photos() / "whole.jpg");
  LUMIDEX_LINK_OR_SKIP("../../q.jpg", Photos() / "best/of/deep.jpg");
  LUMIDEX_LINK_OR_SKIP("../photos/./p.jpg", Photos() / ".hidden");
  LUMIDEX_LINK_OR_SKIP("best", Photos() / "folder");
  const auto says = [this](const char* link) {
    return std::filesystem::read_symlink((Photos() / link).native());
  };

  const Ran shown = Rename("{name}", {"--dry-run", "photos"});
  EXPECT_THAT(shown.out, Not(HasSubstr("Links that lead")));
  const Ran dry = Rename("R{number}", {"--dry-run", "photos"});
  EXPECT_THAT(dry.out, HasSubstr("Links that lead to the new names:"));
  EXPECT_THAT(dry.out, HasSubstr((Photos() / "fav.jpg").utf8string()));
  EXPECT_EQ(says("fav.jpg"), "p.jpg");

  // As a glob names them.
  const Ran ran = Rename("R{number}", {"photos/fav.jpg", "photos/p.jpg", "photos/q.jpg", "photos", "--json"});
  EXPECT_EQ(ran.exitCode, 0) << ran.out << ran.err;
  EXPECT_EQ(ran.Json()["links"].toArray().size(), 4);
  EXPECT_EQ(says("fav.jpg"), "R1.jpg");
  EXPECT_EQ(says("chain.jpg"), "fav.jpg");
  EXPECT_EQ(says("whole.jpg"), (Photos() / "R2.jpg").native());
  EXPECT_EQ(says("best/of/deep.jpg"), "../../R2.jpg");
  EXPECT_EQ(says(".hidden"), "../photos/./R1.jpg");
  EXPECT_EQ(says("folder"), "best");
  EXPECT_TRUE(IsSameFile(Photos() / "chain.jpg", Photos() / "R1.jpg"));
  EXPECT_THAT(Names(), Not(::testing::Contains(HasSubstr(".lumidex"))));

  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(says("fav.jpg"), "p.jpg");
  EXPECT_EQ(says("whole.jpg"), (Photos() / "q.jpg").native());
  EXPECT_EQ(says("best/of/deep.jpg"), "../../q.jpg");
  EXPECT_TRUE(IsSameFile(Photos() / "chain.jpg", Photos() / "p.jpg"));

  // What others pointed to another photo leads to that one afterwards, too.
  EXPECT_EQ(Run({"redo"}).exitCode, 0);
  EXPECT_EQ(says("fav.jpg"), "R1.jpg");
  std::filesystem::remove((Photos() / "fav.jpg").native());
  LUMIDEX_LINK_OR_SKIP("R2.jpg", Photos() / "fav.jpg");
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(says("fav.jpg"), "q.jpg");
  EXPECT_EQ(says("whole.jpg"), (Photos() / "q.jpg").native());
}

TEST_F(RenameCommand, TearsNoPhotoFromALinkOfItsName) {
  Photo("a.jpg");
  Photo("b.jpg");
  tree.Write("elsewhere/a.xmp", "settings");
  LUMIDEX_LINK_OR_SKIP("../elsewhere/a.xmp", Photos() / "a.xmp");
  // That leads to the photo itself.
  LUMIDEX_LINK_OR_SKIP("b.jpg", Photos() / "b.png");
  const Ran ran = Rename("R{number}");
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr("has a link of the same name beside it, which would not be renamed: a.xmp"));
  EXPECT_EQ(Rename("R{number}", {"--skip-problems", "photos"}).exitCode, 3);
  EXPECT_THAT(Names(), ElementsAre("R2.jpg", "a.jpg", "a.xmp", "b.png"));
  EXPECT_TRUE(IsSameFile(Photos() / "b.png", Photos() / "R2.jpg"));
}

TEST_F(RenameCommand, TellsOfOneNameForManyPhotosOnce) {
  for (int i = 10; i < 35; ++i) {
    Photo(std::to_string(i) + ".jpg");
  }
  const Ran ran = Rename("same");
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr((Photos() / "same.jpg").utf8string() +
                                 "  would be the name of 25 photos: 10.jpg, 11.jpg, 12.jpg and 22 more\n"));
  EXPECT_THAT(ran.out, Not(HasSubstr("13.jpg")));
  EXPECT_THAT(Rename("same", {"--lang", "de", "photos"}).out,
              HasSubstr("  w\u00E4re der Name von 25 Fotos: 10.jpg, 11.jpg, 12.jpg und 22 weitere\n"));
  EXPECT_EQ(Rename("same", {"--json", "photos"}).Json()["problems"].toArray().size(), 25);
}

TEST_F(RenameCommand, RefusesAPatternOfBlanks) {
  Photo("a.jpg");
  for (const char* const pattern : {" ", "  ", "\xC2\xA0"}) {
    const Ran ran = Rename(pattern);
    EXPECT_EQ(ran.exitCode, 2) << pattern;
    EXPECT_THAT(ran.err, HasSubstr("nothing but blanks"));
  }
  EXPECT_THAT(Names(), ElementsAre("a.jpg"));
}

TEST_F(RenameCommand, GivesWhatWasRenamedItsNameBackWhenOneCannotBe) {
  Photo("a.jpg");
  Photo("b.jpg");
  const ioPath inTheWay = Photos() / "x2.jpg";
  ASSERT_EQ(Rename("x{number}").exitCode, 0);
  ASSERT_EQ(Run({"undo"}).exitCode, 0);
  // What comes up afterwards no plan can know.
  tree.Write("photos/x2.jpg", "came up since");
  const Ran ran = Run({"redo"});
  EXPECT_EQ(ran.exitCode, 4) << ran.out;
  EXPECT_THAT(ran.out, HasSubstr("b.jpg to " + inTheWay.utf8string()));
  EXPECT_THAT(Names(), ElementsAre("a.jpg", "b.jpg", "x2.jpg"));
  EXPECT_EQ(ReadFile(inTheWay), "came up since");
}

}  // namespace
}  // namespace Zenvora::Test
