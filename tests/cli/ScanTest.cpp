#include "CliFixture.h"

#include <support/Obstacles.h>

#include <QJsonArray>

#include <filesystem>

namespace Zenvora::Test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class ScanCommand : public CliTest {};

int Number(const QJsonObject& document, const char* name) {
  EXPECT_TRUE(document[name].isDouble()) << name;
  return document[name].toInt(-1);
}

TEST_F(ScanCommand, TakesPhotosIn) {
  MakePhotos("a", "2023:12:24", 3);
  const Ran first = Run({"scan", Text(Photos())});
  EXPECT_EQ(first.exitCode, 0);
  EXPECT_THAT(first.out, HasSubstr("3  files found"));
  EXPECT_THAT(first.out, HasSubstr("3  new"));
  EXPECT_THAT(first.out, HasSubstr("3 original"));
  EXPECT_THAT(first.out, HasSubstr("Catalogue: " + DefaultCatalogue().utf8string()));
  EXPECT_THAT(first.err, IsEmpty());
  EXPECT_EQ(CountPhotosIn(DefaultCatalogue()), 3);

  const Ran second = Run({"scan", Text(Photos())});
  EXPECT_EQ(second.exitCode, 0);
  EXPECT_THAT(second.out, HasSubstr("3  unchanged"));
}

TEST_F(ScanCommand, WritesOneDocumentWithAllItsMembers) {
  MakePhotos("a", "2023:12:24", 3);
  PhotoTags digitised;
  digitised.dateTimeDigitized = "2023:12:24 10:00:00";
  WriteJpeg(Photos() / "digitised.jpg", digitised);
  PhotoTags zero;
  zero.dateTimeOriginal = "0000:00:00 00:00:00";
  WriteJpeg(Photos() / "zero.jpg", zero);
  tree.Write("photos/fake.jpg", "this is no image");
  const Ran ran = Run({"--json", "scan", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.err, IsEmpty());
  const QJsonObject document = ran.Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.scan"));
  EXPECT_EQ(Number(document, "version"), 1);
  EXPECT_EQ(document["catalogue"].toString(), Text(DefaultCatalogue()));
  EXPECT_TRUE(document["dryRun"].isBool());
  EXPECT_FALSE(document["interrupted"].toBool(true));
  ASSERT_EQ(document["folders"].toArray().size(), 1);
  EXPECT_EQ(document["folders"].toArray()[0].toObject()["path"].toString(), Text(Photos()));
  EXPECT_EQ(Number(document, "found"), 6);
  EXPECT_EQ(Number(document, "added"), 5);
  EXPECT_EQ(Number(document, "updated"), 0);
  EXPECT_EQ(Number(document, "unchanged"), 0);
  EXPECT_EQ(Number(document, "lost"), 0);
  const QJsonObject dated = document["dated"].toObject();
  EXPECT_EQ(Number(dated, "original"), 3);
  EXPECT_EQ(Number(dated, "digitised"), 1);
  EXPECT_EQ(Number(dated, "fileTime"), 1);
  EXPECT_EQ(Number(dated, "none"), 0);
  ASSERT_EQ(document["findings"].toArray().size(), 1);
  const QJsonObject finding = document["findings"].toArray()[0].toObject();
  EXPECT_EQ(finding["kind"].toString(), QStringLiteral("not-an-image"));
  EXPECT_EQ(finding["path"].toString(), Text(Photos() / "fake.jpg"));
  EXPECT_FALSE(finding["cause"].toString().isEmpty());
}

TEST_F(ScanCommand, ListsWhatItCouldNotTakeIn) {
  MakePhotos("a", "2023:12:24", 1);
  tree.Write("photos/fake.jpg", "this is no image");
  const Ran ran = Run({"scan", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr("not an image  " + (Photos() / "fake.jpg").utf8string()));
}

TEST_F(ScanCommand, ExitsWith3WhenAFileCannotBeRead) {
  MakePhotos("a", "2023:12:24", 1);
  tree.Write("photos/fake.jpg", "this is no image");
#ifdef _WIN32
  const Closed closed(WriteJpeg(Photos() / "a" / "closed.jpg"));
#else
  // Whatever the user's rights.
  std::filesystem::create_symlink("nowhere.jpg", (Photos() / "dangling.jpg").native());
#endif
  const Ran ran = Run({"--json", "scan", Text(Photos())});
  const QJsonArray findings = ran.Json()["findings"].toArray();
  ASSERT_EQ(findings.size(), 2);
  EXPECT_EQ(findings[0].toObject()["kind"].toString(), QStringLiteral("unreadable"));
  EXPECT_EQ(ran.exitCode, 3);
}

TEST_F(ScanCommand, ExitsWith1ForAFolderThatLoops) {
  MakePhotos("a", "2023:12:24", 1);
  LUMIDEX_LINK_OR_SKIP("..", Photos() / "a" / "up");
  const Ran ran = Run({"--json", "scan", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 1);
  const QJsonArray findings = ran.Json()["findings"].toArray();
  ASSERT_EQ(findings.size(), 1);
  EXPECT_EQ(findings[0].toObject()["kind"].toString(), QStringLiteral("loop"));
}

TEST_F(ScanCommand, ExitsWith1WithoutPhotos) {
  tree.Write("photos/readme.txt", "no photo");
  const Ran ran = Run({"scan", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr("0  files found"));
  EXPECT_THAT(ran.err, HasSubstr("no photos"));
  EXPECT_THAT(Run({"-q", "scan", Text(Photos())}).err, IsEmpty());
}

TEST_F(ScanCommand, MarksPhotosLostThatAreGone) {
  MakePhotos("a", "2023:12:24", 3);
  Run({"scan", Text(Photos())});
  (Photos() / "a" / "img1.jpg").remove();
  const Ran ran = Run({"--json", "scan", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(Number(ran.Json(), "lost"), 1);
  EXPECT_EQ(Number(ran.Json(), "unchanged"), 2);
}

TEST_F(ScanCommand, FollowsPhotosThatOthersMoved) {
  MakePhotos("a", "2023:12:24", 3);
  Run({"scan", Text(Photos())});
  ASSERT_EQ(Run({"tag", Text(Photos() / "a" / "img1.jpg"), "+Tim"}).exitCode, 0);
  ASSERT_EQ(Run({"rotate", "right", Text(Photos() / "a" / "img1.jpg")}).exitCode, 0);
  tree.MakeFolder("photos/b");
  const ioPath moved = Photos() / "b" / "beach.jpg";
  ASSERT_TRUE((Photos() / "a" / "img1.jpg").rename(moved));
  EXPECT_THAT(Run({"scan", "--dry-run", Text(Photos())}).out, HasSubstr("1  moved or renamed\n"));
  const Ran ran = Run({"--json", "scan", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(Number(ran.Json(), "moved"), 1);
  EXPECT_EQ(Number(ran.Json(), "lost"), 0);
  EXPECT_EQ(Run({"find", "--tag", "Tim", "--paths"}).out, moved.utf8string() + '\n');
  EXPECT_THAT(Run({"tag", Text(moved)}).out, HasSubstr("Tim"));
  // The turn is taken back where the photo is.
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(Number(Run({"--json", "scan", Text(Photos())}).Json(), "unchanged"), 3);
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_THAT(Run({"find", "--tag", "Tim", "--paths"}).out, IsEmpty());
}

TEST_F(ScanCommand, NamesPhotosThatMovedNobodyKnowsWhere) {
  MakePhotos("a", "2023:12:24", 1);
  Run({"scan", Text(Photos())});
  const ioPath photo = Photos() / "a" / "img0.jpg";
  std::filesystem::copy_file(photo.native(), (Photos() / "one.jpg").native());
  ASSERT_TRUE(photo.rename(Photos() / "two.jpg"));
  const Ran shown = Run({"scan", "--dry-run", Text(Photos())});
  EXPECT_EQ(shown.exitCode, 1);
  EXPECT_THAT(shown.out,
              HasSubstr("  " + photo.utf8string() +
                        "\n    It is missing, and 2 files may be it: " + (Photos() / "one.jpg").utf8string() +
                        ", " + (Photos() / "two.jpg").utf8string() + '\n'));
  EXPECT_THAT(shown.out, Not(HasSubstr("Not added")));
  const QJsonObject document = Run({"--json", "scan", Text(Photos())}).Json();
  EXPECT_EQ(Number(document, "added"), 2);
  EXPECT_EQ(Number(document, "lost"), 1);
  const QJsonObject finding = document["findings"].toArray()[0].toObject();
  EXPECT_EQ(finding["kind"].toString(), QStringLiteral("ambiguous"));
  EXPECT_EQ(finding["path"].toString(), Text(photo));
  EXPECT_EQ(finding["candidates"].toArray().size(), 2);
}

TEST_F(ScanCommand, ReadsUnchangedFilesAgainOnDemand) {
  MakePhotos("a", "2023:12:24", 2);
  Run({"scan", Text(Photos())});
  EXPECT_EQ(Number(Run({"scan", "--full", "--json", Text(Photos())}).Json(), "updated"), 2);
}

TEST_F(ScanCommand, MakesNoCatalogueInADryRun) {
  MakePhotos("a", "2023:12:24", 2);
  const Ran ran = Run({"scan", "--dry-run", "--json", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(Number(ran.Json(), "added"), 2);
  EXPECT_TRUE(ran.Json()["dryRun"].toBool());
  EXPECT_FALSE(tree.Path("data").exists());
  EXPECT_THAT(Run({"scan", "--dry-run", Text(Photos())}).out, HasSubstr("dry run"));
}

TEST_F(ScanCommand, ComparesWithTheCatalogueInADryRunAndLeavesItAlone) {
  MakePhotos("a", "2023:12:24", 2);
  Run({"scan", Text(Photos())});
  MakePhotos("b", "2023:12:25", 1);
  const std::string before = ReadFile(DefaultCatalogue());
  const Ran ran = Run({"scan", "--dry-run", "--json", Text(Photos())});
  EXPECT_EQ(Number(ran.Json(), "unchanged"), 2);
  EXPECT_EQ(Number(ran.Json(), "added"), 1);
  EXPECT_EQ(ReadFile(DefaultCatalogue()), before);
}

TEST_F(ScanCommand, MakesNothingElsewhereWhenThereIsNoFolderForTemporaryFiles) {
  MakePhotos("a", "2023:12:24", 1);
  tree.Write("file", "");
  for (const char* const name : {"nowhere", "file"}) {
    for (const char* const variable : {"TMPDIR", "TMP", "TEMP"}) {
      environment.insert(QLatin1String(variable), Text(tree.Path(name)));
    }
    const Ran ran = Run({"scan", "--dry-run", Text(Photos())});
    EXPECT_EQ(ran.exitCode, 4) << name;
    EXPECT_THAT(ran.err, HasSubstr(tree.Path(name).utf8string()));
    EXPECT_FALSE(tree.Path("catalogue.sqlite").exists());
  }
  EXPECT_FALSE(tree.Path("nowhere").exists());
}

TEST_F(ScanCommand, MakesNoCatalogueForAFolderThatIsMissing) {
  const Ran ran = Run({"scan", "nowhere"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr((tree.Path("nowhere")).utf8string()));
  EXPECT_THAT(ran.out, IsEmpty());
  EXPECT_FALSE(tree.Path("data").exists());
}

TEST_F(ScanCommand, TakesFoldersRelativeToTheCurrentOne) {
  MakePhotos("a", "2023:12:24", 1);
  const QJsonObject document = Run({"scan", "--json", "./photos/", "photos/./a"}).Json();
  EXPECT_EQ(Number(document, "found"), 1);
}

TEST_F(ScanCommand, TakesAWordThatBeginsWithASlashForAFolder) {
  for (const char* const folder : {"/v", "/help", "/no such folder:1"}) {
    const Ran ran = Run({"scan", folder});
    EXPECT_NE(ran.exitCode, 0) << folder;
    EXPECT_THAT(ran.err, HasSubstr(folder + 1));
    EXPECT_THAT(ran.err, Not(HasSubstr("required")));
  }
}

TEST_F(ScanCommand, TakesFoldersThatAreCalledLikeCommandsOrOptions) {
  tree.MakeFolder("albums");
  WriteJpeg(tree.Path("albums/a.jpg"));
  WriteJpeg(tree.Path("-x/b.jpg"));
  EXPECT_EQ(Number(Run({"scan", "--json", "albums"}).Json(), "added"), 1);
  EXPECT_EQ(Number(Run({"scan", "--json", "--", "-x"}).Json(), "added"), 1);
  EXPECT_EQ(Number(Run({"scan", "--json", "albums", "--", "-x"}).Json(), "unchanged"), 2);
}

TEST_F(ScanCommand, TakesFoldersWithBracketsAsTheyAre) {
  for (const char* const name : {"[a,b]", "[2020]", "[]"}) {
    WriteJpeg(tree.Path(name) / "a.jpg");
    EXPECT_EQ(Number(Run({"scan", "--json", name}).Json(), "added"), 1) << name;
  }
}

TEST_F(ScanCommand, TakesGlobalOptionsOnEitherSide) {
  MakePhotos("a", "2023:12:24", 1);
  const QString other = Text(tree.Path("other.sqlite"));
  EXPECT_EQ(Run({"-c", other, "scan", Text(Photos())}).exitCode, 0);
  EXPECT_EQ(Run({"scan", Text(Photos()), "--catalogue", other}).exitCode, 0);
  EXPECT_EQ(Run({"scan", Text(Photos()), "--catalogue=" + other, "--json"}).Json()["unchanged"].toInt(), 1);
  EXPECT_FALSE(tree.Path("data").exists());
}

TEST_F(ScanCommand, WorksBesideAnotherScanOfTheSameFolder) {
  MakePhotos("a", "2023:12:24", 300);
  QProcess one;
  QProcess two;
  Start(one, {"scan", Text(Photos())});
  Start(two, {"scan", Text(Photos())});
  const Ran first = Finish(one);
  const Ran second = Finish(two);
  EXPECT_EQ(first.exitCode, 0) << first.err;
  EXPECT_EQ(second.exitCode, 0) << second.err;
  EXPECT_EQ(CountPhotosIn(DefaultCatalogue()), 300);
  EXPECT_EQ(IntegrityOf(DefaultCatalogue()), "ok");
}

TEST_F(ScanCommand, WritesNoLogFiles) {
  MakePhotos("a", "2023:12:24", 1);
  environment.insert(QStringLiteral("TMPDIR"), Text(tree.MakeFolder("tmp")));
  const Ran ran = Run({"-vv", "scan", Text(Photos())});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.err, HasSubstr("scanning into"));
  EXPECT_THAT(ran.out, Not(HasSubstr("scanning into")));
  EXPECT_TRUE(std::filesystem::is_empty(tree.Path("tmp").native()));
}

}  // namespace
}  // namespace Zenvora::Test
