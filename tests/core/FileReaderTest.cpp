#include <support/LeftOut.h>
#include <support/Obstacles.h>
#include <support/TempTree.h>

#include <zenvora/core/FileReader.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora {
namespace {

using Test::Pipe;
using Test::TempTree;
using From = FileReader::From;

constexpr std::size_t kPiece = FileReader::kPiece;

std::string ContentOf(FileReader& reader) {
  std::string content;
  for (std::string_view piece;;) {
    EXPECT_FALSE(reader.Next(piece));
    EXPECT_LE(piece.size(), kPiece);
    if (piece.empty()) {
      return content;
    }
    content += piece;
  }
}

class FileReaderSizes : public testing::TestWithParam<std::size_t> {};

TEST_P(FileReaderSizes, ReadsAllOfTheFileWhereverItComesFrom) {
  const TempTree tree;
  std::string content(GetParam(), 'x');
  for (std::size_t at = 0; at < content.size(); at += 1000) {
    content[at] = static_cast<char>('a' + at / 1000 % 26);
  }
  const ioPath file = tree.Write("a", content);
  for (const From from : {From::Anywhere, From::Device}) {
    FileReader reader;
    ASSERT_FALSE(reader.Open(file, from));
    EXPECT_TRUE(ContentOf(reader) == content);
  }
}

INSTANTIATE_TEST_SUITE_P(AroundThePiece, FileReaderSizes,
                         testing::Values(0, 1, 511, 4096, kPiece - 1, kPiece, kPiece + 1, 3 * kPiece + 17));

TEST(FileReader, RefusesWhatIsNoFile) {
  const TempTree tree;
  FileReader reader;
  EXPECT_TRUE(reader.Open(tree.Path("missing")));
  EXPECT_TRUE(reader.Open(tree.Path()));
  EXPECT_TRUE(reader.Open(ioPath()));
  EXPECT_TRUE(reader.Open(ioPath(std::string("a\0b", 3))));
}

TEST(FileReader, NeverWaitsForAPipe) {
  const TempTree tree;
  const Pipe pipe(tree.Path("pipe"));
  FileReader reader;
  EXPECT_TRUE(reader.Open(pipe.Path()));
}

#ifndef _WIN32
TEST(FileReader, NeverOpensADevice) {
  FileReader reader;
  EXPECT_EQ(reader.Open("/dev/zero"), std::errc::not_supported);
}
#endif

TEST(FileReader, TellsWhatBecameOfTheFileThatIsOpen) {
  const TempTree tree;
  const ioPath file = tree.Write("a", "one");
  FileReader reader;
  ASSERT_FALSE(reader.Open(file));
  const FileState before = reader.State();
  EXPECT_EQ(before.size, 3U);
  EXPECT_EQ(before.identity, QueryFile(file).identity);
  EXPECT_EQ(before.modifiedNs, QueryFile(file).modifiedNs);
  std::ofstream(file.native(), std::ios::binary | std::ios::app) << " two";
  EXPECT_EQ(reader.State().size, 7U);
}

TEST(FileReader, KeepsTheFileThatWasOpened) {
  const TempTree tree;
  const ioPath file = tree.Write("a", "old");
  FileReader reader;
  ASSERT_FALSE(reader.Open(file));
  ASSERT_TRUE(file.rename(tree.Path("b")));
  tree.Write("a", "new");
  EXPECT_EQ(ContentOf(reader), "old");
}

TEST(FileReader, FollowsLinksToFiles) {
  const TempTree tree;
  tree.Write("a", "content");
  LUMIDEX_LINK_OR_SKIP(tree.Path("a"), tree.Path("link"));
  FileReader reader;
  ASSERT_FALSE(reader.Open(tree.Path("link")));
  EXPECT_EQ(ContentOf(reader), "content");
}

#ifdef _WIN32
LUMIDEX_LEFT_OUT_ON_WINDOWS(FileReader, ReportsErrorsOfTheDevice);
#else
TEST(FileReader, ReportsErrorsOfTheDevice) {
  FileReader reader;
  // Nothing is mapped at the beginning of a process's memory: reading it is an error of input.
  ASSERT_FALSE(reader.Open("/proc/self/mem"));
  std::string_view piece;
  EXPECT_EQ(reader.Next(piece), std::errc::io_error);
}
#endif

TEST(SyncFile, SaysWhenThereIsNothingToWaitFor) {
  const TempTree tree;
  EXPECT_FALSE(SyncFile(tree.Write("a", "content")));
  EXPECT_TRUE(SyncFile(tree.Path("missing")));
}

}  // namespace
}  // namespace Zenvora
