#include "PictureDetail.h"
#include "TiffParts.h"

#include <host/pixels/PhotoPixels.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QByteArray>

#include <cstddef>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

struct Field {
  unsigned tag;
  unsigned type;
  unsigned value;
};

constexpr unsigned kShort = 3;
constexpr unsigned kLong = 4;
constexpr unsigned kDataAt = 200;

std::string Number(unsigned value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) {
    text += static_cast<char>(value >> (8 * i));
  }
  return text;
}

/// Fields of one value each, then from `kDataAt` on the picture's data.
std::string Tiff(const std::vector<Field>& fields, std::size_t data) {
  std::string bytes =
      std::string("II*\0", 4) + Number(8, 4) + Number(static_cast<unsigned>(fields.size()), 2);
  for (const Field& field : fields) {
    bytes += Number(field.tag, 2) + Number(field.type, 2) + Number(1, 4) + Number(field.value, 4);
  }
  bytes.resize(kDataAt, '\0');
  return bytes + std::string(data, 'x');
}

/// Four pixels in each of three rows, one byte for each.
std::vector<Field> Grey(unsigned compression, unsigned size) {
  return {{0x0100, kShort, 4},           {0x0101, kShort, 3}, {0x0102, kShort, 8},
          {0x0103, kShort, compression}, {0x0106, kShort, 1}, {0x0111, kLong, kDataAt},
          {0x0115, kShort, 1},           {0x0116, kShort, 3}, {0x0117, kLong, size}};
}

bool Holds(const std::string& bytes) {
  return HoldsFirstPicture(Strandel::ByteView(bytes));
}

TEST(HoldsFirstPicture, IsTrueOfWholeFiles) {
  EXPECT_TRUE(Holds(Tiff(Grey(1, 12), 12)));
  EXPECT_TRUE(Holds(Tiff(Grey(5, 7), 7)));
  EXPECT_TRUE(Holds(Zenvora::Test::MakeTiff({})));
}

TEST(HoldsFirstPicture, IsFalseWhereTheFileEndsBeforeIt) {
  EXPECT_FALSE(Holds(Tiff(Grey(1, 12), 11)));
  EXPECT_FALSE(Holds(Tiff(Grey(5, 7), 6)));
  EXPECT_FALSE(Holds(Tiff(Grey(1, 12), 12).substr(0, 50))) << "within the directory";
}

TEST(HoldsFirstPicture, GoesByThePictureWhereItsPartsClaimLess) {
  EXPECT_TRUE(Holds(Tiff(Grey(1, 0), 12)));
  EXPECT_FALSE(Holds(Tiff(Grey(1, 0), 11)));
  std::vector<Field> unsized = Grey(1, 0);
  unsized.pop_back();
  EXPECT_TRUE(Holds(Tiff(unsized, 12)));
  EXPECT_FALSE(Holds(Tiff(unsized, 11)));
}

TEST(HoldsFirstPicture, KnowsTiles) {
  const auto tiled = [](std::size_t data) {
    return Tiff({{0x0100, kShort, 4},
                 {0x0101, kShort, 3},
                 {0x0102, kShort, 8},
                 {0x0142, kShort, 16},
                 {0x0143, kShort, 16},
                 {0x0144, kLong, kDataAt},
                 {0x0145, kLong, 10}},
                data);
  };
  EXPECT_TRUE(Holds(tiled(256)));
  EXPECT_FALSE(Holds(tiled(255)));
}

TEST(HoldsFirstPicture, IsFalseForPlacesOfAnotherType) {
  std::vector<Field> odd = Grey(1, 12);
  odd.back().type = 9;
  EXPECT_FALSE(Holds(Tiff(odd, 12)));
}

TEST(HoldsFirstPicture, IsTrueOfOtherFormats) {
  EXPECT_TRUE(Holds(""));
  EXPECT_TRUE(Holds("II"));
  EXPECT_TRUE(Holds(Zenvora::Test::MakeJpeg({})));
}

TEST(ReadMiddle, GivesNothingOfTiffFilesThatEndBeforeTheirPicture) {
  const Zenvora::Test::TempTree tree;
  EXPECT_TRUE(ReadMiddle(tree.Write("cut.tif", Tiff(Grey(1, 12), 11)), 100).isNull());
}

TEST(DecodePicture, RefusesTiffFilesThatEndBeforeTheirPicture) {
  const std::string cut = Tiff(Grey(1, 12), 11);
  QByteArray bytes = QByteArray::fromStdString(cut);
  QBuffer buffer(&bytes);
  ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
  const DecodedPicture decoded = DecodePicture(buffer, 100, true);
  EXPECT_TRUE(decoded.image.isNull());
  if (decoded.size.isEmpty()) {
    GTEST_SKIP() << "Qt reads no TIFF here: " << decoded.cause;
  }
  EXPECT_EQ(decoded.cause, kCutText);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
