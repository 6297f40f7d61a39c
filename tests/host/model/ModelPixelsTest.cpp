#include "ModelFault.h"
#include "ModelPixels.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QColor>
#include <QImage>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::ElementsAre;
using testing::FloatNear;

constexpr float kClose = 1e-5F;

ModelHead Taking(int channels, int width, int height, ModelHead::Range range = ModelHead::Range::Bytes) {
  ModelHead head;
  head.channels = channels;
  head.width = width;
  head.height = height;
  head.range = range;
  return head;
}

QImage Of(const QSize& size, const QColor& colour) {
  QImage image(size, QImage::Format_ARGB32);
  image.fill(colour);
  return image;
}

TEST(MiddleOf, IsTheLargestPartOfTheShape) {
  struct Case {
    QSize picture;
    QSize wanted;
    QRect middle;
  };
  const Case cases[] = {
      {{300, 200}, {16, 16}, {50, 0, 200, 200}}, {{200, 300}, {16, 16}, {0, 50, 200, 200}},
      {{200, 200}, {16, 16}, {0, 0, 200, 200}},  {{301, 200}, {1, 1}, {50, 0, 200, 200}},
      {{300, 200}, {32, 16}, {0, 25, 300, 150}}, {{300, 200}, {16, 32}, {100, 0, 100, 200}},
      {{5, 5}, {4096, 1}, {0, 2, 5, 1}},         {{1, 1}, {224, 224}, {0, 0, 1, 1}},
      {{100000, 1}, {16, 16}, {49999, 0, 1, 1}}, {{30000, 30000}, {4096, 4095}, {0, 4, 30000, 29992}},
  };
  for (const Case& c : cases) {
    const QRect middle = MiddleOf(c.picture, c.wanted);
    EXPECT_TRUE(middle == c.middle) << middle.x() << ' ' << middle.y() << ' ' << middle.width() << ' '
                                    << middle.height();
  }
}

TEST(ModelPixels, ComeChannelByChannelRowByRow) {
  QImage picture(2, 2, QImage::Format_RGB32);
  picture.setPixel(0, 0, qRgb(1, 11, 21));
  picture.setPixel(1, 0, qRgb(2, 12, 22));
  picture.setPixel(0, 1, qRgb(3, 13, 23));
  picture.setPixel(1, 1, qRgb(4, 14, 24));
  ModelHead head = Taking(3, 2, 2);
  EXPECT_THAT(ModelPixels(picture, head), ElementsAre(1, 2, 3, 4, 11, 12, 13, 14, 21, 22, 23, 24));
  head.blueFirst = true;
  EXPECT_THAT(ModelPixels(picture, head), ElementsAre(21, 22, 23, 24, 11, 12, 13, 14, 1, 2, 3, 4));
}

TEST(ModelPixels, AreInTheRangeThatTheModelWants) {
  const QImage picture = Of({1, 1}, QColor(255, 51, 0));
  using Range = ModelHead::Range;
  const auto pixels = [&](Range range) { return ModelPixels(picture, Taking(3, 1, 1, range)); };
  const auto near = [](float value) { return FloatNear(value, kClose); };
  EXPECT_THAT(pixels(Range::Bytes), ElementsAre(near(255), near(51), near(0)));
  EXPECT_THAT(pixels(Range::ToOne), ElementsAre(near(1), near(0.2F), near(0)));
  EXPECT_THAT(pixels(Range::AroundZero), ElementsAre(near(1), near(-0.6F), near(-1)));
  EXPECT_THAT(pixels(Range::ByMeans), ElementsAre(near(2.2489083F), near(-1.1428571F), near(-1.8044444F)));
  ModelHead blueFirst = Taking(3, 1, 1, Range::ByMeans);
  blueFirst.blueFirst = true;
  EXPECT_THAT(ModelPixels(picture, blueFirst),
              ElementsAre(near(-1.8044444F), near(-1.1428571F), near(2.2489083F)))
      << "each colour has its own mean";
}

TEST(ModelPixels, AreLightForModelsOfOneChannel) {
  const QImage picture = Of({1, 1}, QColor(200, 100, 50));
  const float light = 0.299F * 200 + 0.587F * 100 + 0.114F * 50;
  EXPECT_THAT(ModelPixels(picture, Taking(1, 1, 1)), ElementsAre(FloatNear(light, 1e-3F)));
  EXPECT_THAT(ModelPixels(picture, Taking(1, 1, 1, ModelHead::Range::ByMeans)),
              ElementsAre(FloatNear((light / 255 - 0.449F) / 0.226F, kClose)));
}

TEST(ModelPixels, ShowTheMiddleAtTheModelsSize) {
  // Red bars at the sides of a square of four colours.
  QImage picture = Of({60, 40}, Qt::red);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 40; ++x) {
      picture.setPixel(10 + x, y, qRgb(0, x < 20 ? 100 : 200, y < 20 ? 50 : 150));
    }
  }
  EXPECT_THAT(ModelPixels(picture, Taking(3, 2, 2)),
              ElementsAre(0, 0, 0, 0, 100, 200, 100, 200, 50, 50, 150, 150));
}

TEST(ModelPixels, MakeSmallPicturesLarger) {
  const std::vector<float> pixels = ModelPixels(Of({3, 2}, QColor(9, 8, 7)), Taking(3, 8, 8));
  ASSERT_EQ(pixels.size(), 192U);
  EXPECT_EQ(pixels.front(), 9);
  EXPECT_EQ(pixels.back(), 7);
}

TEST(ModelPixels, AreWhiteWhereThePictureIsTransparent) {
  EXPECT_THAT(ModelPixels(Of({4, 4}, QColor(0, 0, 0, 0)), Taking(3, 1, 1)), ElementsAre(255, 255, 255));
  const QImage grey = Of({4, 4}, QColor(7, 7, 7)).convertToFormat(QImage::Format_Grayscale8);
  EXPECT_THAT(ModelPixels(grey, Taking(3, 1, 1)), ElementsAre(7, 7, 7));
}

TEST(ModelVector, HasTheLengthOne) {
  EXPECT_THAT(ModelVector({3, -4}, 2), ElementsAre(FloatNear(0.6F, kClose), FloatNear(-0.8F, kClose)));
  EXPECT_THAT(ModelVector({-7}, 1), ElementsAre(-1));
  // Neither too large nor too small to be squared.
  EXPECT_THAT(ModelVector({3e38F, 3e38F}, 2), ElementsAre(FloatNear(0.70711F, kClose), testing::Gt(0.7F)));
  EXPECT_THAT(ModelVector({1e-45F}, 1), ElementsAre(1));
}

TEST(ModelVector, IsRefusedWhenItSaysNothing) {
  constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
  constexpr float kInfinite = std::numeric_limits<float>::infinity();
  struct Case {
    std::vector<float> output;
    const char* cause;
  };
  const Case cases[] = {
      {{1, 2, 3}, "the model gives 3 numbers for it instead of 2"},
      {{1}, "the model gives 1 numbers for it instead of 2"},
      {{}, "the model gives 0 numbers for it instead of 2"},
      {{1, kNan}, "the model gives numbers for it that are not finite"},
      {{kInfinite, 0}, "the model gives numbers for it that are not finite"},
      {{0, -kInfinite}, "the model gives numbers for it that are not finite"},
      {{0, -0.0F}, "the model gives nothing but zeros for it"},
  };
  for (const Case& c : cases) {
    try {
      ModelVector(c.output, 2);
      ADD_FAILURE() << "not refused: " << c.cause;
    } catch (const ModelFault& fault) {
      EXPECT_STREQ(fault.what(), c.cause);
    }
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
