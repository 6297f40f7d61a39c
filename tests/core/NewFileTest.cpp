#include <support/SharingDisk.h>
#include <support/TempTree.h>
#include <support/WriteLimit.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#endif

namespace Zenvora {
namespace {

using Test::ReadFile;
using Test::TempTree;
#ifndef _WIN32
using Test::IsSuperuser;
using Test::SharingDisk;
using Test::WriteLimit;
#endif

std::error_code Put(NewFile& file, const std::string& text) {
  return file.Write(text.data(), text.size());
}

TEST(NewFile, ReadsZerosWhereItSkipped) {
  const TempTree tree;
  const ioPath path = tree.Path("a");
  NewFile file;
  ASSERT_FALSE(file.Create(path));
  EXPECT_FALSE(file.Skip(3));
  EXPECT_FALSE(Put(file, "x"));
  EXPECT_FALSE(file.Skip(2));
  EXPECT_FALSE(file.SetModified(1'600'000'000'000'000'000));
  EXPECT_FALSE(file.Close(false));
  file.Release();
  EXPECT_EQ(ReadFile(path), std::string("\0\0\0x\0\0", 6));
  EXPECT_EQ(QueryFile(path).modifiedNs, 1'600'000'000'000'000'000);
}

TEST(NewFile, StaysWhenReleased) {
  const TempTree tree;
  const ioPath path = tree.Path("a");
  {
    NewFile file;
    ASSERT_FALSE(file.Create(path));
    EXPECT_FALSE(Put(file, "one\n"));
    EXPECT_FALSE(Put(file, "two\n"));
    EXPECT_FALSE(file.Close(true));
    file.Release();
  }
  EXPECT_EQ(ReadFile(path), "one\ntwo\n");
  SyncFolderOf(path);
}

TEST(NewFile, IsGoneUnlessReleased) {
  const TempTree tree;
  for (const bool close : {false, true}) {
    {
      NewFile file;
      ASSERT_FALSE(file.Create(tree.Path("a")));
      EXPECT_FALSE(Put(file, "text"));
      if (close) {
        EXPECT_FALSE(file.Close(false));
      }
      EXPECT_TRUE(tree.Path("a").exists());
    }
    EXPECT_FALSE(tree.Path("a").exists());
  }
}

TEST(NewFile, NeverTakesTheNameOfAnother) {
  const TempTree tree;
  const ioPath path = tree.Write("a", "precious");
  {
    NewFile file;
    EXPECT_EQ(file.Create(path), std::errc::file_exists);
  }
  EXPECT_EQ(ReadFile(path), "precious");
  NewFile folder;
  EXPECT_TRUE(folder.Create(tree.MakeFolder("b")));
  EXPECT_TRUE(tree.Path("b").exists());
}

TEST(NewFile, DoesNotFollowLinksThatLeadNowhere) {
  const TempTree tree;
  LUMIDEX_LINK_OR_SKIP(tree.Path("nowhere"), tree.Path("link"));
  {
    NewFile file;
    EXPECT_EQ(file.Create(tree.Path("link")), std::errc::file_exists);
  }
  EXPECT_FALSE(tree.Path("nowhere").exists());
  EXPECT_TRUE(std::filesystem::is_symlink(tree.Path("link").native()));
}

TEST(NewFile, NeedsAFolderAndAName) {
  const TempTree tree;
  for (const ioPath& path : {tree.Path("missing/a"), ioPath(), ioPath(std::string("a\0b", 3))}) {
    NewFile file;
    EXPECT_TRUE(file.Create(path)) << path;
  }
}

TEST(NewFile, TakesAnyTime) {
  const TempTree tree;
  constexpr std::int64_t kStep = 100;
  for (const std::int64_t ns : {std::int64_t{0}, std::int64_t{1'234'567'890'123'456'700}, -5 * kStep,
                                -std::int64_t{86'400'000'000'000}}) {
    NewFile file;
    ASSERT_FALSE(file.Create(tree.Path("a")));
    EXPECT_FALSE(Put(file, "text"));
    EXPECT_FALSE(file.SetModified(ns));
    EXPECT_FALSE(file.Close(true));
    EXPECT_EQ(QueryFile(tree.Path("a")).modifiedNs, ns);
  }
}

#ifndef _WIN32

TEST(NewFile, TakesTheRightsOfAnother) {
  const TempTree tree;
  for (const mode_t mode : {mode_t{0600}, mode_t{0644}, mode_t{0440}, mode_t{0777}}) {
    const ioPath model = tree.Path("model");
    model.remove();
    tree.Write("model", "x");
    ASSERT_EQ(chmod(model.native().c_str(), mode), 0);
    NewFile file;
    ASSERT_FALSE(file.Create(tree.Path("a")));
    file.CopyRightsOf(model);
    struct stat facts = {};
    ASSERT_EQ(stat(tree.Path("a").native().c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 07777U, mode);
  }
}

TEST(NewFile, TakesTheOwnerOfAnotherWhereAllowed) {
  if (!IsSuperuser()) {
    GTEST_SKIP() << "only the superuser may give files away";
  }
  const TempTree tree;
  const ioPath model = tree.Write("model", "x");
  ASSERT_EQ(chown(model.native().c_str(), 1234, 2345), 0);
  NewFile file;
  ASSERT_FALSE(file.Create(tree.Path("a")));
  file.CopyRightsOf(model);
  struct stat facts = {};
  ASSERT_EQ(stat(tree.Path("a").native().c_str(), &facts), 0);
  EXPECT_EQ(facts.st_uid, 1234U);
  EXPECT_EQ(facts.st_gid, 2345U);
}

TEST(NewFile, TakesWhatPeopleNotedOfAnother) {
  const TempTree tree;
  const ioPath model = tree.Write("model", "x");
  if (setxattr(model.native().c_str(), "user.tags", "holiday", 7, 0) != 0 ||
      setxattr(model.native().c_str(), "user.empty", "", 0, 0) != 0) {
    GTEST_SKIP() << "this file system keeps no further attributes";
  }
  NewFile file;
  ASSERT_FALSE(file.Create(tree.Path("a")));
  file.CopyRightsOf(model);
  std::string value(20, '\0');
  const ioPath made = tree.Path("a");
  EXPECT_EQ(getxattr(made.native().c_str(), "user.tags", value.data(), value.size()), 7);
  EXPECT_EQ(value.substr(0, 7), "holiday");
  EXPECT_EQ(getxattr(made.native().c_str(), "user.empty", value.data(), value.size()), 0);
}

TEST(NewFile, SharesTheBlocksOfAnotherWhereItCan) {
  const TempTree tree;
  const ioPath folder = tree.MakeFolder("sharing");
  const SharingDisk disk(folder);
  if (!disk.Missing().empty()) {
    GTEST_SKIP() << disk.Missing();
  }
  const std::string content(100'000, 'x');
  const ioPath model = tree.Write("sharing/model", content);
  {
    NewFile file;
    ASSERT_FALSE(file.Create(folder / "a"));
    ASSERT_TRUE(file.ShareBlocksOf(model));
    EXPECT_FALSE(file.Close(true));
    file.Release();
  }
  EXPECT_EQ(ReadFile(folder / "a"), content);
  // They are two files all the same.
  tree.Write("sharing/a", "y");
  EXPECT_EQ(ReadFile(model), content);
}

TEST(NewFile, SharesNothingAcrossVolumesNorWithWhatIsNotThere) {
  const TempTree tree;
  NewFile file;
  ASSERT_FALSE(file.Create(tree.Path("a")));
  EXPECT_FALSE(file.ShareBlocksOf(tree.Path("gone")));
  const ioPath elsewhere("/proc/self/maps");
  EXPECT_FALSE(file.ShareBlocksOf(elsewhere));
  EXPECT_FALSE(Put(file, "text"));
  EXPECT_FALSE(file.Close(true));
  EXPECT_EQ(ReadFile(tree.Path("a")), "text");
}

TEST(NewFile, TellsAFullDiskAndLeavesNothing) {
  const TempTree tree;
  const WriteLimit limit(1000);
  for (const std::size_t size : {std::size_t{1001}, std::size_t{100'000}}) {
    NewFile file;
    ASSERT_FALSE(file.Create(tree.Path("a")));
    const std::error_code wrote = Put(file, std::string(size, 'x'));
    const std::error_code closed = file.Close(true);
    EXPECT_TRUE(wrote || closed) << size;
  }
  EXPECT_FALSE(tree.Path("a").exists());
}

#endif

}  // namespace
}  // namespace Zenvora
