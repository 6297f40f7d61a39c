// Streets, tables and people.

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

/// A figure in back light, from head to shoes `size` tall. `gesture` 0: arms down, 1: arms up, 2: one hand on
/// the hip.
void PaintFigure(Stage& stage, const QPointF& foot, double size, int gesture, bool skirt,
                 const QColor& tone) {
  QPainter& p = stage.painter;
  const auto at = [&](double x, double y) { return foot + QPointF(x * size, -y * size); };
  const double lean = stage.dice.Between(-0.015, 0.015);
  p.setPen(Qt::NoPen);
  p.setBrush(tone);
  p.drawEllipse(at(lean, 0.925), size * 0.058, size * 0.068);
  if (skirt) {
    // Long hair.
    p.drawEllipse(at(lean - 0.01, 0.885), size * 0.064, size * 0.092);
  }
  QPainterPath body(at(-0.025 + lean, 0.87));
  body.lineTo(at(0.025 + lean, 0.87));
  body.cubicTo(at(0.06, 0.83), at(0.115, 0.83), at(0.115, 0.77));
  body.cubicTo(at(0.09, 0.66), at(0.07, 0.6), at(skirt ? 0.08 : 0.085, 0.5));
  if (skirt) {
    body.lineTo(at(0.17, 0.28));
    body.lineTo(at(-0.17, 0.28));
  }
  body.lineTo(at(-0.085, 0.5));
  body.cubicTo(at(-0.07, 0.6), at(-0.09, 0.66), at(-0.115, 0.77));
  body.cubicTo(at(-0.115, 0.83), at(-0.06, 0.83), at(-0.025 + lean, 0.87));
  p.drawPath(body);
  const auto limb = [&](const std::vector<QPointF>& joints, double thick) {
    p.setPen(QPen(tone, thick * size, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    QPolygonF line;
    for (const QPointF& joint : joints) {
      line << joint;
    }
    p.drawPolyline(line);
  };
  const double stride = stage.dice.Between(0.045, 0.085);
  limb({at(-0.045, 0.5), at(-stride - 0.005, 0.26), at(-stride, 0.015)}, skirt ? 0.05 : 0.072);
  limb({at(0.045, 0.5), at(stride + 0.008, 0.26), at(stride, 0.015)}, skirt ? 0.05 : 0.072);
  if (gesture == 1) {
    limb({at(-0.095, 0.785), at(-0.19, 0.9), at(-0.17, 1.06)}, 0.045);
    limb({at(0.095, 0.785), at(0.185, 0.9), at(0.2, 1.05)}, 0.045);
  } else if (gesture == 2) {
    limb({at(-0.095, 0.785), at(-0.185, 0.66), at(-0.08, 0.55)}, 0.045);
    limb({at(0.095, 0.785), at(0.135, 0.64), at(0.15, 0.49)}, 0.045);
  } else {
    limb({at(-0.095, 0.785), at(-0.135, 0.64), at(-0.13, 0.49)}, 0.045);
    limb({at(0.095, 0.785), at(0.135, 0.64), at(0.13, 0.49)}, 0.045);
  }
}

void PaintDog(Stage& stage, const QPointF& foot, double size, const QColor& tone) {
  QPainter& p = stage.painter;
  const auto at = [&](double x, double y) { return foot + QPointF(x * size, -y * size); };
  p.setPen(QPen(tone, size * 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  for (const double leg : {-0.42, -0.3, 0.28, 0.4}) {
    p.drawLine(at(leg, 0.45), at(leg * 1.05, 0.03));
  }
  p.drawLine(at(-0.45, 0.55), at(-0.68, 0.86));
  p.setPen(QPen(tone, size * 0.3, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(at(-0.36, 0.52), at(0.34, 0.55));
  p.setPen(Qt::NoPen);
  p.setBrush(tone);
  p.drawEllipse(at(0.52, 0.82), size * 0.17, size * 0.15);
  p.drawEllipse(at(0.68, 0.77), size * 0.14, size * 0.085);
  p.drawPolygon(Shape({at(0.4, 0.9), at(0.44, 1.1), at(0.55, 0.93)}));
  p.setPen(QPen(tone, size * 0.2, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(at(0.38, 0.6), at(0.48, 0.78));
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

void PaintCoffee(Stage& stage) {
  stage.light = LightOf(std::clamp(stage.hour, 8.0, 17.0));
  QPainter& p = stage.painter;
  // A table of planks, seen from above.
  const Noise grain(stage.dice.Number());
  const QColor wood =
      Hsv(stage.dice.Between(20, 34), stage.dice.Between(0.35, 0.55), stage.dice.Between(0.5, 0.72));
  const double plank = stage.h / stage.dice.Whole(4, 5);
  for (int y = 0; y < stage.image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(stage.image.scanLine(y));
    const int board = static_cast<int>(y / plank);
    const double seam = std::min(1.0, std::fmod(y, plank) / 3.5);
    for (int x = 0; x < stage.image.width(); ++x) {
      const double wave = grain.Layers(x * 0.004 + board * 31, y * 0.012, 2) * 9;
      const double vein = grain.Layers(x * 0.006 + board * 31, y * 0.16 + wave, 3);
      const double tone = (0.74 + 0.34 * vein + 0.06 * ((board * 7) % 3)) * (0.55 + 0.45 * seam);
      line[x] = qRgb(std::min(255, static_cast<int>(wood.red() * tone)),
                     std::min(255, static_cast<int>(wood.green() * tone)),
                     std::min(255, static_cast<int>(wood.blue() * tone)));
    }
  }
  const double unit = std::min(stage.w, stage.h);
  const QPointF cup(stage.w * stage.dice.Between(0.38, 0.62), stage.h * stage.dice.Between(0.45, 0.55));
  const auto disc = [&](const QPointF& at, double radius, const QColor& colour) {
    Glow(p, at + QPointF(radius * 0.1, radius * 0.14), radius * 1.5, QColor(30, 14, 4, 170), false);
    QRadialGradient glaze(at, radius, at - QPointF(radius * 0.3, radius * 0.35));
    glaze.setColorAt(0, Mix(colour, Qt::white, 0.5));
    glaze.setColorAt(0.9, colour);
    glaze.setColorAt(1, colour.darker(118));
    p.setPen(Qt::NoPen);
    p.setBrush(glaze);
    p.drawEllipse(at, radius, radius);
  };
  const QColor china =
      Hsv(stage.dice.Pick(std::vector<double>{30, 200, 160, 40, 350}), stage.dice.Between(0.02, 0.28), 0.95);
  // A plate with biscuits or a croissant's worth of crumbs.
  const QPointF plate(cup.x() < stage.w / 2 ? stage.w * 0.88 : stage.w * 0.12,
                      stage.h * stage.dice.Between(0.12, 0.3));
  disc(plate, unit * 0.25, QColor(244, 240, 232));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0, 0, 0, 28), 1.5));
  p.drawEllipse(plate, unit * 0.18, unit * 0.18);
  for (int i = 0; i < 3; ++i) {
    const double angle = i * 2.1 + stage.dice.Unit();
    const QPointF at = plate + QPointF(std::cos(angle), std::sin(angle)) * unit * 0.085;
    Glow(p, at + QPointF(2, 3), unit * 0.1, QColor(60, 30, 10, 120), false);
    Ball(p, at, unit * 0.066, QColor(206, 150, 84));
    p.setBrush(QColor(74, 40, 22));
    for (int chip = 0; chip < 7; ++chip) {
      p.drawEllipse(at + QPointF(stage.dice.Between(-0.04, 0.04), stage.dice.Between(-0.04, 0.04)) * unit,
                    unit * 0.009, unit * 0.008);
    }
  }
  disc(cup, unit * 0.36, china);
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(0, 0, 0, 22), 2));
  p.drawEllipse(cup, unit * 0.27, unit * 0.27);
  p.save();
  p.translate(cup);
  p.rotate(stage.dice.Between(-60, 60));
  const QRectF handle(unit * 0.19, -unit * 0.065, unit * 0.14, unit * 0.13);
  p.setPen(QPen(QColor(40, 20, 8, 70), unit * 0.05, Qt::SolidLine, Qt::RoundCap));
  p.drawArc(handle.translated(unit * 0.008, unit * 0.012), -120 * 16, 240 * 16);
  p.setPen(QPen(Mix(china, Qt::white, 0.5), unit * 0.038, Qt::SolidLine, Qt::RoundCap));
  p.drawArc(handle, -120 * 16, 240 * 16);
  p.restore();
  disc(cup, unit * 0.225, china);
  QRadialGradient coffee(cup, unit * 0.195);
  coffee.setColorAt(0, QColor(176, 116, 66));
  coffee.setColorAt(0.8, QColor(132, 78, 40));
  coffee.setColorAt(1, QColor(70, 36, 16));
  p.setPen(Qt::NoPen);
  p.setBrush(coffee);
  p.drawEllipse(cup, unit * 0.195, unit * 0.195);
  // Milk in the shape of a leaf or a heart.
  p.save();
  p.translate(cup);
  p.rotate(stage.dice.Between(-40, 40));
  p.setBrush(QColor(246, 228, 200, 235));
  const double s = unit * 0.15;
  if (stage.dice.Chance(0.5)) {
    for (int i = 0; i < 5; ++i) {
      const double y = s * (0.62 - 0.34 * i);
      const double half = s * (0.78 - 0.12 * i);
      QPainterPath leaf(QPointF(0, y));
      leaf.cubicTo({-half * 0.5, y - s * 0.02}, {-half, y - s * 0.3}, {-half * 0.9, y - s * 0.42});
      leaf.cubicTo({-half * 0.6, y - s * 0.1}, {-half * 0.2, y - s * 0.14}, {0, y - s * 0.16});
      leaf.cubicTo({half * 0.2, y - s * 0.14}, {half * 0.6, y - s * 0.1}, {half * 0.9, y - s * 0.42});
      leaf.cubicTo({half, y - s * 0.3}, {half * 0.5, y - s * 0.02}, {0, y});
      p.drawPath(leaf);
    }
    p.drawEllipse(QPointF(0, s * 0.7), s * 0.1, s * 0.16);
  } else {
    QPainterPath heart(QPointF(0, s * 0.85));
    heart.cubicTo({-s * 1.25, 0}, {-s * 0.75, -s * 1.05}, {0, -s * 0.35});
    heart.cubicTo({s * 0.75, -s * 1.05}, {s * 1.25, 0}, {0, s * 0.85});
    p.drawPath(heart);
  }
  p.restore();
  // Light falls in from a window.
  QLinearGradient window(0, 0, stage.w, stage.h);
  window.setColorAt(0, QColor(255, 246, 220, 74));
  window.setColorAt(0.5, QColor(255, 246, 220, 0));
  window.setColorAt(1, QColor(20, 8, 0, 90));
  p.fillRect(QRectF(0, 0, stage.w, stage.h), window);
}

void PaintPeople(Stage& stage) {
  const double horizon = stage.h * stage.dice.Between(0.6, 0.68);
  // Faces are not drawn: the company stands against the light.
  stage.light =
      LightOf(stage.hour < 12 ? std::clamp(stage.hour, 6.0, 7.4) : std::clamp(stage.hour, 18.0, 20.4));
  stage.hour = std::clamp(stage.hour, 6.0, 20.4);
  const QPointF sun = PaintSky(stage, horizon, stage.dice.Between(0.3, 0.5));
  QPainter& p = stage.painter;
  const QColor tone = Mix(Lit(stage.light, QColor(40, 26, 40)), QColor(16, 10, 24), 0.75);
  if (stage.dice.Chance(0.5)) {
    const QColor sea = Mix(stage.light.zenith, stage.light.horizon, 0.35);
    FillDown(stage, horizon, stage.h, Mix(stage.light.horizon, sea, 0.4), sea.darker(150));
    PaintMirror(stage, horizon, stage.h * 0.88, sea.darker(130), 0.7);
  } else {
    for (int layer = 0; layer < 3; ++layer) {
      const Noise noise(stage.dice.Number());
      const QColor hill = Mix(stage.light.horizon, tone, 0.3 + 0.25 * layer);
      PaintLand(
          stage,
          [&](double x) {
            return horizon - stage.h * (0.09 - 0.06 * layer) * noise.Layers(x / stage.w * 3, 0, 3);
          },
          hill, hill);
    }
  }
  const Noise ground(stage.dice.Number());
  const auto floor = [&](double x) {
    return stage.h * (0.87 + 0.05 * (ground.Layers(x / stage.w * 2, 0, 3) - 0.5));
  };
  PaintLand(stage, floor, Mix(tone, stage.light.horizon, 0.12), tone.darker(130));
  p.setPen(QPen(tone, 1.4));
  for (int i = 0; i < 150; ++i) {
    const double x = stage.dice.Unit() * stage.w;
    p.drawLine(QPointF(x, floor(x) + 2),
               QPointF(x + stage.dice.Between(-4, 4), floor(x) - stage.dice.Between(2, 10)));
  }
  const int people = stage.dice.Whole(2, 6);
  const double middle = stage.w * stage.dice.Between(0.4, 0.6);
  for (int i = 0; i < people; ++i) {
    const double x = middle + (i - (people - 1) / 2.0) * stage.w * 0.115 + stage.dice.Between(-5, 5);
    const bool child = people > 2 && stage.dice.Chance(0.3);
    const double size =
        std::min(stage.h * 0.42, stage.w * 0.5) * (child ? 0.6 : stage.dice.Between(0.9, 1.06));
    PaintFigure(stage, {x, floor(x) + 4}, size, stage.dice.Whole(0, 2), stage.dice.Chance(0.45), tone);
  }
  if (stage.dice.Chance(0.4)) {
    const double x = middle + (people + 0.6) / 2.0 * stage.w * 0.115;
    PaintDog(stage, {x, floor(x) + 3}, stage.h * 0.13, tone);
  }
  // The light spills over the edges of the figures.
  Glow(p, sun, stage.h * 0.5, WithAlpha(QColor(255, 190, 120), 0.45));
}

}  // namespace Zenvora::Lumidex::Host
