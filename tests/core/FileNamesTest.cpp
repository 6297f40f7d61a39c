#include <support/FileHolder.h>
#include <support/SmallDisk.h>
#include <support/TempTree.h>

#include <zenvora/core/FileNames.h>
#include <zenvora/core/FileState.h>

#include <gtest/gtest.h>

#include <string>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace Zenvora {
namespace {

using Zenvora::Test::ReadFile;

class FileNames : public ::testing::Test {
 protected:
  const Zenvora::Test::TempTree tree_;
};

TEST_F(FileNames, MovesAFileToAFreeName) {
  const ioPath from = tree_.Write("a.jpg", "A");
  const ioPath to = tree_.Path("Пейзаж 1.jpg");
  EXPECT_FALSE(MoveToFreeName(from, to));
  EXPECT_FALSE(from.exists());
  EXPECT_EQ(ReadFile(to), "A");
}

TEST_F(FileNames, NeverReplacesAnything) {
  const ioPath from = tree_.Write("a.jpg", "A");
  const ioPath file = tree_.Write("b.jpg", "B");
  const ioPath folder = tree_.MakeFolder("folder");
  EXPECT_EQ(MoveToFreeName(from, file), std::errc::file_exists);
  EXPECT_EQ(MoveToFreeName(from, folder), std::errc::file_exists);
  EXPECT_EQ(ReadFile(from), "A");
  EXPECT_EQ(ReadFile(file), "B");
}

TEST_F(FileNames, TakesALinkToNothingForTaken) {
  const ioPath from = tree_.Write("a.jpg", "A");
  const ioPath link = tree_.Path("link");
  LUMIDEX_LINK_OR_SKIP(tree_.Path("nothing"), link);
  EXPECT_EQ(MoveToFreeName(from, link), std::errc::file_exists);
  EXPECT_EQ(ReadFile(from), "A");
}

TEST_F(FileNames, SaysWhyAFileCannotBeMoved) {
  const ioPath from = tree_.Write("a.jpg", "A");
  EXPECT_TRUE(MoveToFreeName(tree_.Path("gone.jpg"), tree_.Path("b.jpg")));
  EXPECT_TRUE(MoveToFreeName(from, tree_.Path("missing/b.jpg")));
  EXPECT_TRUE(MoveToFreeName(from, tree_.Path(std::string(300, 'b'))));
  EXPECT_EQ(MoveToFreeName(from, ioPath()), std::errc::invalid_argument);
  EXPECT_EQ(MoveToFreeName(from, ioPath(std::string("b\0c", 3))), std::errc::invalid_argument);
  EXPECT_EQ(ReadFile(from), "A");
}

TEST_F(FileNames, MovesFoldersToo) {
  tree_.Write("folder/a.jpg", "A");
  EXPECT_FALSE(MoveToFreeName(tree_.Path("folder"), tree_.Path("other")));
  EXPECT_EQ(ReadFile(tree_.Path("other/a.jpg")), "A");
}

TEST_F(FileNames, SaysThatAnotherVolumeIsOne) {
  const ioPath from = tree_.Write("a.jpg", "A");
#ifdef _WIN32
  const Zenvora::Test::SmallDisk disk(tree_.MakeFolder("disk"), 1 << 20);
  LUMIDEX_DISK_OR_SKIP(disk);
  const ioPath elsewhere = tree_.Path("disk/a.jpg");
#else
  const ioPath elsewhere("/dev/shm/lumidex-test-" + std::to_string(getpid()));
  const FileState there = QueryFile(ioPath("/dev/shm"));
  if (there.kind != FileState::Kind::Folder || there.identity.first == QueryFile(from).identity.first) {
    GTEST_SKIP() << "there is no second volume at /dev/shm";
  }
#endif
  EXPECT_EQ(MoveToFreeName(from, elsewhere), std::errc::cross_device_link);
  EXPECT_FALSE(elsewhere.exists());
}

TEST_F(FileNames, GivesAFileASecondName) {
  const ioPath file = tree_.Write("a.jpg", "A");
  const ioPath second = tree_.Path("b.jpg");
  EXPECT_FALSE(AddName(file, second));
  EXPECT_TRUE(IsSameFile(file, second));
  EXPECT_EQ(QueryFile(file).names, 2U);
  EXPECT_TRUE(second.remove());
  EXPECT_EQ(QueryFile(file).names, 1U);
  EXPECT_FALSE(AddName(file, second));
  EXPECT_EQ(ReadFile(second), "A");
}

TEST_F(FileNames, GivesNoNameThatIsTaken) {
  const ioPath file = tree_.Write("a.jpg", "A");
  const ioPath other = tree_.Write("b.jpg", "B");
  EXPECT_TRUE(AddName(file, other));
  EXPECT_EQ(ReadFile(other), "B");
  EXPECT_TRUE(AddName(tree_.Path("gone.jpg"), tree_.Path("c.jpg")));
  EXPECT_EQ(AddName(file, ioPath()), std::errc::invalid_argument);
}

TEST_F(FileNames, KnowsWhatMayPass) {
  EXPECT_FALSE(MayPass({}));
  EXPECT_FALSE(MayPass(std::make_error_code(std::errc::file_exists)));
  EXPECT_FALSE(MayPass(MoveToFreeName(tree_.Path("gone.jpg"), tree_.Path("b.jpg"))));
#ifdef _WIN32
  const ioPath file = tree_.Write("a.jpg", "A");
  const auto holder = Zenvora::Test::HoldInAThread(file);
  EXPECT_TRUE(MayPass(MoveToFreeName(file, tree_.Path("b.jpg"))));
#endif
}

}  // namespace
}  // namespace Zenvora
