#include <host/pixels/PictureEnd.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

/// Text with NULs in it.
template <std::size_t kSize>
std::string Bytes(const char (&text)[kSize]) {
  return std::string(text, kSize - 1);
}

class PictureEndTest : public ::testing::Test {
 protected:
  bool EndsTooSoon(const std::string& content) const {
    return Host::EndsTooSoon(tree_.Write("picture", content));
  }

  const Zenvora::Test::TempTree tree_;
};

const std::string kThumbnail = Bytes(
    "\xFF\xE1\0\x06"
    "Ex\xFF\xD9");
const std::string kJpeg = Bytes("\xFF\xD8") + kThumbnail +
                          Bytes(
                              "\xFF\xDA\0\x03\1ab\xFF\0c\xFF\xD0"
                              "d\xFF\xFF\xC4\0\x04xx\xFF\xDA\0\x02z\xFF\xD9");

TEST_F(PictureEndTest, IsThereInWholePictures) {
  EXPECT_FALSE(EndsTooSoon(kJpeg));
  EXPECT_FALSE(EndsTooSoon(kJpeg + std::string(1000, '\0')));
  EXPECT_FALSE(EndsTooSoon(kJpeg + "a film, or what the camera likes to tell"));
  EXPECT_FALSE(EndsTooSoon(Bytes("\x89PNG\r\n\x1A\n\0\0\0\1IDATx1234\0\0\0\0IEND1234")));
  EXPECT_FALSE(EndsTooSoon(Bytes("RIFF\x07\0\0\0WEBPabc")));
  EXPECT_FALSE(EndsTooSoon(Bytes("RIFF\x08\0\0\0WEBPabc")));
  EXPECT_FALSE(
      EndsTooSoon(Bytes("\0\0\0\x0C"
                        "ftypheic\0\0\0\x0Amdat12")));
  EXPECT_FALSE(
      EndsTooSoon(Bytes("\0\0\0\x0C"
                        "ftypheic\0\0\0\0mdat12")));
  EXPECT_FALSE(
      EndsTooSoon(Bytes("\0\0\0\x0C"
                        "ftypheic\0\0\0\1mdat\0\0\0\0\0\0\0\x12"
                        "12")));
  EXPECT_FALSE(EndsTooSoon("nothing that is known here"));
  EXPECT_FALSE(EndsTooSoon(""));
}

TEST_F(PictureEndTest, IsMissedInJpegFilesWhereverTheyBreakOff) {
  for (std::size_t size = 2; size < kJpeg.size(); ++size) {
    // Right behind a thumbnail it would be passed over.
    if (size != 2 + kThumbnail.size()) {
      EXPECT_TRUE(EndsTooSoon(kJpeg.substr(0, size))) << size;
      EXPECT_TRUE(EndsTooSoon(kJpeg.substr(0, size) + std::string(10, '\0'))) << size;
    }
  }
}

TEST_F(PictureEndTest, IsMissedInOtherFormats) {
  EXPECT_TRUE(EndsTooSoon(Bytes("\x89PNG\r\n\x1A\n\0\0\0\1IDATx1234")));
  EXPECT_TRUE(EndsTooSoon(Bytes("\x89PNG\r\n\x1A\n\0\0\0\1IDATx1234\0\0\0\0IEND12")));
  EXPECT_TRUE(EndsTooSoon(Bytes("RIFF\x09\0\0\0WEBPabc")));
  EXPECT_TRUE(
      EndsTooSoon(Bytes("\0\0\0\x0C"
                        "ftypheic\0\0\0\x0Amdat1")));
  EXPECT_TRUE(
      EndsTooSoon(Bytes("\0\0\0\x0C"
                        "ftypheic\0\0\0\1mdat\0\0\0\1\0\0\0\0"
                        "12")));
}

/// Two strips behind one directory, which a second one leads to.
std::string Tiff(bool bigEndian, char lastLength) {
  const std::string big = Bytes(
                              "MM\0*\0\0\0\x08"
                              "\0\1\x01\x4A\0\4\0\0\0\1\0\0\0\x1A\0\0\0\0"
                              "\0\2\x01\x11\0\3\0\0\0\2\0\x40\0\x42\x01\x17\0\4\0\0\0\2\0\0\0\x38\0\0\0\0"
                              "\0\0\0\2\0\0\0") +
                          lastLength + "abcde";
  if (bigEndian) {
    return big;
  }
  return Bytes(
             "II*\0\x08\0\0\0"
             "\1\0\x4A\x01\4\0\1\0\0\0\x1A\0\0\0\0\0\0\0"
             "\2\0\x11\x01\3\0\2\0\0\0\x40\0\x42\0\x17\x01\4\0\2\0\0\0\x38\0\0\0\0\0\0\0"
             "\2\0\0\0") +
         lastLength + Bytes("\0\0\0") + "abcde";
}

TEST_F(PictureEndTest, IsThatOfTheLastStripOfTiffFiles) {
  for (const bool bigEndian : {true, false}) {
    EXPECT_FALSE(EndsTooSoon(Tiff(bigEndian, 3))) << bigEndian;
    EXPECT_TRUE(EndsTooSoon(Tiff(bigEndian, 4))) << bigEndian;
    EXPECT_TRUE(EndsTooSoon(Tiff(bigEndian, 3).substr(0, 40))) << bigEndian;
  }
}

TEST_F(PictureEndTest, IsLookedForOnceWhereATiffFileLeadsInCircles) {
  EXPECT_FALSE(EndsTooSoon(Bytes("II*\0\x08\0\0\0\0\0\x08\0\0\0")));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
