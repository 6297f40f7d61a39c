#include "PngMending.h"
#include "PngParts.h"

#include <host/pixels/PhotoPixels.h>
#include <host/pixels/PictureEnd.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <array>
#include <cstdint>
#include <string>
#include <vector>
#include <zlib.h>

namespace Zenvora::Lumidex::Host {
namespace {

constexpr int kWidth = 203;
constexpr int kHeight = 157;

/// A picture with noise, so that all rows pack alike.
std::uint8_t Sample(int x, int y, int channel) {
  const auto number = [](int value) { return static_cast<std::uint32_t>(value); };
  std::uint32_t noise = number(x) * 73856093U ^ number(y) * 19349663U ^ number(channel) * 83492791U;
  noise = (noise ^ noise >> 13U) * 0x5BD1E995U;
  return static_cast<std::uint8_t>((number((x + y + channel * 40) / 3) & 0xC0U) |
                                   ((noise ^ noise >> 15U) & 0x3FU));
}

void AddNumber(std::string& bytes, std::uint64_t number) {
  for (const int shift : {24, 16, 8, 0}) {
    bytes += static_cast<char>(number >> static_cast<unsigned>(shift) & 0xFFU);
  }
}

void AddChunk(std::string& file, const std::string& body) {
  AddNumber(file, body.size() - 4);
  file += body;
  AddNumber(file, crc32(0, reinterpret_cast<const Bytef*>(body.data()), static_cast<uInt>(body.size())));
}

struct Kind {
  const char* name;
  int channels;
  char colour;
  bool isInterlaced;
};
constexpr std::array kKinds = {Kind{"colours", 3, 2, false}, Kind{"grey", 1, 0, false},
                               Kind{"transparency", 4, 6, false}, Kind{"palette", 1, 3, false},
                               Kind{"interlaced", 3, 2, true}};

/// Unlike the library's: in pixel chunks of so many bytes, and interlaced ones.
std::string Png(const Kind& kind, std::size_t chunk) {
  std::string rows;
  const std::vector<std::array<int, 4>> passes =
      kind.isInterlaced
          ? std::vector<std::array<int, 4>>{{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                            {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}}
          : std::vector<std::array<int, 4>>{{0, 0, 1, 1}};
  for (const auto& [left, top, stepX, stepY] : passes) {
    for (int y = top; y < kHeight; y += stepY) {
      rows += '\0';
      for (int x = left; x < kWidth; x += stepX) {
        for (int channel = 0; channel < kind.channels; ++channel) {
          rows += channel == 3 ? '\xFF' : static_cast<char>(Sample(x, y, channel));
        }
      }
    }
  }
  const auto length = static_cast<uLong>(rows.size());
  uLongf size = compressBound(length);
  std::string packed(size, '\0');
  compress(reinterpret_cast<Bytef*>(packed.data()), &size, reinterpret_cast<const Bytef*>(rows.data()),
           length);
  packed.resize(size);
  std::string file("\x89PNG\r\n\x1a\n", 8);
  std::string head = "IHDR";
  AddNumber(head, kWidth);
  AddNumber(head, kHeight);
  head += std::string{8, kind.colour, 0, 0, static_cast<char>(kind.isInterlaced ? 1 : 0)};
  AddChunk(file, head);
  if (kind.colour == 3) {
    std::string palette = "PLTE";
    for (int i = 0; i < 256; ++i) {
      palette += std::string{static_cast<char>(i), static_cast<char>(255 - i), static_cast<char>(i / 2)};
    }
    AddChunk(file, palette);
  }
  for (std::size_t at = 0; at < packed.size(); at += chunk) {
    AddChunk(file, "IDAT" + packed.substr(at, chunk));
  }
  AddChunk(file, "IEND");
  return file;
}

DecodedPicture Decode(const std::string& bytes) {
  QByteArray copy = QByteArray::fromStdString(bytes);
  QBuffer buffer(&copy);
  buffer.open(QIODevice::ReadOnly);
  testing::internal::CaptureStderr();
  DecodedPicture picture = DecodePicture(buffer, 1000, true);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  return picture;
}

/// The rows from the top that are those of the whole picture, in percent.
int SoundPart(const QImage& picture, const QImage& whole) {
  int rows = 0;
  while (rows < picture.height() && picture.copy(0, rows, kWidth, 1) == whole.copy(0, rows, kWidth, 1)) {
    ++rows;
  }
  return rows * 100 / kHeight;
}

/// How far the picture is from the whole one, in levels.
double MeanDifference(const QImage& picture, const QImage& whole) {
  double sum = 0;
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      sum += std::abs(qGray(picture.pixel(x, y)) - qGray(whole.pixel(x, y)));
    }
  }
  return sum / kWidth / kHeight;
}

/// Of PNG files that broke off nothing at all was shown.
TEST(MendPng, GivesTheRowsBeforeTheEndOfACutFile) {
  for (const Kind& kind : kKinds) {
    for (const std::size_t chunk : {std::size_t{900}, std::size_t{1} << 20U}) {
      const std::string png = Png(kind, chunk);
      const QImage whole = Decode(png).image.convertToFormat(QImage::Format_ARGB32);
      ASSERT_FALSE(whole.isNull());
      for (const int percent : {20, 50, 90}) {
        SCOPED_TRACE(kind.name + std::to_string(percent));
        const DecodedPicture cut =
            Decode(png.substr(0, png.size() * static_cast<std::size_t>(percent) / 100));
        ASSERT_FALSE(cut.image.isNull()) << cut.cause;
        EXPECT_TRUE(cut.isDamaged);
        EXPECT_EQ(cut.size, QSize(kWidth, kHeight));
        const QImage image = cut.image.convertToFormat(QImage::Format_ARGB32);
        ASSERT_EQ(image.size(), whole.size());
        if (kind.isInterlaced) {
          EXPECT_LT(MeanDifference(image, whole), 60);
        } else {
          EXPECT_NEAR(SoundPart(image, whole), percent, 12);
        }
      }
    }
  }
}

TEST(MendPng, GivesTheRowsBeforeADamagedByte) {
  for (const Kind& kind : kKinds) {
    SCOPED_TRACE(kind.name);
    const std::string png = Png(kind, 900);
    const QImage whole = Decode(png).image.convertToFormat(QImage::Format_ARGB32);
    std::string damaged = png;
    damaged[png.size() / 2] = static_cast<char>(damaged[png.size() / 2] ^ 0x10);
    const DecodedPicture picture = Decode(damaged);
    ASSERT_FALSE(picture.image.isNull()) << picture.cause;
    EXPECT_TRUE(picture.isDamaged);
    if (!kind.isInterlaced) {
      EXPECT_GE(SoundPart(picture.image.convertToFormat(QImage::Format_ARGB32), whole), 38);
    }
  }
}

TEST(MendPng, GivesTheWholePictureWhereOnlyAChecksumIsDamaged) {
  for (const Kind& kind : kKinds) {
    SCOPED_TRACE(kind.name);
    const std::string png = Png(kind, std::size_t{1} << 20U);
    const QImage whole = Decode(png).image.convertToFormat(QImage::Format_ARGB32);
    std::string damaged = png;
    damaged[png.size() - 14] = static_cast<char>(damaged[png.size() - 14] ^ 1);
    const DecodedPicture picture = Decode(damaged);
    EXPECT_TRUE(picture.isDamaged);
    EXPECT_EQ(picture.image.convertToFormat(QImage::Format_ARGB32), whole);
  }
}

TEST(MendPng, GivesNothingOfWhatIsNoPicture) {
  const std::string png = Png(kKinds[0], 900);
  const std::size_t pixels = png.find("IDAT");
  std::string noHead = png;
  noHead[20] = static_cast<char>(noHead[20] ^ 1);
  for (const std::string& bytes : {std::string(), png.substr(0, 8), png.substr(0, 20),
                                   png.substr(0, pixels + 4), noHead, png.substr(0, pixels + 60)}) {
    QByteArray copy = QByteArray::fromStdString(bytes);
    QBuffer buffer(&copy);
    buffer.open(QIODevice::ReadOnly);
    EXPECT_TRUE(MendPng(buffer).bytes.isEmpty()) << bytes.size();
  }
}

/// A head that promises more than anybody has memory for.
TEST(MendPng, RefusesHugePictures) {
  std::string file("\x89PNG\r\n\x1a\n", 8);
  std::string head = "IHDR";
  AddNumber(head, 500'000);
  AddNumber(head, 500'000);
  head += std::string{8, 2, 0, 0, 0};
  AddChunk(file, head);
  AddChunk(file, "IDATxxxx");
  const DecodedPicture picture = Decode(file);
  EXPECT_TRUE(picture.image.isNull());
  EXPECT_EQ(picture.cause, TooLargeText(QSize(500'000, 500'000)));
}

TEST(IsDamagedPng, IsSoForDamagedFilesOnly) {
  const Zenvora::Test::TempTree tree;
  const std::string png = Png(kKinds[0], 900);
  EXPECT_FALSE(IsDamagedPng(tree.Write("a.png", png)));
  std::string damaged = png;
  damaged[png.size() / 2] = static_cast<char>(damaged[png.size() / 2] ^ 1);
  EXPECT_TRUE(IsDamagedPng(tree.Write("b.png", damaged)));
  EXPECT_TRUE(IsDamagedPng(tree.Write("c.png", png.substr(0, png.size() / 2))));
  EXPECT_FALSE(IsDamagedPng(tree.Write("d.jpg", "\xFF\xD8\xFF")));
  EXPECT_FALSE(IsDamagedPng(tree.Path("missing.png")));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
