#include "Pictures.h"
#include "PlainBars.h"

#include <gtest/gtest.h>

#include <QPainter>

#include <ostream>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using TestPictures::Plain;
using TestPictures::Scene;

/// A picture of 120 x 90 with strips around it.
QImage Framed(const QImage& picture, int left, int top, int right, int bottom, const QColor& colour) {
  QImage result(picture.width() + left + right, picture.height() + top + bottom, QImage::Format_RGB32);
  result.fill(colour);
  QPainter painter(&result);
  painter.drawImage(left, top, picture);
  return result;
}

/// Colours everywhere, so that no edge of it is plain.
QImage Picture() {
  return Scene(SceneKind::Flowers, 3, {120, 90});
}

/// Whether the rectangles are the same up to the pixel or two that an edge may cost.
bool IsNearly(const QRect& found, const QRect& expected) {
  return expected.contains(found) && found.left() - expected.left() <= 2 &&
         found.top() - expected.top() <= 2 && expected.right() - found.right() <= 2 &&
         expected.bottom() - found.bottom() <= 2;
}

TEST(WithinPlainBars, CutsBordersAndBarsOfAnyColour) {
  struct Case {
    int left, top, right, bottom;
    QColor colour;
  };
  const Case cases[] = {
      {6, 6, 6, 6, Qt::white},        {10, 10, 10, 10, Qt::black}, {0, 15, 0, 15, Qt::black},
      {20, 0, 20, 0, Qt::black},      {3, 3, 3, 3, Qt::red},       {0, 0, 0, 14, QColor(90, 120, 90)},
      {12, 0, 0, 0, QColor(1, 2, 3)}, {4, 8, 12, 16, Qt::white},
  };
  for (const Case& c : cases) {
    const QImage framed = Framed(Picture(), c.left, c.top, c.right, c.bottom, c.colour);
    const QRect found = WithinPlainBars(framed);
    EXPECT_TRUE(IsNearly(found, QRect(c.left, c.top, 120, 90)))
        << c.left << ' ' << c.top << ": " << found.x() << ' ' << found.y() << ' ' << found.width() << ' '
        << found.height();
  }
}

TEST(WithinPlainBars, CutsCaptionsWithText) {
  QImage captioned = Framed(Picture(), 0, 0, 0, 16, Qt::white);
  QPainter painter(&captioned);
  painter.setPen(Qt::black);
  for (int x = 10; x < 70; x += 5) {
    painter.drawLine(x, 96, x + 2, 101);
  }
  painter.end();
  EXPECT_TRUE(IsNearly(WithinPlainBars(captioned), QRect(0, 0, 120, 90)));
}

TEST(WithinPlainBars, CutsBarsInBorders) {
  const QImage twice = Framed(Framed(Picture(), 0, 8, 0, 8, Qt::black), 6, 6, 6, 6, Qt::white);
  EXPECT_TRUE(IsNearly(WithinPlainBars(twice), QRect(6, 14, 120, 90)));
}

TEST(WithinPlainBars, LeavesWhatIsNoBar) {
  QImage sky = Plain({100, 80}, Qt::white);
  QPainter painter(&sky);
  // A skyline that rises little by little: no straight edge.
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::black);
  painter.drawPolygon(QPolygon({{0, 80}, {0, 40}, {100, 10}, {100, 80}}));
  painter.end();
  QImage dots = Plain({100, 80}, Qt::white);
  dots.setPixel(50, 40, qRgb(0, 0, 0));
  QImage fading(100, 80, QImage::Format_RGB32);
  for (int y = 0; y < 80; ++y) {
    for (int x = 0; x < 100; ++x) {
      fading.setPixel(x, y, qRgb(3 * y, 3 * y, 255));
    }
  }
  for (const QImage& image : {Picture(), sky, dots, fading, Plain({100, 80}, Qt::red), Plain({1, 1}, Qt::red),
                              Plain({1, 100}, Qt::red), Plain({160, 3}, Qt::red)}) {
    EXPECT_TRUE(WithinPlainBars(image) == image.rect()) << image.width() << " x " << image.height();
  }
}

TEST(WithinPlainBars, LeavesTwoFifthsAndBarsThatAreTooWide) {
  const QImage tooWide = Framed(Picture(), 0, 0, 0, 60, Qt::white);
  EXPECT_TRUE(WithinPlainBars(tooWide) == tooWide.rect());
  const QImage deep = Framed(Framed(Picture(), 0, 30, 0, 30, Qt::black), 0, 50, 0, 50, Qt::white);
  EXPECT_GE(WithinPlainBars(deep).height(), deep.height() * 2 / 5);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
