#include <zenvora/strandel/JpegSegments.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::Strandel {
namespace {

using Gaps = JpegSegments::Gaps;

/// Each segment as its marker in hexadecimal digits, what it covers and its body; "!" when it is not whole.
/// What stopped the walk at the end.
std::string Walk(const std::string& bytes, Gaps gaps = Gaps::End) {
  std::string text;
  JpegSegments segments{ByteView(bytes), gaps};
  for (auto segment = segments.Next(); segment; segment = segments.Next()) {
    char one[64];
    std::snprintf(one, sizeof one, "%02x %d-%d:%d%s ", segment->marker, static_cast<int>(segment->whole.at),
                  static_cast<int>(segment->whole.End()), static_cast<int>(segment->body.size),
                  segment->isWhole ? "" : "!");
    text += one;
  }
  return text + (segments.IsAtEnd() ? "end" : "no marker");
}

std::string Bytes(const char* text, std::size_t size) {
  return {text, size};
}
template <std::size_t size>
std::string Bytes(const char (&text)[size]) {
  return Bytes(text, size - 1);
}

TEST(JpegSegments, StandOneBehindTheOther) {
  EXPECT_EQ(Walk(Bytes("\xFF\xD8\xFF\xE0\0\4ab\xFF\xDA\0\2")), "e0 2-8:2 da 8-12:0 end");
  EXPECT_EQ(Walk(Bytes("\xFF\xD8\xFF\xFF\xFF\xE1\0\3x")), "e1 2-9:1 end");
}

TEST(JpegSegments, HaveNeitherLengthNorBodyWhenTheyStandAlone) {
  EXPECT_EQ(Walk(Bytes("\xFF\xD8\xFF\x01\xFF\xD3\xFF\xD8\xFF\xD9")),
            "01 2-4:0 d3 4-6:0 d8 6-8:0 d9 8-10:0 end");
}

TEST(JpegSegments, AreNotWholeWhereTheBytesEnd) {
  EXPECT_EQ(Walk(Bytes("\xFF\xD8\xFF\xE0\0\5ab")), "e0 2-9:3! end");
  EXPECT_EQ(Walk(Bytes("\xFF\xD8\xFF\xE0\0")), "e0 2-6:0! end");
  EXPECT_EQ(Walk(Bytes("\xFF\xD8\xFF")), "end");
  EXPECT_EQ(Walk(Bytes("\xFF\xD8\xFF\xFF\xFF")), "end");
  EXPECT_EQ(Walk(""), "end");
}

TEST(JpegSegments, AreNotWholeWhenTheirLengthMakesNoSense) {
  EXPECT_EQ(Walk(Bytes("\xFF\xD8\xFF\xE0\0\1\xFF\xD9")), "e0 2-6:0! d9 6-8:0 end");
}

TEST(JpegSegments, EndWhereNoMarkerStands) {
  EXPECT_EQ(Walk(Bytes("\xFF\xD8xy\xFF\xD9")), "no marker");
}

TEST(JpegSegments, AreFoundBehindDataAndRubbish) {
  EXPECT_EQ(Walk(Bytes("\xFF\xD8xy\xFF\xDA\0\2\1\xFF\0\2\xFF\xD1\3\xFF\xFF\xD9zz"), Gaps::Skipped),
            "da 4-8:0 d9 16-18:0 end");
}

TEST(JpegSegments, AreFoundWhereverTheyStandInAFile) {
  for (const std::size_t size : {65'533U, 65'534U, 65'535U, 65'536U, 65'537U, 200'000U}) {
    std::string bytes = "\xFF\xD8" + std::string(size, 'x');
    bytes += "\xFF\xD9";
    const std::string at = std::to_string(size + 2) + '-' + std::to_string(size + 4);
    EXPECT_EQ(Walk(bytes, Gaps::Skipped), "d9 " + at + ":0 end");
  }
}

TEST(JpegFrameSize, IsEmptyForShortFrames) {
  EXPECT_EQ(JpegFrameSize(ByteView(Bytes("\x08\0\x10\1\0\3"))), QSize(256, 16));
  EXPECT_TRUE(JpegFrameSize(ByteView(Bytes("\x08\0\x10\1"))).isEmpty());
}

}  // namespace
}  // namespace Zenvora::Strandel
