#include "ChangeFixture.h"

#include <support/StrangeName.h>

#include <zenvora/core/FileState.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <QImageReader>
#include <QJsonArray>

#include <filesystem>

namespace Zenvora::Test {
namespace {

class EditCommands : public ChangeTest {
 protected:
  static std::string Taken(const ioPath& photo) {
    return Strandel::ReadPhotoFacts(photo)
        .original.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))
        .toStdString();
  }
  static QImageIOHandler::Transformations Orientation(const ioPath& photo) {
    return QImageReader(Text(photo)).transformation();
  }
};

TEST_F(EditCommands, TurnPhotosAndTakeItBack) {
  const ioPath photo = Photo("a.jpg");
  const std::string before = ReadFile(photo);
  const std::int64_t time = QueryFile(photo).modifiedNs;
  const struct {
    const char* direction;
    QImageIOHandler::Transformation shown;
  } rows[] = {{"right", QImageIOHandler::TransformationRotate90},
              {"left", QImageIOHandler::TransformationRotate270},
              {"180", QImageIOHandler::TransformationRotate180}};
  for (const auto& row : rows) {
    const Ran ran = Run({"rotate", row.direction, "photos"});
    EXPECT_EQ(ran.exitCode, 0) << row.direction;
    EXPECT_EQ(ran.out, "1 photo edited; \"lumidex undo\" undoes it.\n");
    EXPECT_THAT(ran.err, IsEmpty());
    EXPECT_EQ(Orientation(photo), row.shown) << row.direction;
    EXPECT_EQ(ReadFile(photo).size(), before.size()) << row.direction;
    EXPECT_EQ(Run({"undo"}).exitCode, 0);
    EXPECT_EQ(ReadFile(photo), before) << row.direction;
    EXPECT_EQ(QueryFile(photo).modifiedNs, time) << row.direction;
  }
  EXPECT_THAT(NamesIn(Photos()), ElementsAre("a.jpg"));
}

TEST_F(EditCommands, ShiftDates) {
  const ioPath photo = Photo("a.jpg");
  const struct {
    const char* offset;
    const char* taken;
  } rows[] = {{"+1h", "2024-05-17 11:00:00"},      {"-2h", "2024-05-17 08:00:00"},
              {"-2d3h", "2024-05-15 07:00:00"},    {"+1:30", "2024-05-17 11:30:00"},
              {"-0:00:45", "2024-05-17 09:59:15"}, {"+90m", "2024-05-17 11:30:00"}};
  for (const auto& row : rows) {
    EXPECT_EQ(Run({"shift-date", row.offset, "photos"}).exitCode, 0) << row.offset;
    EXPECT_EQ(Taken(photo), row.taken) << row.offset;
    EXPECT_EQ(Run({"undo"}).exitCode, 0);
  }
  // Also behind the mark that ends the options, and between options.
  EXPECT_EQ(Run({"--quiet", "shift-date", "--", "-1h", "photos"}).exitCode, 0);
  EXPECT_EQ(Run({"shift-date", "--json", "-1h", "photos", "--quiet"}).exitCode, 0);
  EXPECT_EQ(Taken(photo), "2024-05-17 08:00:00");
}

TEST_F(EditCommands, SetDates) {
  const ioPath photo = Photo("a.jpg");
  const ioPath bare = WriteJpeg(Photos() / "b.jpg");
  const struct {
    const char* date;
    const char* taken;
  } rows[] = {{"1987-08-15", "1987-08-15 00:00:00"},
              {"2024-05-17 18:30", "2024-05-17 18:30:00"},
              {"2024-05-17T18:30:05", "2024-05-17 18:30:05"},
              {"2021:05:01 10:20:30", "2021-05-01 10:20:30"}};
  for (const auto& row : rows) {
    EXPECT_EQ(Run({"set-date", row.date, "photos"}).exitCode, 0) << row.date;
    EXPECT_EQ(Taken(photo), row.taken);
    EXPECT_EQ(Taken(bare), row.taken);
  }
}

TEST_F(EditCommands, RefuseWhatMakesNoSense) {
  Photo("a.jpg");
  const struct {
    QStringList arguments;
    const char* text;
  } rows[] = {
      {{"rotate", "up", "photos"}, "DIRECTION must be one of left, right, 180, not \"up\""},
      {{"rotate", "right"}, "FILE"},
      {{"rotate"}, "DIRECTION"},
      {{"shift-date", "2h", "photos"}, "OFFSET needs a sign: +2h"},
      {{"shift-date", "+2x", "photos"}, "OFFSET needs a time such as +1h"},
      {{"shift-date", "+0h", "photos"}, "OFFSET needs a time other than 0"},
      {{"shift-date", "-x", "photos", "photos"}, "There is no option -x"},
      {{"set-date", "17.05.2024", "photos"}, "DATE needs a date such as 2024-05-17"},
      {{"set-date", "2024-02-30", "photos"}, "DATE needs"},
      {{"set-date", "", "photos"}, "must not be empty"},
  };
  for (const auto& row : rows) {
    const Ran ran = Run(row.arguments);
    EXPECT_EQ(ran.exitCode, 2) << row.text;
    EXPECT_THAT(ran.err, HasSubstr(row.text));
    EXPECT_EQ(Run(QStringList{"--json"} + row.arguments).Json()["kind"].toString(), QStringLiteral("usage"));
  }
  EXPECT_FALSE(tree.Path("data").exists());
}

TEST_F(EditCommands, TellInADryRunWhatTheRunDoes) {
  const ioPath photo = Photo("a.jpg", "2024:05:17 10:00:00", 6);
  tree.Write("photos/fake.jpg", "this is no image");
  const std::string before = ReadFile(photo);
  const Ran turned = Run({"rotate", "--dry-run", "right", "photos"});
  EXPECT_EQ(turned.exitCode, 3);
  EXPECT_THAT(turned.out, HasSubstr(photo.utf8string() + "  turned right  ->  upside down\n"));
  EXPECT_THAT(turned.out,
              HasSubstr("Cannot be edited:\n  Cannot edit " + (Photos() / "fake.jpg").utf8string()));
  EXPECT_THAT(turned.out, HasSubstr("1 photo would be edited. This was a dry run"));
  EXPECT_THAT(Run({"shift-date", "-1h", "--dry-run", "photos"}).out,
              HasSubstr("  2024-05-17 10:00:00  ->  2024-05-17 09:00:00\n"));
  EXPECT_EQ(ReadFile(photo), before);
  EXPECT_FALSE(tree.Path("data").exists());
  EXPECT_THAT(NamesIn(Photos()), ElementsAre("a.jpg", "fake.jpg"));

  const QJsonObject dry = Run({"set-date", "1987-08-15", "--dry-run", "--json", "photos"}).Json();
  const QJsonObject wet = Run({"set-date", "1987-08-15", "--json", "photos"}).Json();
  const QJsonObject change = dry["changes"].toArray()[0].toObject();
  EXPECT_EQ(change["path"].toString(), Text(photo));
  EXPECT_EQ(change["takenBefore"].toString(), QStringLiteral("2024-05-17T10:00:00"));
  EXPECT_EQ(change["takenAfter"].toString(), QStringLiteral("1987-08-15T00:00:00"));
  EXPECT_EQ(change["orientationBefore"].toInt(), 6);
  EXPECT_EQ(change["orientationAfter"].toInt(), 6);
  for (const char* const same : {"command", "argument", "photos", "edited", "findings", "catalogue"}) {
    EXPECT_EQ(dry[same], wet[same]) << same;
  }
  EXPECT_EQ(Taken(photo), "1987-08-15 00:00:00");
}

TEST_F(EditCommands, WriteOneDocumentWithAllItsMembers) {
  Photo("a.jpg");
  const Ran ran = Run({"--json", "shift-date", "+1h", "photos", "photos/gone.jpg"});
  EXPECT_EQ(ran.exitCode, 3);
  EXPECT_THAT(ran.err, IsEmpty());
  const QJsonObject document = ran.Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.edit"));
  EXPECT_EQ(document["version"].toInt(), 1);
  EXPECT_EQ(document["catalogue"].toString(), Text(DefaultCatalogue()));
  EXPECT_EQ(document["command"].toString(), QStringLiteral("shift-date"));
  EXPECT_EQ(document["argument"].toString(), QStringLiteral("+1h"));
  EXPECT_FALSE(document["dryRun"].toBool(true));
  EXPECT_FALSE(document["interrupted"].toBool(true));
  EXPECT_EQ(document["photos"].toInt(), 1);
  EXPECT_EQ(document["edited"].toInt(), 1);
  EXPECT_TRUE(document["canBeUndone"].toBool());
  EXPECT_TRUE(document["recovered"].toArray().isEmpty());
  EXPECT_TRUE(document["changes"].isUndefined());
  const QJsonObject finding = document["findings"].toArray()[0].toObject();
  EXPECT_EQ(finding["path"].toString(), Text(Photos() / "gone.jpg"));
  EXPECT_EQ(finding["cause"].toString(), Text(Photos() / "gone.jpg") + QStringLiteral(" does not exist."));
}

TEST_F(EditCommands, ListWhatTheyCannotEditWithTheCause) {
  tree.Write("photos/fake.jpg", "this is no image");
  tree.Write("photos/notes.txt", "");
  Photo(".hidden.jpg");
  WriteJpeg(Photos() / "undated.jpg");
  const struct {
    QStringList arguments;
    const char* cause;
  } rows[] = {{{"rotate", "left", "photos/gone.jpg"}, "gone.jpg does not exist."},
              {{"rotate", "left", "photos/notes.txt"}, "notes.txt is not named like a photo."},
              {{"rotate", "left", "photos/.hidden.jpg"}, ".hidden.jpg is hidden."},
              {{"rotate", "left", "photos/fake.jpg"}, "fake.jpg: "},
              {{"shift-date", "+1h", "photos/undated.jpg"}, "undated.jpg: "}};
  for (const auto& row : rows) {
    const Ran ran = Run(row.arguments);
    EXPECT_EQ(ran.exitCode, 4) << row.cause;
    EXPECT_THAT(ran.out, HasSubstr("Not edited:\n  "));
    EXPECT_THAT(ran.out, HasSubstr(row.cause));
    EXPECT_THAT(ran.out, HasSubstr("Nothing was changed."));
  }
  EXPECT_THAT(Run({"undo", "--list"}).out, HasSubstr("nothing to undo"));
}

TEST_F(EditCommands, TakeThePhotosOfAFolderAndNothingBelow) {
  const ioPath photo = Photo("a.jpg");
  const ioPath below = Photo("below/b.jpg");
  const ioPath hidden = Photo(".c.jpg");
  tree.Write("photos/notes.txt", "");
  EXPECT_EQ(Run({"rotate", "--json", "right", "photos", "photos/a.jpg"}).Json()["edited"].toInt(), 1);
  EXPECT_EQ(Orientation(photo), QImageIOHandler::TransformationRotate90);
  EXPECT_EQ(Orientation(below), QImageIOHandler::TransformationNone);
  EXPECT_EQ(Orientation(hidden), QImageIOHandler::TransformationNone);
  tree.MakeFolder("empty");
  const Ran empty = Run({"rotate", "right", "empty"});
  EXPECT_EQ(empty.exitCode, 1);
  EXPECT_THAT(empty.err, HasSubstr("no photos"));
}

TEST_F(EditCommands, EditThePhotoThatALinkLeadsTo) {
  const ioPath photo = Photo("a.jpg");
  LUMIDEX_LINK_OR_SKIP(photo, tree.Path("link.jpg"));
  EXPECT_EQ(Run({"rotate", "right", "link.jpg", "photos/a.jpg"}).exitCode, 0);
  EXPECT_EQ(Orientation(photo), QImageIOHandler::TransformationRotate90);
  EXPECT_TRUE(IsSameFile(photo, tree.Path("link.jpg")));
}

TEST_F(EditCommands, TellTheCatalogue) {
  MakePhotos("", "2023:12:24", 20);
  PhotoTags wrong;
  wrong.dateTimeOriginal = "2003:12:24 10:00:00";
  const ioPath photo = WriteJpeg(Photos() / "wrong.jpg", wrong);
  ASSERT_EQ(Run({"scan", "photos"}).exitCode, 0);
  const auto members = [this] {
    return Run({"albums", "--json"}).Json()["albums"].toArray()[0].toObject()["photos"].toInt();
  };
  EXPECT_EQ(members(), 20);
  EXPECT_EQ(Run({"set-date", "2023-12-24 18:00", "photos/wrong.jpg"}).exitCode, 0);
  EXPECT_EQ(members(), 21);
  EXPECT_EQ(Run({"scan", "--json", "photos"}).Json()["unchanged"].toInt(), 21);
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(members(), 20);
}

TEST_F(EditCommands, DoNothingWithoutAUsableCatalogue) {
  const ioPath photo = Photo("a.jpg");
  const std::string before = ReadFile(photo);
  tree.Write("data/lumidex/catalogue.sqlite", "this is no database, but long enough to be asked");
  const Ran ran = Run({"rotate", "right", "photos"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr(DefaultCatalogue().utf8string()));
  EXPECT_EQ(ReadFile(photo), before);
}

TEST_F(EditCommands, TakeNamesThatAreNoText) {
#ifdef _WIN32
  const std::string odd = std::string(kStrangeName) + ".jpg";
  const std::string shownAs = odd;
#else
  const std::string odd = "a\n\x1b[31m\xFF.jpg";
  const std::string shownAs = "a\\n\\x1b[31m\\xff.jpg";
#endif
  const ioPath photo = Photo(odd);
  const std::string before = ReadFile(photo);
  const Ran shown = Run({"rotate", "--dry-run", "right", "photos"});
  EXPECT_THAT(shown.out, HasSubstr(shownAs));
  EXPECT_THAT(shown.out, Not(HasSubstr("\x1b")));
  EXPECT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  EXPECT_NE(ReadFile(photo), before);
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(ReadFile(photo), before);
}

}  // namespace
}  // namespace Zenvora::Test
