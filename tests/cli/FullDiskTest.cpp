#include "ChangeFixture.h"

#include <support/SmallDisk.h>

#include <QJsonArray>

#include <fstream>

namespace Zenvora::Test {
namespace {

using testing::AllOf;
using testing::HasSubstr;

/// Photos on a disk of their own with little room.
class FullPhotoDisk : public ChangeTest {
 protected:
  SmallDisk disk_{tree.MakeFolder("photos"), std::size_t{8} << 20U};
};

TEST_F(FullPhotoDisk, IsSeenByCheckDryRunAndRunAlike) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  const ioPath photo = Photo("a.jpg");
  const std::string before = ReadFile(photo);
  disk_.Fill();
  ASSERT_EQ(disk_.Free(), 0U);
  const std::string sentence = "Cannot edit " + photo.utf8string() +
                               ": its disk has no room for a new version of it (" +
                               std::to_string(before.size()) + " bytes are needed, 0 are free)";
  const Ran check = Run({"check", "photos"});
  EXPECT_EQ(check.exitCode, 1);
  EXPECT_THAT(check.out, HasSubstr("Refused by rotate, shift-date, set-date"));
  EXPECT_THAT(check.out, HasSubstr(sentence));
  EXPECT_THAT(check.out, HasSubstr("0 B"));
  EXPECT_THAT(check.out, testing::Not(HasSubstr("unknown")));
  const QJsonObject document = Run({"check", "--json", "photos"}).Json();
  EXPECT_EQ(document["volumes"].toArray()[0].toObject()["bytesFree"], QJsonValue(0));
  EXPECT_EQ(document["findings"].toArray()[0].toObject()["kind"].toString(), QStringLiteral("room"));
  for (const bool dry : {true, false}) {
    const Ran ran =
        dry ? Run({"rotate", "--dry-run", "right", "photos"}) : Run({"rotate", "right", "photos"});
    EXPECT_EQ(ran.exitCode, 4);
    EXPECT_THAT(ran.out, HasSubstr(sentence));
  }
  EXPECT_EQ(ReadFile(photo), before);
}

TEST_F(FullPhotoDisk, IsSeenBeforeItIsFull) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  for (const char* name : {"a.jpg", "b.jpg", "c.jpg"}) {
    const ioPath photo = Photo(name);
    // Behind the end of the picture: an edit takes it along.
    std::ofstream(photo.native(), std::ios::binary | std::ios::app) << std::string(400'000, '\n');
  }
  // The catalogue lies there too, and with it the originals.
  const QString catalogue = Text(tree.MakeFolder("photos/.mine") / "my.sqlite");
  ASSERT_EQ(Run({"--catalogue", catalogue, "rotate", "right", "photos/a.jpg"}).exitCode, 0);
  disk_.Fill(900'000);
  const Ran dry = Run({"--catalogue", catalogue, "rotate", "--dry-run", "right", "photos"});
  EXPECT_EQ(dry.exitCode, 3);
  EXPECT_THAT(dry.out, HasSubstr("free, but editing all photos needs"));
  const Ran check = Run({"--catalogue", catalogue, "check", "--for", "rotate", "photos"});
  EXPECT_EQ(check.exitCode, 1);
  EXPECT_THAT(check.out, HasSubstr("free, but editing all photos needs"));
}

/// The catalogue on such a disk.
class FullCatalogueDisk : public ChangeTest {
 protected:
  Ran Import(const QStringList& more = {}) const {
    return Run(QStringList{"--catalogue", catalogue, "import", "photos", "--to", "copies"} + more);
  }

  SmallDisk disk_{tree.MakeFolder("small"), std::size_t{8} << 20U};
  const QString catalogue = Text(tree.Path("small/c.sqlite"));
};

TEST_F(FullCatalogueDisk, BeginsNoImportThatCouldNotBeUndone) {
  LUMIDEX_DISK_OR_SKIP(disk_);
  Photo("a.jpg");
  ASSERT_EQ(Run({"--catalogue", catalogue, "scan", "photos"}).exitCode, 0);
  disk_.Fill(800'000);
  const Ran edit = Run({"--catalogue", catalogue, "rotate", "right", "photos"});
  EXPECT_EQ(edit.exitCode, 4);
  const std::string sentence =
      "The undo journal " + tree.Path("small/c.sqlite.undo").utf8string() +
      " cannot be used: no step is started without 2 MiB free for finishing and undoing it (";
  EXPECT_THAT(edit.err, HasSubstr(sentence));
#ifndef _WIN32
  EXPECT_THAT(edit.err, HasSubstr("undoing it (No space left on device)"));
#endif
  const Ran dry = Import({"--dry-run"});
  EXPECT_EQ(dry.exitCode, 4);
  EXPECT_THAT(dry.out, AllOf(HasSubstr(sentence), HasSubstr(").\nNothing would be imported.\n")));
  const Ran refused = Import();
  EXPECT_EQ(refused.exitCode, 4);
  EXPECT_THAT(refused.out, AllOf(HasSubstr(sentence), HasSubstr(").\nNothing was imported.\n")));
  EXPECT_FALSE(tree.Path("copies").exists());
  EXPECT_THAT(Run({"--lang", "de", "--catalogue", catalogue, "import", "photos", "--to", "copies"}).out,
              HasSubstr("ohne 2 MiB"));

  // With so much more it is done, and undone in the room that was held for that.
  disk_.Clear();
  disk_.Fill(1'800'000);
  const Ran done = Import();
  EXPECT_EQ(done.exitCode, 0) << done.out << done.err;
  disk_.Fill();
  const Ran undone = Run({"--catalogue", catalogue, "undo"});
  EXPECT_EQ(undone.exitCode, 0) << undone.out << undone.err;
  EXPECT_THAT(undone.out, HasSubstr("1 copy is in the trash now."));
}

}  // namespace
}  // namespace Zenvora::Test
