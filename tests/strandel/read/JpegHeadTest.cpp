#include <support/PhotoMaker.h>

#include <zenvora/strandel/JpegHead.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::Strandel {
namespace {

using Test::MakeJpeg;
using Test::PhotoTags;

/// "nn" bytes of a number, big or little end first.
std::string Number(unsigned value, int bytes, bool bigEndian) {
  std::string text;
  for (int i = 0; i < bytes; ++i) {
    const int shift = 8 * (bigEndian ? bytes - 1 - i : i);
    text += static_cast<char>(value >> shift & 0xFFU);
  }
  return text;
}

/// What an EXIF block is made of; by default all is right.
struct Block {
  bool bigEndian = false;
  unsigned orientation = 6;
  std::string thumbnail = std::string("\xFF\xD8thumbnail\xFF\xD9");
  unsigned second = 26;       ///< Where the directory of the thumbnail is said to be; it is at 26.
  unsigned thumbnailAt = 56;  ///< Likewise of the thumbnail.
  unsigned extraBytes = 0;    ///< By which it is said to be longer.
  unsigned entries = 2;       ///< That the second directory is said to have; it has two.
};

std::string Exif(const Block& block) {
  const auto two = [&](unsigned value) { return Number(value, 2, block.bigEndian); };
  const auto four = [&](unsigned value) { return Number(value, 4, block.bigEndian); };
  const auto size = static_cast<unsigned>(block.thumbnail.size()) + block.extraBytes;
  return std::string(block.bigEndian ? "MM" : "II") + two(42) + four(8) +                                  //
         two(1) + two(0x0112) + two(3) + four(1) + two(block.orientation) + two(0) + four(block.second) +  //
         two(block.entries) + two(0x0201) + two(4) + four(1) + four(block.thumbnailAt) +                   //
         two(0x0202) + two(4) + four(1) + four(size) + four(0) + block.thumbnail;
}

std::string Segment(char marker, const std::string& content) {
  return std::string("\xFF") + marker + Number(static_cast<unsigned>(content.size()) + 2, 2, true) + content;
}

std::string Frame(unsigned width, unsigned height) {
  return Segment('\xC0', "\x08" + Number(height, 2, true) + Number(width, 2, true) + "\x01\x01\x11" +
                             std::string(1, '\0'));
}

std::string Jpeg(const Block& block) {
  return "\xFF\xD8" + Segment('\xE0', std::string("JFIF\0......", 11)) +
         Segment('\xE1', std::string("Exif\0\0", 6) + Exif(block)) + Frame(640, 480) +
         Segment('\xDA', "scan");
}

JpegHead Read(const std::string& bytes) {
  return ReadJpegHead(QByteArray::fromStdString(bytes));
}

TEST(ReadJpegHead, FindsSizeOrientationAndThumbnailInBothByteOrders) {
  for (const bool bigEndian : {false, true}) {
    Block block;
    block.bigEndian = bigEndian;
    const JpegHead head = Read(Jpeg(block));
    EXPECT_TRUE(head.size == QSize(640, 480)) << bigEndian;
    EXPECT_EQ(head.orientation, 6) << bigEndian;
    EXPECT_EQ(head.thumbnail.toStdString(), block.thumbnail) << bigEndian;
  }
}

TEST(ReadJpegHead, ReadsWhatWritersWrite) {
  PhotoTags tags;
  tags.orientation = 8;
  tags.width = 300;
  tags.height = 200;
  const JpegHead head = Read(MakeJpeg(tags));
  EXPECT_TRUE(head.size == QSize(300, 200));
  EXPECT_EQ(head.orientation, 8);
  EXPECT_TRUE(head.thumbnail.isEmpty());
}

TEST(ReadJpegHead, TakesThumbnailsOutOfBoundsForAbsent) {
  struct Case {
    const char* what;
    void (*damage)(Block&);
  };
  const Case cases[] = {
      {"begins beyond the end", [](Block& b) { b.thumbnailAt = 5000; }},
      {"begins at the end of numbers", [](Block& b) { b.thumbnailAt = 0xFFFFFFFFU; }},
      {"ends beyond the end", [](Block& b) { b.extraBytes = 1; }},
      {"ends beyond all numbers", [](Block& b) { b.extraBytes = 0xFFFFFFF0U; }},
      {"is no JPEG", [](Block& b) { b.thumbnail = "a letter"; }},
      {"is empty", [](Block& b) { b.thumbnail.clear(); }},
      {"has no directory", [](Block& b) { b.second = 0; }},
      {"has a directory beyond the end", [](Block& b) { b.second = 0xFFFFFFFEU; }},
      {"has a directory without entries", [](Block& b) { b.entries = 0; }},
  };
  for (const Case& c : cases) {
    Block block;
    c.damage(block);
    const JpegHead head = Read(Jpeg(block));
    EXPECT_TRUE(head.thumbnail.isEmpty()) << c.what;
    EXPECT_TRUE(head.size == QSize(640, 480)) << c.what;
  }
}

TEST(ReadJpegHead, SurvivesEveryCutAndEveryDamagedByte) {
  const std::string whole = Jpeg(Block());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const JpegHead head = Read(whole.substr(0, size));
    EXPECT_TRUE(head.size.isEmpty() || head.size == QSize(640, 480)) << size;
  }
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const char value : {'\0', '\x7F', '\xFF'}) {
      std::string damaged = whole;
      damaged[at] = value;
      EXPECT_LE(Read(damaged).thumbnail.size(), static_cast<int>(whole.size())) << at;
    }
  }
}

TEST(ReadJpegHead, TakesOtherFilesForEmpty) {
  for (const std::string& bytes :
       {std::string(), std::string("\xFF"), std::string("\x89PNG\r\n"),
        std::string("A long letter that is no picture at all."), std::string(1000, '\xFF')}) {
    const JpegHead head = Read(bytes);
    EXPECT_TRUE(head.size.isEmpty());
    EXPECT_TRUE(head.thumbnail.isEmpty());
    EXPECT_EQ(head.orientation, 1);
  }
}

}  // namespace
}  // namespace Zenvora::Strandel
