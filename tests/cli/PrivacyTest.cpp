#include "ChangeFixture.h"

#include <support/LeftOut.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora::Test {
namespace {

/// What others on the same computer may see.
class Privacy : public ChangeTest {};

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Privacy, IsKeptFromTheFirstRunOn);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Privacy, IsGivenToWhatWasMadeBefore);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Privacy, LeavesFoldersOfOthersAlone);
#else
mode_t ModeOf(const ioPath& place) {
  struct stat facts = {};
  EXPECT_EQ(stat(place.native().c_str(), &facts), 0) << place.utf8string();
  return facts.st_mode & 07777U;
}

TEST_F(Privacy, IsKeptFromTheFirstRunOn) {
  const ioPath photo = Photo("a.jpg");
  ASSERT_EQ(chmod(photo.native().c_str(), 0644), 0);
  ASSERT_EQ(Run({"scan", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"undo", "--keep-days", "50"}).exitCode, 0);
  ASSERT_EQ(Run({"stats", "on"}).exitCode, 0);
  ASSERT_EQ(Run({"find", "--paths"}).exitCode, 0);
  const ioPath kept = tree.Path("data/lumidex/catalogue.sqlite.undo");
  EXPECT_EQ(ModeOf(tree.Path("data/lumidex")), 0700U);
  EXPECT_EQ(ModeOf(kept), 0700U);
  EXPECT_EQ(ModeOf(kept / "lock"), 0600U);
  EXPECT_EQ(ModeOf(kept / "reserve"), 0600U);
  EXPECT_EQ(ModeOf(DefaultCatalogue()), 0600U);
  EXPECT_EQ(ModeOf(tree.Path("config/lumidex")), 0700U);
  EXPECT_EQ(ModeOf(tree.Path("config/lumidex/lumidex.ini")), 0600U);
  EXPECT_EQ(ModeOf(tree.Path("data/lumidex/statistics.jsonl")), 0600U);
  // It may be a second name of the photo, whose rights are its own.
  EXPECT_EQ(ModeOf(kept / "1-before.jpg"), 0644U);
  EXPECT_EQ(ModeOf(photo), 0644U);
}

TEST_F(Privacy, IsGivenToWhatWasMadeBefore) {
  const ioPath photo = Photo("a.jpg");
  ASSERT_EQ(Run({"rotate", "right", "photos"}).exitCode, 0);
  const ioPath kept = tree.Path("data/lumidex/catalogue.sqlite.undo");
  for (const auto& [place, mode] : {std::pair<ioPath, mode_t>{tree.Path("data/lumidex"), 0755},
                                    {kept, 0755},
                                    {kept / "lock", 0644},
                                    {DefaultCatalogue(), 0644}}) {
    ASSERT_EQ(chmod(place.native().c_str(), mode), 0);
  }
  tree.Write("config/lumidex/lumidex.ini", "[Undo]\nDays=50\n");
  ASSERT_EQ(chmod(tree.Path("config/lumidex/lumidex.ini").native().c_str(), 0644), 0);
  ASSERT_EQ(chmod(tree.Path("config/lumidex").native().c_str(), 0777), 0);
  ASSERT_EQ(Run({"rotate", "left", "photos"}).exitCode, 0);
  EXPECT_EQ(ModeOf(tree.Path("config/lumidex")), 0700U);
  ASSERT_EQ(chmod(tree.Path("config/lumidex").native().c_str(), 0777), 0);
  ASSERT_EQ(Run({"undo", "--keep-days", "60"}).exitCode, 0);
  EXPECT_EQ(ModeOf(tree.Path("config/lumidex")), 0700U);
  EXPECT_EQ(ModeOf(tree.Path("data/lumidex")), 0700U);
  EXPECT_EQ(ModeOf(kept), 0700U);
  EXPECT_EQ(ModeOf(kept / "lock"), 0600U);
  EXPECT_EQ(ModeOf(DefaultCatalogue()), 0600U);
  EXPECT_EQ(ModeOf(tree.Path("config/lumidex/lumidex.ini")), 0600U);
}

TEST_F(Privacy, LeavesFoldersOfOthersAlone) {
  Photo("a.jpg");
  const ioPath shared = tree.MakeFolder("shared");
  ASSERT_EQ(chmod(shared.native().c_str(), 0775), 0);
  const QString file = Text(shared / "my.sqlite");
  ASSERT_EQ(Run({"--catalogue", file, "scan", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"--catalogue", file, "rotate", "left", "photos"}).exitCode, 0);
  EXPECT_EQ(ModeOf(shared), 0775U);
  EXPECT_EQ(ModeOf(shared / "my.sqlite"), 0600U);
  EXPECT_EQ(ModeOf(shared / "my.sqlite.undo"), 0700U);
}
#endif

}  // namespace
}  // namespace Zenvora::Test
