#include <LumidexUtil/CheckSaveAvailable.h>
#include <support/Doubles.h>
#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/SmallDisk.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>
#include <support/TextCatalogue.h>
#include <support/Unprivileged.h>

#include <zenvora/core/FileProbes.h>

#include <gtest/gtest.h>

#include <QFileInfo>

#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace Zenvora::Util {
namespace {

namespace fs = std::filesystem;
using Lumidex::DataModel;
using Mode = CheckSaveAvailableMode;
using Zenvora::Test::FakeDiskSpace;
using Zenvora::Test::FakeFolderAccess;
using Zenvora::Test::TempTree;

constexpr Mode kAll = Mode::DiskSpace | Mode::FolderPermission | Mode::FilePermission;
constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();

#ifdef _WIN32
const char* const kRoot = "C:\\";
const char* const kRootName = "C:";
#else
const char* const kRoot = "/";
const char* const kRootName = "";
#endif

DataModel Item(const ioPath& path, std::uint64_t size = 0, bool lost = false) {
  DataModel item;
  item.SetPath(path);
  item.SetSize(size);
  item.SetLost(lost);
  return item;
}

/// A file of the volume `kRoot`.
DataModel OnRoot(const char* name, std::uint64_t size) {
  return Item(ioPath(kRoot) / name, size);
}

std::string NoSpace(const std::string& name) {
  return "There is not enough space on the disk " + name;
}
std::string NoFolder(const ioPath& folder) {
  return "You do not have permission to edit files in this folder: " + folder.utf8string();
}
std::string NoFile(const ioPath& file) {
  return "You do not have permission to edit file: " + file.utf8string();
}

class Saving : public testing::Test {
 protected:
  static void Expect(const std::vector<DataModel>& items, Mode mode, Mode failed, const std::string& text) {
    const auto result = CheckSaveAvailable(items, mode);
    EXPECT_EQ(result.first, failed) << static_cast<int>(result.first);
    EXPECT_EQ(result.second.toStdString(), text);
  }
  static void ExpectPassed(const std::vector<DataModel>& items, Mode mode) {
    const auto result = CheckSaveAvailable(items, mode);
    EXPECT_EQ(result.first, Mode::None) << result.second.toStdString();
    EXPECT_TRUE(result.second.isEmpty());
  }

  const TempTree tree_;
  const std::shared_ptr<FakeDiskSpace> space_ = std::make_shared<FakeDiskSpace>();
  const App::ServiceScope<App::IDiskSpace> spaceScope_{space_};
};

class SavingInFakeFolders : public Saving {
 protected:
  const std::shared_ptr<FakeFolderAccess> access_ = std::make_shared<FakeFolderAccess>();
  const App::ServiceScope<App::IFolderAccess> accessScope_{access_};
};

TEST_F(SavingInFakeFolders, NothingIsPossibleInEveryMode) {
  for (int mode = 0; mode < 16; ++mode) {
    ExpectPassed({}, static_cast<Mode>(mode));
  }
  EXPECT_TRUE(space_->asked.empty());
  EXPECT_TRUE(access_->askedToCreate.empty());
}

TEST_F(SavingInFakeFolders, IsNotLookedAtWithoutAMode) {
  space_->free[kRoot] = 1;
  access_->closed = {kRoot};
  ExpectPassed({OnRoot("missing.jpg", 2)}, Mode::None);
  ExpectPassed({OnRoot("missing.jpg", 2)}, static_cast<Mode>(8));
  EXPECT_TRUE(space_->asked.empty());
  EXPECT_TRUE(access_->askedToCreate.empty());
}

TEST_F(SavingInFakeFolders, IsLookedAtByTheModesBitsAlone) {
  ioPath missing = ioPath(kRoot) / "lumidex-missing.jpg";
  space_->free[kRoot] = 1;
  access_->closed = {kRoot};
  const std::vector<DataModel> items = {Item(missing, 2)};
  Expect(items, Mode::DiskSpace, Mode::DiskSpace, NoSpace(kRootName));
  Expect(items, Mode::FolderPermission, Mode::FolderPermission, NoFolder(kRoot));
  Expect(items, Mode::FilePermission, Mode::FilePermission, NoFile(missing));
  // The first in the order of checks, and only that.
  Expect(items, kAll, Mode::DiskSpace, NoSpace(kRootName));
  Expect(items, Mode::FolderPermission | Mode::FilePermission, Mode::FolderPermission, NoFolder(kRoot));
  Expect(items, Mode::DiskSpace | Mode::FilePermission, Mode::DiskSpace, NoSpace(kRootName));
  space_->free.clear();
  Expect(items, kAll, Mode::FolderPermission, NoFolder(kRoot));
  access_->closed.clear();
  Expect(items, kAll, Mode::FilePermission, NoFile(missing));
}

TEST_F(SavingInFakeFolders, EndsWithTheFirstFailure) {
  space_->free[kRoot] = 1;
  Expect({OnRoot("a.jpg", 2)}, kAll, Mode::DiskSpace, NoSpace(kRootName));
  EXPECT_TRUE(access_->askedToCreate.empty());
}

TEST_F(Saving, NeedsTheRoomOfAllItemsTogether) {
  space_->free[kRoot] = 100;
  ExpectPassed({OnRoot("a", 60)}, Mode::DiskSpace);
  ExpectPassed({OnRoot("a", 60), OnRoot("b/c", 40)}, Mode::DiskSpace);
  Expect({OnRoot("a", 60), OnRoot("b/c", 41)}, Mode::DiskSpace, Mode::DiskSpace, NoSpace(kRootName));
}

TEST_F(Saving, IsNotBlamedOnVolumesThatDoNotTell) {
  for (const std::int64_t free :
       {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min()}) {
    space_->free[kRoot] = free;
    ExpectPassed({OnRoot("a", kMost)}, Mode::DiskSpace);
  }
}

TEST_F(Saving, NeedsMoreThanThereIsWhenSizesHaveNoPlaceInTheirSum) {
  space_->free[kRoot] = 100;
  Expect({OnRoot("a", kMost), OnRoot("b", 10)}, Mode::DiskSpace, Mode::DiskSpace, NoSpace(kRootName));
  Expect({OnRoot("a", std::uint64_t{1} << 63U), OnRoot("b", std::uint64_t{1} << 63U)}, Mode::DiskSpace,
         Mode::DiskSpace, NoSpace(kRootName));
  space_->free[kRoot] = std::numeric_limits<std::int64_t>::max();
  Expect({OnRoot("a", kMost)}, Mode::DiskSpace, Mode::DiskSpace, NoSpace(kRootName));
  ExpectPassed({OnRoot("a", kMost / 2)}, Mode::DiskSpace);
}

TEST_F(Saving, AsksEveryVolumeOnce) {
  space_->otherwise = 1000000;
  std::vector<DataModel> items;
  items.reserve(1002);
  for (int i = 0; i < 1000; ++i) {
    items.push_back(OnRoot(("folder" + std::to_string(i % 7) + "/" + std::to_string(i)).c_str(), 1));
  }
  items.push_back(Item("relative.jpg", 1));
  items.push_back(Item("other/relative.jpg", 1));
  ExpectPassed(items, Mode::DiskSpace);
  EXPECT_EQ(space_->asked, (std::vector<ioPath>{ioPath(), ioPath(kRoot)})) << "in ascending order";
}

TEST_F(Saving, TellsTheRoomOfPathsWithoutARootByTheirOwn) {
  space_->free[ioPath()] = 5;
  Expect({Item("a.jpg", 6), OnRoot("b.jpg", 1000)}, Mode::DiskSpace, Mode::DiskSpace, NoSpace(""));
}

#ifdef _WIN32
TEST_F(Saving, NamesTheFirstFullVolume) {
  space_->free["C:\\"] = 100;
  space_->free["D:\\"] = 10;
  space_->free["E:\\"] = 10;
  space_->free["\\\\server\\share\\"] = 10;
  Expect({Item("E:\\a", 11), Item("D:\\a", 11), Item("C:\\a", 11)}, Mode::DiskSpace, Mode::DiskSpace,
         NoSpace("D:"));
  Expect({Item("C:/a", 60), Item("c:\\b", 60)}, Mode::DiskSpace, Mode::DiskSpace, NoSpace("C:"));
  Expect({Item("\\\\server\\share\\x\\a", 11)}, Mode::DiskSpace, Mode::DiskSpace,
         NoSpace("\\\\server\\share"));
}
#else
TEST_F(Saving, AsksForTheRootWhateverIsMountedBelow) {
  space_->free["/"] = 10;
  Expect({Item("/home/a.jpg", 5), Item("/media/stick/b.jpg", 6)}, Mode::DiskSpace, Mode::DiskSpace,
         NoSpace(""));
  EXPECT_EQ(space_->asked, std::vector<ioPath>{"/"});
}
#endif

TEST_F(Saving, CountsLostItemsForRoomAndFolders) {
  const auto access = std::make_shared<FakeFolderAccess>();
  const App::ServiceScope<App::IFolderAccess> scope(access);
  space_->free[kRoot] = 10;
  const DataModel lost = Item(ioPath(kRoot) / "x" / "gone.jpg", 11, true);
  Expect({lost}, Mode::DiskSpace, Mode::DiskSpace, NoSpace(kRootName));
  access->closed = {ioPath(kRoot) / "x"};
  Expect({lost}, Mode::FolderPermission, Mode::FolderPermission, NoFolder(ioPath(kRoot) / "x"));
  ExpectPassed({lost}, Mode::FilePermission);
}

TEST_F(SavingInFakeFolders, AsksEveryFolderOnceInTheOrderOfNames) {
  std::vector<DataModel> items;
  items.reserve(8);
  for (const char* name : {"b/1", "a/1", "b/2", "c/1", "a/2", "a/sub/1"}) {
    items.push_back(Item(ioPath(kRoot) / name));
  }
  ExpectPassed(items, Mode::FolderPermission);
  const ioPath root(kRoot);
  EXPECT_EQ(access_->askedToCreate,
            (std::vector<ioPath>{root / "a", root / "a/sub", root / "b", root / "c"}));
}

TEST_F(SavingInFakeFolders, NamesTheFirstClosedFolderByName) {
  const ioPath root(kRoot);
  access_->closed = {root / "b", root / "c", root / "Я"};
  Expect({Item(root / "Я" / "1"), Item(root / "c" / "1"), Item(root / "b" / "1"), Item(root / "a" / "1")},
         Mode::FolderPermission, Mode::FolderPermission, NoFolder(root / "b"));
  EXPECT_EQ(access_->askedToCreate, (std::vector<ioPath>{root / "a", root / "b"}));
  Expect({Item(root / "Я" / "1")}, Mode::FolderPermission, Mode::FolderPermission, NoFolder(root / "Я"));
}

TEST_F(SavingInFakeFolders, AsksForTheFolderOfANameAlone) {
  ExpectPassed({Item("a.jpg"), Item(ioPath())}, Mode::FolderPermission);
  EXPECT_EQ(access_->askedToCreate, std::vector<ioPath>{ioPath()}) << "that is the current one";
}

TEST_F(Saving, LooksAtRealFolders) {
  const ioPath file = tree_.Write("a.jpg", "x");
  ExpectPassed({Item(file), Item(tree_.Path("new.jpg"))}, Mode::FolderPermission);
  Expect({Item(tree_.Path("missing") / "a.jpg")}, Mode::FolderPermission, Mode::FolderPermission,
         NoFolder(tree_.Path("missing")));
  EXPECT_FALSE(tree_.Path("new.jpg").exists());
  EXPECT_FALSE(tree_.Path("missing").exists());
}

TEST_F(Saving, TakesFilesThatCanBeWritten) {
  std::vector<DataModel> items;
  items.reserve(8);
  for (const char* name : {"a.jpg", "Пейзаж.jpg", "写真.jpg", "sub/📷.jpg", "a b.jpg"}) {
    items.push_back(Item(tree_.Write(name, "12345"), 5));
  }
  space_->otherwise = 25;
  ExpectPassed(items, kAll);
  for (const DataModel& item : items) {
    EXPECT_EQ(Zenvora::Test::ReadFile(item.GetPath()), "12345");
  }
}

TEST_F(Saving, NamesTheFirstFileThatCannotBeWritten) {
  const ioPath good = tree_.Write("good.jpg", "x");
  const ioPath folder = tree_.MakeFolder("folder.jpg");
  const ioPath missing = tree_.Path("missing.jpg");
  Expect({Item(good), Item(missing), Item(folder)}, kAll, Mode::FilePermission, NoFile(missing));
  Expect({Item(good), Item(folder), Item(missing)}, kAll, Mode::FilePermission, NoFile(folder));
  EXPECT_FALSE(missing.exists()) << "it is not made";
}

TEST_F(Saving, PassesOverLostFiles) {
  const ioPath missing = tree_.Path("missing.jpg");
  ExpectPassed({Item(missing, 0, true)}, kAll);
  Expect({Item(missing, 0, true), Item(missing)}, kAll, Mode::FilePermission, NoFile(missing));
}

TEST_F(Saving, FailsForFilesThatArePathsOfNothing) {
  Expect({Item(ioPath())}, Mode::FilePermission, Mode::FilePermission, NoFile(ioPath()));
  const ioPath nul(std::string("a\0b.jpg", 7));
  EXPECT_EQ(CheckSaveAvailable({Item(nul)}, Mode::FilePermission).first, Mode::FilePermission);
}

TEST_F(Saving, FailsForReadOnlyFiles) {
  const ioPath file = tree_.Write("a.jpg", "x");
  fs::permissions(file.native(), fs::perms::owner_read, fs::perm_options::replace);
  if (Zenvora::Test::IsSuperuser()) {
    ExpectPassed({Item(file)}, Mode::FilePermission);
  } else {
    Expect({Item(file)}, Mode::FilePermission, Mode::FilePermission, NoFile(file));
  }
  fs::permissions(file.native(), fs::perms::owner_write, fs::perm_options::add);
}

TEST_F(Saving, FollowsLinks) {
  const ioPath file = tree_.Write("a.jpg", "x");
  LUMIDEX_LINK_OR_SKIP(file, tree_.Path("link.jpg"));
  LUMIDEX_LINK_OR_SKIP("nowhere.jpg", tree_.Path("dangling.jpg"));
  ExpectPassed({Item(tree_.Path("link.jpg"))}, kAll);
  Expect({Item(tree_.Path("dangling.jpg"))}, kAll, Mode::FilePermission, NoFile(tree_.Path("dangling.jpg")));
  EXPECT_FALSE(tree_.Path("nowhere.jpg").exists());
}

TEST_F(Saving, KeepsPlaceholdersInNames) {
  const ioPath missing = tree_.Path("%1 %2 %L1.jpg");
  Expect({Item(missing)}, Mode::FilePermission, Mode::FilePermission, NoFile(missing));
}

TEST_F(Saving, SpeaksTheLanguageInForce) {
  const Zenvora::Test::TextCatalogue texts(
      QStringLiteral("Zenvora::Lumidex::Utils"),
      {{QStringLiteral("There is not enough space on the disk %1"), QStringLiteral("[%1] voll")},
       {QStringLiteral("You do not have permission to edit files in this folder: %1"),
        QStringLiteral("%1: zu")},
       {QStringLiteral("You do not have permission to edit file: %1"), QStringLiteral("%1: fest")}});
  const ioPath missing = tree_.Path("missing") / "a.jpg";
  space_->otherwise = 1;
  Expect({Item(missing, 2)}, kAll, Mode::DiskSpace, "[" + missing.root_name().utf8string() + "] voll");
  Expect({Item(missing, 1)}, kAll, Mode::FolderPermission, missing.parent_path().utf8string() + ": zu");
  Expect({Item(missing)}, Mode::FilePermission, Mode::FilePermission, missing.utf8string() + ": fest");
}

TEST_F(Saving, LooksAtTenThousandFiles) {
  std::vector<DataModel> items;
  items.reserve(10001);
  for (int i = 0; i < 10000; ++i) {
    items.push_back(Item(tree_.Write(std::to_string(i / 100) + "/" + std::to_string(i) + ".jpg", ""), 1));
  }
  space_->otherwise = 10000;
  ExpectPassed(items, kAll);
  EXPECT_EQ(space_->asked.size(), 1U);
  items.push_back(Item(tree_.Path("0/missing.jpg")));
  Expect(items, kAll, Mode::FilePermission, NoFile(tree_.Path("0/missing.jpg")));
}

TEST(SavingOnTheRealDisk, FitsOrNot) {
  const TempTree tree;
  const ioPath file = tree.Write("a.jpg", "x");
  EXPECT_EQ(CheckSaveAvailable({Item(file, 1)}, kAll).first, Mode::None);
  EXPECT_EQ(CheckSaveAvailable({Item(file, kMost)}, kAll).first, Mode::DiskSpace);
}

TEST_F(Saving, FailsOnVolumesMountedForReading) {
  const Zenvora::Test::SmallDisk disk(tree_.Path(), 1 << 20);
  LUMIDEX_DISK_OR_SKIP(disk);
  const ioPath file = tree_.Write("a.jpg", "x");
  ExpectPassed({Item(file)}, kAll);
  ASSERT_TRUE(disk.MakeReadOnly());
  Expect({Item(file)}, kAll, Mode::FolderPermission, NoFolder(tree_.Path()));
  Expect({Item(file)}, Mode::FilePermission, Mode::FilePermission, NoFile(file));
}

TEST_F(Saving, WorksOnADiskThatIsFull) {
  const Zenvora::Test::SmallDisk disk(tree_.Path(), 1 << 20);
  LUMIDEX_DISK_OR_SKIP(disk);
  // Each file is there and may be written: whether there is room is the first check's question.
  const ioPath file = tree_.Write("a.jpg", std::string(1 << 20, 'x'));
  ExpectPassed({Item(file)}, Mode::FolderPermission | Mode::FilePermission);
  EXPECT_EQ(file.file_size(), 1U << 20U);
}

TEST_F(Saving, KeepsNamesThatAreNoText) {
  const ioPath name = Zenvora::Test::kStrangeName;
  ExpectPassed({Item(tree_.Write(name, "x"))}, kAll);
  const auto result = CheckSaveAvailable({Item(tree_.Path("missing") / name)}, Mode::FilePermission);
  EXPECT_EQ(result.first, Mode::FilePermission);
  EXPECT_TRUE(result.second.endsWith(name.qstring())) << result.second.toStdString();
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Saving, GoesByTheRightsOfTheUser);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Saving, NeedsPermissionAlsoWhereTheFileWouldOpen);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Saving, GoesByAccessLists);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Saving, DoesNotWaitForPipes);
LUMIDEX_LEFT_OUT_ON_WINDOWS_F(Saving, KeepsNamesOfFoldersThatAreNoText);
#else
TEST_F(Saving, GoesByTheRightsOfTheUser) {
  if (!Zenvora::Test::IsSuperuser()) {
    GTEST_SKIP() << "only the superuser can become another user";
  }
  Zenvora::Test::LetEverybodyIn(tree_.Path());
  const ioPath own = tree_.Write("own/a.jpg", "x");
  const ioPath foreign = tree_.Write("own/foreign.jpg", "x");
  const ioPath closed = tree_.Write("closed/a.jpg", "x");
  ASSERT_EQ(chmod(tree_.Path("own").native().c_str(), 0777), 0);
  ASSERT_EQ(chmod(own.native().c_str(), 0666), 0);
  ASSERT_EQ(chmod(closed.native().c_str(), 0666), 0);
  const auto failureOf = [](const std::vector<DataModel>& items, Mode mode) {
    return [items, mode](Mode expected, const std::string& text) {
      return Zenvora::Test::AskAsNobody([&] {
        const auto result = CheckSaveAvailable(items, mode);
        return result.first == expected && result.second.toStdString() == text;
      });
    };
  };
  EXPECT_TRUE(failureOf({Item(own)}, kAll)(Mode::None, ""));
  EXPECT_TRUE(failureOf({Item(own), Item(foreign)}, kAll)(Mode::FilePermission, NoFile(foreign)));
  EXPECT_TRUE(
      failureOf({Item(own), Item(closed)}, kAll)(Mode::FolderPermission, NoFolder(tree_.Path("closed"))));
  EXPECT_TRUE(failureOf({Item(closed)}, Mode::FilePermission)(Mode::None, ""));
}

TEST_F(Saving, NeedsPermissionAlsoWhereTheFileWouldOpen) {
  if (!Zenvora::Test::IsSuperuser()) {
    GTEST_SKIP() << "only the superuser can lend their rights to another user";
  }
  const ioPath file = tree_.Write("a.jpg", "x");
  ASSERT_EQ(chmod(file.native().c_str(), 0600), 0);
  // Permission is a matter of who the user is, opening one of the rights that the process has.
  const pid_t child = fork();
  if (child == 0) {
    const bool lent = setresuid(Zenvora::Test::kNobody, 0, 0) == 0 && OpensForAppending(file);
    const bool agrees = !QFileInfo(file.qstring()).permission(QFileDevice::WriteUser);
    _exit(lent && agrees &&
                  CheckSaveAvailable({Item(file)}, Mode::FilePermission).first == Mode::FilePermission
              ? 0
              : 1);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
}

TEST_F(Saving, GoesByAccessLists) {
  if (!Zenvora::Test::IsSuperuser()) {
    GTEST_SKIP() << "only the superuser can become another user";
  }
  Zenvora::Test::LetEverybodyIn(tree_.Path());
  const ioPath granted = tree_.Write("granted.jpg", "x");
  const ioPath denied = tree_.Write("denied.jpg", "x");
  if (!Zenvora::Test::AddToAccessList(granted, Zenvora::Test::kNobody, 6, 0) ||
      !Zenvora::Test::AddToAccessList(denied, Zenvora::Test::kNobody, 4, 6)) {
    GTEST_SKIP() << "this file system has no access lists";
  }
  const auto mayWrite = [](const ioPath& file) {
    return Zenvora::Test::AskAsNobody(
        [&] { return CheckSaveAvailable({Item(file)}, Mode::FilePermission).first == Mode::None; });
  };
  EXPECT_TRUE(mayWrite(granted));
  EXPECT_FALSE(mayWrite(denied));
}

TEST_F(Saving, DoesNotWaitForPipes) {
  const Zenvora::Test::Pipe pipe(tree_.Path("pipe.jpg"));
  Expect({Item(pipe.Path())}, Mode::FilePermission, Mode::FilePermission, NoFile(pipe.Path()));
  ExpectPassed({Item("/dev/null"), Item("/dev/full")}, Mode::FilePermission);
}

TEST_F(Saving, KeepsNamesOfFoldersThatAreNoText) {
  const ioPath first = tree_.Write("\xfe/a.jpg", "x");
  ExpectPassed({Item(first)}, kAll);
  // Another folder whose name looks the same to people.
  const auto result =
      CheckSaveAvailable({Item(first), Item(tree_.Path("\xff/a.jpg"))}, Mode::FolderPermission);
  EXPECT_EQ(result.first, Mode::FolderPermission);
  EXPECT_TRUE(result.second.endsWith(QStringLiteral("/\uFFFD"))) << result.second.toStdString();
}
#endif

}  // namespace
}  // namespace Zenvora::Util
