#include "ChangeFixture.h"

#include <support/LeftOut.h>
#include <support/SmallDisk.h>

#include <QJsonArray>

#include <fstream>

namespace Zenvora::Test {
namespace {

using testing::HasSubstr;

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS(FullPhotoDisk, IsSeenByCheckDryRunAndRunAlike, kNoSmallDisk);
LUMIDEX_LEFT_OUT_ON_WINDOWS(FullPhotoDisk, IsSeenBeforeItIsFull, kNoSmallDisk);
#else
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
#endif

}  // namespace
}  // namespace Zenvora::Test
