#include <zenvora/strandel/IsoBoxes.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::Strandel {
namespace {

/// Each box as its type, what it covers and what it holds; "!" when it is not whole.
std::string Walk(const std::string& bytes, ByteRange part) {
  std::string text;
  IsoBoxes boxes(ByteView(bytes), part);
  for (auto box = boxes.Next(); box; box = boxes.Next()) {
    text += std::string(box->type.data(), box->type.size()) + ' ' + std::to_string(box->whole.at) + '+' +
            std::to_string(box->whole.size) + ':' + std::to_string(box->content.size) +
            (box->isWhole ? " " : "! ");
  }
  return text;
}

template <std::size_t size>
std::string Walk(const char (&text)[size]) {
  return Walk(std::string(text, size - 1), {0, size - 1});
}

TEST(IsoBoxes, StandOneBehindTheOther) {
  EXPECT_EQ(Walk("\0\0\0\x0A"
                 "ftypab\0\0\0\x08"
                 "free"),
            "ftyp 0+10:2 free 10+8:0 ");
}

TEST(IsoBoxes, HaveSizesOf64Bits) {
  EXPECT_EQ(Walk("\0\0\0\1mdat\0\0\0\0\0\0\0\x12"
                 "ab\0\0\0\x08"
                 "free"),
            "mdat 0+18:2 free 18+8:0 ");
  EXPECT_EQ(Walk("\0\0\0\1mdat\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"),
            "mdat 0+18446744073709551615:18446744073709551599! ");
}

TEST(IsoBoxes, ReachToTheEndWithoutASize) {
  EXPECT_EQ(Walk("\0\0\0\0mdatabc"), "mdat 0+11:3 ");
}

TEST(IsoBoxes, AreNotWholeBeyondTheirPart) {
  EXPECT_EQ(Walk("\0\0\0\x0F"
                 "freeab"),
            "free 0+15:7! ");
  const std::string bytes(
      "\0\0\0\x09"
      "freex\0\0\0\x08"
      "skip",
      17);
  EXPECT_EQ(Walk(bytes, {0, 8}), "free 0+9:1! ");
  EXPECT_EQ(Walk(bytes, {9, 8}), "skip 9+8:0 ");
  EXPECT_EQ(Walk(bytes, {9, 100}), "skip 9+8:0 ");
}

TEST(IsoBoxes, EndWhereNoBoxStands) {
  EXPECT_EQ(Walk("\0\0\0\x07mdat"), "");
  EXPECT_EQ(Walk("\0\0\0\1mdat\0\0\0\0"), "");
  EXPECT_EQ(Walk("\0\0\0\1mdat\0\0\0\0\0\0\0\x0F"), "");
  EXPECT_EQ(Walk("\0\0\0\x08"
                 "fre"),
            "");
  EXPECT_EQ(Walk(""), "");
}

}  // namespace
}  // namespace Zenvora::Strandel
