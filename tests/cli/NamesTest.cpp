// File names of any bytes, from the disk to the output.

#include "CliFixture.h"

#include <support/LeftOut.h>

#include <zenvora/core/FileState.h>

#include <QCoreApplication>
#include <QDir>
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

class StrangeNames : public CliTest {};

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(StrangeNames, AreShownWithoutHarm);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(StrangeNames, AreExactInJson);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(StrangeNames, CanBeGivenAsArguments);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(StrangeNames, AreReportedAsThePicturesTheyAre);

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

class NetworkPaths : public CliTest {};

TEST_F(NetworkPaths, ServeForPhotosCatalogueAndReport) {
  const QString share = qEnvironmentVariable("LUMIDEX_TEST_SHARE");
  if (share.isEmpty()) {
    GTEST_SKIP() << "LUMIDEX_TEST_SHARE names no share to try";
  }
  const ioPath folder =
      ioPath(share) / ("lumidex-test-" + std::to_string(QCoreApplication::applicationPid()));
  ASSERT_FALSE(MakeFolders(folder)) << folder;
  const QString backward = folder.qstring();
  const QString forward = QDir::fromNativeSeparators(backward);
  const QString prefixed = QStringLiteral("\\\\?\\UNC") + backward.mid(1);

  Ran ran = Run({"sample", forward + QStringLiteral("/photos"), "--photos", "50"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  ran = Run({"-c", backward + QStringLiteral("\\c.sqlite"), "scan", "--json",
             backward + QStringLiteral("\\photos")});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_EQ(ran.Json()["added"].toInt(), 50);
  ran = Run(
      {"-c", forward + QStringLiteral("/c.sqlite"), "scan", "--json", forward + QStringLiteral("/photos")});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_EQ(ran.Json()["unchanged"].toInt(), 50);
  ran = Run({"-c", prefixed + QStringLiteral("\\c.sqlite"), "albums", "--json", "--report",
             prefixed + QStringLiteral("\\page.html")});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_EQ(ran.Json()["report"].toObject()["missingPictures"].toInt(-1), 0);
  EXPECT_TRUE((folder / "page.html").exists());
  EXPECT_TRUE(QDir(forward).removeRecursively());
}

TEST_F(NetworkPaths, ThatLeadNowhereAreErrors) {
  const QString share = qEnvironmentVariable("LUMIDEX_TEST_SHARE");
  if (share.isEmpty()) {
    GTEST_SKIP() << "LUMIDEX_TEST_SHARE names no share to try";
  }
  const QString missing = share + QStringLiteral("-that-is-missing\\photos");
  for (const QString& path : {missing, QDir::fromNativeSeparators(missing)}) {
    const Ran ran = Run({"scan", path});
    EXPECT_EQ(ran.exitCode, 4) << path.toStdString();
    EXPECT_THAT(ran.err, HasSubstr(missing.toStdString()));
  }
  EXPECT_FALSE(DefaultCatalogue().exists());
}

#endif

}  // namespace
}  // namespace Zenvora::Test
