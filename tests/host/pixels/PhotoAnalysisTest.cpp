#include "Pictures.h"
#include "PixelSources.h"

#include <host/pixels/PhotoAnalysis.h>
#include <support/Obstacles.h>
#include <support/PhotoMaker.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <QImageReader>
#include <QPainter>
#include <QTransform>

#include <filesystem>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::Closed;
using Test::IsSuperuser;
using Test::Pipe;
using Test::ReadFile;
using Test::TempTree;
using TestPictures::Encoded;
using TestPictures::Plain;
using TestPictures::PngHead;
using TestPictures::Scene;
using TestPictures::WithThumbnail;

const LayoutAnalyser kAnalyser;

double Cosine(const std::vector<float>& a, const std::vector<float>& b) {
  double product = 0;
  for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
    product += static_cast<double>(a[i]) * b[i];
  }
  return product;
}

PhotoDescription Describe(const ioPath& file, bool usePreviews = true) {
  AnalysisOptions options;
  options.usePreviews = usePreviews;
  return DescribePhoto(file, kAnalyser, options);
}

double Likeness(const PhotoDescription& description, const QImage& picture) {
  EXPECT_EQ(description.cause, "");
  return Cosine(description.descriptor, kAnalyser.Describe(picture));
}

QImage Thumbnail(const QImage& picture) {
  return picture.scaled(160, 160, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

/// The picture in the middle of a frame, bars where it is not.
QImage InFrame(const QImage& picture, const QSize& frame, const QColor& bars = Qt::black) {
  QImage image = Plain(frame, bars);
  QPainter painter(&image);
  const QImage fitted = picture.scaled(frame, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  painter.drawImage((frame.width() - fitted.width()) / 2, (frame.height() - fitted.height()) / 2, fitted);
  return image;
}

/// Two scenes: what the picture shows and what a thumbnail shows, to tell which was used.
const QImage& Shown() {
  static const QImage scene = Scene(SceneKind::City, 4, {1200, 900});
  return scene;
}
const QImage& Other() {
  static const QImage scene = Scene(SceneKind::Flowers, 4, {1200, 900});
  return scene;
}

TEST(DescribePhoto, ReadsTheFormatsThatPhotosComeIn) {
  const TempTree tree;
  const QImage scene = Scene(SceneKind::Lake);
  int read = 0;
  for (const char* format : {"jpg", "png", "tiff", "webp", "bmp"}) {
    if (!QImageReader::supportedImageFormats().contains(format)) {
      continue;  // That plug-in is not installed here.
    }
    // The name does not matter.
    const auto description = Describe(tree.Write("photo.dat", Encoded(scene, format).toStdString()));
    EXPECT_GT(Likeness(description, scene), 0.99) << format;
    EXPECT_EQ(description.source, PixelSource::Picture) << format;
    EXPECT_TRUE(description.size == scene.size()) << format;
    ++read;
  }
  EXPECT_GE(read, 3);
}

TEST(DescribePhoto, TurnsPicturesUpright) {
  const TempTree tree;
  const QImage upright = Scene(SceneKind::Houses, 2);
  // How the camera held it, for every orientation that a file may state.
  const QTransform right = QTransform().rotate(90);
  const QTransform left = QTransform().rotate(270);
  const QImage stored[] = {upright,
                           upright.mirrored(true, false),
                           upright.mirrored(true, true),
                           upright.mirrored(false, true),
                           upright.transformed(left).mirrored(false, true),
                           upright.transformed(left),
                           upright.transformed(right).mirrored(false, true),
                           upright.transformed(right)};
  for (int orientation = 1; orientation <= 8; ++orientation) {
    const auto description =
        Describe(WithThumbnail(tree, "turned.jpg", stored[orientation - 1], QImage(), orientation));
    EXPECT_GT(Likeness(description, upright), 0.99) << orientation;
    EXPECT_TRUE(description.size == upright.size()) << orientation;
  }
}

TEST(DescribePhoto, TakesThumbnailsThatShowThePicturesShape) {
  const TempTree tree;
  const ioPath file = WithThumbnail(tree, "p.jpg", Shown(), Thumbnail(Other()));
  const auto description = Describe(file);
  EXPECT_EQ(description.source, PixelSource::Preview);
  EXPECT_GT(Likeness(description, Other()), 0.98);
  EXPECT_TRUE(description.size == Shown().size());
  const auto whole = Describe(file, false);
  EXPECT_EQ(whole.source, PixelSource::Picture);
  EXPECT_GT(Likeness(whole, Shown()), 0.98);
}

TEST(DescribePhoto, FindsThumbnailAndPictureTheSame) {
  const TempTree tree;
  const ioPath file = WithThumbnail(tree, "p.jpg", Shown(), Thumbnail(Shown()));
  EXPECT_GT(Cosine(Describe(file).descriptor, Describe(file, false).descriptor), 0.98);
}

TEST(DescribePhoto, TurnsThumbnailsUpright) {
  const TempTree tree;
  const ioPath file = WithThumbnail(tree, "p.jpg", Shown(), Thumbnail(Other()), 6);
  const auto description = Describe(file);
  EXPECT_EQ(description.source, PixelSource::Preview);
  EXPECT_GT(Likeness(description, Other().transformed(QTransform().rotate(90))), 0.98);
  EXPECT_TRUE(description.size == Shown().size().transposed());
}

TEST(DescribePhoto, PassesThumbnailsOverThatWillNotDo) {
  const TempTree tree;
  const QImage wide = Scene(SceneKind::Beach, 3, {1200, 675});
  struct Case {
    const char* why;
    QImage picture;
    QImage thumbnail;
  };
  const Case cases[] = {
      {"too small", Shown(), Other().scaled(120, 90)},
      {"another shape", Shown(), Other().scaled(160, 90)},
      {"turned already", Shown(), Other().scaled(120, 160)},
      {"stretched", wide, Other().scaled(160, 120)},
      {"white bars", wide, InFrame(Other().scaled(160, 90), {160, 120}, Qt::white)},
      {"quick to decode anyway", Shown().scaled(600, 450), Thumbnail(Other())},
  };
  for (const Case& c : cases) {
    const auto description = Describe(WithThumbnail(tree, "p.jpg", c.picture, c.thumbnail));
    EXPECT_EQ(description.source, PixelSource::Picture) << c.why;
    EXPECT_GT(Likeness(description, c.picture), 0.98) << c.why;
  }
}

TEST(DescribePhoto, CutsDarkBarsOffThumbnails) {
  const TempTree tree;
  const QImage wide = Scene(SceneKind::Beach, 3, {1200, 675});
  const auto description = Describe(WithThumbnail(tree, "p.jpg", wide, InFrame(wide, {160, 120})));
  EXPECT_EQ(description.source, PixelSource::Preview);
  EXPECT_GT(Likeness(description, wide), 0.95);
}

TEST(DescribePhoto, TakesAnyPreviewWhenThePictureIsBroken) {
  const TempTree tree;
  const ioPath file = WithThumbnail(tree, "p.jpg", Shown(), Other().scaled(120, 90));
  std::string bytes = ReadFile(file);
  // Twelve bits a sample, which no decoder here reads.
  const auto frame = bytes.rfind("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  bytes[frame + 4] = 12;
  const auto description = Describe(tree.Write("broken.jpg", bytes));
  EXPECT_EQ(description.source, PixelSource::Preview);
  EXPECT_GT(Likeness(description, Other()), 0.95);
}

TEST(DescribePhoto, TakesNoPreviewOfAnotherShapeEvenWhenThePictureIsBroken) {
  const TempTree tree;
  std::string bytes = ReadFile(WithThumbnail(tree, "p.jpg", Shown(), Other().scaled(160, 90)));
  const auto frame = bytes.rfind("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  bytes[frame + 4] = 12;
  const auto description = Describe(tree.Write("broken.jpg", bytes));
  EXPECT_TRUE(description.descriptor.empty());
  EXPECT_NE(description.cause, "");
}

TEST(DescribePhoto, SurvivesDamagedThumbnails) {
  const TempTree tree;
  std::string bytes = ReadFile(WithThumbnail(tree, "p.jpg", Shown(), Thumbnail(Other())));
  const auto thumbnail = bytes.find("\xFF\xD8", 2);
  ASSERT_NE(thumbnail, std::string::npos);
  bytes.replace(thumbnail + 2, 60, 60, '\0');
  const auto description = Describe(tree.Write("damaged.jpg", bytes));
  EXPECT_GT(Likeness(description, Shown()), 0.98);
}

TEST(DescribePhoto, SaysWhyThereIsNothing) {
  const TempTree tree;
  tree.Write("empty.jpg", "");
  tree.Write("text.jpg", "This is a letter, not a picture.");
  tree.Write("start only.jpg", "\xFF\xD8\xFF");
  tree.Write("tiff only.tif", std::string("II*\0", 4));
  tree.Write("zeros.jpg", std::string(5000, '\0'));
  tree.MakeFolder("folder.jpg");
  struct Case {
    const char* name;
    const char* cause;
  };
  const Case cases[] = {{"empty.jpg", "the file is empty"},
                        {"text.jpg", "its content is not a picture of a known format"},
                        {"start only.jpg", "the head of the picture is damaged"},
                        {"tiff only.tif", ""},
                        {"zeros.jpg", "its content is not a picture of a known format"},
                        {"folder.jpg", "it is not a regular file"},
                        {"missing.jpg", "there is no such file"}};
  for (const Case& c : cases) {
    const auto description = Describe(tree.Path(c.name));
    EXPECT_TRUE(description.descriptor.empty()) << c.name;
    EXPECT_EQ(description.source, PixelSource::None) << c.name;
    EXPECT_FALSE(description.cause.empty()) << c.name;
    if (*c.cause != '\0') {
      EXPECT_EQ(description.cause, c.cause) << c.name;
    }
  }
  EXPECT_FALSE(Describe(ioPath()).cause.empty());
}

TEST(DescribePhoto, DoesNotWaitOnPipes) {
  const TempTree tree;
  const Pipe pipe(tree.Path("pipe.jpg"));
  EXPECT_FALSE(Describe(pipe.Path()).cause.empty());
}

TEST(DescribePhoto, SaysThatAFileCannotBeOpened) {
  if (IsSuperuser()) {
    GTEST_SKIP() << "this user may read every file";
  }
  const TempTree tree;
  const ioPath file = tree.Write("closed.jpg", Encoded(Shown()).toStdString());
  const Closed closed(file);
  EXPECT_FALSE(Describe(file).cause.empty());
}

TEST(DescribePhoto, OpensNamesThatAreNoUtf8) {
  const TempTree tree;
  const auto description =
      Describe(WithThumbnail(tree, std::string(Zenvora::Test::kStrangeName) + ".jpg", Shown(), QImage()));
  EXPECT_GT(Likeness(description, Shown()), 0.98);
}

TEST(DescribePhoto, OpensNamesInOtherScripts) {
  const TempTree tree;
  const ioPath file =
      tree.Write("\xD0\xBB\xD0\xB5\xD1\x82\xD0\xBE \xE6\xB5\xB7.jpg", Encoded(Shown()).toStdString());
  EXPECT_GT(Likeness(Describe(file), Shown()), 0.98);
}

TEST(DescribePhoto, DescribesWhatIsThereOfATruncatedPhoto) {
  const TempTree tree;
  const QByteArray bytes = Encoded(Shown());
  const auto most = Describe(tree.Write("most.jpg", bytes.left(bytes.size() * 95 / 100).toStdString()));
  EXPECT_GT(Likeness(most, Shown()), 0.8);
  const auto part = Describe(tree.Write("part.jpg", bytes.left(bytes.size() / 2).toStdString()));
  EXPECT_EQ(part.descriptor.size(), 256U);
}

TEST(DescribePhoto, GivesNoVectorWhenOnlyTheFillOfTheDecoderIsThere) {
  const TempTree tree;
  const QByteArray bytes = Encoded(Shown());
  const auto scan = bytes.indexOf("\xFF\xDA");
  ASSERT_GT(scan, 0);
  const auto description = Describe(tree.Write("cut.jpg", bytes.left(scan + 20).toStdString()));
  EXPECT_TRUE(description.descriptor.empty());
  EXPECT_EQ(description.cause, "nothing of the picture can be decoded");
  EXPECT_TRUE(description.size == Shown().size());
}

TEST(DescribePhoto, RefusesHugePicturesByTheirHead) {
  const TempTree tree;
  struct Case {
    std::uint32_t width, height;
    int bits, colourType;
  };
  // True colour, a gigapixel of one bit each, 16 bits a channel with transparency, and a long thin one.
  const Case cases[] = {
      {60000, 60000, 8, 2}, {32000, 32000, 1, 0}, {9000, 9000, 16, 6}, {1000000, 101, 1, 0}};
  for (const Case& c : cases) {
    const QByteArray png = PngHead(c.width, c.height, c.bits, c.colourType);
    const auto description = Describe(tree.Write("bomb.png", png.toStdString()));
    EXPECT_TRUE(description.descriptor.empty());
    EXPECT_EQ(description.cause, "the picture is too large: " + std::to_string(c.width) + " x " +
                                     std::to_string(c.height) + " pixels");
  }
}

/// A JPEG file whose frame claims this size, of this kind (0xC0: row by row, 0xC2: progressive).
std::string Claiming(const QByteArray& jpeg, int width, int height, int kind) {
  std::string bytes = jpeg.toStdString();
  const auto frame = bytes.find("\xFF\xC0");
  bytes[frame + 1] = static_cast<char>(kind);
  bytes[frame + 5] = static_cast<char>(height / 256);
  bytes[frame + 6] = static_cast<char>(height % 256);
  bytes[frame + 7] = static_cast<char>(width / 256);
  bytes[frame + 8] = static_cast<char>(width % 256);
  return bytes;
}

TEST(DescribePhoto, RefusesHugeJpegsByTheirHead) {
  const TempTree tree;
  const QByteArray small = Encoded(Plain({64, 64}, Qt::red));
  EXPECT_EQ(Describe(tree.Write("vast.jpg", Claiming(small, 60000, 60000, 0xC0))).cause,
            "the picture is too large: 60000 x 60000 pixels");
  EXPECT_EQ(Describe(tree.Write("kept whole.jpg", Claiming(small, 15000, 12000, 0xC2))).cause,
            "the picture is too large: 15000 x 12000 pixels")
      << "the decoder of progressive pictures keeps all of them";
}

std::string Box(const std::string& type, const std::string& content) {
  return std::string(3, '\0') + static_cast<char>(8 + content.size()) + type + content;
}

TEST(DescribePhoto, RefusesHugeHeicPicturesByTheirBoxes) {
  const TempTree tree;
  const std::string version(4, '\0');
  const std::string size = Box("ispe", version + std::string("\0\0\xEA\x60\0\0\xEA\x60", 8));
  const std::string heic =
      Box("ftyp", "heic" + std::string(12, '\0')) + Box("meta", version + Box("iprp", Box("ipco", size)));
  EXPECT_EQ(Describe(tree.Write("vast.heic", heic)).cause, "the picture is too large: 60000 x 60000 pixels");
  std::string cut = heic;
  cut.resize(heic.size() - 5);
  EXPECT_FALSE(Describe(tree.Write("cut.heic", cut)).cause.empty());
}

TEST(DescribePhoto, RefusesFilesThatAreTooLarge) {
  const TempTree tree;
  const ioPath file = tree.Write("large.jpg", Encoded(Shown()).toStdString());
  std::filesystem::resize_file(file.for_system(), 513ULL * 1024 * 1024);
  EXPECT_EQ(Describe(file).cause, "the file is larger than 512 MiB");
}

TEST(DescribePhoto, ReadsGreyDeepAndTransparentPictures) {
  const TempTree tree;
  const QImage scene = Scene(SceneKind::Lake);
  const std::vector<float> grey = kAnalyser.Describe(scene.convertToFormat(QImage::Format_Grayscale8));
  const auto greyJpeg = Describe(
      tree.Write("grey.jpg", Encoded(scene.convertToFormat(QImage::Format_Grayscale8)).toStdString()));
  EXPECT_GT(Cosine(greyJpeg.descriptor, grey), 0.99);
  for (const QImage::Format format :
       {QImage::Format_RGBA64, QImage::Format_RGBX64, QImage::Format_ARGB32, QImage::Format_Indexed8}) {
    const auto description =
        Describe(tree.Write("p.png", Encoded(scene.convertToFormat(format), "PNG").toStdString()));
    EXPECT_GT(Likeness(description, scene), 0.95) << format;
  }
}

TEST(DescribePhoto, GivesAVectorForOnePixel) {
  const TempTree tree;
  const auto description =
      Describe(tree.Write("dot.png", Encoded(Plain({1, 1}, Qt::red), "PNG").toStdString()));
  EXPECT_EQ(description.descriptor.size(), 256U);
  EXPECT_TRUE(description.size == QSize(1, 1));
}

TEST(BetweenDarkBars, CutsOnlyBarsThatExplainTheShape) {
  const QImage wide = Scene(SceneKind::Beach, 1, {160, 90});
  const QImage tall = Scene(SceneKind::Beach, 1, {68, 120});
  const QImage cut = BetweenDarkBars(InFrame(wide, {160, 120}), {1600, 900});
  EXPECT_EQ(cut.width(), 160);
  EXPECT_NEAR(cut.height(), 88, 3);
  const QImage cutSides = BetweenDarkBars(InFrame(tall, {160, 120}), {900, 1600});
  EXPECT_NEAR(cutSides.width(), 65, 4);
  EXPECT_EQ(cutSides.height(), 120);
  EXPECT_TRUE(BetweenDarkBars(InFrame(wide, {160, 120}, Qt::white), {1600, 900}).isNull()) << "bright bars";
  EXPECT_TRUE(BetweenDarkBars(InFrame(wide, {160, 120}), {900, 1600}).isNull()) << "bars at the wrong sides";
  EXPECT_TRUE(BetweenDarkBars(InFrame(wide, {160, 120}), {10000, 900}).isNull()) << "hardly anything between";
  EXPECT_TRUE(BetweenDarkBars(wide, {1600, 900}).isNull()) << "no bars";
  EXPECT_TRUE(BetweenDarkBars(QImage(), {1600, 900}).isNull());
  EXPECT_TRUE(BetweenDarkBars(wide, {}).isNull());
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
