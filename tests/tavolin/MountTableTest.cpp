#include "MountTable.h"

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::Tavolin {
namespace {

TEST(ReadMounts, ReadsTheLinesOfTheSystem) {
  const auto mounts = ReadMounts(
      "22 1 253:0 / / rw,relatime shared:1 - ext4 /dev/mapper/vg-root rw\n"
      "40 22 8:17 / /media/a\\040b\\011c\\012d\\134e rw,nosuid shared:2 master:3 - vfat /dev/sdb1 "
      "rw,uid=1000\n"
      "41 22 0:50 /photos /mnt/nas rw - nfs4 server:/ex\\040port rw\n");
  ASSERT_EQ(mounts.size(), 3U);
  EXPECT_EQ(mounts[0].id, 22U);
  EXPECT_EQ(mounts[0].parent, 1U);
  EXPECT_EQ(mounts[1].parent, 22U);
  EXPECT_EQ(mounts[0].major, 253U);
  EXPECT_EQ(mounts[0].minor, 0U);
  EXPECT_EQ(mounts[0].point, "/");
  EXPECT_EQ(mounts[0].type, "ext4");
  EXPECT_EQ(mounts[0].source, "/dev/mapper/vg-root");
  EXPECT_EQ(mounts[1].major, 8U);
  EXPECT_EQ(mounts[1].minor, 17U);
  EXPECT_EQ(mounts[1].point, "/media/a b\tc\nd\\e");
  EXPECT_EQ(mounts[1].type, "vfat");
  EXPECT_EQ(mounts[2].point, "/mnt/nas");
  EXPECT_EQ(mounts[2].source, "server:/ex port");
}

TEST(ReadMounts, PassesOverWhatItCannotRead) {
  EXPECT_TRUE(ReadMounts("").empty());
  for (const char* line : {"\n", "x", "22 1 8:1 / / rw", "22 1 8:1 / / rw shared:1", "22 1 8:1 / / rw - ext4",
                           "22 1 eight / / rw - ext4 /dev/sda1 rw",
                           "22 1 8:1 / relative rw - ext4 /dev/sda1 rw", "22 1 8 / / rw - ext4 /dev/sda1 rw",
                           "x 1 8:1 / / rw - ext4 /dev/sda1 rw", "22 x 8:1 / / rw - ext4 /dev/sda1 rw"}) {
    EXPECT_TRUE(ReadMounts(line).empty()) << line;
  }
  EXPECT_EQ(ReadMounts("broken\n22 1 8:1 / / rw - ext4 /dev/sda1 rw\nbroken").size(), 1U);
}

TEST(ReadMounts, KeepsBytesAndHalfEscapes) {
  const auto mounts = ReadMounts("22 1 8:1 / /m/\xff\\04 rw - ext4 \\9 rw");
  ASSERT_EQ(mounts.size(), 1U);
  EXPECT_EQ(mounts[0].point, "/m/\xff\\04");
  EXPECT_EQ(mounts[0].source, "\\9");
}

TEST(FindMount, TakesTheNearest) {
  const auto mounts = ReadMounts(
      "1 0 8:1 / / rw - ext4 a rw\n"
      "2 1 8:2 / /media/stick rw - vfat b rw\n"
      "3 2 8:3 / /media/stick/inner rw - vfat c rw\n");
  const auto sourceOf = [&](const char* folder) { return FindMount(mounts, folder)->source; };
  EXPECT_EQ(sourceOf("/"), "a");
  EXPECT_EQ(sourceOf("/media"), "a");
  EXPECT_EQ(sourceOf("/media/stick"), "b");
  EXPECT_EQ(sourceOf("/media/stick/DCIM"), "b");
  EXPECT_EQ(sourceOf("/media/stick2"), "a");
  EXPECT_EQ(sourceOf("/media/stick/inner/x"), "c");
}

TEST(FindMount, PassesOverWhatIsHidden) {
  // Something else was mounted over the folder that holds the stick, then something in there.
  auto text = std::string(
      "1 0 8:1 / / rw - ext4 a rw\n"
      "2 1 8:2 / /media/stick rw - vfat b rw\n"
      "3 1 0:40 / /media rw - tmpfs c rw\n");
  const auto sourceOf = [&](const char* folder) { return FindMount(ReadMounts(text), folder)->source; };
  EXPECT_EQ(sourceOf("/media/stick/x"), "c");
  EXPECT_EQ(sourceOf("/media"), "c");
  EXPECT_EQ(sourceOf("/home"), "a");
  text += "4 3 8:3 / /media/stick rw - vfat d rw\n";
  EXPECT_EQ(sourceOf("/media/stick/x"), "d");
  EXPECT_EQ(sourceOf("/media/other"), "c");
  // And one more root over all.
  text += "5 1 8:4 / / rw - ext4 e rw\n";
  EXPECT_EQ(sourceOf("/media/stick/x"), "e");
  EXPECT_EQ(sourceOf("/"), "e");
}

TEST(FindMount, TakesTheNearestWhereTheFirstIsOutOfSight) {
  // As in a changed root folder, and in tables with numbers that lead nowhere.
  const auto mounts = ReadMounts(
      "7 90 8:2 / /media rw - vfat a rw\n"
      "8 7 8:3 / /media/x rw - vfat b rw\n"
      "9 9 8:4 / /mnt rw - vfat c rw\n");
  EXPECT_EQ(FindMount(mounts, "/"), nullptr);
  EXPECT_EQ(FindMount(mounts, "/media/y")->source, "a");
  EXPECT_EQ(FindMount(mounts, "/media/x/y")->source, "b");
  EXPECT_EQ(FindMount(mounts, "/mnt")->source, "c");
}

TEST(FindMount, TakesTheLastOfSeveralOnOnePlace) {
  const auto mounts = ReadMounts(
      "1 0 0:40 / /media/auto rw - autofs systemd-1 rw\n"
      "2 1 8:2 / /media/auto rw - vfat /dev/sdb1 rw\n");
  EXPECT_EQ(FindMount(mounts, "/media/auto/x")->type, "vfat");
  EXPECT_EQ(FindMount(mounts, "/home"), nullptr);
}

}  // namespace
}  // namespace Zenvora::Tavolin
