#include <support/Obstacles.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora {
namespace {

using Kind = FileState::Kind;
using Test::Closed;
using Test::Pipe;
using Test::TempTree;

TEST(QueryFile, TellsFilesFoldersAndWhatIsMissing) {
  const TempTree tree;
  const FileState file = QueryFile(tree.Write("a.jpg", "12345"));
  EXPECT_EQ(file.kind, Kind::File);
  EXPECT_EQ(file.size, 5U);
  EXPECT_GT(file.modifiedNs, std::int64_t{1'600'000'000} * 1'000'000'000);
  EXPECT_FALSE(file.error);
  EXPECT_EQ(QueryFile(tree.Path()).kind, Kind::Folder);
  for (const ioPath& path : {tree.Path("missing"), tree.Path("missing/a"), tree.Path("a.jpg/b"), ioPath(),
                             ioPath(std::string("a\0b", 3))}) {
    EXPECT_EQ(QueryFile(path).kind, Kind::Missing) << path;
    EXPECT_TRUE(QueryFile(path).error) << path;
  }
}

TEST(QueryFile, TellsAPipeFromAFile) {
  const TempTree tree;
  const Pipe pipe(tree.Path("pipe"));
  EXPECT_EQ(QueryFile(pipe.Path()).kind, Kind::Other);
  EXPECT_TRUE(pipe.Path().exists());
}

TEST(QueryFile, TellsOfFilesThatCannotBeOpened) {
  const TempTree tree;
  const ioPath file = tree.Write("file", "12345");
  const Closed closed(file);
  EXPECT_EQ(QueryFile(file).kind, Kind::File);
  EXPECT_EQ(QueryFile(file).size, 5U);
}

TEST(QueryFile, TellsALoopOfLinksFromAMissingFile) {
  const TempTree tree;
  LUMIDEX_LINK_OR_SKIP("loop", tree.Path("loop"));
  EXPECT_EQ(QueryFile(tree.Path("loop")).kind, Kind::Loop);
  LUMIDEX_LINK_OR_SKIP("nowhere", tree.Path("dangling"));
  EXPECT_EQ(QueryFile(tree.Path("dangling")).kind, Kind::Missing);
}

TEST(QueryFile, WorksForNamesOfAnyLength) {
  const TempTree tree;
  ioPath deep = tree.Path();
  for (int i = 0; i < 12; ++i) {
    deep /= std::string(60, 'd');
  }
  ASSERT_FALSE(MakeFolders(deep)) << deep;
  EXPECT_FALSE(MakeFolders(deep)) << "again";
  EXPECT_EQ(QueryFile(deep).kind, Kind::Folder);
  EXPECT_TRUE(deep.exists());
  EXPECT_TRUE(deep.remove());
  EXPECT_EQ(QueryFile(deep).kind, Kind::Missing);
}

TEST(MakeFolders, FailsWhereAFileIsInTheWay) {
  const TempTree tree;
  const ioPath file = tree.Write("file", "");
  EXPECT_TRUE(MakeFolders(file));
  EXPECT_TRUE(MakeFolders(file / "sub"));
  EXPECT_EQ(QueryFile(file).kind, Kind::File);
}

TEST(IsSameFile, HoldsForNamesOfOneFile) {
  const TempTree tree;
  const ioPath file = tree.Write("a", "");
  EXPECT_TRUE(IsSameFile(file, tree.Path() / "." / "a"));
  EXPECT_FALSE(IsSameFile(file, tree.Write("b", "")));
  EXPECT_FALSE(IsSameFile(tree.Path("missing"), tree.Path("missing")));
}

TEST(Canonical, NamesAFileWithoutDetours) {
  const TempTree tree;
  const ioPath file = tree.Write("sub/a", "");
  std::error_code error;
  EXPECT_EQ(ioPath(tree.Path("sub") / ".." / "sub" / "a").canonical(error), file);
  EXPECT_FALSE(error);
  EXPECT_TRUE(tree.Path("missing").canonical(error).empty());
  EXPECT_TRUE(error);
}

}  // namespace
}  // namespace Zenvora
