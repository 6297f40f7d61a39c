#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/SmallDisk.h>
#include <support/TempTree.h>

#include <zenvora/core/ioPath.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora {
namespace {

namespace fs = std::filesystem;
using Zenvora::Test::IsSuperuser;
using Zenvora::Test::Pipe;
using Zenvora::Test::ReadFile;
using Zenvora::Test::TempTree;
using namespace std::string_literals;  // NOLINT(google-build-using-namespace): names with NUL need their
                                       // length

bool IsThere(const ioPath& path) {
  return fs::symlink_status(path.native()).type() != fs::file_type::not_found;
}

#ifndef _WIN32
/// A folder of a file system other than the one at `place`, or empty when there is none to write to.
ioPath FolderElsewhere(const ioPath& place) {
  struct stat here {};
  struct stat there {};
  ioPath candidate("/dev/shm");
  if (::stat(place.native().c_str(), &here) != 0 || ::stat(candidate.native().c_str(), &there) != 0 ||
      here.st_dev == there.st_dev) {
    return {};
  }
  return candidate;
}
#endif

struct Named {
  const char* description;
  std::string name;
};

class AnyFileName : public testing::TestWithParam<Named> {};

TEST_P(AnyFileName, IsMeasuredRenamedAndRemoved) {
  const TempTree tree;
  const ioPath file = tree.Write(ioPath(GetParam().name), "12345");
  EXPECT_TRUE(file.exists());
  EXPECT_EQ(file.file_size(), 5U);

  const ioPath moved = tree.MakeFolder("to") / file.filename();
  EXPECT_TRUE(file.rename(moved));
  EXPECT_FALSE(file.exists());
  EXPECT_EQ(ReadFile(moved), "12345");

  EXPECT_TRUE(moved.remove());
  EXPECT_FALSE(moved.exists());
}

std::vector<Named> FileNames() {
  std::vector<Named> names = {{"plain", "a.jpg"},
                              {"dash", "-rf"},
                              {"utf8", "gr\xC3\xBC\xC3\x9F \xF0\x9F\x93\xB7.jpg"},
                              {"decomposed", "e\xCC\x81"}};
#ifndef _WIN32
  // What Windows would read as other names.
  names.push_back({"blank", " "});
  names.push_back({"dots", "..."});
  names.push_back({"lineFeed", "a\nb"});
#endif
  names.push_back({"notUtf8", "caf\xE9\xFF.jpg"});
  names.push_back({"backslash", "a\\b"});
  names.push_back({"longest", std::string(255, 'n')});
  return names;
}

INSTANTIATE_TEST_SUITE_P(Table, AnyFileName, testing::ValuesIn(FileNames()),
                         [](const auto& row) { return std::string(row.param.description); });

TEST(NamesOfNothing, FailEverywhereAndTouchNothing) {
  const TempTree tree;
  const ioPath file = tree.Write("file", "keep");
  // The system would read the second as "file".
  for (const ioPath& nothing :
       {ioPath(), ioPath(file.utf8string() + "\0"s), ioPath(file.utf8string() + "\0.jpg"s),
        tree.Path(std::string(256, 'n')), tree.Path("missing"), tree.Path("file/below")}) {
    EXPECT_FALSE(nothing.exists()) << nothing;
    EXPECT_EQ(nothing.file_size(), 0U) << nothing;
    EXPECT_FALSE(nothing.remove()) << nothing;
    EXPECT_FALSE(nothing.rename(tree.Path("target"))) << nothing;
  }
  EXPECT_FALSE(tree.Path("target").exists());
  EXPECT_FALSE(file.rename(ioPath()));
  EXPECT_FALSE(file.rename(ioPath(tree.Path("target").utf8string() + "\0"s)));
  EXPECT_FALSE(file.rename(tree.Path(std::string(256, 'n'))));
  EXPECT_EQ(ReadFile(file), "keep");
}

TEST(Rename, ReplacesAnExistingFile) {
  const TempTree tree;
  const ioPath from = tree.Write("from", "new");
  const ioPath to = tree.Write("to", "old");
  EXPECT_TRUE(from.rename(to));
  EXPECT_FALSE(from.exists());
  EXPECT_EQ(ReadFile(to), "new");
}

TEST(Rename, MovesAFolderWithItsContent) {
  const TempTree tree;
  tree.Write("from/sub/file", "x");
  EXPECT_TRUE(tree.Path("from").rename(tree.Path("to")));
  EXPECT_EQ(ReadFile(tree.Path("to/sub/file")), "x");
  EXPECT_FALSE(tree.Path("from").exists());
}

TEST(Rename, OfAFileOntoItselfChangesNothing) {
  const TempTree tree;
  const ioPath file = tree.Write("file", "x");
  EXPECT_TRUE(file.rename(file));
  EXPECT_EQ(ReadFile(file), "x");
}

TEST(Rename, MovesALinkAndNotItsTarget) {
  const TempTree tree;
  const ioPath target = tree.Write("target", "x");
  LUMIDEX_LINK_OR_SKIP(target, tree.Path("link"));
  EXPECT_TRUE(tree.Path("link").rename(tree.Path("moved")));
  EXPECT_TRUE(fs::is_symlink(tree.Path("moved").native()));
  EXPECT_EQ(ReadFile(target), "x");
}

TEST(Rename, FailsWithoutATargetFolder) {
  const TempTree tree;
  const ioPath file = tree.Write("file", "x");
  EXPECT_FALSE(file.rename(tree.Path("missing/file")));
  EXPECT_EQ(ReadFile(file), "x");
}

TEST(Rename, FailsForAFileOntoAFolder) {
  const TempTree tree;
  const ioPath file = tree.Write("file", "x");
  const ioPath folder = tree.MakeFolder("folder");
  EXPECT_FALSE(file.rename(folder));
  EXPECT_EQ(ReadFile(file), "x");
  EXPECT_TRUE(fs::is_directory(folder.native()));
}

TEST(Rename, FailsForAFolderOntoAFile) {
  const TempTree tree;
  const ioPath file = tree.Write("file", "x");
  const ioPath folder = tree.MakeFolder("folder");
  EXPECT_FALSE(folder.rename(file));
  EXPECT_EQ(ReadFile(file), "x");
  EXPECT_TRUE(fs::is_directory(folder.native()));
}

TEST(Rename, FailsForAFolderOntoOneThatHoldsSomething) {
  const TempTree tree;
  tree.Write("from/a", "a");
  tree.Write("to/b", "b");
  EXPECT_FALSE(tree.Path("from").rename(tree.Path("to")));
  EXPECT_EQ(ReadFile(tree.Path("from/a")), "a");
  EXPECT_EQ(ReadFile(tree.Path("to/b")), "b");
}

TEST(Rename, FailsForAFolderIntoItself) {
  const TempTree tree;
  tree.Write("from/a", "a");
  EXPECT_FALSE(tree.Path("from").rename(tree.Path("from/below")));
  EXPECT_EQ(ReadFile(tree.Path("from/a")), "a");
}

TEST(Rename, FailsAcrossFileSystemsAndKeepsTheFile) {
  const TempTree tree;
#ifdef _WIN32
  const Zenvora::Test::SmallDisk disk(tree.MakeFolder("disk"), 1 << 20);
  LUMIDEX_DISK_OR_SKIP(disk);
  const ioPath elsewhere = tree.Path("disk");
#else
  const ioPath elsewhere = FolderElsewhere(tree.Path());
#endif
  if (elsewhere.empty()) {
    GTEST_SKIP() << "there is only one file system to write to";
  }
  const ioPath file = tree.Write("file", "x");
  const ioPath target = elsewhere / (tree.Path().filename().utf8string() + "-rename");
  EXPECT_FALSE(file.rename(target));
  EXPECT_EQ(ReadFile(file), "x");
  EXPECT_FALSE(target.exists());
}

TEST(Remove, DeletesFilesLinksAndEmptyFolders) {
  const TempTree tree;
  const ioPath file = tree.Write("file", "x");
  EXPECT_TRUE(file.remove());
  EXPECT_FALSE(IsThere(file));
  EXPECT_FALSE(file.remove());

  const ioPath folder = tree.MakeFolder("folder");
  EXPECT_TRUE(folder.remove());
  EXPECT_FALSE(IsThere(folder));

  const ioPath dangling = tree.Path("dangling");
  LUMIDEX_LINK_OR_SKIP("nowhere", dangling);
  EXPECT_TRUE(dangling.remove());
  EXPECT_FALSE(IsThere(dangling));
}

TEST(Remove, DeletesALinkAndNotItsTarget) {
  const TempTree tree;
  const ioPath kept = tree.Write("folder/kept", "x");
  const ioPath link = tree.Path("link");
  LUMIDEX_LINK_OR_SKIP(tree.Path("folder"), link);
  EXPECT_TRUE(link.remove());
  EXPECT_FALSE(IsThere(link));
  EXPECT_EQ(ReadFile(kept), "x");
}

TEST(Remove, RefusesAFolderThatHoldsSomething) {
  const TempTree tree;
  const ioPath kept = tree.Write("folder/kept", "x");
  EXPECT_FALSE(tree.Path("folder").remove());
  EXPECT_EQ(ReadFile(kept), "x");
}

TEST(FileSize, CountsBytesAndFollowsLinks) {
  const TempTree tree;
  EXPECT_EQ(tree.Write("empty", "").file_size(), 0U);
  const ioPath file = tree.Write("file", "a\r\n\0b"s);
  EXPECT_EQ(file.file_size(), 5U);
  LUMIDEX_LINK_OR_SKIP(file, tree.Path("link"));
  EXPECT_EQ(tree.Path("link").file_size(), 5U);
}

TEST(FileSize, CountsBeyondFourGigabytes) {
  const TempTree tree;
  const ioPath file = tree.Write("sparse", "");
  constexpr std::uint64_t kSize = 5ULL * 1024 * 1024 * 1024 + 7;
  std::error_code error;
  fs::resize_file(file.native(), kSize, error);
  if (error) {
    GTEST_SKIP() << "the file system takes no sparse file of 5 GiB: " << error.message();
  }
  EXPECT_EQ(file.file_size(), kSize);
}

TEST(FileSize, IsZeroForWhateverIsNoFile) {
  const TempTree tree;
  EXPECT_EQ(tree.MakeFolder("folder").file_size(), 0U);
  LUMIDEX_LINK_OR_SKIP("nowhere", tree.Path("dangling"));
  EXPECT_EQ(tree.Path("dangling").file_size(), 0U);
  LUMIDEX_LINK_OR_SKIP("loop", tree.Path("loop"));
  EXPECT_EQ(tree.Path("loop").file_size(), 0U);
}

TEST(FileSize, IsZeroForPipes) {
  const TempTree tree;
  EXPECT_EQ(Pipe(tree.Path("pipe")).Path().file_size(), 0U);
}

TEST(Exists, HoldsForFilesFoldersAndWhatLinksLeadTo) {
  const TempTree tree;
  const ioPath file = tree.Write("file", "");
  EXPECT_TRUE(file.exists());
  EXPECT_TRUE(tree.Path().exists());
  EXPECT_TRUE((tree.Path() / "").exists());
  EXPECT_FALSE((file / "").exists());
  LUMIDEX_LINK_OR_SKIP(file, tree.Path("link"));
  EXPECT_TRUE(tree.Path("link").exists());
}

TEST(Exists, DoesNotHoldForLinksToNothing) {
  const TempTree tree;
  LUMIDEX_LINK_OR_SKIP("nowhere", tree.Path("dangling"));
  EXPECT_FALSE(tree.Path("dangling").exists());
  LUMIDEX_LINK_OR_SKIP("loop", tree.Path("loop"));
  EXPECT_FALSE(tree.Path("loop").exists());
}

TEST(Exists, DoesNotHoldBehindAClosedFolder) {
#ifdef _WIN32
  GTEST_SKIP() << Zenvora::Test::WhyLeftOut();
#endif
  if (IsSuperuser()) {
    GTEST_SKIP() << "permissions do not stop the superuser";
  }
  const TempTree tree;
  const ioPath file = tree.Write("closed/file", "x");
  fs::permissions(tree.Path("closed").native(), fs::perms::none);
  EXPECT_FALSE(file.exists());
  EXPECT_EQ(file.file_size(), 0U);
  EXPECT_FALSE(file.remove());
}

}  // namespace
}  // namespace Zenvora
