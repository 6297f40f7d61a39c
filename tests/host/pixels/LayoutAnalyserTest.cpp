#include "Pictures.h"

#include <host/pixels/PhotoAnalysis.h>

#include <gtest/gtest.h>

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using TestPictures::Encoded;
using TestPictures::Plain;
using TestPictures::Scene;

constexpr double kSame = 0.91;

std::vector<float> Describe(const QImage& image) {
  return LayoutAnalyser().Describe(image);
}

double Cosine(const std::vector<float>& a, const std::vector<float>& b) {
  double product = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    product += static_cast<double>(a[i]) * b[i];
  }
  return product;  // Both have the length 1.
}

double Likeness(const QImage& a, const QImage& b) {
  return Cosine(Describe(a), Describe(b));
}

void ExpectUnit(const std::vector<float>& vector, const std::string& what) {
  ASSERT_EQ(vector.size(), static_cast<std::size_t>(LayoutAnalyser::kSize)) << what;
  EXPECT_TRUE(std::all_of(vector.begin(), vector.end(), [](float value) { return std::isfinite(value); }))
      << what;
  EXPECT_NEAR(Cosine(vector, vector), 1, 1e-5) << what;
}

/// Scenes that nobody would take for one another.
std::vector<QImage> DifferentScenes() {
  std::vector<QImage> scenes;
  scenes.reserve(kSceneKinds);
  for (int kind = 0; kind < kSceneKinds; ++kind) {
    scenes.push_back(Scene(static_cast<SceneKind>(kind), 7));
  }
  return scenes;
}

TEST(LayoutAnalyser, SaysWhatItIs) {
  const LayoutAnalyser analyser;
  EXPECT_EQ(analyser.Name(), "layout");
  EXPECT_EQ(analyser.Version(), 1);
  EXPECT_EQ(analyser.Size(), 256);
  EXPECT_EQ(analyser.LongerSide(), 160);
}

TEST(LayoutAnalyser, GivesUnitVectorsForPicturesOfAllSizesAndShapes) {
  const QImage scene = Scene(SceneKind::Fireworks);
  for (const QSize& size :
       {QSize(1, 1), QSize(1, 2), QSize(2, 1), QSize(3, 5), QSize(16, 16), QSize(48, 48), QSize(160, 120),
        QSize(120, 160), QSize(161, 1), QSize(1, 3000), QSize(5000, 2), QSize(1600, 1200)}) {
    ExpectUnit(Describe(scene.scaled(size)),
               std::to_string(size.width()) + " x " + std::to_string(size.height()));
  }
}

TEST(LayoutAnalyser, GivesNothingForANullPicture) {
  EXPECT_TRUE(Describe(QImage()).empty());
}

TEST(LayoutAnalyser, GivesUnitVectorsForPicturesOfOneColour) {
  for (const QColor& colour :
       {QColor(Qt::black), QColor(Qt::white), QColor(128, 128, 128), QColor(127, 127, 127), QColor(Qt::red),
        QColor(Qt::blue), QColor(0, 0, 0, 0)}) {
    ExpectUnit(Describe(Plain({64, 48}, colour)), colour.name().toStdString());
  }
}

TEST(LayoutAnalyser, TellsPicturesOfOneColourByTheColour) {
  EXPECT_GT(Likeness(Plain({64, 48}, Qt::red), Plain({300, 20}, Qt::red)), 0.999);
  EXPECT_GT(Likeness(Plain({64, 48}, Qt::red), Plain({64, 48}, QColor(250, 5, 5))), kSame);
  EXPECT_LT(Likeness(Plain({64, 48}, Qt::red), Plain({64, 48}, Qt::blue)), kSame);
  EXPECT_LT(Likeness(Plain({64, 48}, Qt::black), Plain({64, 48}, Qt::white)), kSame);
  EXPECT_LT(Likeness(Plain({64, 48}, Qt::black), Scene(SceneKind::Fireworks)), kSame);
}

TEST(LayoutAnalyser, FindsDifferentScenesDifferent) {
  const std::vector<QImage> scenes = DifferentScenes();
  for (std::size_t i = 0; i < scenes.size(); ++i) {
    for (std::size_t k = i + 1; k < scenes.size(); ++k) {
      EXPECT_LT(Likeness(scenes[i], scenes[k]), 0.85) << i << ' ' << k;
    }
  }
}

struct Change {
  const char* name;
  std::function<QImage(const QImage&)> apply;
};

QImage Brighter(QImage image, double factor) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      const auto brighter = [factor](int value) { return std::min(255, static_cast<int>(value * factor)); };
      image.setPixel(x, y, qRgb(brighter(qRed(pixel)), brighter(qGreen(pixel)), brighter(qBlue(pixel))));
    }
  }
  return image;
}

QImage Turned(const QImage& image, double degrees) {
  QImage result(image.size(), QImage::Format_RGB32);
  result.fill(Qt::black);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.translate(image.width() / 2.0, image.height() / 2.0);
  painter.rotate(degrees);
  painter.drawImage(QPointF(-image.width() / 2.0, -image.height() / 2.0), image);
  return result;
}

QImage Bordered(const QImage& image, int width, const QColor& colour) {
  QImage result(image.width() + 2 * width, image.height() + 2 * width, QImage::Format_RGB32);
  result.fill(colour);
  QPainter painter(&result);
  painter.drawImage(width, width, image);
  return result;
}

TEST(LayoutAnalyser, FindsChangedPicturesTheSame) {
  const Change changes[] = {
      {"quarter", [](const QImage& p) { return p.scaled(p.size() / 4, {}, Qt::SmoothTransformation); }},
      {"JPEG 30", [](const QImage& p) { return QImage::fromData(Encoded(p, "JPEG", 30)); }},
      {"darker", [](const QImage& p) { return Brighter(p, 0.85); }},
      {"brighter", [](const QImage& p) { return Brighter(p, 1.15); }},
      {"turned right", [](const QImage& p) { return Turned(p, 1.5); }},
      {"turned left", [](const QImage& p) { return Turned(p, -1.5); }},
      {"cropped", [](const QImage& p) { return p.copy(16, 12, p.width() - 32, p.height() - 24); }},
      {"cropped at one corner",
       [](const QImage& p) { return p.copy(0, 0, p.width() - 32, p.height() - 24); }},
      {"white border", [](const QImage& p) { return Bordered(p, 25, Qt::white); }},
      {"black border", [](const QImage& p) { return Bordered(p, 50, Qt::black); }},
  };
  for (const SceneKind kind : {SceneKind::Lake, SceneKind::Beach, SceneKind::City, SceneKind::Houses,
                               SceneKind::Flowers, SceneKind::Roses}) {
    const QImage scene = Scene(kind, 11);
    for (const Change& change : changes) {
      EXPECT_GT(Likeness(scene, change.apply(scene)), kSame) << change.name << ' ' << static_cast<int>(kind);
    }
  }
}

TEST(LayoutAnalyser, FindsTurnedAndMirroredPicturesDifferent) {
  const QImage scene = Scene(SceneKind::Houses, 5);
  EXPECT_LT(Likeness(scene, scene.mirrored(false, true)), kSame);
  EXPECT_LT(Likeness(scene, scene.transformed(QTransform().rotate(90))), kSame);
}

TEST(LayoutAnalyser, DoesNotMindHowThePixelsAreKept) {
  const QImage scene = Scene(SceneKind::ChristmasTree, 2);
  const std::vector<float> expected = Describe(scene);
  for (const QImage::Format format :
       {QImage::Format_RGB888, QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
        QImage::Format_RGBA64, QImage::Format_RGBX64, QImage::Format_BGR30}) {
    EXPECT_GT(Cosine(Describe(scene.convertToFormat(format)), expected), 0.9999) << format;
  }
  EXPECT_GT(Likeness(scene.convertToFormat(QImage::Format_Indexed8), scene), kSame);
  const QImage grey = scene.convertToFormat(QImage::Format_Grayscale8);
  ExpectUnit(Describe(grey), "grey");
  EXPECT_GT(Likeness(grey, scene.convertToFormat(QImage::Format_Grayscale16)), 0.999);
  ExpectUnit(Describe(scene.convertToFormat(QImage::Format_Mono)), "one bit");
}

TEST(LayoutAnalyser, TakesTransparentPartsForWhite) {
  QImage holed = Scene(SceneKind::Roses).convertToFormat(QImage::Format_ARGB32);
  QImage white = holed;
  for (int y = 100; y < 300; ++y) {
    for (int x = 100; x < 300; ++x) {
      holed.setPixelColor(x, y, QColor(0, 0, 0, 0));
      white.setPixelColor(x, y, Qt::white);
    }
  }
  EXPECT_EQ(Describe(holed), Describe(white));
}

TEST(LayoutAnalyser, GivesTheSameBitsAgain) {
  const QImage scene = Scene(SceneKind::Fireworks, 9);
  EXPECT_EQ(Describe(scene), Describe(scene.copy()));
}

/// Stored vectors must stay comparable: whoever changes what comes out raises the version. A picture made of
/// sums, so that nothing but the analyser can change it.
TEST(LayoutAnalyser, GivesWhatThisVersionAlwaysGave) {
  QImage image(160, 120, QImage::Format_RGB32);
  for (int y = 0; y < 120; ++y) {
    for (int x = 0; x < 160; ++x) {
      image.setPixel(x, y, qRgb((x * x / 97 + y) % 256, (y * y / 61 + 2 * x) % 256, (x * y / 83) % 256));
    }
  }
  const std::vector<float> vector = Describe(image);
  ASSERT_EQ(LayoutAnalyser().Version(), 1);
  const std::pair<std::size_t, float> expected[] = {
      {0, -0.1190355F},   {1, -0.0876634F},  {7, 0.2721475F},    {23, -0.0207777F},  {59, 0.0000788F},
      {60, -0.1128239F},  {70, -0.0744809F}, {84, -0.1798521F},  {107, 0.0019287F},  {108, 0.0291316F},
      {130, 0.0228752F},  {160, 0.0438988F}, {200, -0.0456836F}, {251, -0.0143415F}, {252, -0.0079065F},
      {254, -0.0042565F}, {255, 0.0081796F}};
  for (const auto& [index, value] : expected) {
    EXPECT_NEAR(vector[index], value, 1e-5F) << index;
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
