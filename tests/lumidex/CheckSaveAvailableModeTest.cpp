#include <zenvora/lumidex/CheckSaveAvailableMode.h>

#include <gtest/gtest.h>

namespace Zenvora::Lumidex {
namespace {

using Mode = CheckSaveAvailableMode;

TEST(CheckSaveAvailableMode, HasTheNumbersThatCallersPass) {
  EXPECT_EQ(static_cast<int>(Mode::None), 0);
  EXPECT_EQ(static_cast<int>(Mode::DiskSpace), 1);
  EXPECT_EQ(static_cast<int>(Mode::FolderPermission), 2);
  EXPECT_EQ(static_cast<int>(Mode::FilePermission), 4);
  EXPECT_EQ(sizeof(Mode), sizeof(int));
}

TEST(CheckSaveAvailableMode, CombinesAndTellsApart) {
  Mode mode = Mode::DiskSpace | Mode::FolderPermission;
  EXPECT_EQ(static_cast<int>(mode), 3);
  EXPECT_EQ(mode & Mode::FolderPermission, Mode::FolderPermission);
  EXPECT_EQ(mode & Mode::FilePermission, Mode::None);
  mode |= Mode::FilePermission;
  EXPECT_EQ(static_cast<int>(mode), 7);
}

}  // namespace
}  // namespace Zenvora::Lumidex
