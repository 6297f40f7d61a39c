// File names of any bytes, from the disk to the output.

#include "CliFixture.h"

#include <QJsonArray>

namespace Zenvora::Test {
namespace {

#ifndef _WIN32

using ::testing::HasSubstr;
using ::testing::Not;

class StrangeNames : public CliTest {
 protected:
  /// Christmas photos, one of them with a name that is no text, and a line feed and an escape in it.
  void MakeStrangePhotos() const {
    MakePhotos("xmas", "2023:12:24", 20);
    PhotoTags tags;
    tags.dateTimeOriginal = "2023:12:24 09:00:00";
    WriteJpeg(Photos() / kStrange, tags);
  }

  const std::string kStrange = "a\xFF\nb\x1b[31m.jpg";
};

TEST_F(StrangeNames, AreShownWithoutHarm) {
  MakeStrangePhotos();
  tree.Write("photos/fake\n\x1b[2J.jpg", "no image");
  const Ran scan = Run({"scan", Text(Photos())});
  EXPECT_EQ(scan.exitCode, 1);
  EXPECT_THAT(scan.out, HasSubstr("fake\\n\\x1b[2J.jpg"));
  EXPECT_THAT(scan.out, Not(HasSubstr("\x1b")));
  const Ran albums = Run({"albums", "--list"});
  EXPECT_THAT(albums.out, HasSubstr("/a\\xff\\nb\\x1b[31m.jpg\n"));
  EXPECT_THAT(albums.out, Not(HasSubstr("\x1b")));
}

TEST_F(StrangeNames, AreExactInJson) {
  MakeStrangePhotos();
  Run({"scan", Text(Photos())});
  const Ran ran = Run({"albums", "--list", "--json"});
  EXPECT_THAT(ran.out, Not(HasSubstr("\x1b")));
  const QJsonObject member = ran.Json()["albums"].toArray()[0].toObject()["members"].toArray()[0].toObject();
  EXPECT_EQ(QByteArray::fromBase64(member["pathBytes"].toString().toLatin1()).toStdString(),
            (Photos() / kStrange).utf8string());
  EXPECT_EQ(member["path"].toString(), Text(Photos()) + QStringLiteral("/a\uFFFD\nb\u001B[31m.jpg"));
}

TEST_F(StrangeNames, CanBeGivenAsArguments) {
  WriteJpeg(tree.Path("dir\xE9") / "a.jpg");
  EXPECT_EQ(RunShell("exec \"$LUMIDEX\" -c $'cat\\xe9.sqlite' scan $'dir\\xe9'").exitCode, 0);
  EXPECT_TRUE(tree.Path("cat\xE9.sqlite").exists());
  EXPECT_THAT(RunShell("exec \"$LUMIDEX\" scan $'no\\xe9'").err, HasSubstr("no\\xe9"));
}

TEST_F(StrangeNames, AreReportedAsThePicturesTheyAre) {
  MakeStrangePhotos();
  Run({"scan", Text(Photos())});
  const Ran ran = Run({"albums", "--report", "page.html", "--json"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_EQ(ran.Json()["report"].toObject()["missingPictures"].toInt(-1), 0);
}

#else

using ::testing::HasSubstr;

class RefusedNames : public CliTest {};

TEST_F(RefusedNames, AreToldWithTheReasonAndMakeNothing) {
  const struct {
    QStringList arguments;
    const char* reason;
  } rows[] = {
      {{"scan", "C:photos"}, "is relative to the current folder of a drive"},
      {{"scan", "photos\\NUL"}, "names a device of Windows"},
      {{"-c", "con.sqlite", "scan", "photos"}, "names a device of Windows"},
      {{"-c", "cat.sqlite:stream", "scan", "photos"}, "holds the character :"},
      {{"-c", "cat.sqlite.", "scan", "photos"}, "ends in a dot"},
      {{"sample", "what?"}, "holds the character ?"},
  };
  for (const auto& row : rows) {
    const Ran ran = Run(row.arguments);
    EXPECT_EQ(ran.exitCode, 2) << row.reason;
    EXPECT_THAT(ran.err, HasSubstr(row.reason));
  }
  EXPECT_FALSE(DefaultCatalogue().exists());
  EXPECT_FALSE(tree.Path("cat.sqlite").exists());
}

#endif

}  // namespace
}  // namespace Zenvora::Test
