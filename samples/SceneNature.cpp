// Mountains, water, woods and meadows.

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
bool IsAutumn(int month) {
  return month >= 9 && month <= 11;
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

QColor Grass(const Stage& stage) {
  if (IsWinter(stage.month)) {
    return {232, 238, 248};
  }
  return IsAutumn(stage.month) ? QColor(168, 148, 72) : QColor(104, 158, 62);
}

void PaintHillLayers(Stage& stage, double top, int layers) {
  for (int layer = 0; layer < layers; ++layer) {
    const Noise noise(stage.dice.Number());
    const double share = static_cast<double>(layer) / layers;
    const double level = top + (stage.h - top) * share * 0.9;
    const double swing = stage.h * (0.09 + 0.06 * share);
    const double scale = stage.dice.Between(1.6, 3.0) - share;
    const auto outline = [=](double x) {
      return level + swing * (1 - 2 * noise.Layers(x / stage.w * scale, 0.5, 2));
    };
    QColor grass = Grass(stage);
    if (!IsWinter(stage.month)) {
      grass = Hsv(grass.hsvHue() + stage.dice.Between(-18, 14), grass.hsvSaturationF(), grass.valueF());
    }
    const QColor crest = Mix(Lit(stage.light, Mix(grass, QColor(255, 236, 150), 0.24)), stage.light.horizon,
                             0.55 * (1 - share) * (1 - share));
    const QColor shade = Mix(Lit(stage.light, Mix(grass.darker(165), QColor(30, 70, 60), 0.2)),
                             stage.light.horizon, 0.3 * (1 - share));
    PaintLand(stage, outline, crest, shade);
    // Rows of a field follow the hill.
    if (layer > 0 && layer + 1 < layers && stage.dice.Chance(0.6)) {
      stage.painter.setPen(QPen(WithAlpha(shade, 0.35), 1.2));
      const double from = stage.dice.Between(0, 0.5) * stage.w;
      const double width = stage.dice.Between(0.25, 0.5) * stage.w;
      for (int row = 1; row < 12; ++row) {
        QPolygonF line;
        for (double x = from; x < from + width; x += 8) {
          line << QPointF(x + row * 5.0, outline(x) + 5 + row * (3.0 + row * 0.28));
        }
        stage.painter.drawPolyline(line);
      }
    }
    const int trees = layer + 1 == layers ? 2 : stage.dice.Whole(4, 9);
    for (int i = 0; i < trees; ++i) {
      const double x = stage.dice.Unit() * stage.w;
      const double size = stage.h * (0.05 + 0.15 * share) * stage.dice.Between(0.8, 1.3);
      const QColor leaves =
          Mix(Lit(stage.light, IsAutumn(stage.month) ? Hsv(stage.dice.Between(14, 50), 0.75, 0.75)
                                                     : Hsv(stage.dice.Between(85, 120), 0.55, 0.46)),
              stage.light.horizon, 0.4 * (1 - share));
      if (IsWinter(stage.month) || stage.dice.Chance(0.25)) {
        PaintConifer(stage.painter, stage.dice, x, outline(x) + size * 0.1, size * 1.3,
                     Mix(Lit(stage.light, QColor(36, 74, 56)), stage.light.horizon, 0.4 * (1 - share)),
                     IsWinter(stage.month) ? 0.7 * stage.light.day : 0);
      } else {
        PaintLeafTree(stage.painter, stage.dice, x, outline(x) + size * 0.1, size, leaves,
                      Lit(stage.light, QColor(84, 62, 46)));
      }
    }
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

void PaintMountains(Stage& stage) {
  PaintSky(stage, stage.h * 0.75, stage.dice.Between(0.25, 0.5));
  const double foot = stage.h * stage.dice.Between(0.76, 0.86);
  PaintPeaks(stage, foot);
  const Noise noise(stage.dice.Number());
  const QColor grass = Lit(stage.light, Grass(stage));
  PaintLand(
      stage, [&](double x) { return foot - stage.h * 0.05 * noise.Layers(x / stage.w * 3, 0, 3); },
      Mix(grass, stage.light.horizon, 0.25), grass.darker(150));
  PaintConiferBand(stage, foot + stage.h * 0.03, stage.h * 0.12, 30, 0.3);
  PaintConiferBand(stage, stage.h * 1.02, stage.h * 0.24, 13, 0.02);
}

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

void PaintAurora(Stage& stage) {
  stage.light = LightOf(23.4);
  PaintSky(stage, stage.h * 0.7, 0);
  QPainter& p = stage.painter;
  p.save();
  p.setCompositionMode(QPainter::CompositionMode_Screen);
  for (int curtain = 0; curtain < 3; ++curtain) {
    const Noise path(stage.dice.Number());
    const double level = stage.h * (0.5 - 0.11 * curtain);
    const double hue = stage.dice.Between(128, 160);
    for (int x = 0; x < stage.image.width(); x += 2) {
      const double u = x / stage.w;
      const double foot = level + (path.Layers(u * 2.1, 1, 3) - 0.5) * stage.h * 0.4;
      const double tall = stage.h * (0.16 + 0.26 * path.Layers(u * 9, 5, 3));
      const double strength =
          std::clamp(path.Layers(u * 13, 9, 3) * 1.5 - 0.35, 0.0, 1.0) * (0.75 - 0.16 * curtain);
      QLinearGradient gradient(0, foot - tall, 0, foot + 6);
      gradient.setColorAt(0, WithAlpha(Hsv(hue + 130, 0.7, 1), 0));
      gradient.setColorAt(0.35, WithAlpha(Hsv(hue + 90, 0.65, 0.9), strength * 0.22));
      gradient.setColorAt(0.75, WithAlpha(Hsv(hue, 0.75, 0.95), strength * 0.6));
      gradient.setColorAt(0.95, WithAlpha(Hsv(hue - 12, 0.6, 1), strength));
      gradient.setColorAt(1, WithAlpha(Hsv(hue - 12, 0.6, 1), 0));
      p.fillRect(QRectF(x, foot - tall, 2, tall + 6), gradient);
    }
  }
  p.restore();
  const double shore = stage.h * 0.72;
  const auto outline = Ridge(stage, stage.h * 0.42, stage.h * 0.36, 3);
  PaintRock(stage, outline, shore, QColor(120, 132, 160), stage.h * 0.62, 0);
  PaintConiferBand(stage, shore, stage.h * 0.08, 30, 0.05);
  PaintMirror(stage, shore, stage.h, QColor(14, 30, 52), 0.85);
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

void PaintHills(Stage& stage) {
  const double top = stage.h * stage.dice.Between(0.4, 0.55);
  PaintSky(stage, top * 1.15, stage.dice.Between(0.35, 0.58));
  PaintHillLayers(stage, top, 5);
}

void PaintBalloons(Stage& stage) {
  const double top = stage.h * 0.68;
  PaintSky(stage, top * 1.1, stage.dice.Between(0.2, 0.4));
  PaintHillLayers(stage, top, 4);
  const int count = stage.dice.Whole(4, 7);
  for (int i = 0; i < count; ++i) {
    const double near = static_cast<double>(i) / count;
    const double size = stage.h * (0.04 + 0.13 * near * near) * stage.dice.Between(0.85, 1.15);
    const QPointF at(stage.w * (stage.dice.Between(0.02, 0.12) + 0.84 * std::fmod(0.37 + i * 0.618, 1.0)),
                     stage.h * stage.dice.Between(0.16, 0.46));
    QPainter& p = stage.painter;
    const double haze = 0.45 * (1 - near);
    const double hue = stage.dice.Between(0, 360);
    QPainterPath envelope;
    envelope.moveTo(at + QPointF(-size * 0.18, size * 1.16));
    envelope.cubicTo(at + QPointF(-size * 0.5, size * 0.75), at + QPointF(-size, size * 0.5),
                     at + QPointF(-size, 0));
    envelope.cubicTo(at + QPointF(-size, -size * 1.3), at + QPointF(size, -size * 1.3),
                     at + QPointF(size, 0));
    envelope.cubicTo(at + QPointF(size, size * 0.5), at + QPointF(size * 0.5, size * 0.75),
                     at + QPointF(size * 0.18, size * 1.16));
    envelope.closeSubpath();
    p.save();
    p.setClipPath(envelope, Qt::IntersectClip);
    p.setPen(Qt::NoPen);
    for (int gore = 0; gore < 7; ++gore) {
      const double half = size * (1.02 - gore * 0.15);
      const QColor colour = gore % 2 == 0 ? Hsv(hue, 0.75, 0.9) : Hsv(hue + stage.month * 7 + 40, 0.3, 0.98);
      p.setBrush(Mix(Lit(stage.light, colour), stage.light.horizon, haze));
      p.drawEllipse(at + QPointF(0, size * 0.1), half, size * 1.2);
    }
    QLinearGradient shade(at.x() - size, 0, at.x() + size, 0);
    shade.setColorAt(0, QColor(255, 255, 255, 70));
    shade.setColorAt(0.45, QColor(255, 255, 255, 0));
    shade.setColorAt(1, QColor(20, 0, 40, 110));
    p.fillRect(QRectF(at.x() - size, at.y() - size * 1.3, size * 2, size * 2.6), shade);
    p.restore();
    p.setPen(QPen(Mix(QColor(70, 56, 46), stage.light.horizon, haze), std::max(0.6, size * 0.02)));
    p.drawLine(at + QPointF(-size * 0.17, size * 1.16), at + QPointF(-size * 0.11, size * 1.42));
    p.drawLine(at + QPointF(size * 0.17, size * 1.16), at + QPointF(size * 0.11, size * 1.42));
    p.setPen(Qt::NoPen);
    p.setBrush(Mix(Lit(stage.light, QColor(126, 84, 48)), stage.light.horizon, haze));
    p.drawRoundedRect(QRectF(at.x() - size * 0.14, at.y() + size * 1.42, size * 0.28, size * 0.2),
                      size * 0.04, size * 0.04);
  }
}

void PaintForest(Stage& stage) {
  const bool autumn = IsAutumn(stage.month);
  const QColor haze = Lit(stage.light, autumn ? QColor(250, 218, 160) : QColor(206, 226, 176));
  const QColor deep = Lit(stage.light, autumn ? QColor(96, 62, 36) : QColor(38, 66, 44));
  FillDown(stage, 0, stage.h, Mix(haze, Qt::white, 0.3), haze);
  const double horizon = stage.h * 0.7;
  const QPointF sun(stage.w * stage.dice.Between(0.35, 0.65), stage.h * 0.28);
  Glow(stage.painter, sun, stage.h * 0.6, WithAlpha(QColor(255, 246, 214), 0.9));
  QPainter& p = stage.painter;
  const double path = stage.w * stage.dice.Between(0.42, 0.58);
  for (int layer = 0; layer < 5; ++layer) {
    const double near = layer / 4.0;
    const QColor tone = Mix(haze, deep, 0.2 + 0.75 * near);
    const double base = horizon + near * near * stage.h * 0.24;
    // Ground.
    const Noise ground(stage.dice.Number());
    const QColor floor = Mix(haze,
                             Lit(stage.light, IsWinter(stage.month) ? QColor(226, 232, 240)
                                              : autumn              ? QColor(190, 120, 50)
                                                                    : QColor(92, 122, 50)),
                             0.35 + 0.6 * near);
    PaintLand(
        stage, [&](double x) { return base + stage.h * 0.03 * (ground.Layers(x / stage.w * 4, 0, 3) - 0.5); },
        floor, floor.darker(140));
    const int trunks = 15 - layer * 2;
    for (int i = 0; i < trunks; ++i) {
      const double x = (i + stage.dice.Between(0.1, 0.9)) / trunks * stage.w * 1.1 - stage.w * 0.05;
      if (std::abs(x - path) < stage.w * (0.03 + 0.15 * near)) {
        continue;
      }
      const double thick = stage.w * (0.008 + 0.03 * near * near) * stage.dice.Between(0.7, 1.4);
      QLinearGradient bark(x - thick, 0, x + thick, 0);
      const bool sunLeft = sun.x() < x;
      bark.setColorAt(sunLeft ? 0 : 1, Mix(tone, haze, 0.35));
      bark.setColorAt(0.5, tone);
      bark.setColorAt(sunLeft ? 1 : 0, tone.darker(135));
      p.setPen(Qt::NoPen);
      p.setBrush(bark);
      const double foot = base + stage.h * 0.03;
      p.drawPolygon(Shape({{x - thick * 0.6, -5},
                           {x + thick * 0.6, -5},
                           {x + thick * 0.8, foot - 12},
                           {x + thick * 1.4, foot},
                           {x - thick * 1.4, foot},
                           {x - thick * 0.8, foot - 12}}));
    }
    // Leaves above and bushes below.
    if (!IsWinter(stage.month)) {
      const int dabs = 210;
      for (int i = 0; i < dabs; ++i) {
        const double x = stage.dice.Unit() * stage.w;
        const double y = stage.h * (0.02 + 0.4 * std::pow(stage.dice.Unit(), 1.4) * (1.15 - 0.35 * near));
        const double away = std::hypot(x - sun.x(), y - sun.y()) / stage.h;
        const QColor leaf = autumn ? Hsv(stage.dice.Between(18, 50), 0.8, 0.85)
                                   : Hsv(stage.dice.Between(72, 118), 0.55, 0.55);
        p.setBrush(WithAlpha(
            Mix(Mix(haze, Lit(stage.light, leaf), 0.35 + 0.6 * near), Qt::white, std::max(0.0, 0.45 - away)),
            0.62));
        const double size = stage.h * (0.012 + 0.016 * near) * stage.dice.Between(0.6, 1.5);
        p.drawEllipse(QPointF(x, y), size * 1.3, size);
      }
    }
  }
  // The way through.
  const double start = horizon + stage.h * 0.03;
  QPainterPath way(QPointF(path - stage.w * 0.01, start));
  way.cubicTo({path + stage.w * 0.06, start + stage.h * 0.06}, {path - stage.w * 0.14, stage.h * 0.88},
              {path - stage.w * 0.24, stage.h + 4});
  way.lineTo(path + stage.w * 0.22, stage.h + 4);
  way.cubicTo({path + stage.w * 0.06, stage.h * 0.88}, {path + stage.w * 0.14, start + stage.h * 0.06},
              {path + stage.w * 0.01, start});
  QLinearGradient dust(0, start, 0, stage.h);
  dust.setColorAt(0, WithAlpha(Mix(haze, Qt::white, 0.4), 0.9));
  dust.setColorAt(1, Lit(stage.light, autumn ? QColor(170, 118, 70) : QColor(166, 142, 104)));
  p.setBrush(dust);
  p.drawPath(way);
  if (autumn) {
    for (int i = 0; i < 260; ++i) {
      const double depth = stage.dice.Unit();
      p.setBrush(WithAlpha(Hsv(stage.dice.Between(12, 48), 0.85, 0.85), 0.8));
      p.drawEllipse(QPointF(stage.dice.Unit() * stage.w, start + depth * (stage.h - start)), 1 + 4 * depth,
                    0.7 + 2 * depth);
    }
  }
  // Beams of light.
  p.save();
  p.setCompositionMode(QPainter::CompositionMode_Screen);
  for (int i = 0; i < 6; ++i) {
    const double x = sun.x() + stage.dice.Between(-0.6, 0.6) * stage.w;
    const double width = stage.w * stage.dice.Between(0.02, 0.07);
    QLinearGradient beam(sun, {x, stage.h});
    beam.setColorAt(0, QColor(255, 244, 204, 90));
    beam.setColorAt(1, QColor(255, 244, 204, 0));
    p.setBrush(beam);
    p.drawPolygon(Shape({sun, {x - width, stage.h}, {x + width, stage.h}}));
  }
  p.restore();
  if (IsWinter(stage.month)) {
    PaintSnowfall(stage, 160);
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

void PaintSnowVillage(Stage& stage) {
  stage.month = 1;
  const double horizon = stage.h * 0.5;
  PaintSky(stage, horizon * 1.2, 0.3);
  const double shade = stage.light.day;
  const QColor snow = Lit(stage.light, QColor(240, 245, 255));
  const QColor blue = Lit(stage.light, QColor(150, 176, 224));
  PaintPeaks(stage, horizon * 1.1);
  PaintConiferBand(stage, horizon * 1.12, stage.h * 0.12, 32, 0.3);
  const Noise noise(stage.dice.Number());
  const auto ground = [&](double level, double swing) {
    return [=](double x) { return level + swing * (noise.Layers(x / stage.w * 2.4 + level, 0, 2) - 0.5); };
  };
  PaintLand(stage, ground(horizon * 1.14, stage.h * 0.08), Mix(snow, blue, 0.3), blue);
  QPainter& p = stage.painter;
  const int houses = stage.dice.Whole(4, 6);
  for (int i = 0; i < houses; ++i) {
    const double near = static_cast<double>(i) / houses;
    const double size = stage.h * (0.09 + 0.1 * near) * stage.dice.Between(0.9, 1.15);
    const double x = stage.w * (0.08 + 0.84 * std::fmod(0.21 + i * 0.618, 1.0));
    const double base = stage.h * (0.62 + 0.16 * near);
    const QRectF wall(x - size * 0.6, base - size * 0.62, size * 1.2, size * 0.62);
    p.setPen(Qt::NoPen);
    p.setBrush(Lit(stage.light, Hsv(stage.dice.Pick(std::vector<double>{12, 24, 30, 356, 205}), 0.42, 0.58)));
    p.drawRect(wall);
    p.setBrush(Lit(stage.light, QColor(86, 60, 50)));
    p.drawRect(QRectF(x + size * 0.22, base - size * 1.2, size * 0.13, size * 0.4));
    p.drawPolygon(Shape({{x - size * 0.62, base - size * 0.58},
                         {x, base - size * 1.16},
                         {x + size * 0.62, base - size * 0.58}}));
    p.setBrush(Mix(snow, Qt::white, 0.3 * shade));
    p.drawPolygon(Shape({{x - size * 0.78, base - size * 0.54},
                         {x - size * 0.72, base - size * 0.64},
                         {x, base - size * 1.27},
                         {x + size * 0.72, base - size * 0.64},
                         {x + size * 0.78, base - size * 0.54},
                         {x, base - size * 1.1}}));
    const QColor window(255, 206, 108);
    for (const double at : {-0.36, 0.04}) {
      const QRectF pane(x + at * size, base - size * 0.44, size * 0.24, size * 0.24);
      p.setBrush(window);
      p.drawRect(pane);
      p.setPen(QPen(QColor(96, 60, 36), std::max(1.0, size * 0.025)));
      p.drawLine(QPointF(pane.center().x(), pane.top()), QPointF(pane.center().x(), pane.bottom()));
      p.drawLine(QPointF(pane.left(), pane.center().y()), QPointF(pane.right(), pane.center().y()));
      p.setPen(Qt::NoPen);
      Glow(p, pane.center(), size * 0.5, QColor(255, 190, 90, static_cast<int>(150 - 90 * shade)));
    }
    p.setBrush(Mix(snow, blue, 0.2));
    p.drawEllipse(QPointF(x, base + size * 0.05), size * 1.1, size * 0.12);
    Glow(p, {x, base + size * 0.06}, size * 1.0, QColor(255, 200, 120, static_cast<int>(70 * (1 - shade))));
  }
  PaintLand(stage, ground(stage.h * 0.86, stage.h * 0.1), snow, Mix(snow, blue, 0.7));
  PaintConiferBand(stage, stage.h * 1.03, stage.h * 0.4, 4, 0);
  PaintSnowfall(stage, 220);
}

}  // namespace Zenvora::Lumidex::Host
