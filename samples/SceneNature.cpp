// Water, sand and meadows.

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

constexpr double kPi = 3.14159265358979323846;

bool IsWinter(int month) {
  return month == 12 || month <= 2;
}
/// Rock and snow in relief below the ridge `outline`, down to `bottom`.
void PaintRock(Stage& stage, const std::vector<double>& outline, double bottom, const QColor& rock,
               double snowLine, double haze) {
  const Noise relief(stage.dice.Number());
  const QRgb lit = Lit(stage.light, Mix(rock, QColor(255, 226, 190), 0.3)).rgb();
  const QRgb dark = Lit(stage.light, Mix(rock.darker(190), QColor(36, 46, 92), 0.4)).rgb();
  const QRgb snowLit =
      Lit(stage.light, Mix(QColor(252, 252, 255), QColor(255, 206, 176), stage.light.evening)).rgb();
  const QRgb snowDark = Lit(stage.light, QColor(150, 170, 212)).rgb();
  const QRgb air = Mix(stage.light.horizon, stage.light.middle, 0.45).rgb();
  for (int x = 0; x < stage.image.width(); ++x) {
    const double ridge = outline[static_cast<std::size_t>(x)];
    const int last = std::min(stage.image.height(), static_cast<int>(bottom));
    for (int y = std::max(0, static_cast<int>(ridge)); y < last; ++y) {
      const double below = y - ridge;
      // Gullies run down from the ridge.
      const double u = x * 0.028 + below * 0.006;
      const double v = y * 0.017;
      const double here = relief.Layers(u, v, 3);
      const double beside = relief.Layers(u - 0.07, v - 0.05, 3);
      const double slope = std::clamp(0.5 + (here - beside) * 5, 0.0, 1.0);
      const double edge = snowLine + (here - 0.5) * stage.h * 0.34;
      const double snow = std::clamp((edge - y) / 7.0, 0.0, 1.0) * std::clamp(0.35 + slope * 1.2, 0.0, 1.0);
      QRgb colour = MixPixels(MixPixels(dark, lit, slope), MixPixels(snowDark, snowLit, slope), snow);
      colour = MixPixels(colour, air, std::clamp(haze + below / stage.h * 0.5, 0.0, 0.85));
      auto& pixel = reinterpret_cast<QRgb*>(stage.image.scanLine(y))[x];
      pixel = below < 1 ? MixPixels(pixel, colour, std::min(1.0, below)) : colour;
    }
  }
}

std::vector<double> Ridge(Stage& stage, double top, double height, double scale) {
  const Noise noise(stage.dice.Number());
  std::vector<double> outline(static_cast<std::size_t>(stage.image.width()));
  for (std::size_t x = 0; x < outline.size(); ++x) {
    double sum = 0;
    double share = 0.5;
    double at = static_cast<double>(x) / stage.w * scale;
    for (int octave = 0; octave < 6; ++octave) {
      // Folded noise has sharp crests.
      const double fold = 1 - std::abs(2 * noise.At(at, octave * 7.7) - 1);
      sum += share * (octave < 3 ? fold : noise.At(at, octave));
      share *= 0.46;
      at *= 2.1;
    }
    outline[x] = top + height * (1 - sum);
  }
  return outline;
}

void PaintPeaks(Stage& stage, double foot) {
  const bool cold = IsWinter(stage.month) || stage.dice.Chance(0.5);
  for (int layer = 0; layer < 3; ++layer) {
    const double top = foot * (0.2 + 0.2 * layer + stage.dice.Between(-0.05, 0.05));
    const auto outline = Ridge(stage, top, (foot - top) * 1.15, stage.dice.Between(2.2, 3.6) + layer * 0.6);
    const QColor rock = Hsv(stage.dice.Between(200, 260), 0.14, 0.46 - 0.05 * layer);
    const double snow = cold ? foot * (0.75 - 0.14 * layer) : foot * (0.5 - 0.16 * layer);
    PaintRock(stage, outline, foot, rock, snow, 0.5 - 0.2 * layer);
  }
}

void PaintConiferBand(Stage& stage, double base, double size, int count, double haze) {
  const QColor green = Lit(stage.light, IsWinter(stage.month) ? QColor(38, 66, 62) : QColor(30, 70, 48));
  const QColor colour = Mix(green, stage.light.horizon, haze);
  for (int i = 0; i < count; ++i) {
    const double x = (i + stage.dice.Unit()) / count * stage.w;
    PaintConifer(stage.painter, stage.dice, x, base + stage.dice.Between(-0.1, 0.14) * size,
                 size * stage.dice.Between(0.55, 1.15), colour,
                 IsWinter(stage.month) ? 0.6 * stage.light.day : 0);
  }
}

void PaintPalm(Stage& stage, const QPointF& foot, double height) {
  QPainter& p = stage.painter;
  const QColor wood = Lit(stage.light, QColor(104, 78, 54));
  const QColor leaf = Lit(stage.light, QColor(44, 110, 58));
  const double lean = stage.dice.Between(0.12, 0.3) * (foot.x() < stage.w / 2 ? 1 : -1);
  const QPointF crown = foot + QPointF(lean * height, -height);
  QPainterPath trunk(foot - QPointF(height * 0.03, 0));
  trunk.quadTo(foot + QPointF(lean * height * 0.15, -height * 0.55), crown);
  trunk.quadTo(foot + QPointF(lean * height * 0.15 + height * 0.05, -height * 0.5),
               foot + QPointF(height * 0.035, 0));
  p.setPen(Qt::NoPen);
  p.setBrush(wood);
  p.drawPath(trunk);
  for (int i = 0; i < 11; ++i) {
    const double angle = kPi * (1.08 + 1.84 * i / 10.0) + stage.dice.Between(-0.1, 0.1);
    const double reach = height * stage.dice.Between(0.36, 0.5);
    const QPointF tip =
        crown + QPointF(std::cos(angle) * reach, std::sin(angle) * reach * 0.55 + reach * 0.32);
    const QPointF rise =
        crown + QPointF(std::cos(angle) * reach * 0.5, std::sin(angle) * reach * 0.6 - reach * 0.1);
    QPainterPath frond(crown);
    frond.quadTo(rise + QPointF(0, -reach * 0.07), tip);
    frond.quadTo(rise + QPointF(0, reach * 0.1), crown);
    p.setBrush(Mix(leaf, stage.dice.Chance(0.5) ? QColor(160, 190, 80) : QColor(10, 40, 30), 0.25));
    p.drawPath(frond);
  }
}

void PaintParasol(Stage& stage, const QPointF& foot, double size) {
  QPainter& p = stage.painter;
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(60, 40, 20, 60));
  p.drawEllipse(foot + QPointF(size * 0.3, size * 0.03), size * 0.55, size * 0.09);
  p.setPen(QPen(Lit(stage.light, QColor(240, 234, 220)), size * 0.035));
  p.drawLine(foot, foot + QPointF(0, -size));
  p.setPen(Qt::NoPen);
  const QColor cloth =
      Lit(stage.light, Hsv(stage.dice.Pick(std::vector<double>{2, 42, 190, 210, 340}), 0.7, 0.92));
  const QRectF dome(foot.x() - size * 0.62, foot.y() - size * 1.22, size * 1.24, size * 0.84);
  for (int i = 0; i < 6; ++i) {
    const double inset = size * 0.62 * i / 6.0 * 1.02;
    p.setBrush(i % 2 == 0 ? cloth : Lit(stage.light, QColor(250, 246, 236)));
    p.drawChord(dome.adjusted(inset, 0, -inset, 0), 0, 180 * 16);
  }
  const QColor towel = Lit(stage.light, Hsv(stage.dice.Between(0, 360), 0.5, 0.9));
  p.setBrush(towel);
  p.drawPolygon(Shape({{foot.x() + size * 0.25, foot.y() + size * 0.02},
                       {foot.x() + size * 0.85, foot.y() + size * 0.02},
                       {foot.x() + size * 1.0, foot.y() + size * 0.16},
                       {foot.x() + size * 0.32, foot.y() + size * 0.16}}));
}

void PaintSail(Stage& stage, double horizon) {
  QPainter& p = stage.painter;
  const double size = stage.h * stage.dice.Between(0.06, 0.13);
  const QPointF at(stage.w * stage.dice.Between(0.15, 0.85), horizon + size * 0.22);
  p.setPen(Qt::NoPen);
  p.setBrush(Lit(stage.light, QColor(252, 250, 244)));
  p.drawPolygon(
      Shape({at + QPointF(0, -size), at + QPointF(0, -size * 0.12), at + QPointF(size * 0.5, -size * 0.12)}));
  p.drawPolygon(Shape({at + QPointF(-size * 0.05, -size * 0.8), at + QPointF(-size * 0.05, -size * 0.12),
                       at + QPointF(-size * 0.32, -size * 0.12)}));
  p.setBrush(Lit(stage.light, QColor(130, 50, 44)));
  p.drawPolygon(Shape({at + QPointF(-size * 0.42, -size * 0.08), at + QPointF(size * 0.56, -size * 0.08),
                       at + QPointF(size * 0.36, size * 0.06), at + QPointF(-size * 0.3, size * 0.06)}));
}

void PaintSea(Stage& stage, double horizon, double shore, const QPointF& sun) {
  QPainter& p = stage.painter;
  const QColor far = Mix(Lit(stage.light, QColor(60, 130, 180)), stage.light.horizon, 0.45);
  const QColor near = Lit(stage.light, QColor(44, 160, 170));
  FillDown(stage, horizon, shore, far, near);
  p.setPen(Qt::NoPen);
  for (int i = 0; i < 420; ++i) {
    const double depth = std::pow(stage.dice.Unit(), 1.5);
    const double y = horizon + depth * (shore - horizon);
    const bool bright = stage.dice.Chance(0.5);
    p.setBrush(WithAlpha(bright ? Mix(stage.light.horizon, Qt::white, 0.5) : far.darker(150),
                         stage.dice.Between(0.05, 0.22)));
    p.drawEllipse(QPointF(stage.dice.Unit() * stage.w, y), 3 + 34 * depth, 0.4 + 1.5 * depth);
  }
  // The sun's path of glitter.
  p.save();
  p.setCompositionMode(QPainter::CompositionMode_Screen);
  for (int i = 0; i < 150; ++i) {
    const double depth = stage.dice.Unit();
    const double spread = (0.02 + 0.1 * depth) * stage.w;
    p.setBrush(
        WithAlpha(Mix(stage.light.horizon, QColor(255, 244, 214), 0.6), stage.dice.Between(0.12, 0.6)));
    p.drawEllipse(
        QPointF(sun.x() + stage.dice.Between(-spread, spread), horizon + 1 + depth * (shore - horizon)),
        2 + 12 * depth, 0.5 + 1.2 * depth);
  }
  p.restore();
}

void PaintSand(Stage& stage, double shore) {
  const Noise curve(stage.dice.Number());
  const auto edge = [&](double rise) {
    return [=](double x) {
      return shore + rise + (curve.Layers(x / stage.w * 2.2, 0, 2) - 0.5) * stage.h * 0.12;
    };
  };
  const QColor sand = Lit(stage.light, QColor(236, 212, 164));
  PaintLand(stage, edge(-stage.h * 0.02), WithAlpha(QColor(255, 255, 255), 0.85),
            Lit(stage.light, QColor(120, 200, 196)));
  PaintLand(stage, edge(stage.h * 0.005), Lit(stage.light, QColor(182, 152, 112)), sand.darker(112));
  PaintLand(stage, edge(stage.h * 0.045), Mix(sand, Qt::white, 0.15), sand.darker(106));
  stage.painter.setPen(Qt::NoPen);
  for (int i = 0; i < 900; ++i) {
    const double depth = std::sqrt(stage.dice.Unit());
    const double y = shore + stage.h * 0.11 + depth * (stage.h - shore);
    stage.painter.setBrush(WithAlpha(stage.dice.Chance(0.5) ? sand.darker(150) : QColor(Qt::white), 0.16));
    stage.painter.drawEllipse(QPointF(stage.dice.Unit() * stage.w, y), 0.6 + 1.6 * depth, 0.5 + 0.7 * depth);
  }
}

void PaintFlower(QPainter& p, Dice& dice, const QPointF& at, double size, double hue, double blur) {
  const int petals = dice.Whole(6, 13);
  const QColor petal = Hsv(hue, hue > 38 && hue < 60 ? 0.85 : 0.62, 0.98);
  const double tilt = dice.Between(0.55, 0.95);
  const double turn = dice.Unit() * 360;
  p.save();
  p.translate(at);
  p.scale(1, tilt);
  p.setPen(Qt::NoPen);
  for (int ring = 0; ring < 2; ++ring) {
    const double length = size * (ring == 0 ? 1 : 0.78);
    for (int i = 0; i < petals; ++i) {
      p.save();
      p.rotate(turn + ring * 180.0 / petals + 360.0 * i / petals + dice.Between(-5, 5));
      QLinearGradient gradient(0, 0, length, 0);
      gradient.setColorAt(0, WithAlpha(petal.darker(150), 1 - blur));
      gradient.setColorAt(0.5, WithAlpha(petal.darker(ring == 0 ? 112 : 100), 1 - blur));
      gradient.setColorAt(1, WithAlpha(Mix(petal, Qt::white, 0.4), 1 - blur));
      p.setBrush(gradient);
      p.drawEllipse(QPointF(length * 0.58, 0), length * 0.46, length * (petals > 9 ? 0.17 : 0.27));
      p.restore();
    }
  }
  p.restore();
  Ball(p, at, size * 0.24, hue > 38 && hue < 60 ? QColor(120, 70, 30) : QColor(240, 184, 40));
}

}  // namespace

void PaintLake(Stage& stage) {
  PaintSky(stage, stage.h * 0.6, stage.dice.Between(0.25, 0.5));
  const double shore = stage.h * stage.dice.Between(0.56, 0.64);
  PaintPeaks(stage, shore);
  PaintConiferBand(stage, shore, stage.h * 0.1, 34, 0.22);
  PaintMirror(stage, shore, stage.h, Lit(stage.light, QColor(36, 84, 112)), 0.8);
  const QColor wood = Lit(stage.light, QColor(120, 90, 64));
  if (stage.dice.Chance(0.6)) {
    // A landing stage leads into the picture.
    const double x = stage.w * stage.dice.Between(0.3, 0.7);
    const double tip = shore + (stage.h - shore) * 0.32;
    stage.painter.setPen(Qt::NoPen);
    for (int i = 0; i < 16; ++i) {
      const double near = std::pow(i / 16.0, 1.7);
      const double next = std::pow((i + 0.86) / 16.0, 1.7);
      const double y1 = tip + near * (stage.h - tip);
      const double y2 = tip + next * (stage.h - tip);
      const double half1 = stage.w * (0.022 + 0.12 * near);
      const double half2 = stage.w * (0.022 + 0.12 * next);
      stage.painter.setBrush(
          Mix(wood, i % 2 == 0 ? QColor(Qt::black) : QColor(Qt::white), 0.1 + 0.06 * (i % 3)));
      stage.painter.drawPolygon(Shape({{x - half1, y1}, {x + half1, y1}, {x + half2, y2}, {x - half2, y2}}));
    }
  } else {
    PaintConiferBand(stage, stage.h * 1.04, stage.h * 0.3, 5, 0);
  }
}

void PaintBeach(Stage& stage) {
  const double horizon = stage.h * stage.dice.Between(0.42, 0.54);
  const QPointF sun = PaintSky(stage, horizon, stage.dice.Between(0.2, 0.46));
  if (stage.dice.Chance(0.7)) {
    const Noise noise(stage.dice.Number());
    const double from = stage.dice.Between(-0.3, 0.5);
    const QColor island = Mix(Lit(stage.light, QColor(80, 110, 110)), stage.light.horizon, 0.5);
    PaintLand(
        stage,
        [&](double x) {
          const double bump = std::max(0.0, 1 - std::pow((x / stage.w - from - 0.3) / 0.42, 2));
          return horizon + 1 - stage.h * 0.15 * bump * (0.3 + noise.Layers(x / stage.w * 8, 0, 4));
        },
        island, island);
  }
  const double shore = stage.h * stage.dice.Between(0.7, 0.78);
  PaintSea(stage, horizon, stage.h, sun);
  PaintSail(stage, horizon);
  PaintSand(stage, shore);
  if (stage.dice.Chance(0.6)) {
    PaintParasol(stage, {stage.w * stage.dice.Between(0.2, 0.75), stage.h * 0.9}, stage.h * 0.22);
  }
  if (stage.dice.Chance(0.55)) {
    const double x = stage.dice.Chance(0.5) ? 0.06 : 0.94;
    PaintPalm(stage, {stage.w * x, stage.h * 1.01}, stage.h * stage.dice.Between(0.62, 0.8));
  }
}

void PaintFlowers(Stage& stage) {
  FillDown(stage, 0, stage.h, Lit(stage.light, QColor(196, 222, 170)), Lit(stage.light, QColor(56, 104, 48)));
  QPainter& p = stage.painter;
  p.setPen(Qt::NoPen);
  for (int i = 0; i < 60; ++i) {
    const QPointF at(stage.dice.Unit() * stage.w, stage.dice.Unit() * stage.h);
    const double radius = stage.h * stage.dice.Between(0.04, 0.16);
    Glow(p, at, radius, WithAlpha(Lit(stage.light, Hsv(stage.dice.Between(60, 130), 0.5, 0.8)), 0.3), false);
  }
  PaintBokeh(stage, 24, 0, stage.h * 0.55, 50, 110, 0.45);
  const double hue = stage.dice.Pick(std::vector<double>{48, 330, 300, 275, 10, 215, 52, 345});
  const bool mixed = stage.dice.Chance(0.35);
  for (int layer = 0; layer < 3; ++layer) {
    const double near = layer / 2.0;
    const int count = layer == 0 ? 26 : layer == 1 ? 13 : 5;
    for (int i = 0; i < count; ++i) {
      const double size = stage.h * (0.03 + 0.1 * near * near) * stage.dice.Between(0.85, 1.25);
      const QPointF at((i + stage.dice.Between(0.15, 0.85)) / count * stage.w,
                       stage.h * (0.36 + 0.16 * near + stage.dice.Between(-0.12, 0.24)));
      const QColor stem = Lit(stage.light, Mix(QColor(126, 170, 84), QColor(44, 98, 40), near));
      QPainterPath stalk(at);
      stalk.quadTo(at + QPointF(stage.dice.Between(-18, 18), stage.h * 0.2),
                   {at.x() + stage.dice.Between(-30, 30), stage.h + 10});
      p.setBrush(Qt::NoBrush);
      p.setPen(QPen(stem, 1 + size * 0.09));
      p.drawPath(stalk);
      p.setPen(Qt::NoPen);
      PaintFlower(p, stage.dice, at, size,
                  mixed ? stage.dice.Between(0, 360) : hue + stage.dice.Between(-9, 9),
                  layer == 0 ? 0.45 : 0);
    }
    for (int i = 0; i < 60; ++i) {
      const double x = stage.dice.Unit() * stage.w;
      const double tall = stage.h * stage.dice.Between(0.1, 0.34) * (0.5 + 0.5 * near);
      QPainterPath blade(QPointF(x, stage.h + 2));
      blade.quadTo({x, stage.h - tall * 0.6}, {x + stage.dice.Between(-30, 30), stage.h - tall});
      blade.quadTo({x + 4, stage.h - tall * 0.5}, {x + 5, stage.h + 2});
      p.setBrush(WithAlpha(
          Lit(stage.light, Hsv(stage.dice.Between(80, 125), 0.6, stage.dice.Between(0.3, 0.6))), 0.85));
      p.drawPath(blade);
    }
  }
}

}  // namespace Zenvora::Lumidex::Host
