#include <host/pixels/DetailMeter.h>

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>

#include <algorithm>

namespace Zenvora::Lumidex::Host {
namespace {

float DetailOf(const QImage& picture) {
  return DetailMeter().Describe(picture).at(0);
}

/// Squares of many sizes, light from 255 * (1 - contrast) / 2 on.
QImage Squares(double contrast) {
  QImage image(256, 256, QImage::Format_RGB32);
  for (int y = 0; y < 256; ++y) {
    for (int x = 0; x < 256; ++x) {
      const bool isLight = ((x * x / 300 + y / 9) % 2) == 0;
      const int grey = static_cast<int>(127.5 + (isLight ? 127.5 : -127.5) * contrast);
      image.setPixelColor(x, y, QColor(grey, grey, grey));
    }
  }
  return image;
}

QImage Blurred(const QImage& image, int factor) {
  return image
      .scaled(image.width() / factor, image.height() / factor, Qt::IgnoreAspectRatio,
              Qt::SmoothTransformation)
      .scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

TEST(DetailMeter, MeasuresLessWhereAPictureIsBlurred) {
  const QImage sharp = Squares(1);
  EXPECT_GT(DetailOf(sharp), DetailOf(Blurred(sharp, 2)) * 1.2F);
  EXPECT_GT(DetailOf(Blurred(sharp, 2)), DetailOf(Blurred(sharp, 4)) * 1.2F);
}

TEST(DetailMeter, MeasuresTheSameAtAnyContrast) {
  const float full = DetailOf(Squares(1));
  EXPECT_NEAR(DetailOf(Squares(0.5)), full, full * 0.02F);
  EXPECT_NEAR(DetailOf(Squares(0.2)), full, full * 0.05F);
}

TEST(DetailMeter, IsAboveNothingForAnyPicture) {
  for (const QSize size : {QSize(1, 1), QSize(2, 2), QSize(3, 300), QSize(64, 64)}) {
    QImage plain(size, QImage::Format_ARGB32);
    plain.fill(Qt::gray);
    EXPECT_GT(DetailOf(plain), 0);
    EXPECT_LT(DetailOf(plain), 0.001F);
  }
  EXPECT_TRUE(DetailMeter().Describe(QImage()).empty());
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
