#include <host/pixels/PhotoFiles.h>
#include <host/pixels/PhotoPixels.h>
#include <support/ExivPath.h>
#include <support/Obstacles.h>
#include <support/PhotoMaker.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>

#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <chrono>
#include <filesystem>
#include <string>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::Closed;
using Test::IsSuperuser;
using Test::PhotoTags;
using Test::Pipe;
using Test::ReadFile;
using Test::TempTree;
using Test::WriteJpeg;

QByteArray Encoded(const QSize& size, const QColor& colour, const char* format = "JPEG") {
  QImage image(size, QImage::Format_RGB32);
  image.fill(colour);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format, 90);
  return bytes;
}

/// A red picture with a blue EXIF thumbnail.
ioPath WithThumbnail(const TempTree& tree, const QSize& picture, const QSize& thumbnail,
                     int orientation = 1) {
  ioPath file = tree.Write("with thumbnail.jpg", Encoded(picture, Qt::red).toStdString());
  const auto image = Exiv2::ImageFactory::open(Zenvora::Test::ExivPath(file));
  Exiv2::ExifData exif;
  exif["Exif.Image.Orientation"] = static_cast<std::uint16_t>(orientation);
  const QByteArray small = Encoded(thumbnail, Qt::blue);
  Exiv2::ExifThumb(exif).setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(small.constData()),
                                          small.size());
  image->setExifData(exif);
  image->writeMetadata();
  return file;
}

bool IsBlue(const QImage& image) {
  const QRgb pixel = image.pixel(image.width() / 2, image.height() / 2);
  return qBlue(pixel) > 200 && qRed(pixel) < 60;
}
bool IsRed(const QImage& image) {
  const QRgb pixel = image.pixel(image.width() / 2, image.height() / 2);
  return qRed(pixel) > 200 && qBlue(pixel) < 60;
}

TEST(LoadThumbnail, FitsPicturesIntoTheLongerSide) {
  const TempTree tree;
  struct Case {
    QSize picture;
    int longerSide;
    QSize expected;
  };
  const Case cases[] = {
      {{800, 600}, 240, {240, 180}}, {{600, 800}, 240, {180, 240}}, {{1000, 1000}, 240, {240, 240}},
      {{100, 50}, 240, {100, 50}},   {{240, 10}, 240, {240, 10}},   {{5000, 10}, 240, {240, 1}},
      {{3, 4000}, 100, {1, 100}},    {{1, 1}, 1, {1, 1}},
  };
  for (const char* format : {"JPEG", "PNG"}) {
    for (const Case& c : cases) {
      const ioPath file = tree.Write("picture", Encoded(c.picture, Qt::green, format).toStdString());
      EXPECT_EQ(LoadThumbnail(file, c.longerSide).size(), c.expected) << format << ' ' << c.picture.width();
    }
  }
}

TEST(LoadThumbnail, TurnsPicturesUpright) {
  const TempTree tree;
  // Where the white square of the first corner stands in the end: x, y in the unit square.
  const QPoint corners[] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}, {1, 0}, {1, 1}, {0, 1}};
  for (int orientation = 1; orientation <= 8; ++orientation) {
    PhotoTags tags;
    tags.orientation = orientation;
    tags.width = 64;
    tags.height = 32;
    const QImage image = LoadThumbnail(WriteJpeg(tree.Path("turned.jpg"), tags), 240);
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.size(), orientation > 4 ? QSize(32, 64) : QSize(64, 32)) << orientation;
    const QPoint corner = corners[orientation - 1];
    const auto at = [&image](const QPoint& unit) {
      return qGray(
          image.pixel(unit.x() == 0 ? 3 : image.width() - 4, unit.y() == 0 ? 3 : image.height() - 4));
    };
    EXPECT_GT(at(corner), 220) << orientation;
    EXPECT_LT(at(QPoint(1, 1) - corner), 180) << orientation;
  }
}

TEST(LoadThumbnail, ReadsTheFormatsThatPhotosComeIn) {
  const TempTree tree;
  int read = 0;
  for (const char* format : {"jpg", "png", "tiff", "webp", "bmp"}) {
    if (!QImageReader::supportedImageFormats().contains(format)) {
      continue;  // That plug-in is not installed here.
    }
    // The name does not matter.
    const ioPath file = tree.Write("picture.dat", Encoded({300, 200}, Qt::red, format).toStdString());
    EXPECT_TRUE(LoadThumbnail(file, 150).size() == QSize(150, 100)) << format;
    ++read;
  }
  EXPECT_GE(read, 3);
}

TEST(LoadThumbnail, IsNullForWhatIsNoPicture) {
  const TempTree tree;
  tree.Write("empty.jpg", "");
  tree.Write("text.jpg", "This is a letter, not a picture.");
  tree.Write("start only.jpg", "\xFF\xD8\xFF");
  tree.Write("head only.png", "\x89PNG\r\n\x1A\n");
  tree.Write("tiff only.tif", std::string("II*\0", 4));
  tree.Write("zeros.jpg", std::string(5000, '\0'));
  tree.MakeFolder("folder.jpg");
  for (const char* name : {"empty.jpg", "text.jpg", "start only.jpg", "head only.png", "tiff only.tif",
                           "zeros.jpg", "folder.jpg", "missing.jpg"}) {
    EXPECT_TRUE(LoadThumbnail(tree.Path(name), 240).isNull()) << name;
  }
  EXPECT_TRUE(LoadThumbnail(ioPath(), 240).isNull());
}

TEST(LoadThumbnail, IsNullForSizesThatMakeNoSense) {
  const TempTree tree;
  const ioPath file = WriteJpeg(tree.Path("fine.jpg"));
  EXPECT_TRUE(LoadThumbnail(file, 0).isNull());
  EXPECT_TRUE(LoadThumbnail(file, -5).isNull());
  EXPECT_FALSE(LoadThumbnail(file, 1).isNull());
}

TEST(LoadThumbnail, DoesNotWaitOnPipes) {
  const TempTree tree;
  const Pipe pipe(tree.Path("pipe.jpg"));
  EXPECT_TRUE(LoadThumbnail(pipe.Path(), 240).isNull());
}

TEST(LoadThumbnail, IsNullForFilesThatCannotBeOpened) {
  if (IsSuperuser()) {
    GTEST_SKIP() << "this user may read every file";
  }
  const TempTree tree;
  const ioPath file = WriteJpeg(tree.Path("closed.jpg"));
  const Closed closed(file);
  EXPECT_TRUE(LoadThumbnail(file, 240).isNull());
}

TEST(LoadThumbnail, OpensNamesThatAreNoUtf8) {
  const TempTree tree;
  const ioPath file = tree.Path(std::string(Zenvora::Test::kStrangeName) + ".jpg");
  WriteJpeg(file);
  EXPECT_FALSE(LoadThumbnail(file, 240).isNull());
}

TEST(LoadThumbnail, ShowsWhatIsThereOfATruncatedJpeg) {
  const TempTree tree;
  QImage noisy(400, 300, QImage::Format_RGB32);
  for (int y = 0; y < 300; ++y) {
    for (int x = 0; x < 400; ++x) {
      noisy.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, x * y % 256));
    }
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  noisy.save(&buffer, "JPEG", 90);
  const ioPath file = tree.Write("half.jpg", bytes.left(bytes.size() / 2).toStdString());
  EXPECT_EQ(LoadThumbnail(file, 200).size(), QSize(200, 150));
}

TEST(LoadThumbnail, RefusesHugePicturesBeforeDecodingThem) {
  const TempTree tree;
  // The head of a PNG that claims 60000 x 60000 pixels; its checksum is right.
  QByteArray png = Encoded({8, 8}, Qt::red, "PNG");
  const QByteArray head = QByteArray::fromHex("494844520000ea600000ea600802000000");
  quint32 crc = 0xFFFFFFFFU;
  for (const char c : head) {
    crc ^= static_cast<unsigned char>(c);
    for (int bit = 0; bit < 8; ++bit) {
      crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
    }
  }
  crc ^= 0xFFFFFFFFU;
  png.replace(12, head.size(), head);
  for (int i = 0; i < 4; ++i) {
    png[29 + i] = static_cast<char>(crc >> (24 - 8 * i));
  }
  QBuffer buffer(&png);
  buffer.open(QIODevice::ReadOnly);
  ASSERT_EQ(QImageReader(&buffer).size(), QSize(60000, 60000)) << "the test's PNG is broken";
  EXPECT_TRUE(LoadThumbnail(tree.Write("bomb.png", png.toStdString()), 240).isNull());
}

TEST(LoadThumbnail, TakesTheEmbeddedThumbnailOnlyWhenLargeEnoughAndOfTheSameShape) {
  const TempTree tree;
  EXPECT_TRUE(IsBlue(LoadThumbnail(WithThumbnail(tree, {3000, 2000}, {300, 200}), 240)));
  EXPECT_TRUE(IsRed(LoadThumbnail(WithThumbnail(tree, {3000, 2000}, {300, 200}), 600))) << "too small";
  EXPECT_TRUE(IsRed(LoadThumbnail(WithThumbnail(tree, {3000, 2000}, {320, 240}), 240))) << "with bars";
  EXPECT_TRUE(IsRed(LoadThumbnail(WithThumbnail(tree, {3000, 2000}, {160, 107}), 240))) << "too small";
  EXPECT_TRUE(IsRed(LoadThumbnail(WithThumbnail(tree, {600, 400}, {300, 200}), 240)))
      << "quick to decode anyway";
}

TEST(LoadThumbnail, TurnsTheEmbeddedThumbnailToo) {
  const TempTree tree;
  const QImage image = LoadThumbnail(WithThumbnail(tree, {3000, 2000}, {300, 200}, 6), 240);
  EXPECT_TRUE(IsBlue(image));
  EXPECT_EQ(image.size(), QSize(160, 240));
}

TEST(LoadThumbnail, FallsBackToAPreviewWhenThePictureIsBroken) {
  const TempTree tree;
  const ioPath file = WithThumbnail(tree, {600, 400}, {160, 107});
  std::string bytes = ReadFile(file);
  // Twelve bits a sample, which no decoder here reads.
  const auto frame = bytes.rfind("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  bytes[frame + 4] = 12;
  tree.Write("with thumbnail.jpg", bytes);
  EXPECT_TRUE(IsBlue(LoadThumbnail(file, 240)));
}

TEST(Turned, LeavesPicturesAloneWhenTheOrientationSaysNothing) {
  QImage image(4, 2, QImage::Format_RGB32);
  image.fill(Qt::red);
  for (const int orientation : {-1, 0, 1, 9, 255}) {
    EXPECT_EQ(Turned(image, orientation).size(), QSize(4, 2)) << orientation;
  }
  EXPECT_EQ(Turned(image, 6).size(), QSize(2, 4));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
