// Skylines and streets.

#include "SceneTools.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

void PaintTower(Stage& stage, double x, double width, double top, double base, const QColor& wall,
                bool near) {
  QPainter& p = stage.painter;
  const double night = 1 - std::min(1.0, stage.light.day * 1.6);
  QLinearGradient face(x, 0, x + width, 0);
  face.setColorAt(0, Mix(wall, Qt::white, 0.12 * stage.light.day));
  face.setColorAt(1, wall.darker(125));
  p.setPen(Qt::NoPen);
  p.setBrush(face);
  const double crown = stage.dice.Unit();
  p.drawRect(QRectF(x, top, width, base - top));
  if (crown < 0.2) {
    p.drawPolygon(Shape({{x, top + 1}, {x + width / 2, top - width * 0.7}, {x + width, top + 1}}));
  } else if (crown < 0.4) {
    p.drawRect(QRectF(x + width * 0.2, top - width * 0.22, width * 0.6, width * 0.24));
    p.drawRect(QRectF(x + width * 0.48, top - width * 0.8, std::max(1.0, width * 0.04), width * 0.8));
  } else if (crown < 0.52) {
    p.drawEllipse(QRectF(x, top - width * 0.3, width, width * 0.6));
  }
  const double step = near ? 8.5 : 6;
  const double share = near ? 0.5 : 0.4;
  for (double wy = top + 5; wy < base - 5; wy += step * 1.25) {
    for (double wx = x + 3.5; wx < x + width - step * 0.6; wx += step) {
      const double roll = stage.dice.Unit();
      if (night > 0.3 ? roll < share : roll < 0.8) {
        const QColor lamp = stage.dice.Chance(0.16) ? QColor(190, 220, 255) : QColor(255, 206, 120);
        const QColor glass = Mix(Mix(stage.light.middle, wall, 0.45), Qt::white, roll * 0.2);
        p.setBrush(WithAlpha(Mix(glass, lamp, night), 0.5 + 0.45 * roll));
        p.drawRect(QRectF(wx, wy, step * 0.52, step * 0.6));
      }
    }
  }
}

void PaintSkyline(Stage& stage, double base, double highest, bool near) {
  const QColor day = Hsv(stage.dice.Between(200, 240), 0.16, near ? 0.46 : 0.66);
  const double haze = near ? 0.08 : 0.5;
  double x = -stage.dice.Between(0, 20);
  const double centre = stage.dice.Between(0.3, 0.7);
  while (x < stage.w) {
    const double width = stage.w * stage.dice.Between(0.045, near ? 0.11 : 0.085);
    // Taller towards the centre of town.
    const double away = std::abs((x + width / 2) / stage.w - centre);
    const double height =
        highest * (0.3 + 0.7 * std::max(0.0, 1 - away * 1.7)) * stage.dice.Between(0.5, 1.0);
    const QColor tint = Hsv(stage.dice.Between(15, 40), 0.25, 0.6);
    const QColor wall =
        Mix(Lit(stage.light, Mix(day, tint, stage.dice.Between(0, 0.5))), stage.light.horizon, haze);
    PaintTower(stage, x, width, base - height, base, wall, near);
    x += width + (near ? stage.dice.Between(-3, 8) : -1);
  }
}

void PaintBridge(Stage& stage, double level) {
  QPainter& p = stage.painter;
  const QColor steel = Lit(stage.light, QColor(60, 52, 62));
  p.setBrush(Qt::NoBrush);
  const double span = stage.w * 0.5;
  const double first = stage.w * stage.dice.Between(0.1, 0.35);
  const double tall = stage.h * 0.26;
  p.setPen(QPen(steel, 4));
  p.drawLine(QPointF(-5, level), QPointF(stage.w + 5, level));
  for (int i = -1; i < 3; ++i) {
    const double x = first + i * span;
    p.setPen(QPen(steel, 6));
    p.drawLine(QPointF(x, level - tall), QPointF(x, level + stage.h * 0.08));
    p.setPen(QPen(steel, 1.6));
    QPainterPath cable(QPointF(x, level - tall));
    cable.quadTo({x + span / 2, level + tall * 0.86}, {x + span, level - tall});
    p.drawPath(cable);
    p.setPen(QPen(steel, 0.8));
    for (int rod = 1; rod < 16; ++rod) {
      const double t = rod / 16.0;
      const double y = level - tall + 4 * t * (1 - t) * tall * 0.93;
      p.drawLine(QPointF(x + t * span, y), QPointF(x + t * span, level));
    }
  }
  if (stage.light.day < 0.4) {
    for (double x = 8; x < stage.w; x += 26) {
      Glow(p, {x, level - 4}, 9, QColor(255, 214, 140, 230));
    }
  }
}

void PaintFacade(Stage& stage, double x, double width, double top, double base) {
  QPainter& p = stage.painter;
  const double night = 1 - std::min(1.0, stage.light.day * 1.5);
  const QColor paint = Hsv(stage.dice.Pick(std::vector<double>{8, 18, 30, 42, 48, 95, 165, 200, 212, 345}),
                           stage.dice.Between(0.3, 0.62), stage.dice.Between(0.68, 0.94));
  const QColor wall = Lit(stage.light, paint);
  QLinearGradient face(x, top, x, base);
  face.setColorAt(0, Mix(wall, Qt::white, 0.1));
  face.setColorAt(1, wall.darker(118));
  p.setPen(Qt::NoPen);
  p.setBrush(face);
  p.drawRect(QRectF(x, top, width, base - top));
  const QColor tiles = Lit(stage.light, Hsv(stage.dice.Between(6, 22), 0.5, 0.5));
  const QColor trim = Lit(stage.light, QColor(248, 244, 234));
  const double gable = width * stage.dice.Between(0.4, 0.62);
  const int shape = stage.dice.Whole(0, 2);
  QPolygonF roof;
  if (shape == 0) {
    roof << QPointF(x - 2, top) << QPointF(x + width / 2, top - gable) << QPointF(x + width + 2, top);
    p.setBrush(tiles);
  } else if (shape == 1) {
    // Steps, as along old canals.
    p.setBrush(face);
    for (int i = 0; i <= 4; ++i) {
      roof << QPointF(x + width * 0.1 * i, top - gable * i / 4.0)
           << QPointF(x + width * 0.1 * (i + 1), top - gable * i / 4.0);
    }
    for (int i = 4; i >= 0; --i) {
      roof << QPointF(x + width * (1 - 0.1 * (i + 1)), top - gable * i / 4.0)
           << QPointF(x + width * (1 - 0.1 * i), top - gable * i / 4.0);
    }
    roof << QPointF(x + width, top + 1) << QPointF(x, top + 1);
  } else {
    p.setBrush(tiles);
    roof << QPointF(x - 2, top) << QPointF(x + width * 0.1, top - gable * 0.5)
         << QPointF(x + width * 0.9, top - gable * 0.5) << QPointF(x + width + 2, top);
  }
  p.drawPolygon(roof);
  p.setBrush(trim);
  p.drawRect(QRectF(x - 1, top - 2, width + 2, 4));

  const int columns = width > stage.w * 0.13 ? 3 : 2;
  const double floor = (base - top) / stage.dice.Whole(3, 4);
  const double cell = width / columns;
  for (double y = top + floor * 0.22; y + floor * 0.6 < base - floor * 0.7; y += floor) {
    for (int c = 0; c < columns; ++c) {
      const QRectF pane(x + cell * (c + 0.26), y, cell * 0.48, floor * 0.56);
      p.setBrush(trim);
      p.drawRect(pane.adjusted(-1.6, -1.6, 1.6, 1.6));
      const bool lamp = stage.dice.Chance(0.2 + 0.4 * night);
      const QColor glass =
          Mix(Lit(stage.light, QColor(70, 92, 116)), stage.light.middle, stage.dice.Between(0.1, 0.5));
      p.setBrush(lamp && night > 0.2 ? QColor(255, 210, 122) : glass);
      p.drawRect(pane);
      p.setBrush(trim);
      p.drawRect(QRectF(pane.center().x() - 0.7, pane.top(), 1.4, pane.height()));
      p.drawRect(QRectF(pane.left(), pane.top() + pane.height() * 0.4, pane.width(), 1.4));
      if (stage.dice.Chance(0.3)) {
        // A window box.
        for (int f = 0; f < 6; ++f) {
          p.setBrush(Lit(stage.light, stage.dice.Chance(0.5) ? QColor(206, 50, 70) : QColor(70, 130, 60)));
          p.drawEllipse(QPointF(pane.left() + pane.width() * f / 5.0, pane.bottom() + 2), 2.4, 2.2);
        }
      }
      if (lamp && night > 0.3) {
        Glow(p, pane.center(), cell * 0.6, QColor(255, 200, 110, 90));
      }
    }
  }
  const double door = x + cell * stage.dice.Whole(0, columns - 1) + cell * 0.22;
  p.setBrush(trim);
  p.drawRect(QRectF(door - 2, base - floor * 0.68, cell * 0.56 + 4, floor * 0.68));
  p.setBrush(Lit(stage.light, Hsv(stage.dice.Between(0, 360), 0.5, 0.36)));
  p.drawRect(QRectF(door, base - floor * 0.64, cell * 0.56, floor * 0.64));
}

}  // namespace

void PaintCity(Stage& stage) {
  const double shore = stage.h * stage.dice.Between(0.66, 0.76);
  PaintSky(stage, shore, stage.dice.Between(0.2, 0.42));
  Glow(stage.painter, {stage.w / 2, shore}, stage.w * 0.6, WithAlpha(stage.light.horizon, 0.45));
  PaintSkyline(stage, shore, stage.h * 0.56, false);
  PaintSkyline(stage, shore, stage.h * stage.dice.Between(0.36, 0.5), true);
  if (stage.dice.Chance(0.4)) {
    PaintBridge(stage, shore - stage.h * 0.03);
  }
  PaintMirror(stage, shore, stage.h, Lit(stage.light, QColor(40, 66, 96)), 0.72);
}

void PaintHouses(Stage& stage) {
  const double base = stage.h * stage.dice.Between(0.68, 0.78);
  PaintSky(stage, base, stage.dice.Between(0.3, 0.5));
  double x = -stage.w * stage.dice.Between(0, 0.08);
  while (x < stage.w) {
    const double width = stage.w * stage.dice.Between(0.11, 0.19);
    PaintFacade(stage, x, width, stage.h * stage.dice.Between(0.22, 0.36), base);
    x += width;
  }
  QPainter& p = stage.painter;
  p.setPen(Qt::NoPen);
  p.setBrush(Lit(stage.light, QColor(112, 104, 98)));
  p.drawRect(QRectF(0, base, stage.w, stage.h * 0.035));
  p.setBrush(Lit(stage.light, QColor(150, 142, 132)));
  p.drawRect(QRectF(0, base - 1, stage.w, stage.h * 0.012));
  for (int i = 0; i < 3; ++i) {
    const double at = stage.w * (0.12 + 0.36 * i + stage.dice.Between(-0.06, 0.06));
    const double size = stage.h * stage.dice.Between(0.2, 0.27);
    if (stage.month == 12 || stage.month <= 2) {
      p.setPen(QPen(Lit(stage.light, QColor(50, 46, 50)), 3));
      p.drawLine(QPointF(at, base), QPointF(at, base - size));
      Glow(p, {at, base - size}, 26 + 30 * (1 - stage.light.day), QColor(255, 216, 150, 220));
    } else {
      const double hue = stage.month >= 9 ? stage.dice.Between(20, 46) : stage.dice.Between(84, 112);
      PaintLeafTree(p, stage.dice, at, base, size, Lit(stage.light, Hsv(hue, 0.6, 0.56)),
                    Lit(stage.light, QColor(80, 60, 46)));
    }
  }
  const double quay = base + stage.h * 0.035;
  PaintMirror(stage, quay, stage.h, Lit(stage.light, QColor(50, 78, 86)), 0.66);
  if (stage.dice.Chance(0.7)) {
    const double at = stage.w * stage.dice.Between(0.25, 0.75);
    const double y = quay + (stage.h - quay) * 0.55;
    const double size = stage.w * 0.13;
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(10, 20, 30, 90));
    p.drawEllipse(QPointF(at, y + size * 0.2), size * 1.05, size * 0.1);
    p.setBrush(Lit(stage.light, Hsv(stage.dice.Between(0, 360), 0.6, 0.6)));
    p.drawPolygon(Shape({{at - size, y - size * 0.08},
                         {at + size * 1.08, y - size * 0.12},
                         {at + size * 0.86, y + size * 0.2},
                         {at - size * 0.88, y + size * 0.2}}));
    p.setBrush(Lit(stage.light, QColor(246, 240, 226)));
    p.drawPolygon(Shape({{at - size, y - size * 0.08},
                         {at + size * 1.08, y - size * 0.12},
                         {at + size * 1.05, y - size * 0.03},
                         {at - size * 0.98, y}}));
    p.drawRoundedRect(QRectF(at - size * 0.5, y - size * 0.36, size * 0.74, size * 0.28), 3, 3);
    p.setBrush(Lit(stage.light, QColor(60, 84, 104)));
    p.drawRect(QRectF(at - size * 0.42, y - size * 0.3, size * 0.24, size * 0.14));
    p.drawRect(QRectF(at - size * 0.1, y - size * 0.3, size * 0.24, size * 0.14));
  }
}

}  // namespace Zenvora::Lumidex::Host
