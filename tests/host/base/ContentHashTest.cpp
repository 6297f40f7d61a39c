#include <host/base/ContentHash.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Kind = ContentHash::Kind;
using Test::TempTree;

std::string Hex(const QByteArray& digest) {
  return digest.toHex().toStdString();
}

constexpr char kSha1OfAbc[] = "a9993e364706816aba3e25717850c26c9cd0d89d";
constexpr char kSha256OfAbc[] = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";

TEST(ContentHash, IsTheOneOfTheStandard) {
  const struct {
    Kind kind;
    std::vector<const char*> pieces;
    const char* digest;
  } kRows[] = {{Kind::Sha1, {}, "da39a3ee5e6b4b0d3255bfef95601890afd80709"},
               {Kind::Sha1, {"abc"}, kSha1OfAbc},
               {Kind::Sha1, {"a", "", "bc"}, kSha1OfAbc},
               {Kind::Sha256, {}, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
               {Kind::Sha256, {"ab", "c"}, kSha256OfAbc}};
  for (const auto& row : kRows) {
    ContentHash hash(row.kind);
    for (const char* const piece : row.pieces) {
      hash.Add(std::string_view(piece));
    }
    EXPECT_EQ(Hex(hash.Finish()), row.digest);
  }
}

TEST(HashFile, IsTheHashOfAllItsBytes) {
  const TempTree tree;
  std::error_code error;
  EXPECT_EQ(Hex(HashFile(tree.Write("abc", "abc"), Kind::Sha1, error)), kSha1OfAbc);
  EXPECT_FALSE(error);
  EXPECT_EQ(Hex(HashFile(tree.Path("abc"), Kind::Sha256, error)), kSha256OfAbc);
  // Of several pieces.
  const std::string large(2 * FileReader::kPiece + 5, 'x');
  ContentHash hash;
  hash.Add(large);
  EXPECT_EQ(HashFile(tree.Write("large", large), Kind::Sha256, error), hash.Finish());
  EXPECT_FALSE(error);
}

TEST(HashFile, TellsHowFarItIsAndCanBeGivenUp) {
  const TempTree tree;
  const ioPath file = tree.Write("large", std::string(3 * FileReader::kPiece, 'x'));
  std::vector<std::uint64_t> told;
  std::error_code error;
  HashFile(file, Kind::Sha1, error, [&told](std::uint64_t bytes) {
    told.push_back(bytes);
    return true;
  });
  EXPECT_FALSE(error);
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.back(), 3 * FileReader::kPiece);
  EXPECT_TRUE(HashFile(file, Kind::Sha1, error, [](std::uint64_t) { return false; }).isEmpty());
  EXPECT_EQ(error, std::errc::operation_canceled);
}

TEST(HashFile, SaysWhyThereIsNone) {
  const TempTree tree;
  std::error_code error;
  EXPECT_TRUE(HashFile(tree.Path("missing"), Kind::Sha256, error).isEmpty());
  EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST(HashFile, GivesUpWhereAFileGrowsMeanwhile) {
  const TempTree tree;
  const ioPath file = tree.Write("log", std::string(FileReader::kPiece, 'x'));
  std::error_code error;
  const QByteArray digest = HashFile(file, Kind::Sha256, error, [&](std::uint64_t bytes) {
    tree.Write("log", std::string(bytes + FileReader::kPiece, 'x'));
    return true;
  });
  EXPECT_TRUE(digest.isEmpty());
  EXPECT_EQ(error, std::errc::device_or_resource_busy);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
