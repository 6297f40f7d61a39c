// What check, a dry run and the run say of every file, side by side: of made files, whole and damaged,
// always, and of the folder that LUMIDEX_TEST_PHOTOS names.
#include "TruthFixture.h"

#include <support/LeftOut.h>

#include <filesystem>
#include <map>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora::Test {
namespace {

class CheckTruth : public TruthTest {
 protected:
  /// All three agree about every photo of the folder, and so do the files afterwards.
  void ExpectOneTruth(const QString& command, const QString& argument, int links) const {
    const Sentences checked = Findings(Run({"check", "--json", "--for", command, "photos"}).Json(), "text");
    const QJsonObject dry = Run({command, "--json", "--dry-run", argument, "photos"}).Json();
    const auto before = Contents();
    const QJsonObject wet = Run({command, "--json", argument, "photos"}).Json();
    EXPECT_EQ(Findings(dry, "cause"), checked) << command.toStdString();
    EXPECT_EQ(Findings(wet, "cause"), checked) << command.toStdString();
    EXPECT_EQ(dry["edited"], wet["edited"]);
    EXPECT_EQ(dry["sidecars"], wet["sidecars"]);
    EXPECT_EQ(wet["edited"].toInt(), wet["photos"].toInt() + links - static_cast<int>(checked.size()));
    EXPECT_GT(wet["edited"].toInt(), 0);
    const auto after = Contents();
    int changed = 0;
    for (const auto& [path, content] : after) {
      changed += content != before.at(path) ? 1 : 0;
      EXPECT_TRUE(content == before.at(path) || checked.count(path) == 0) << path << " was refused";
    }
    EXPECT_EQ(after.size(), before.size());
    EXPECT_EQ(changed, wet["edited"].toInt() + wet["sidecars"].toInt());
    EXPECT_EQ(Run({"undo"}).exitCode, 0);
    EXPECT_EQ(Contents(), before);
  }
  /// `links`: how many of what is refused are links that lead to no photo, and so none of the photos.
  void ExpectOneTruth(int links = 0) const {
    ExpectOneTruth("rotate", "right", links);
    ExpectOneTruth("shift-date", "+1h", links);
    ExpectOneTruth("set-date", "2003-02-01 04:05", links);
  }
};

TEST_F(CheckTruth, SaysOfEveryFileWhatBecomesOfIt) {
  MakeAllKinds();
  ExpectOneTruth();
}

TEST_F(CheckTruth, SaysOfEverySidecarWhatBecomesOfIt) {
  MakeSidecars();
  ExpectOneTruth();
}

TEST_F(CheckTruth, SaysOfWhatCannotBeTouchedWhatBecomesOfIt) {
  Photo("whole.jpg");
  Protect(Photo("protected.jpg"));
  const ioPath huge = Photo("huge.jpg");
  std::filesystem::resize_file(huge.for_system(), std::uintmax_t{3} << 30U);
  ExpectOneTruth();
  const Ran check = Run({"check", "photos"});
  EXPECT_EQ(check.exitCode, 1);
  EXPECT_THAT(check.out, HasSubstr("huge.jpg: it is larger than 2 GiB\n"));
  EXPECT_THAT(check.out,
              HasSubstr("protected.jpg: it is write-protected; allow writing to it, or use --force\n"));
  EXPECT_THAT(check.out, HasSubstr("3 files checked; 2 files or folders would be refused.\n"));
}

TEST_F(CheckTruth, TakesNothingForWhatItIsNotAskedFor) {
  tree.Write("photos/words.jpg", "no picture");
  EXPECT_EQ(Run({"check", "--for", "rename,import,trash", "photos"}).exitCode, 0);
  EXPECT_EQ(Run({"check", "--for", "rotate", "photos"}).exitCode, 1);
  const Ran wrong = Run({"check", "--for", "rotate,turn", "photos"});
  EXPECT_EQ(wrong.exitCode, 2);
  EXPECT_THAT(
      wrong.err,
      HasSubstr("--for must name some of import, rename, rotate, shift-date, set-date, trash, not \"turn\""));
}

TEST_F(CheckTruth, NeverSpeaksOfWhatNoCommandDoes) {
  tree.Write("photos/a.nef", "raw");
  tree.Write("photos/a.heic", std::string("\0\0\0\x18"
                                          "ftypheic\0\0\0\0mif1heic",
                                          24));
  EXPECT_THAT(Run({"check", "photos"}).out, Not(HasSubstr("converted")));
}

TEST_F(CheckTruth, LeavesWhatIsWriteProtectedToForce) {
  const ioPath photo = Photo("a.jpg");
  const ioPath sidecar = tree.Write("photos/a.xmp", Sidecar("tiff:Orientation=\"1\""));
  Protect(photo);
  Protect(sidecar);
  const std::string before = ReadFile(photo);
  const Ran ran = Run({"rotate", "right", "photos"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.out, HasSubstr("use --force"));
  EXPECT_EQ(ReadFile(photo), before);
  const Ran forced = Run({"rotate", "--force", "right", "photos"});
  EXPECT_EQ(forced.exitCode, 0);
  EXPECT_THAT(forced.out,
              HasSubstr("edited along with them.\n1 photo edited; \"lumidex undo\" undoes it.\n"));
  EXPECT_NE(ReadFile(photo), before);
  EXPECT_THAT(ReadFile(sidecar), HasSubstr("tiff:Orientation=\"6\""));
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(ReadFile(photo), before);
  EXPECT_THAT(ReadFile(sidecar), HasSubstr("tiff:Orientation=\"1\""));
}

TEST_F(CheckTruth, TellsWhatUndoWouldHaveToForget) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"undo", "--keep-size", "1"}).exitCode, 0);
  const Ran check = Run({"check", "--for", "rotate", "photos"});
  EXPECT_EQ(check.exitCode, 1);
  EXPECT_THAT(check.out, HasSubstr("The edit would be refused."));
  EXPECT_FALSE(Run({"check", "--json", "photos"}).Json()["undo"].toObject()["fits"].toBool(true));
  EXPECT_EQ(Run({"check", "--for", "rename", "photos"}).exitCode, 0);
}

TEST_F(CheckTruth, AgreesWithTheRunsOnRealPhotos) {
  if (!CopyRealPhotos()) {
    GTEST_SKIP() << "LUMIDEX_TEST_PHOTOS names no folder of photos to try";
  }
  ExpectOneTruth();
}

TEST_F(CheckTruth, SaysOfLinksThatLeadNowhereWhatBecomesOfThem) {
  Photo("whole.jpg");
  LUMIDEX_LINK_OR_SKIP(Photos() / "gone.jpg", Photos() / "dangling.jpg");
  LUMIDEX_LINK_OR_SKIP(Photos() / "round.jpg", Photos() / "round.jpg");
  LUMIDEX_LINK_OR_SKIP(Photos() / "gone.jpg", Photos() / ".hidden.jpg");
  LUMIDEX_LINK_OR_SKIP(Photos() / "gone", Photos() / "notes.txt");
  LUMIDEX_LINK_OR_SKIP(Photos(), Photos() / "folder.jpg");
  for (const char* const command : {"rotate", "shift-date", "set-date"}) {
    const Sentences checked = Findings(Run({"check", "--json", "--for", command, "photos"}).Json(), "text");
    EXPECT_EQ(checked.size(), 2U) << command;
    EXPECT_EQ(checked.count((Photos() / "dangling.jpg").utf8string()), 1U) << command;
    EXPECT_EQ(checked.count((Photos() / "round.jpg").utf8string()), 1U) << command;
  }
  const Ran run = Run({"rotate", "right", "photos"});
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_THAT(run.out, HasSubstr("dangling.jpg is a link to a file that is missing."));
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  ExpectOneTruth(2);
}

TEST_F(CheckTruth, SaysOfSidecarsThatAreCutWhatBecomesOfThem) {
  const ioPath photo = Photo("a.jpg");
  const std::string whole =
      Sidecar("xmp:Rating=\"3\" xmp:CreateDate=\"2024-05-17T10:00:00\" tiff:Orientation=\"1\"");
  for (const std::size_t part : {1U, 2U, 3U}) {
    const ioPath sidecar = tree.Write("photos/a.xmp", whole.substr(0, whole.size() * part / 4));
    const std::string before = ReadFile(photo);
    for (const auto& [command, argument] :
         std::map<QString, QString>{{"rotate", "right"}, {"shift-date", "+1h"}}) {
      const Sentences checked = Findings(Run({"check", "--json", "--for", command, "photos"}).Json(), "text");
      ASSERT_EQ(checked.size(), 1U) << part;
      EXPECT_EQ(Findings(Run({command, "--json", "--dry-run", argument, "photos"}).Json(), "cause"), checked);
      EXPECT_EQ(Findings(Run({command, "--json", argument, "photos"}).Json(), "cause"), checked);
      EXPECT_EQ(ReadFile(photo), before);
      EXPECT_EQ(ReadFile(sidecar), whole.substr(0, whole.size() * part / 4));
    }
  }
}

#ifndef _WIN32

TEST_F(CheckTruth, NeverOpensAPipe) {
  Photo("a.jpg");
  ASSERT_EQ(mkfifo((Photos() / "pipe.jpg").native().c_str(), 0644), 0);
  ExpectOneTruth();
  const std::string text = (Photos() / "pipe.jpg").utf8string() + " is neither a file nor a folder.";
  EXPECT_EQ(
      Findings(Run({"check", "--json", "--for", "rotate", "photos/pipe.jpg"}).Json(), "text").begin()->second,
      text);
  EXPECT_EQ(Findings(Run({"rotate", "--json", "left", "photos/pipe.jpg"}).Json(), "cause").begin()->second,
            text);
}

#else

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(CheckTruth, NeverOpensAPipe);

#endif

}  // namespace
}  // namespace Zenvora::Test
