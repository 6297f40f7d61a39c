// Importing and checking with the whole command.

#include "CliFixture.h"
#include "Terminal.h"

#include <support/LeftOut.h>
#include <support/SmallDisk.h>

#include <zenvora/core/FileProbes.h>
#include <zenvora/core/FileState.h>

#include <QJsonArray>

#include <filesystem>

namespace Zenvora::Test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class ImportCommand : public CliTest {
 protected:
  void SetUp() override { MakePhotos("card", "2024:01:02", 3); }

  Ran ImportTo(const QStringList& more = {}) const {
    return Run(QStringList{"--json", "import", Text(Photos()), "--to", Text(Copies())} + more);
  }
  ioPath Copies() const { return tree.Path("copies"); }
};

TEST_F(ImportCommand, CopiesAndTellsWhatItDid) {
  const Ran ran = Run({"import", Text(Photos()), "--to", Text(Copies())});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(ran.out, HasSubstr("3 files"));
  EXPECT_THAT(ran.out, HasSubstr("and verified"));
  EXPECT_THAT(ran.out, HasSubstr("3 photos added to the catalogue"));
  EXPECT_EQ(CountPhotosIn(DefaultCatalogue()), 3);
}

TEST_F(ImportCommand, PlansTheVeryThingThatItDoesAndMakesNothing) {
  const QJsonObject planned = ImportTo({"--dry-run"}).Json();
  EXPECT_EQ(planned["outcome"].toString(), QStringLiteral("planned"));
  EXPECT_FALSE(Copies().exists());
  EXPECT_FALSE(DefaultCatalogue().exists());
  EXPECT_FALSE(tree.Path("data").exists());
  EXPECT_FALSE(tree.Path("config").exists());
  const QJsonObject done = ImportTo().Json();
  EXPECT_EQ(done["outcome"].toString(), QStringLiteral("done"));
  EXPECT_EQ(done["copies"].toArray(), planned["copies"].toArray());
  EXPECT_EQ(done["copies"].toArray().size(), 3);
  EXPECT_EQ(done["copied"].toInt(), 3);
}

TEST_F(ImportCommand, HasNothingToDoTheSecondTime) {
  ImportTo();
  const Ran again = ImportTo();
  EXPECT_EQ(again.exitCode, 0);
  EXPECT_EQ(again.Json()["known"].toArray().size(), 3);
  EXPECT_EQ(again.Json()["copied"].toInt(), 0);
}

TEST_F(ImportCommand, TakesPhotosInWhereTheyLieOnAFixedDisk) {
  const Ran ran = Run({"--json", "import", "--no-copy", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_EQ(ran.Json()["added"].toInt(), 3);
  EXPECT_EQ(ran.Json()["copies"].toArray().size(), 0);
  EXPECT_TRUE(ran.Json()["folder"].isNull());
}

TEST_F(ImportCommand, RefusesAnswersThatContradictEachOther) {
  EXPECT_EQ(Run({"import", Text(Photos()), "--to", Text(Copies()), "--no-copy"}).exitCode, 2);
  EXPECT_EQ(Run({"import", Text(Photos()), "--yes", "--no-copy"}).exitCode, 2);
  EXPECT_EQ(Run({"import"}).exitCode, 2);
}

TEST_F(ImportCommand, NeedsSourcesThatExist) {
  const Ran ran = Run({"--json", "import", Text(tree.Path("missing"))});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_EQ(ran.Json()["kind"].toString(), QStringLiteral("no-source"));
}

TEST_F(ImportCommand, SaysThatThereIsNothing) {
  tree.MakeFolder("empty");
  const Ran ran = Run({"import", Text(tree.Path("empty"))});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.err, HasSubstr("There are no photos"));
  EXPECT_FALSE(DefaultCatalogue().exists());
}

TEST_F(ImportCommand, CopiesFilmsWithWhatBelongsToThem) {
  for (const char* const name :
       {"GOPR1.MP4", "GOPR1.THM", "GOPR1.LRV", "00001.MTS", "NOTE.WAV", "img0.mov"}) {
    tree.Write(std::string("photos/card/") + name, name);
  }
  const Ran ran = ImportTo();
  EXPECT_EQ(ran.exitCode, 0) << ran.out;
  EXPECT_EQ(ran.Json()["copied"].toInt(), 9);
  EXPECT_EQ(ran.Json()["added"].toInt(), 3) << "the catalogue takes photos only";
  EXPECT_EQ(ReadText(Copies() / "GOPR1.MP4"), "GOPR1.MP4");
  EXPECT_TRUE(ran.Json()["safeToFormat"].toBool());
  const Ran again = ImportTo();
  EXPECT_EQ(again.Json()["copied"].toInt(), 0);
  EXPECT_EQ(again.Json()["known"].toArray().size(), 9);
  EXPECT_TRUE(again.Json()["safeToFormat"].toBool());
}

TEST_F(ImportCommand, FilmsOfOneNameKeepTheirThumbnails) {
  for (const char* const folder : {"100", "101"}) {
    tree.Write("photos/" + std::string(folder) + "/GOPR1.MP4", std::string("film of ") + folder);
    tree.Write("photos/" + std::string(folder) + "/GOPR1.THM", std::string("thumbnail of ") + folder);
  }
  ASSERT_EQ(ImportTo().exitCode, 0);
  for (const char* const name : {"GOPR1", "GOPR1(1)"}) {
    const std::string film = ReadText(Copies() / ioPath(std::string(name) + ".MP4"));
    const std::string thumbnail = ReadText(Copies() / ioPath(std::string(name) + ".THM"));
    ASSERT_GT(film.size(), 4U) << name;
    EXPECT_EQ(film.substr(film.size() - 3), thumbnail.substr(thumbnail.size() - 3)) << name;
  }
}

TEST_F(ImportCommand, NamesWhatItLeftAndSaysThatNothingMayBeErased) {
  tree.Write("photos/card/notes.txt", "x");
  tree.Write("photos/card/.secret.jpg", "x");
  const Ran ran = ImportTo();
  EXPECT_EQ(ran.exitCode, 1);
  ASSERT_EQ(ran.Json()["left"].toArray().size(), 2);
  EXPECT_EQ(ran.Json()["left"].toArray()[0].toObject()["kind"].toString(), QStringLiteral("hidden"));
  EXPECT_EQ(ran.Json()["left"].toArray()[1].toObject()["kind"].toString(), QStringLiteral("not-a-photo"));
  EXPECT_TRUE(ran.Json()["safeToFormat"].isBool());
  EXPECT_FALSE(ran.Json()["safeToFormat"].toBool());
  const Ran told = Run({"import", Text(Photos()), "--to", Text(Copies())});
  EXPECT_EQ(told.exitCode, 1);
  EXPECT_THAT(told.out, HasSubstr("notes.txt"));
  EXPECT_THAT(told.out, HasSubstr(".secret.jpg"));
  EXPECT_THAT(told.out, HasSubstr("do not format or empty it yet"));
  EXPECT_THAT(told.out, Not(HasSubstr("safe to format")));
}

TEST_F(ImportCommand, IsSafeToFormatWhenNothingIsLeft) {
  tree.Write("photos/card/.DS_Store", "x");
  tree.Write("photos/.Trashes/501/old.jpg", "x");
  const Ran ran = Run({"import", Text(Photos()), "--to", Text(Copies())});
  EXPECT_EQ(ran.exitCode, 0) << ran.out;
  EXPECT_THAT(ran.out, HasSubstr("safe to format"));
  EXPECT_THAT(ran.out, HasSubstr("what is outside it was not")) << "it is no whole volume";
  EXPECT_THAT(ran.out, HasSubstr("2 housekeeping files"));
  EXPECT_THAT(ran.out, HasSubstr("Every file in "));
  EXPECT_THAT(ran.out, HasSubstr("except for housekeeping files, has a verified copy"));
}

TEST_F(ImportCommand, IsNotSafeToFormatWhileAPictureIsNamedLikeHousekeeping) {
  const std::string picture = ReadText(Photos() / "card/img0.jpg");
  tree.Write("photos/card/._img9.jpg", picture + '9');
  tree.Write("photos/MISC/x.mrk", picture + 'x');
  const Ran ran = Run({"import", Text(Photos()), "--to", Text(Copies())});
  EXPECT_EQ(ran.exitCode, 1) << ran.out;
  EXPECT_THAT(ran.out, HasSubstr("._img9.jpg"));
  EXPECT_THAT(ran.out, HasSubstr("x.mrk"));
  EXPECT_THAT(ran.out, HasSubstr("do not format or empty it yet"));
}

TEST_F(ImportCommand, NeverWritesToASecondNameOfAnotherFile) {
  const ioPath victim = tree.Write("victim", "mine");
  tree.MakeFolder("copies/.lumidex-import");
  std::error_code error;
  std::filesystem::create_hard_link(victim.for_system(),
                                    (Copies() / ".lumidex-import/manifest.jsonl").for_system(), error);
  if (error) {
    GTEST_SKIP() << "no second names can be made here: " << error.message();
  }
  for (const bool dry : {true, false}) {
    const Ran ran = ImportTo(dry ? QStringList{"--dry-run"} : QStringList());
    EXPECT_EQ(ran.exitCode, 4);
    EXPECT_THAT(ran.Json()["obstacle"].toString().toStdString(),
                HasSubstr("manifest.jsonl is a second name of another file"));
  }
  EXPECT_EQ(ReadText(victim), "mine");
}

TEST_F(ImportCommand, IsNotSafeToFormatWhereTheCopiesLie) {
  const Ran ran = Run({"import", Text(Photos()), "--to", Text(Photos() / "copies")});
  EXPECT_THAT(ran.out, HasSubstr("do not format or empty it."));
  EXPECT_THAT(ran.out, Not(HasSubstr("safe to format")));
}

TEST_F(ImportCommand, SaysWhyNothingIsCopied) {
  tree.Write("photos/card/clip.mov", "x");
  const Ran ran = Run({"import", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(ran.out, HasSubstr("4 files are not copied, because they are not on removable storage"));
  EXPECT_THAT(ran.out, HasSubstr("--to DIR"));
  EXPECT_THAT(ran.out, Not(HasSubstr("safe to format")));
  EXPECT_THAT(Run({"import", "--no-copy", Text(Photos())}).out,
              HasSubstr("4 files are not copied, as you chose"));
}

TEST_F(ImportCommand, CanBeTakenBack) {
  const Ran ran = Run({"import", Text(Photos()), "--to", Text(Copies())});
  EXPECT_THAT(ran.out, HasSubstr("\"lumidex undo\" moves the copies of this run to the trash"));
  const Ran list = Run({"--json", "undo", "--list"});
  ASSERT_EQ(list.Json()["steps"].toArray().size(), 1);
  const QJsonObject step = list.Json()["steps"].toArray()[0].toObject();
  EXPECT_EQ(step["kind"].toString(), QStringLiteral("import"));
  EXPECT_EQ(step["files"].toInt(), 3);
  const Ran undone = Run({"undo"});
  EXPECT_EQ(undone.exitCode, 0) << undone.out << undone.err;
  EXPECT_THAT(undone.out, HasSubstr("3 copies are in the trash now"));
  EXPECT_FALSE((Copies() / "img0.jpg").exists());
  EXPECT_TRUE((Photos() / "card/img0.jpg").exists());
  EXPECT_EQ(ImportTo().Json()["copied"].toInt(), 3);
}

TEST_F(ImportCommand, NeverWritesThroughALink) {
  const ioPath victim = tree.Write("victim", "mine");
  tree.MakeFolder("copies/.lumidex-import");
  LUMIDEX_LINK_OR_SKIP(victim, Copies() / ".lumidex-import/manifest.jsonl");
  const Ran ran = Run({"import", Text(Photos()), "--to", Text(Copies())});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.out, HasSubstr("manifest.jsonl is a link to somewhere else"));
  EXPECT_EQ(ReadText(victim), "mine");
  EXPECT_FALSE((Copies() / "img0.jpg").exists());
}

/// The settings kept their name and lay beside a stranger's photo.
TEST_F(ImportCommand, KeepsWhatBelongsToAPhotoWithItUnderANewName) {
  tree.Write("photos/card/img0.xmp", "stars");
  tree.Write("copies/img0.jpg", "another photo");
  const Ran ran = ImportTo();
  EXPECT_EQ(ran.exitCode, 0) << ran.out;
  EXPECT_EQ(ran.Json()["splits"].toArray().size(), 0);
  EXPECT_EQ(ReadText(Copies() / "img0(1).jpg"), ReadText(Photos() / "card/img0.jpg"));
  EXPECT_EQ(ReadText(Copies() / "img0(1).xmp"), "stars");
  EXPECT_FALSE((Copies() / "img0.xmp").exists());
  EXPECT_EQ(ImportTo().Json()["copied"].toInt(), 0);
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_FALSE((Copies() / "img0(1).jpg").exists());
  EXPECT_FALSE((Copies() / "img0(1).xmp").exists());
  EXPECT_EQ(ReadText(Copies() / "img0.jpg"), "another photo");
  EXPECT_EQ(Run({"redo"}).exitCode, 0);
  EXPECT_EQ(ReadText(Copies() / "img0(1).xmp"), "stars");
  EXPECT_EQ(ImportTo().Json()["copied"].toInt(), 0);
}

TEST_F(ImportCommand, WarnsOfShotsThatFallApart) {
  tree.Write("photos/card/img0.xmp", "stars");
  ASSERT_EQ(ImportTo().exitCode, 0);
  tree.Write("copies/img0.xmp", "other stars");
  const Ran ran = ImportTo({"--dry-run"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_EQ(ran.Json()["splits"].toArray().size(), 1);
}

TEST_F(ImportCommand, WarnsOfFilesThatJoinAnotherShot) {
  ASSERT_EQ(ImportTo().exitCode, 0);
  tree.Write("copies/IMG0.CR2", "another photo");
  tree.Write("photos/card/img0.xmp", "stars");
  const Ran planned = ImportTo({"--dry-run"});
  EXPECT_EQ(planned.exitCode, 1);
  ASSERT_EQ(planned.Json()["joins"].toArray().size(), 1);
  const QJsonObject join = planned.Json()["joins"].toArray()[0].toObject();
  EXPECT_EQ(join["sources"].toArray().size(), 1);
  EXPECT_EQ(join["targets"].toArray()[0].toObject()["path"].toString(), Text(Copies() / "img0.xmp"));
  EXPECT_EQ(join["others"].toArray()[0].toObject()["path"].toString(), Text(Copies() / "IMG0.CR2"));
  EXPECT_THAT(Run({"import", Text(Photos()), "--to", Text(Copies())}).out, HasSubstr("of other shots"));
}

TEST_F(ImportCommand, RefusesToBeginWhereAFileIsInTheWay) {
  tree.Write("copies", "a file");
  const Ran ran = ImportTo();
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_EQ(ran.Json()["outcome"].toString(), QStringLiteral("refused"));
  EXPECT_FALSE(DefaultCatalogue().exists());
}

TEST_F(ImportCommand, RemembersTheFolderForTheNextTime) {
  ImportTo();
  EXPECT_THAT(ReadText(tree.Path("config/lumidex/lumidex.ini")), HasSubstr("LumidexLastUsedCopyDirectory"));
}

class CheckCommand : public CliTest {};

TEST_F(CheckCommand, IsDoneWhenNothingIsInTheWay) {
  MakePhotos("a", "2024:01:02", 2);
  const Ran ran = Run({"check", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(ran.out, HasSubstr("2 files checked; no problems found."));
}

TEST_F(CheckCommand, ListsEverythingAtOnce) {
  MakePhotos("a", "2024:01:02", 1);
  tree.Write("photos/a/one.nef", "raw");
  tree.Write("photos/b/two.cr2", "raw");
  const Ran ran = Run({"--json", "check", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 1);
  const QJsonObject report = ran.Json();
  EXPECT_EQ(report["format"].toString(), QStringLiteral("lumidex.check"));
  EXPECT_EQ(report["files"].toInt(), 3);
  EXPECT_EQ(report["findings"].toArray().size(), 2);
  EXPECT_EQ(report["volumes"].toArray().size(), 1);
  EXPECT_THAT(Run({"check", Text(Photos())}).out, HasSubstr("2 files or folders would be refused."));
}

TEST_F(CheckCommand, NeedsFilesThatExist) {
  EXPECT_EQ(Run({"check", Text(tree.Path("missing"))}).exitCode, 4);
  EXPECT_EQ(Run({"check"}).exitCode, 2);
  EXPECT_EQ(Run({"check", Text(Photos())}).exitCode, 1) << "there are no photos";
}

#ifdef _WIN32

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(CheckCommand, NeverWaitsForPipes);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(ImportCommand, StopsOnAFullDiskAndGoesOnLater);
LUMIDEX_LEFT_OUT_ON_WINDOWS(AskedAtATerminal, GoesOnWithOkOrEnter);
LUMIDEX_LEFT_OUT_ON_WINDOWS(AskedAtATerminal, AsksAgainForAWordThatIsNoButton);
LUMIDEX_LEFT_OUT_ON_WINDOWS(AskedAtATerminal, DoesNothingOnCancelOrAtTheEndOfTheInput);
LUMIDEX_LEFT_OUT_ON_WINDOWS(AskedAtATerminal, FailsWhereNobodySits);

#else

TEST_F(CheckCommand, NeverWaitsForPipes) {
  MakePhotos("a", "2024:01:02", 1);
  EXPECT_EQ(
      RunShell(
          "mkfifo photos/pipe.jpg && ln -s /dev/zero photos/zero.jpg && $LUMIDEX check --for rename photos "
          "photos/pipe.jpg && $LUMIDEX import photos photos/pipe.jpg --to copies")
          .exitCode,
      1)
      << "what is no file is left, and told";
  EXPECT_THAT(NamesIn(tree.Path("copies")), ElementsAre(".lumidex-import", "img0.jpg"));
}

TEST_F(ImportCommand, StopsOnAFullDiskAndGoesOnLater) {
  const SmallDisk disk(tree.MakeFolder("copies"), std::size_t{2} << 20U);
  LUMIDEX_DISK_OR_SKIP(disk);
  for (int i = 0; i < 6; ++i) {
    tree.Write("photos/big" + std::to_string(i) + ".jpg", std::to_string(i) + std::string(300'000, 'x'));
  }
  // What fits now is taken away while it is copied: the file grows as soon as the folder of copies is there.
  const Ran ran = RunShell(
      "( while [ ! -e copies/.lumidex-import/manifest.jsonl ]; do :; done; head -c 1500000 /dev/zero > "
      "copies/filler ) & $LUMIDEX --json import photos --to copies; code=$?; wait; exit $code");
  const QJsonObject document = ran.Json();
  EXPECT_EQ(document["copied"].toInt() + document["missing"].toArray().size(), 9);
  EXPECT_EQ(ran.exitCode == 0 || ran.exitCode == 1, document["missing"].toArray().isEmpty());
  ASSERT_TRUE(tree.Path("copies/filler").remove());
  const QJsonObject rest = ImportTo().Json();
  EXPECT_EQ(document["copied"].toInt() + rest["copied"].toInt(), 9);
}

class AskedAtATerminal : public ImportCommand {
 protected:
  void SetUp() override {
    ImportCommand::SetUp();
    // A file of the kernel's that can only be written, whoever asks.
    const ioPath writeOnly("/sys/bus/platform/drivers_probe");
    if (QueryFile(writeOnly).kind != FileState::Kind::File || OpensForReading(writeOnly)) {
      GTEST_SKIP() << "there is no file here that nobody can read";
    }
    ASSERT_TRUE((Photos() / "card/img1.jpg").remove());
    LUMIDEX_LINK_OR_SKIP(writeOnly, Photos() / "card/img1.jpg");
  }

  Ran Answer(const std::string& typed) const {
    const Terminal terminal(100);
    terminal.Type(typed);
    ProcessOnTerminal process(terminal, false, true);
    Start(process, {"--json", "import", Text(Photos()), "--to", Text(Copies())});
    return Finish(process);
  }
};

TEST_F(AskedAtATerminal, GoesOnWithOkOrEnter) {
  EXPECT_EQ(Answer("ok\n").Json()["copied"].toInt(), 2);
  EXPECT_EQ(Answer("\n").Json()["known"].toArray().size(), 2);
}

TEST_F(AskedAtATerminal, AsksAgainForAWordThatIsNoButton) {
  EXPECT_EQ(Answer("perhaps\no\n").Json()["copied"].toInt(), 2);
}

TEST_F(AskedAtATerminal, DoesNothingOnCancelOrAtTheEndOfTheInput) {
  EXPECT_EQ(Answer("cancel\n").Json()["outcome"].toString(), QStringLiteral("declined"));
  EXPECT_EQ(Answer("\x04").Json()["outcome"].toString(), QStringLiteral("declined"));
  EXPECT_FALSE(Copies().exists());
}

TEST_F(AskedAtATerminal, FailsWhereNobodySits) {
  const Ran ran = ImportTo();
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_EQ(ran.Json()["kind"].toString(), QStringLiteral("needs-answer"));
  EXPECT_EQ(ImportTo({"--yes"}).exitCode, 3) << "told in advance, with one file left out";
}

#endif

}  // namespace
}  // namespace Zenvora::Test
