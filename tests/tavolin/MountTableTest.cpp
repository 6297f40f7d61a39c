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
  for (const char* line :
       {"\n", "x", "22 1 8:1 / / rw", "22 1 8:1 / / rw shared:1", "22 1 8:1 / / rw - ext4",
        "22 1 eight / / rw - ext4 /dev/sda1 rw", "22 1 8:1 / relative rw - ext4 /dev/sda1 rw",
        "22 1 8 / / rw - ext4 /dev/sda1 rw"}) {
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
      "3 1 8:3 / /media/stick/inner rw - vfat c rw\n");
  const auto sourceOf = [&](const char* folder) { return FindMount(mounts, folder)->source; };
  EXPECT_EQ(sourceOf("/"), "a");
  EXPECT_EQ(sourceOf("/media"), "a");
  EXPECT_EQ(sourceOf("/media/stick"), "b");
  EXPECT_EQ(sourceOf("/media/stick/DCIM"), "b");
  EXPECT_EQ(sourceOf("/media/stick2"), "a");
  EXPECT_EQ(sourceOf("/media/stick/inner/x"), "c");
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
