#include "ChangeFixture.h"
#include "Terminal.h"

#include <support/LeftOut.h>
#include <support/SmallDisk.h>

#include <QJsonArray>

namespace Zenvora::Test {
namespace {

/// What edits do where the limit of what is kept for undo is reached.
class UndoLimits : public ChangeTest {
 protected:
  /// A photo with so many bytes.
  ioPath PhotoOf(const std::string& name, std::size_t bytes) const {
    const ioPath photo = Photo(name);
    const std::string content = ReadFile(photo);
    EXPECT_LT(content.size(), bytes);
    // Behind the end of the picture: an edit takes it along.
    return tree.Write(photo, content + std::string(bytes - content.size(), '\n'));
  }
  void Limit(const QString& size) const { ASSERT_EQ(Run({"undo", "--keep-size", size}).exitCode, 0); }
  QJsonArray Steps() const { return Run({"undo", "--list", "--json"}).Json()["steps"].toArray(); }

  static constexpr std::size_t kBytes = 40'000;
};

TEST_F(UndoLimits, RefuseWhatDoesNotFitAlone) {
  const std::string before = ReadFile(PhotoOf("a.jpg", kBytes));
  PhotoOf("small.jpg", 20'000);
  ASSERT_EQ(Run({"rotate", "right", "photos/small.jpg"}).exitCode, 0);
  Limit("30K");
  const Ran ran = Run({"rotate", "right", "photos/a.jpg"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_EQ(
      ran.err,
      "lumidex: error: Nothing was changed. To undo the edit, 39 KiB of originals must be kept, but the "
      "limit is 30 KiB. \"lumidex undo --keep-size 40K\" raises the limit; with --no-undo nothing is "
      "kept, and the edit cannot be undone.\n");
  EXPECT_EQ(ReadFile(Photos() / "a.jpg"), before);
  EXPECT_EQ(Steps().size(), 1);
  const QJsonObject error = Run({"rotate", "--json", "right", "photos/a.jpg"}).Json();
  EXPECT_EQ(error["kind"].toString(), QStringLiteral("undo-limit"));

  // What was said is enough, and older steps stay as long as they can.
  Limit("40K");
  const Ran raised = Run({"rotate", "right", "--forget-older", "photos/a.jpg"});
  EXPECT_EQ(raised.exitCode, 0) << raised.err;
  EXPECT_EQ(raised.out,
            "1 photo edited; \"lumidex undo\" undoes it.\n1 older step cannot be undone any more.\n");
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(ReadFile(Photos() / "a.jpg"), before);
}

TEST_F(UndoLimits, ForgetOlderStepsOnlyWhenTheyMay) {
  PhotoOf("a.jpg", kBytes);
  PhotoOf("b.jpg", kBytes);
  ASSERT_EQ(Run({"rotate", "right", "photos/a.jpg"}).exitCode, 0);
  Limit("60K");
  const std::string before = ReadFile(Photos() / "b.jpg");
  const Ran refused = Run({"shift-date", "+1h", "photos/b.jpg"});
  EXPECT_EQ(refused.exitCode, 4);
  EXPECT_THAT(refused.err,
              HasSubstr("Nothing was changed. To keep 39 KiB of originals within the limit of 60 "
                        "KiB, undo would have to forget 1 older step:\n  "));
  EXPECT_THAT(refused.err,
              HasSubstr("  rotate right\n--forget-older allows it. \"lumidex undo --keep-size 79K\" "
                        "makes room for all of them.\n"));
  const QJsonObject error = Run({"shift-date", "--json", "+1h", "photos/b.jpg"}).Json();
  EXPECT_THAT(error["message"].toString().toStdString(),
              HasSubstr("rotate right. --forget-older allows it."));
  EXPECT_EQ(ReadFile(Photos() / "b.jpg"), before);
  EXPECT_EQ(Steps().size(), 1);

  const Ran dry = Run({"shift-date", "--dry-run", "+1h", "photos/b.jpg"});
  EXPECT_EQ(dry.exitCode, 4);
  EXPECT_EQ(Run({"shift-date", "--dry-run", "--forget-older", "+1h", "photos/b.jpg"}).exitCode, 0);
  EXPECT_THAT(dry.out, HasSubstr("undo would have to forget 1 older step"));
  const QJsonObject document = Run({"shift-date", "--dry-run", "--json", "+1h", "photos/b.jpg"}).Json();
  const QJsonObject undo = document["undo"].toObject();
  EXPECT_TRUE(undo["fits"].toBool());
  EXPECT_TRUE(undo["keeps"].toBool());
  EXPECT_EQ(undo["bytesNeeded"].toInt(), static_cast<int>(kBytes));
  EXPECT_EQ(undo["bytesLimit"].toInt(), 60 * 1024);
  ASSERT_EQ(undo["forgets"].toArray().size(), 1);
  EXPECT_EQ(undo["forgets"].toArray()[0].toObject()["name"].toString(), QStringLiteral("rotate right"));

  const QJsonObject done = Run({"shift-date", "--forget-older", "--json", "+1h", "photos/b.jpg"}).Json();
  EXPECT_TRUE(done["canBeUndone"].toBool());
  EXPECT_EQ(done["forgotten"].toInt(), 1);
  ASSERT_EQ(Steps().size(), 1);
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(ReadFile(Photos() / "b.jpg"), before);
}

TEST_F(UndoLimits, AreTakenForWhatTheyAreByADryRun) {
  PhotoOf("a.jpg", kBytes);
  Limit("1K");
  const Ran dry = Run({"rotate", "--dry-run", "left", "photos"});
  EXPECT_EQ(dry.exitCode, 4);
  EXPECT_THAT(dry.out,
              HasSubstr("The edit would be refused. To undo the edit, 39 KiB of originals must be kept"));
  EXPECT_FALSE(Run({"rotate", "--dry-run", "--json", "left", "photos"})
                   .Json()["undo"]
                   .toObject()["fits"]
                   .toBool(true));
  EXPECT_THAT(Run({"rotate", "--dry-run", "--no-undo", "left", "photos"}).out,
              HasSubstr("No originals would be kept, so the edit could not be undone."));
}

TEST_F(UndoLimits, DoNotMatterForWhatNeedsNoUndo) {
  const ioPath photo = PhotoOf("a.jpg", kBytes);
  Limit("1K");
  const std::string before = ReadFile(photo);
  const Ran ran = Run({"rotate", "--no-undo", "right", "photos"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(ran.out, HasSubstr("edited; it cannot be undone."));
  EXPECT_NE(ReadFile(photo), before);
  EXPECT_EQ(Run({"undo"}).exitCode, 1);
  EXPECT_THAT(Run({"undo", "--list"}).out, HasSubstr("cannot be undone"));
  EXPECT_EQ(Run({"rotate", "--no-undo", "--forget-older", "right", "photos"}).exitCode, 2);
}

TEST_F(UndoLimits, LeaveStepsThatKeepNothingAlone) {
  PhotoOf("a.jpg", kBytes);
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  tree.Write("config/lumidex/lumidex.ini", "[Undo]\nSize=1K\n");
  // Nobody was asked, so nothing goes.
  EXPECT_THAT(Rename("x").out, HasSubstr("undoes it"));
  EXPECT_EQ(Steps().size(), 2);
  const Ran both = Run({"undo", "--last", "2"});
  EXPECT_EQ(both.exitCode, 0) << both.out;
}

TEST_F(UndoLimits, CountDaysOfUse) {
  PhotoOf("a.jpg", kBytes);
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"undo", "--keep-days", "2"}).exitCode, 0);
  ChangeCatalogue(DefaultCatalogue(), "UPDATE steps SET begun = '1971-01-01T00:00:00Z'");
  EXPECT_EQ(Rename("x").err, "");
  ChangeCatalogue(DefaultCatalogue(), "UPDATE days_of_use SET count = 3");
  const Ran later = Run({"rename", "--pattern", "y", "photos"});
  EXPECT_EQ(later.exitCode, 0);
  EXPECT_THAT(later.err,
              HasSubstr("2 steps cannot be undone any more, because more than 2 days of use have passed."));
  EXPECT_EQ(Steps().size(), 1);
}

/// Lower limits forgot steps without a word, and for good.
TEST_F(UndoLimits, AreNotLoweredBelowStepsWithoutConsent) {
  const std::string before = ReadFile(PhotoOf("a.jpg", kBytes));
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ASSERT_EQ(Rename("x").exitCode, 0);
  // That the command is run is a day of use more.
  ChangeCatalogue(DefaultCatalogue(), "UPDATE days_of_use SET count = 5, last = '1999-01-01'");
  for (const QStringList& limit : {QStringList{"--keep-days", "5"}, QStringList{"--keep-size", "30K"}}) {
    const Ran refused = Run(QStringList{"undo"} + limit);
    EXPECT_EQ(refused.exitCode, 4);
    EXPECT_THAT(refused.err,
                HasSubstr("Nothing was changed. Within these limits, undo would have to forget"));
    EXPECT_THAT(refused.err, HasSubstr("  rotate right\n"));
    EXPECT_THAT(refused.err, HasSubstr("--forget-older allows it.\n"));
    EXPECT_EQ(Run(QStringList{"undo", "--json"} + limit).Json()["kind"].toString(),
              QStringLiteral("undo-limit"));
    EXPECT_EQ(Steps().size(), 2);
    EXPECT_FALSE(tree.Path("config/lumidex/lumidex.ini").exists());
  }
  // What leaves a place for all of them needs no consent.
  const Ran higher = Run({"undo", "--keep-size", "1G", "--keep-days", "6"});
  EXPECT_EQ(higher.exitCode, 0) << higher.err;
  EXPECT_EQ(higher.out, "Steps can be undone for 6 days of use, with up to 1 GiB of originals.\n");
  EXPECT_EQ(Run({"undo", "--last", "2"}).exitCode, 0);
  EXPECT_EQ(ReadFile(Photos() / "a.jpg"), before);

  // What could be redone is named, too.
  EXPECT_EQ(Run({"undo", "--keep-size", "0"}).exitCode, 4);
  EXPECT_EQ(Run({"undo", "--keep-size", "0", "--forget-older", "--json"}).Json()["forgotten"].toInt(), 1);
  EXPECT_EQ(Steps().size(), 1) << "a rename keeps nothing";
}

TEST_F(UndoLimits, ListStepsOfNoDate) {
  PhotoOf("a.jpg", kBytes);
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ChangeCatalogue(DefaultCatalogue(), "UPDATE steps SET begun = ''");
  EXPECT_THAT(Run({"undo", "--list"}).out, HasSubstr("unknown  rotate right"));
  EXPECT_TRUE(Steps()[0].toObject()["begun"].isNull());
}

TEST_F(UndoLimits, LetUndoDoWithoutRedo) {
  const std::string before = ReadFile(PhotoOf("a.jpg", kBytes));
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  const Ran undo = Run({"undo", "--no-redo"});
  EXPECT_EQ(undo.exitCode, 0);
  EXPECT_EQ(undo.out, "Undone: rotate right.\n");
  EXPECT_EQ(ReadFile(Photos() / "a.jpg"), before);
  EXPECT_EQ(Run({"redo"}).exitCode, 1);
  EXPECT_EQ(Steps().size(), 0);
  EXPECT_EQ(Run({"undo", "--no-redo", "--list"}).exitCode, 2);
  EXPECT_EQ(Run({"undo", "--no-redo", "--skip"}).exitCode, 2);
}

TEST_F(UndoLimits, NameWhatNoUndoLeavesBehind) {
  const ioPath photo = PhotoOf("a.jpg", kBytes);
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  const Ran text = Run({"rotate", "left", "--no-undo", "photos"});
  EXPECT_THAT(text.out, HasSubstr("Undo of \"rotate right\" ("));
  EXPECT_THAT(text.out, HasSubstr("\n  " + photo.utf8string() + "\n"));
  const QJsonObject json = Run({"rotate", "left", "--no-undo", "--json", "photos"}).Json();
  EXPECT_FALSE(json["canBeUndone"].toBool(true));
  EXPECT_EQ(json["blocked"].toArray()[0].toObject()["name"].toString(), QStringLiteral("rotate right"));
}

TEST_F(UndoLimits, TellWhatWasDoneOnAFullDisk) {
  const ioPath place = tree.MakeFolder("disk");
  SmallDisk disk(place, std::size_t{8} << 20U);
  LUMIDEX_DISK_OR_SKIP(disk);
  std::vector<std::string> before;
  for (int i = 0; i < 8; ++i) {
    before.push_back(ReadFile(PhotoOf("p" + std::to_string(i) + ".jpg", 400'000)));
  }
  const QString catalogue = Text(place / "c.sqlite");
  ASSERT_EQ(Run({"--catalogue", catalogue, "scan", "photos"}).exitCode, 0);
  // For the reserve, and then not for all originals.
  disk.Fill(4'000'000);
  const Ran ran = Run({"--catalogue", catalogue, "rotate", "right", "photos"});
  EXPECT_EQ(ran.exitCode, 3) << ran.out << ran.err;
  EXPECT_THAT(ran.out, HasSubstr("Not edited:\n"));
#ifndef _WIN32
  EXPECT_THAT(ran.out, HasSubstr("No space left on device"));
#endif
  EXPECT_THAT(ran.out, HasSubstr("photos edited; \"lumidex undo\" undoes it."));
  int edited = 0;
  for (int i = 0; i < 8; ++i) {
    edited += ReadFile(Photos() / ("p" + std::to_string(i) + ".jpg")) != before[static_cast<std::size_t>(i)];
  }
  EXPECT_GT(edited, 0);
  EXPECT_LT(edited, 8);
  EXPECT_THAT(ran.out, HasSubstr("\n" + std::to_string(edited) + " photos edited"));

  disk.Fill();
  const Ran undo = Run({"--catalogue", catalogue, "undo"});
  EXPECT_EQ(undo.exitCode, 0) << undo.out << undo.err;
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(ReadFile(Photos() / ("p" + std::to_string(i) + ".jpg")), before[static_cast<std::size_t>(i)]);
  }
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(UndoLimits, AreAskedAboutAtATerminal);
#else
TEST_F(UndoLimits, AreAskedAboutAtATerminal) {
  PhotoOf("a.jpg", kBytes);
  const std::string before = ReadFile(PhotoOf("b.jpg", kBytes));
  ASSERT_EQ(Run({"rotate", "right", "photos/a.jpg"}).exitCode, 0);
  Limit("60K");
  const auto answer = [this](const char* typed,
                             const QStringList& command = {"rotate", "left", "photos/b.jpg"}) {
    const Terminal terminal(100);
    terminal.Type(typed);
    ProcessOnTerminal process(terminal, false, true);
    Start(process, command);
    Ran ran = Finish(process);
    ran.err = terminal.Read();
    return ran;
  };
  const Ran no = answer("n\n");
  EXPECT_EQ(no.exitCode, 1) << no.err;
  EXPECT_THAT(no.err, HasSubstr("undo would have to forget 1 older step"));
  EXPECT_THAT(no.err, HasSubstr("  rotate right"));
  EXPECT_THAT(no.err, HasSubstr("Forget them and continue? [y/N]"));
  EXPECT_EQ(no.out, "Nothing was changed.\n");
  EXPECT_EQ(ReadFile(Photos() / "b.jpg"), before);
  EXPECT_EQ(Steps().size(), 1);
  const Ran yes = answer("y\n");
  EXPECT_EQ(yes.exitCode, 0) << yes.err;
  EXPECT_THAT(yes.out, HasSubstr("1 older step cannot be undone any more."));
  EXPECT_NE(ReadFile(Photos() / "b.jpg"), before);
  EXPECT_EQ(Steps().size(), 1);

  const Ran kept = answer("n\n", {"undo", "--keep-size", "1K"});
  EXPECT_EQ(kept.exitCode, 1) << kept.err;
  EXPECT_THAT(kept.err, HasSubstr("Within these limits, undo would have to forget 1 older step:"));
  EXPECT_THAT(kept.err, HasSubstr("  rotate left"));
  EXPECT_EQ(kept.out,
            "Nothing was changed. Steps can be undone for 90 days of use, with up to 60 KiB of originals.\n");
  EXPECT_EQ(Steps().size(), 1);
  const Ran forgotten = answer("y\n", {"undo", "--keep-size", "1K"});
  EXPECT_EQ(forgotten.exitCode, 0) << forgotten.err;
  EXPECT_THAT(forgotten.out, HasSubstr("1 KiB of originals. 1 older step cannot be undone any more."));
  EXPECT_EQ(Steps().size(), 0);
}
#endif

}  // namespace
}  // namespace Zenvora::Test
