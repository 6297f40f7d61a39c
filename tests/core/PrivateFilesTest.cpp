#include <support/LeftOut.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/PrivateFiles.h>

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora {
namespace {

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS(PrivateFiles, LeaveTheOwnerWhatTheyHad);
LUMIDEX_LEFT_OUT_ON_WINDOWS(PrivateFiles, LeaveFoldersThatWereThereAlone);
#else
mode_t ModeOf(const ioPath& place) {
  struct stat facts = {};
  EXPECT_EQ(stat(place.native().c_str(), &facts), 0) << place.utf8string();
  return facts.st_mode & 07777U;
}

void SetMode(const ioPath& place, mode_t mode) {
  ASSERT_EQ(chmod(place.native().c_str(), mode), 0);
}

TEST(PrivateFiles, LeaveTheOwnerWhatTheyHad) {
  const Zenvora::Test::TempTree tree;
  const ioPath file = tree.Write("file", "x");
  const ioPath folder = tree.MakeFolder("folder");
  for (const auto& [before, after] :
       {std::pair<mode_t, mode_t>{0644, 0600}, {0444, 0400}, {0666, 0600}, {0600, 0600}, {0755, 0700}}) {
    SetMode(file, before);
    EXPECT_FALSE(MakePrivate(file));
    EXPECT_EQ(ModeOf(file), after);
    SetMode(folder, before);
    EXPECT_FALSE(MakePrivate(folder));
    EXPECT_EQ(ModeOf(folder), after);
  }
}

TEST(PrivateFiles, LeaveFoldersThatWereThereAlone) {
  const Zenvora::Test::TempTree tree;
  const ioPath top = tree.MakeFolder("top");
  SetMode(top, 0755);
  EXPECT_FALSE(MakePrivateFolders(top / "a" / "b"));
  EXPECT_EQ(ModeOf(top), 0755U);
  EXPECT_EQ(ModeOf(top / "a"), 0700U);
  EXPECT_EQ(ModeOf(top / "a" / "b"), 0700U);
  SetMode(top / "a" / "b", 0750);
  EXPECT_FALSE(MakePrivateFolders(top / "a" / "b"));
  EXPECT_EQ(ModeOf(top / "a" / "b"), 0750U);
}
#endif

TEST(PrivateFiles, AreStillTheirOwners) {
  const Zenvora::Test::TempTree tree;
  const ioPath folder = tree.Path("folder");
  EXPECT_FALSE(MakePrivateFolders(folder));
  const ioPath file = tree.Write("folder/file", "content");
  EXPECT_FALSE(MakePrivate(file));
  EXPECT_EQ(Zenvora::Test::ReadFile(file), "content");
  EXPECT_TRUE(file.remove());
}

TEST(PrivateFiles, NeedSomethingThatIsThere) {
  const Zenvora::Test::TempTree tree;
  EXPECT_TRUE(MakePrivate(tree.Path("missing")));
  const ioPath file = tree.Write("file", "x");
  EXPECT_TRUE(MakePrivateFolders(file));
  EXPECT_TRUE(MakePrivateFolders(file / "below"));
}

}  // namespace
}  // namespace Zenvora
