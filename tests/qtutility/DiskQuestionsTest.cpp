// One contract for room and folders, kept by the system's and by the doubles; then what only the system
// knows.

#include <support/Doubles.h>
#include <support/LeftOut.h>
#include <support/SmallDisk.h>
#include <support/TempTree.h>
#include <support/Unprivileged.h>

#include <zenvora/qtutility/DiskQuestions.h>
#include <zenvora/qtutility/SystemDisk.h>

#include <gtest/gtest.h>

#include <QStorageInfo>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#ifndef _WIN32
#include <cerrno>
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zenvora::Util {
namespace {

namespace fs = std::filesystem;
using Zenvora::Test::FakeDiskSpace;
using Zenvora::Test::FakeFolderAccess;
using Zenvora::Test::TempTree;

class DiskSpaceContract : public testing::TestWithParam<bool> {
 protected:
  std::shared_ptr<App::IDiskSpace> Make() const {
    if (GetParam()) {
      return MakeSystemDiskSpace();
    }
    const auto fake = std::make_shared<FakeDiskSpace>();
    fake->otherwise = 1000;
    fake->free[ioPath(std::string("a\0b", 3))] = -1;
    return fake;
  }
};

TEST_P(DiskSpaceContract, TellsOfPlacesThereAndMissing) {
  const TempTree tree;
  const auto space = Make();
  for (const ioPath& place :
       {tree.Path(), tree.Write("a.jpg", "x"), tree.Path("missing"), tree.Path("missing/deep/in"),
        tree.Path("a.jpg/b"), ioPath(), ioPath("."), ioPath("missing")}) {
    EXPECT_GT(space->FreeBytes(place), 0) << place;
  }
}

TEST_P(DiskSpaceContract, DoesNotTellOfWhatIsNoName) {
  EXPECT_LT(Make()->FreeBytes(ioPath(std::string("a\0b", 3))), 0);
}

INSTANTIATE_TEST_SUITE_P(Both, DiskSpaceContract, testing::Bool());

class FolderAccessContract : public testing::TestWithParam<bool> {
 protected:
  std::shared_ptr<App::IFolderAccess> Make(const std::set<ioPath>& closed) const {
    if (GetParam()) {
      return MakeSystemFolderAccess();
    }
    const auto fake = std::make_shared<FakeFolderAccess>();
    fake->closed = closed;
    return fake;
  }
};

TEST_P(FolderAccessContract, AllowsInTheOwnFolder) {
  const TempTree tree;
  const auto access = Make({});
  for (const ioPath& folder : {tree.Path(), tree.MakeFolder("Пейзаж 写真"), ioPath()}) {
    EXPECT_TRUE(access->CanCreateFileIn(folder)) << folder;
    EXPECT_TRUE(access->CanReadFileIn(folder)) << folder;
  }
  EXPECT_EQ(std::distance(fs::directory_iterator(tree.Path().native()), fs::directory_iterator()), 1)
      << "nothing stays behind";
}

TEST_P(FolderAccessContract, AllowsNothingInWhatIsNoFolder) {
  const TempTree tree;
  const ioPath file = tree.Write("a.jpg", "x");
  const std::set<ioPath> closed = {tree.Path("missing"), file, file / "b", ioPath(std::string("a\0b", 3))};
  const auto access = Make(closed);
  for (const ioPath& folder : closed) {
    EXPECT_FALSE(access->CanCreateFileIn(folder)) << folder;
    EXPECT_FALSE(access->CanReadFileIn(folder)) << folder;
  }
}

TEST_P(FolderAccessContract, MakesFoldersWithTheirParents) {
  const TempTree tree;
  const auto access = Make({});
  EXPECT_TRUE(access->MakeFolder(tree.Path("new/deep")));
  EXPECT_TRUE(access->MakeFolder(tree.Path("new/deep"))) << "it is there";
  EXPECT_TRUE(fs::is_directory(tree.Path("new/deep").native()));
  tree.Write("file", "x");
  EXPECT_FALSE(access->MakeFolder(tree.Path("file/below")));
}

INSTANTIATE_TEST_SUITE_P(Both, FolderAccessContract, testing::Bool());

TEST(DiskQuestions, AreAskedOfTheRegistry) {
  const auto access = std::make_shared<FakeFolderAccess>();
  const auto space = std::make_shared<FakeDiskSpace>();
  const App::ServiceScope<App::IFolderAccess> accessScope(access);
  const App::ServiceScope<App::IDiskSpace> spaceScope(space);
  access->closed = {"/closed"};
  space->free["/"] = 12;
  EXPECT_TRUE(CanCreateFileIn(QStringLiteral("/open")));
  EXPECT_FALSE(CanCreateFileIn(QStringLiteral("/closed")));
  EXPECT_TRUE(CanCreateFileAt("/open"));
  EXPECT_FALSE(CanCreateFileAt("/closed"));
  EXPECT_TRUE(CanReadFileIn(QStringLiteral("/open")));
  EXPECT_FALSE(CanReadFileIn(QStringLiteral("/closed")));
  EXPECT_EQ(GetAvailableDiskSpace("/"), 12);
  EXPECT_LT(GetAvailableDiskSpace("/x"), 0);
}

TEST(DiskQuestions, AreTheSystemsWithoutAnother) {
  const TempTree tree;
  EXPECT_TRUE(CanCreateFileIn(tree.Path().qstring()));
  EXPECT_TRUE(CanReadFileIn(tree.Path().qstring()));
  EXPECT_GT(GetAvailableDiskSpace(tree.Path()), 0);
}

TEST(SystemDisk, CountsWhatIsLeft) {
  const TempTree tree;
  const Zenvora::Test::SmallDisk disk(tree.Path(), 1 << 20);
  LUMIDEX_DISK_OR_SKIP(disk);
  EXPECT_EQ(GetAvailableDiskSpace(tree.Path()), 1 << 20);
  tree.Write("a", std::string(512 << 10, 'x'));
  EXPECT_EQ(GetAvailableDiskSpace(tree.Path("sub/missing")), 512 << 10);
}

TEST(SystemDisk, IsFullToTheLastByte) {
  const TempTree tree;
  const Zenvora::Test::SmallDisk disk(tree.Path(), 1 << 20);
  LUMIDEX_DISK_OR_SKIP(disk);
  tree.Write("a", std::string(1 << 20, 'x'));
  EXPECT_EQ(GetAvailableDiskSpace(tree.Path()), 0);
}

TEST(SystemFolders, MountedForReadingTakeNoFiles) {
  const TempTree tree;
  const Zenvora::Test::SmallDisk disk(tree.Path(), 1 << 20);
  LUMIDEX_DISK_OR_SKIP(disk);
  EXPECT_TRUE(CanCreateFileIn(tree.Path().qstring()));
  ASSERT_TRUE(disk.MakeReadOnly());
  EXPECT_FALSE(CanCreateFileIn(tree.Path().qstring()));
  EXPECT_TRUE(CanReadFileIn(tree.Path().qstring()));
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS(SystemFolders, OfOtherUsersGoByTheirRights);
LUMIDEX_LEFT_OUT_ON_WINDOWS(SystemFolders, GoByAccessLists);
LUMIDEX_LEFT_OUT_ON_WINDOWS(SystemFolders, WithLittleRoomOrUnderLinksTakeFiles);
#else
TEST(SystemDisk, DoesNotTellWhereThereIsNoSize) {
  EXPECT_LT(GetAvailableDiskSpace("/proc"), 0);
}

TEST(SystemFolders, OfOtherUsersGoByTheirRights) {
  struct Row {
    mode_t mode;
    bool create;
    bool read;
  };
  const TempTree tree;
  Zenvora::Test::LetEverybodyIn(tree.Path());
  for (const Row& row :
       {Row{0777, true, true}, Row{0755, false, true}, Row{0711, false, true}, Row{0744, false, false},
        Row{0766, false, false}, Row{0733, true, true}, Row{0700, false, false}}) {
    const ioPath folder = tree.MakeFolder(std::to_string(row.mode));
    ASSERT_EQ(chmod(folder.native().c_str(), row.mode), 0);
    if (Zenvora::Test::IsSuperuser()) {
      EXPECT_EQ(Zenvora::Test::AskAsNobody([&] { return CanCreateFileIn(folder.qstring()); }), row.create)
          << row.mode;
      EXPECT_EQ(Zenvora::Test::AskAsNobody([&] { return CanReadFileIn(folder.qstring()); }), row.read)
          << row.mode;
      EXPECT_TRUE(CanCreateFileIn(folder.qstring())) << "the superuser may";
    }
  }
  if (!Zenvora::Test::IsSuperuser()) {
    GTEST_SKIP() << "only the superuser can become another user";
  }
}

TEST(SystemFolders, GoByAccessLists) {
  if (!Zenvora::Test::IsSuperuser()) {
    GTEST_SKIP() << "only the superuser can become another user";
  }
  const TempTree tree;
  Zenvora::Test::LetEverybodyIn(tree.Path());
  const ioPath granted = tree.MakeFolder("granted");
  const ioPath denied = tree.MakeFolder("denied");
  if (!Zenvora::Test::AddToAccessList(granted, Zenvora::Test::kNobody, 7, 0) ||
      !Zenvora::Test::AddToAccessList(denied, Zenvora::Test::kNobody, 0, 7)) {
    GTEST_SKIP() << "this file system has no access lists";
  }
  EXPECT_TRUE(Zenvora::Test::AskAsNobody([&] { return CanCreateFileIn(granted.qstring()); }));
  EXPECT_TRUE(Zenvora::Test::AskAsNobody([&] { return CanReadFileIn(granted.qstring()); }));
  EXPECT_FALSE(Zenvora::Test::AskAsNobody([&] { return CanCreateFileIn(denied.qstring()); }));
  EXPECT_FALSE(Zenvora::Test::AskAsNobody([&] { return CanReadFileIn(denied.qstring()); }));
}

TEST(SystemFolders, ThatOnlyShowThingsTakeNoFiles) {
  EXPECT_FALSE(CanCreateFileIn(QStringLiteral("/proc/self")));
  EXPECT_TRUE(CanReadFileIn(QStringLiteral("/proc/self")));
}

TEST(SystemFolders, ThatKnowNoNamelessFilesGoByTheSystemsOpinion) {
  const TempTree tree;
  const ioPath place = tree.Path();
  const char* const folder = place.native().c_str();
  // A file system that is everywhere and, like those of sticks, makes only files with names.
  if (mount("lumidex-test", folder, "mqueue", 0, nullptr) != 0) {
    GTEST_SKIP() << "only the superuser can mount a volume, and the kernel must know this one";
  }
  const int nameless = open(folder, O_TMPFILE | O_WRONLY | O_CLOEXEC, S_IRUSR);
  const int cause = errno;
  EXPECT_TRUE(CanCreateFileIn(tree.Path().qstring()));
  // This place only: the file system is one for all.
  EXPECT_EQ(mount(nullptr, folder, nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr), 0);
  EXPECT_FALSE(CanCreateFileIn(tree.Path().qstring()));
  EXPECT_EQ(umount(folder), 0);
  if (nameless >= 0) {
    close(nameless);
    GTEST_SKIP() << "the kernel makes nameless files there by now";
  }
  EXPECT_EQ(cause, EOPNOTSUPP);
}

TEST(SystemFolders, WithLittleRoomOrUnderLinksTakeFiles) {
  const TempTree tree;
  const ioPath real = tree.MakeFolder("real");
  ASSERT_EQ(chmod(real.native().c_str(), 01777), 0);
  ASSERT_TRUE(Zenvora::Test::MakeLink(real, tree.Path("link")));
  ASSERT_TRUE(Zenvora::Test::MakeLink(tree.Path("nowhere"), tree.Path("dangling")));
  EXPECT_TRUE(CanCreateFileIn(tree.Path("link").qstring()));
  EXPECT_FALSE(CanCreateFileIn(tree.Path("dangling").qstring()));
  EXPECT_FALSE(tree.Path("nowhere").exists());
  if (Zenvora::Test::IsSuperuser()) {
    Zenvora::Test::LetEverybodyIn(tree.Path());
    EXPECT_TRUE(Zenvora::Test::AskAsNobody([&] { return CanCreateFileIn(real.qstring()); }));
  }
  const Zenvora::Test::SmallDisk disk(real, 1 << 16);
  LUMIDEX_DISK_OR_SKIP(disk);
  tree.Write("real/a", std::string(1 << 16, 'x'));
  EXPECT_TRUE(CanCreateFileIn(real.qstring())) << "room is another question";
}

TEST(SystemDisk, IsFoundWhenTheFolderIsGone) {
  const TempTree tree;
  const ioPath gone = tree.MakeFolder("gone/deep");
  const auto before = GetAvailableDiskSpace(gone);
  fs::remove_all(tree.Path("gone").native());
  EXPECT_GT(before, 0);
  EXPECT_GT(GetAvailableDiskSpace(gone), 0);
  EXPECT_FALSE(CanCreateFileIn(gone.qstring()));
  EXPECT_FALSE(CanReadFileIn(gone.qstring()));
  ASSERT_TRUE(Zenvora::Test::MakeLink(tree.Path("nowhere"), tree.Path("dangling")));
  EXPECT_GT(GetAvailableDiskSpace(tree.Path("dangling/x")), 0);
}
#endif

TEST(SystemFolders, MayHaveLongNames) {
  const TempTree tree;
  ioPath folder = tree.Path();
  for (int i = 0; i < 6; ++i) {
    folder /= std::string(60, 'd');
  }
  fs::create_directories(folder.for_system());
  EXPECT_TRUE(CanCreateFileIn(folder.qstring()));
  EXPECT_TRUE(CanReadFileIn(folder.qstring()));
  EXPECT_GT(GetAvailableDiskSpace(folder), 0);
}

}  // namespace
}  // namespace Zenvora::Util
