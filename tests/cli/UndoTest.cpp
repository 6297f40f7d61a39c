#include "ChangeFixture.h"

#include <LumidexUtil/FileAccessLocker.h>
#include <host/history/UndoJournal.h>
#include <support/SmallDisk.h>

#include <zenvora/core/FileState.h>

#include <QJsonArray>
#include <QRegularExpression>

namespace Zenvora::Test {
namespace {

class UndoCommand : public ChangeTest {
 protected:
  std::string Settings() const { return ReadText(tree.Path("config/lumidex/lumidex.ini")); }

  /// A rename of a.jpg and b.jpg to x1.jpg and x2.jpg that stopped after the first of them.
  void BreakOffARename() const {
    Photo("a.jpg");
    Photo("b.jpg");
    ASSERT_EQ(Rename("x{number}").exitCode, 0);
    ChangeCatalogue(DefaultCatalogue(), "UPDATE steps SET state = 1");
    ASSERT_TRUE((Photos() / "x2.jpg").rename(Photos() / "b.jpg"));
  }
};

TEST_F(UndoCommand, TakesStepsBackInTheirOrderAndDoesThemAgain) {
  const ioPath photo = Photo("a.jpg");
  const std::string before = ReadFile(photo);
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"shift-date", "+1h", "photos"}).exitCode, 0);
  const std::string after = ReadFile(photo);
  ASSERT_EQ(Rename("x{number}").exitCode, 0);

  const Ran undo = Run({"undo", "--last", "3"});
  EXPECT_EQ(undo.exitCode, 0);
  EXPECT_EQ(undo.out,
            "Undone: rename 1 photo.\n"
            "Undone: shift dates by +1h.\n"
            "Undone: rotate right.\n");
  EXPECT_EQ(ReadFile(photo), before);
  const Ran redo = Run({"redo", "--last", "2"});
  EXPECT_EQ(redo.exitCode, 0);
  EXPECT_EQ(redo.out, "Redone: rotate right.\nRedone: shift dates by +1h.\n");
  EXPECT_EQ(ReadFile(photo), after);
  EXPECT_EQ(Run({"redo"}).exitCode, 0);
  EXPECT_THAT(Names(), ElementsAre("x1.jpg"));
}

TEST_F(UndoCommand, ListsTheSteps) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ASSERT_EQ(Rename("x{number}").exitCode, 0);
  ASSERT_EQ(Run({"undo"}).exitCode, 0);
  const Ran text = Run({"undo", "--list"});
  EXPECT_EQ(text.exitCode, 0);
  const QRegularExpression table(
      QStringLiteral("^WHEN +WHAT +FILES +KEPT\n"
                     "[-0-9]{10} [0-9:]{5}  rename 1 photo +1 +0 B  undone\n"
                     "[-0-9]{10} [0-9:]{5}  rotate right +1 +[0-9]+ B\n$"));
  EXPECT_TRUE(table.match(QString::fromStdString(text.out)).hasMatch()) << text.out;
  const QJsonObject document = Run({"undo", "--list", "--json"}).Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.undo"));
  EXPECT_EQ(document["kind"].toString(), QStringLiteral("list"));
  const QJsonArray steps = document["steps"].toArray();
  ASSERT_EQ(steps.size(), 2);
  const QJsonObject last = steps[0].toObject();
  EXPECT_EQ(last["name"].toString(), QStringLiteral("rename 1 photo"));
  EXPECT_TRUE(last["undone"].toBool());
  EXPECT_EQ(last["files"].toInt(), 1);
  EXPECT_EQ(last["keptBytes"].toInt(-1), 0);
  EXPECT_TRUE(QDateTime::fromString(last["begun"].toString(), Qt::ISODate).isValid());
  EXPECT_TRUE(last["begun"].toString().endsWith(QLatin1Char('Z')));
  const QJsonObject first = steps[1].toObject();
  EXPECT_FALSE(first["undone"].toBool(true));
  EXPECT_GT(first["keptBytes"].toInt(), 0);
  EXPECT_LT(first["number"].toInt(), last["number"].toInt());
}

TEST_F(UndoCommand, WritesOneDocumentWithAllItsMembers) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  for (const char* const command : {"undo", "redo"}) {
    const QJsonObject document = Run({command, "--json"}).Json();
    EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.undo"));
    EXPECT_EQ(document["version"].toInt(), 1);
    EXPECT_EQ(document["catalogue"].toString(), Text(DefaultCatalogue()));
    EXPECT_EQ(document["kind"].toString(), QLatin1String(command));
    EXPECT_FALSE(document["interrupted"].toBool(true));
    EXPECT_TRUE(document["recovered"].toArray().isEmpty());
    ASSERT_EQ(document["done"].toArray().size(), 1) << command;
    const QJsonObject done = document["done"].toArray()[0].toObject();
    EXPECT_EQ(done["name"].toString(), QStringLiteral("rotate right"));
    EXPECT_EQ(done["files"].toInt(), 1);
    EXPECT_TRUE(done["findings"].toArray().isEmpty());
  }
}

TEST_F(UndoCommand, TellsWhenThereIsNothingToTakeBack) {
  const Ran none = Run({"undo"});
  EXPECT_EQ(none.exitCode, 1);
  EXPECT_EQ(none.out, "There is nothing to undo.\n");
  EXPECT_EQ(Run({"redo"}).exitCode, 1);
  const Ran list = Run({"undo", "--list"});
  EXPECT_EQ(list.exitCode, 0);
  EXPECT_EQ(list.out, "There is nothing to undo.\n");
  EXPECT_FALSE(tree.Path("data").exists());

  Photo("a.jpg");
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  const Ran fewer = Run({"undo", "--last", "3"});
  EXPECT_EQ(fewer.exitCode, 1);
  EXPECT_THAT(fewer.out, HasSubstr("Undone: rotate right"));
  EXPECT_THAT(fewer.err, HasSubstr("Only 1 of the 3 steps that you asked for."));
  EXPECT_EQ(Run({"undo"}).exitCode, 1);
}

TEST_F(UndoCommand, ForgetsWhatWasTakenBackWhenSomethingNewIsDone) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"undo"}).exitCode, 0);
  ASSERT_EQ(Run({"rotate", "left", "photos"}).exitCode, 0);
  EXPECT_EQ(Run({"redo"}).exitCode, 1);
}

TEST_F(UndoCommand, LeavesWhatOthersHaveChangedSince) {
  const ioPath photo = Photo("a.jpg");
  const std::string before = ReadFile(photo);
  Photo("b.jpg");
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"rotate", "right", "photos/a.jpg"}).exitCode, 0);
  tree.Write("photos/b.jpg", "changed by others");
  const Ran partly = Run({"undo", "--last", "2"});
  EXPECT_EQ(partly.exitCode, 3) << partly.out;
  EXPECT_THAT(partly.out, HasSubstr("Left as they are:\n  " + (Photos() / "b.jpg").utf8string()));
  EXPECT_THAT(partly.out, HasSubstr("Undone: rotate right, except for 1 file.\n"));
  EXPECT_EQ(ReadFile(photo), before);
  EXPECT_EQ(ReadFile(Photos() / "b.jpg"), "changed by others");
  const Ran failed = Run({"undo"});
  EXPECT_EQ(failed.exitCode, 4);
  EXPECT_THAT(failed.out, HasSubstr("Nothing of \"rotate right\" was undone."));
}

TEST_F(UndoCommand, SkipsWhatCannotBeTakenBack) {
  const std::string hint = "\"lumidex undo --skip\" skips it for good.";
  const std::string before = ReadFile(Photo("b.jpg"));
  ASSERT_EQ(Run({"rotate", "right", "photos/b.jpg"}).exitCode, 0);
  Photo("a.jpg");
  ASSERT_EQ(Run({"rotate", "left", "photos/a.jpg"}).exitCode, 0);
  tree.Write("photos/a.jpg", "changed by others");
  for (int i = 0; i < 2; ++i) {
    const Ran blocked = Run({"undo"});
    EXPECT_EQ(blocked.exitCode, 4);
    EXPECT_THAT(blocked.out, HasSubstr(hint));
  }
  const Ran skip = Run({"undo", "--skip"});
  EXPECT_EQ(skip.exitCode, 0);
  const QRegularExpression text(QStringLiteral(
      "^Skipped: rotate left. Its originals \\([0-9.]+ [KM]?i?B\\) are kept until they exceed the "
      "limits of undo.\n$"));
  EXPECT_TRUE(text.match(QString::fromStdString(skip.out)).hasMatch()) << skip.out;
  EXPECT_EQ(ReadFile(Photos() / "a.jpg"), "changed by others");
  const QRegularExpression table(
      QStringLiteral("rotate left .*  cannot be undone\n.*rotate right [^a-z]*\n$"));
  const Ran list = Run({"undo", "--list"});
  EXPECT_TRUE(table.match(QString::fromStdString(list.out)).hasMatch()) << list.out;

  const Ran older = Run({"undo"});
  EXPECT_EQ(older.exitCode, 0);
  EXPECT_THAT(older.out, Not(HasSubstr(hint)));
  EXPECT_EQ(ReadFile(Photos() / "b.jpg"), before);
  EXPECT_EQ(Run({"undo"}).exitCode, 1);
  EXPECT_EQ(Run({"redo"}).out, "Redone: rotate right.\n");
  EXPECT_EQ(Run({"redo"}).exitCode, 1);
}

TEST_F(UndoCommand, WritesWhatWasSkipped) {
  const QJsonObject nothing = Run({"undo", "--skip", "--json"}).Json();
  EXPECT_EQ(nothing["kind"].toString(), QStringLiteral("skip"));
  EXPECT_TRUE(nothing["skipped"].isArray());
  EXPECT_TRUE(nothing["skipped"].toArray().isEmpty());
  EXPECT_FALSE(tree.Path("data").exists());
  const Ran none = Run({"undo", "--skip"});
  EXPECT_EQ(none.exitCode, 1);
  EXPECT_EQ(none.out, "There is nothing to skip.\n");

  Photo("a.jpg");
  ASSERT_EQ(Rename("x").exitCode, 0);
  const Ran ran = Run({"undo", "--skip", "--json"});
  EXPECT_EQ(ran.exitCode, 0);
  const QJsonArray skipped = ran.Json()["skipped"].toArray();
  ASSERT_EQ(skipped.size(), 1);
  const QJsonObject step = skipped[0].toObject();
  EXPECT_EQ(step["name"].toString(), QStringLiteral("rename 1 photo"));
  EXPECT_TRUE(step["givenUp"].toBool());
  EXPECT_FALSE(step["undone"].toBool(true));
  EXPECT_TRUE(step["blocked"].toArray().isEmpty());
  QJsonObject listed = Run({"undo", "--list", "--json"}).Json()["steps"].toArray()[0].toObject();
  listed["blocked"] = QJsonArray();
  EXPECT_EQ(listed, step);
  EXPECT_THAT(Names(), ElementsAre("x.jpg"));
  // A step that keeps nothing has nothing to tell of that.
  ASSERT_EQ(Rename("y").exitCode, 0);
  EXPECT_EQ(Run({"undo", "--skip"}).out, "Skipped: rename 1 photo.\n");
}

TEST_F(UndoCommand, TellsWhatWaitsInVainForASkippedStep) {
  const ioPath photo = Photo("a.jpg");
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"shift-date", "+1h", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"rotate", "left", "photos"}).exitCode, 0);
  const Ran text = Run({"undo", "--skip"});
  EXPECT_EQ(text.exitCode, 0);
  EXPECT_THAT(text.out, HasSubstr("Skipped: rotate left."));
  EXPECT_THAT(text.out, HasSubstr("Undo of \"shift dates by +1h\" ("));
  EXPECT_THAT(text.out, HasSubstr("Undo of \"rotate right\" ("));
  EXPECT_THAT(text.out, HasSubstr("\n  " + photo.utf8string() + "\n"));
  const QJsonObject json = Run({"undo", "--skip", "--json"}).Json();
  const QJsonArray blocked = json["skipped"].toArray()[0].toObject()["blocked"].toArray();
  ASSERT_EQ(blocked.size(), 1);
  EXPECT_EQ(blocked[0].toObject()["name"].toString(), QStringLiteral("rotate right"));
  EXPECT_EQ(blocked[0].toObject()["left"].toArray()[0].toObject()["path"].toString(), Text(photo));
  EXPECT_EQ(Run({"undo"}).exitCode, 4);
}

TEST_F(UndoCommand, ListsWhatIsInACatalogueThatCannotBeWritten) {
  const SmallDisk disk(tree.MakeFolder("disk"), std::size_t{16} << 20U);
  LUMIDEX_DISK_OR_SKIP(disk);
  Photo("a.jpg");
  const QString catalogue = Text(tree.Path("disk/c.sqlite"));
  ASSERT_EQ(Run({"--catalogue", catalogue, "rotate", "right", "photos"}).exitCode, 0);
  ASSERT_TRUE(disk.MakeReadOnly());
  const Ran ran = Run({"--catalogue", catalogue, "undo", "--list"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(ran.out, HasSubstr("rotate right"));
  EXPECT_EQ(Run({"--catalogue", catalogue, "undo"}).exitCode, 4);
}

TEST_F(UndoCommand, MakesNothingForAList) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"scan", "photos"}).exitCode, 0);
  EXPECT_EQ(Run({"undo", "--list"}).exitCode, 0);
  EXPECT_FALSE(tree.Path("data/lumidex/catalogue.sqlite.undo").exists());
}

TEST_F(UndoCommand, TellsOfPhotosThatAreGone) {
  const ioPath photo = Photo("a.jpg");
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ASSERT_TRUE(photo.remove());
  const Ran ran = Run({"undo", "--json"});
  EXPECT_EQ(ran.exitCode, 4);
  const QJsonObject done = ran.Json()["done"].toArray()[0].toObject();
  EXPECT_EQ(done["files"].toInt(-1), 0);
  EXPECT_EQ(done["findings"].toArray()[0].toObject()["path"].toString(), Text(photo));
}

TEST_F(UndoCommand, KeepsNoMoreThanTheLimits) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  const Ran set = Run({"undo", "--keep-size", "1K", "--keep-days", "10", "--forget-older"});
  EXPECT_EQ(set.exitCode, 0);
  EXPECT_THAT(set.out, HasSubstr("Steps can be undone for 10 days of use, with up to 1 KiB of originals."));
  EXPECT_THAT(Settings(), HasSubstr("Days=10"));
  EXPECT_THAT(Settings(), HasSubstr("Size=1K"));

  const QJsonObject none = Run({"undo", "--keep-size", "0", "--json", "--forget-older"}).Json();
  EXPECT_EQ(none["kind"].toString(), QStringLiteral("limits"));
  EXPECT_EQ(none["limits"].toObject()["days"].toInt(), 10);
  EXPECT_EQ(none["limits"].toObject()["bytes"].toInt(-1), 0);
  EXPECT_TRUE(none["forgotten"].isDouble());
  EXPECT_TRUE(Run({"undo", "--list", "--json"}).Json()["steps"].toArray().isEmpty());
  EXPECT_EQ(Run({"undo"}).exitCode, 1);

  // Then an edit cannot be undone, but a rename can: it keeps nothing.
  EXPECT_EQ(Run({"rotate", "right", "photos"}).exitCode, 4);
  EXPECT_THAT(Rename("x").out, HasSubstr("undoes it"));
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
}

TEST_F(UndoCommand, ForgetsOldSteps) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ChangeCatalogue(DefaultCatalogue(), "UPDATE days_of_use SET count = 366");
  EXPECT_EQ(Run({"undo", "--list", "--json"}).Json()["steps"].toArray()[0].toObject()["daysOfUse"].toInt(),
            366);
  const Ran ran = Run({"undo", "--keep-days", "365", "--forget-older"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(ran.out,
            "Steps can be undone for 365 days of use, with up to 5 GiB of originals. 1 older step cannot be "
            "undone any more.\n");
  EXPECT_EQ(Run({"undo"}).exitCode, 1);
}

TEST_F(UndoCommand, RefusesLimitsAndNumbersThatMakeNoSense) {
  for (const QStringList& line : std::vector<QStringList>{{"undo", "--keep-size", "5X"},
                                                          {"undo", "--keep-size", ""},
                                                          {"undo", "--keep-size", "-1"},
                                                          {"undo", "--keep-days", "-1"},
                                                          {"undo", "--keep-days", "36501"},
                                                          {"undo", "--keep-days", "x"},
                                                          {"undo", "--last", "0"},
                                                          {"undo", "--last", "1001"},
                                                          {"undo", "--last", "2", "--list"},
                                                          {"undo", "--keep-days", "1", "--list"},
                                                          {"undo", "--keep-size", "1", "--last", "2"},
                                                          {"undo", "--skip", "--last", "2"},
                                                          {"undo", "--skip", "--list"},
                                                          {"undo", "--keep-days", "1", "--skip"},
                                                          {"undo", "--skip", "--keep-size", "1"},
                                                          {"undo", "--forget-older"},
                                                          {"undo", "--forget-older", "--last", "2"},
                                                          {"undo", "photos"},
                                                          {"redo", "--skip"},
                                                          {"redo", "--list"},
                                                          {"redo", "--last", "x"}}) {
    EXPECT_EQ(Run(line).exitCode, 2) << line.join(QLatin1Char(' ')).toStdString();
  }
  EXPECT_FALSE(tree.Path("config").exists());
}

TEST_F(UndoCommand, SaysWhenTheLimitsCannotBeStored) {
  tree.MakeFolder("config/lumidex/lumidex.ini");
  const Ran ran = Run({"undo", "--keep-days", "10"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr("cannot be written"));
  EXPECT_FALSE(tree.Path("data").exists());
}

TEST_F(UndoCommand, TakesLimitsThatMakeNoSenseForTheUsualOnes) {
  tree.Write("config/lumidex/lumidex.ini", "[Undo]\nDays=soon\nSize=lots\n");
  Photo("a.jpg");
  const Ran ran = Run({"rotate", "right", "photos"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.err, HasSubstr("Undo/Days is invalid (soon)"));
  EXPECT_THAT(ran.err, HasSubstr("Undo/Size is invalid (lots)"));
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
}

TEST_F(UndoCommand, FinishesWhatWasBrokenOffBeforeAnythingElse) {
  const std::vector<QStringList> commands = {{"scan", "photos"},
                                             {"albums"},
                                             {"rotate", "--json", "left", "photos"},
                                             {"rename", "--json", "--pattern", "y{number}", "photos"},
                                             {"undo", "--json", "--list"}};
  for (const QStringList& command : commands) {
    for (const std::string& name : Names()) {
      ASSERT_TRUE((Photos() / name).remove());
    }
    BreakOffARename();
    const Ran ran = Run(command);
    EXPECT_THAT(ran.err, HasSubstr("Interrupted step \"rename 2 photos\" is now complete."))
        << command[0].toStdString();
    EXPECT_FALSE((Photos() / "b.jpg").exists());
    if (command.contains(QStringLiteral("--json"))) {
      EXPECT_EQ(ran.Json()["recovered"].toArray().size(), 1);
    }
    EXPECT_THAT(Run(command).err, Not(HasSubstr("nterrupted")));
    ChangeCatalogue(DefaultCatalogue(), "DELETE FROM steps");
  }
}

TEST_F(UndoCommand, LeavesWhatWasBrokenOffAloneInADryRun) {
  BreakOffARename();
  for (const QStringList& command :
       std::vector<QStringList>{{"scan", "--dry-run", "photos"},
                                {"rename", "--dry-run", "--pattern", "y{number}", "photos"},
                                {"rotate", "--dry-run", "left", "photos"}}) {
    EXPECT_THAT(Run(command).err, IsEmpty()) << command[0].toStdString();
    EXPECT_THAT(Names(), ElementsAre("b.jpg", "x1.jpg"));
  }
}

TEST_F(UndoCommand, WaitsForNoOtherProgramForLong) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"scan", "photos"}).exitCode, 0);
  const auto locker = Lumidex::FileAccessLocker::Create();
  Lumidex::Host::UndoJournal other(DefaultCatalogue(), *locker);
  other.BeginStep(QStringLiteral("long work"));
  for (const QStringList& command : std::vector<QStringList>{
           {"rename", "--pattern", "x", "photos"}, {"rotate", "left", "photos"}, {"undo"}}) {
    const Ran ran = Run(command);
    EXPECT_EQ(ran.exitCode, 4) << command[0].toStdString();
    EXPECT_THAT(ran.err, HasSubstr("another program"));
  }
  // What does not need the journal does not need to recover it either.
  const Ran scan = Run({"scan", "photos"});
  EXPECT_EQ(scan.exitCode, 0);
  EXPECT_THAT(scan.err, IsEmpty());
  EXPECT_THAT(Names(), ElementsAre("a.jpg"));
}

}  // namespace
}  // namespace Zenvora::Test
