#include <support/TempTree.h>

#include <zenvora/strandel/ByteView.h>
#include <zenvora/strandel/PhotoSource.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::Strandel {
namespace {

using Test::TempTree;

TEST(ByteRange, EndsAtTheLargestNumberAtMost) {
  EXPECT_EQ((ByteRange{5, 7}).End(), 12U);
  EXPECT_EQ((ByteRange{UINT64_MAX, 0}).End(), UINT64_MAX);
  EXPECT_EQ((ByteRange{UINT64_MAX - 1, 5}).End(), UINT64_MAX);
}

TEST(ByteView, ReadsNumbersInBothOrders) {
  const std::string bytes("\x01\x02\x03\x04\x05\x06\x07\x08", 8);
  const ByteView view(bytes);
  EXPECT_EQ(view.Big(0, 1), 1U);
  EXPECT_EQ(view.Big(1, 2), 0x0203U);
  EXPECT_EQ(view.Little(1, 2), 0x0302U);
  EXPECT_EQ(view.Big(0, 8), 0x0102030405060708U);
  EXPECT_EQ(view.Little(0, 8), 0x0807060504030201U);
}

TEST(ByteView, HasNoNumberThatIsNotAllThere) {
  const std::string bytes(8, 'x');
  const ByteView view(bytes);
  for (const std::uint64_t at : {std::uint64_t{7}, std::uint64_t{8}, std::uint64_t{9}, UINT64_MAX}) {
    EXPECT_FALSE(view.Big(at, 2)) << at;
    EXPECT_FALSE(view.Little(at, 2)) << at;
  }
  EXPECT_FALSE(ByteView().Big(0, 1));
}

TEST(ByteView, IsLeftByNoPart) {
  const std::string bytes = "abcdef";
  const ByteView view(bytes);
  EXPECT_EQ(view.Part({2, 3}).Text(), "cde");
  EXPECT_EQ(view.Part({4, 3}).Text(), "ef");
  EXPECT_EQ(view.Part({4, UINT64_MAX}).Text(), "ef");
  EXPECT_EQ(view.Part({6, 1}).Text(), "");
  EXPECT_EQ(view.Part({UINT64_MAX, UINT64_MAX}).Text(), "");
  EXPECT_EQ(view.Part({1, 2}).Part({1, 5}).Text(), "c");
}

TEST(PhotoSource, GivesTheBytesOfAFileByTheirPlace) {
  const TempTree tree;
  std::string content;
  for (int i = 0; i < 50'000; ++i) {
    content += std::to_string(i) + ' ';
  }
  PhotoSource source;
  std::string cause;
  ASSERT_TRUE(source.Open(tree.Write("numbers", content), cause)) << cause;
  const ByteSource bytes(source);
  ASSERT_EQ(bytes.Size(), content.size());
  struct Case {
    std::uint64_t at;
    std::size_t count;
  };
  for (const Case& c :
       {Case{0, 10}, Case{65'000, 2000}, Case{10, 65'536}, Case{3, 200'000}, Case{content.size() - 5, 10},
        Case{content.size(), 1}, Case{UINT64_MAX, 1}, Case{7, 0}}) {
    const std::string expected =
        c.at < content.size() ? content.substr(static_cast<std::size_t>(c.at), c.count) : std::string();
    EXPECT_EQ(bytes.At(c.at, c.count).Text(), expected) << c.at << ' ' << c.count;
  }
}

}  // namespace
}  // namespace Zenvora::Strandel
