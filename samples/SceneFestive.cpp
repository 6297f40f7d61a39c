// Christmas, New Year, Valentine's Day.

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

QPainterPath Heart(const QPointF& at, double size) {
  QPainterPath heart(at + QPointF(0, size * 0.9));
  heart.cubicTo(at + QPointF(-size * 1.4, -size * 0.1), at + QPointF(-size * 0.75, -size * 1.1),
                at + QPointF(0, -size * 0.35));
  heart.cubicTo(at + QPointF(size * 0.75, -size * 1.1), at + QPointF(size * 1.4, -size * 0.1),
                at + QPointF(0, size * 0.9));
  return heart;
}

void PaintStar(QPainter& p, const QPointF& at, double size, const QColor& colour) {
  QPolygonF star;
  for (int i = 0; i < 10; ++i) {
    const double radius = i % 2 == 0 ? size : size * 0.44;
    const double angle = -kPi / 2 + i * kPi / 5;
    star << at + QPointF(std::cos(angle), std::sin(angle)) * radius;
  }
  p.setPen(Qt::NoPen);
  p.setBrush(colour);
  p.drawPolygon(star);
}

void PaintGift(Stage& stage, const QPointF& foot, double size) {
  QPainter& p = stage.painter;
  const double hue = stage.dice.Pick(std::vector<double>{355, 145, 215, 45, 285, 10});
  const QColor paper = Hsv(hue, 0.65, 0.72);
  const QColor ribbon = stage.dice.Chance(0.5) ? QColor(248, 236, 206) : QColor(232, 186, 74);
  const double tall = size * stage.dice.Between(0.55, 1.0);
  const QRectF box(foot.x() - size / 2, foot.y() - tall, size, tall);
  Glow(p, {foot.x(), foot.y()}, size * 0.8, QColor(0, 0, 0, 120), false);
  QLinearGradient face(box.topLeft(), box.topRight());
  face.setColorAt(0, paper.lighter(118));
  face.setColorAt(1, paper.darker(135));
  p.setPen(Qt::NoPen);
  p.setBrush(face);
  p.drawRect(box);
  p.setBrush(paper.lighter(128));
  p.drawPolygon(Shape({box.topLeft(), box.topRight(), box.topRight() + QPointF(-size * 0.1, -size * 0.13),
                       box.topLeft() + QPointF(size * 0.1, -size * 0.13)}));
  p.setBrush(ribbon);
  p.drawRect(QRectF(foot.x() - size * 0.07, box.top(), size * 0.14, tall));
  p.drawPolygon(Shape({{foot.x() - size * 0.07, box.top()},
                       {foot.x() + size * 0.07, box.top()},
                       {foot.x() + size * 0.055, box.top() - size * 0.13},
                       {foot.x() - size * 0.055, box.top() - size * 0.13}}));
  const QPointF knot(foot.x(), box.top() - size * 0.1);
  for (const double side : {-1.0, 1.0}) {
    QPainterPath bow(knot);
    bow.cubicTo(knot + QPointF(side * size * 0.1, -size * 0.3),
                knot + QPointF(side * size * 0.36, -size * 0.24),
                knot + QPointF(side * size * 0.3, -size * 0.06));
    bow.cubicTo(knot + QPointF(side * size * 0.2, size * 0.03),
                knot + QPointF(side * size * 0.08, size * 0.02), knot);
    p.setBrush(side < 0 ? ribbon : ribbon.darker(115));
    p.drawPath(bow);
  }
}

/// The tree with its lights: `size` from the floor to the star.
void PaintTree(Stage& stage, const QPointF& foot, double size) {
  QPainter& p = stage.painter;
  const double half = size * 0.34;
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(74, 48, 32));
  p.drawRect(QRectF(foot.x() - size * 0.03, foot.y() - size * 0.12, size * 0.06, size * 0.12));
  constexpr int kTiers = 5;
  // Needles in strokes, back to front, so that the tiers overlap like branches.
  for (int tier = 0; tier < kTiers; ++tier) {
    const double bottom = foot.y() - size * (0.09 + 0.165 * tier);
    const double width = half * (1 - tier / (kTiers + 0.5));
    const double top = bottom - size * 0.27;
    QPolygonF skirt = Shape({{foot.x(), top}});
    for (int i = 0; i <= 14; ++i) {
      const double u = 1 - i / 7.0;
      skirt << QPointF(foot.x() + u * width, bottom + (i % 2 == 0 ? size * 0.012 : -size * 0.016) +
                                                 std::abs(u) * -size * 0.02 + size * 0.02);
    }
    QLinearGradient green(foot.x() - width, 0, foot.x() + width, 0);
    green.setColorAt(0, QColor(30, 84, 52));
    green.setColorAt(0.4, QColor(34, 96, 58));
    green.setColorAt(1, QColor(12, 44, 32));
    p.setBrush(green);
    p.drawPolygon(skirt);
    for (int i = 0; i < 150; ++i) {
      const double v = std::sqrt(stage.dice.Unit());
      const double u = stage.dice.Between(-1, 1) * v;
      const QPointF at(foot.x() + u * width, top + v * (bottom - top));
      const double shade = stage.dice.Unit();
      p.setPen(QPen(WithAlpha(Mix(QColor(8, 40, 28), QColor(86, 150, 84), shade * (u < 0.3 ? 1 : 0.5)), 0.75),
                    1.3));
      p.drawLine(at, at + QPointF(u * 9 + stage.dice.Between(-3, 3), stage.dice.Between(4, 10)));
    }
  }
  const auto onTree = [&](double v, double u) {
    return QPointF(foot.x() + u * half * (0.06 + 0.88 * v), foot.y() - size * (0.93 - 0.8 * v));
  };
  // Garlands hang in arcs.
  p.setBrush(Qt::NoBrush);
  for (int g = 0; g < 4; ++g) {
    const double v = 0.22 + 0.21 * g;
    QPainterPath chain(onTree(v, -0.95));
    chain.quadTo(onTree(v + 0.13, 0.1), onTree(v - 0.03, 0.95));
    p.setPen(QPen(QColor(236, 196, 96, 190), size * 0.008, Qt::DotLine, Qt::RoundCap));
    p.drawPath(chain);
  }
  for (int i = 0; i < 26; ++i) {
    const double v = std::sqrt(stage.dice.Between(0.03, 1));
    Ball(p, onTree(v, stage.dice.Between(-0.85, 0.85)), size * stage.dice.Between(0.014, 0.023),
         stage.dice.Pick(std::vector<QColor>{
             {200, 30, 44}, {222, 168, 52}, {190, 200, 214}, {46, 92, 176}, {164, 30, 84}}));
  }
  for (int i = 0; i < 64; ++i) {
    const double v = std::sqrt(stage.dice.Between(0.02, 1));
    const QPointF at = onTree(v, stage.dice.Between(-0.95, 0.95));
    Glow(p, at, size * 0.035, QColor(255, 214, 130, 230));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 250, 226));
    p.drawEllipse(at, size * 0.005, size * 0.005);
  }
  const QPointF tip(foot.x(), foot.y() - size * 1.0);
  Glow(p, tip, size * 0.22, QColor(255, 220, 130, 210));
  PaintStar(p, tip, size * 0.052, QColor(255, 226, 120));
}

void PaintRocket(Stage& stage, const QPointF& at, double reach, double hue) {
  QPainter& p = stage.painter;
  const int rays = stage.dice.Whole(46, 80);
  const bool doubled = stage.dice.Chance(0.4);
  Glow(p, at, reach * 1.7, WithAlpha(Hsv(hue, 0.7, 1), 0.5));
  for (int i = 0; i < rays; ++i) {
    const double angle = 2 * kPi * i / rays + stage.dice.Between(-0.06, 0.06);
    const bool inner = doubled && i % 2 == 0;
    const double length = reach * stage.dice.Between(0.82, 1.05) * (inner ? 0.55 : 1);
    const QColor colour =
        Hsv(inner ? hue + 60 : hue + stage.dice.Between(-10, 10), stage.dice.Between(0.35, 0.8), 1);
    QPointF last = at + QPointF(std::cos(angle), std::sin(angle)) * length * 0.12;
    constexpr int kSteps = 9;
    for (int step = 1; step <= kSteps; ++step) {
      const double t = static_cast<double>(step) / kSteps;
      const QPointF next =
          at + QPointF(std::cos(angle) * length * t, std::sin(angle) * length * t + reach * 0.2 * t * t);
      p.setPen(QPen(WithAlpha(Mix(Qt::white, colour, 0.35 + 0.65 * t), 0.4 + 0.6 * t), 0.9 + 1.5 * t,
                    Qt::SolidLine, Qt::RoundCap));
      p.drawLine(last, next);
      last = next;
    }
    if (i % 2 == 0) {
      Glow(p, last, reach * 0.09, colour);
    }
  }
  Glow(p, at, reach * 0.3, QColor(255, 250, 230, 190));
}

void PaintRose(QPainter& p, Dice& dice, const QPointF& at, double size, const QColor& colour) {
  p.setPen(Qt::NoPen);
  // From the outer petals to the heart of the flower.
  for (int ring = 0; ring < 6; ++ring) {
    const double radius = size * (1 - ring * 0.155);
    const int petals = ring < 2 ? 6 : ring < 4 ? 5 : 3;
    const double turn = dice.Unit() * 2 * kPi;
    for (int i = 0; i < petals; ++i) {
      const double angle = turn + 2 * kPi * i / petals;
      const QPointF petal = at + QPointF(std::cos(angle), std::sin(angle) * 0.9) * radius * 0.46;
      QRadialGradient gradient(petal + QPointF(std::cos(angle), std::sin(angle)) * radius * 0.3,
                               radius * 0.75);
      gradient.setColorAt(0, Mix(colour, Qt::white, 0.34 - ring * 0.03));
      gradient.setColorAt(0.45, Mix(colour, Qt::black, 0.05 * ring));
      gradient.setColorAt(1, Mix(colour, QColor(40, 0, 10), 0.55 + 0.04 * ring));
      p.setBrush(gradient);
      p.drawEllipse(petal, radius * 0.5, radius * 0.46);
    }
  }
}

}  // namespace

void PaintChristmasTree(Stage& stage) {
  QPainter& p = stage.painter;
  const bool outdoors = stage.dice.Chance(0.35);
  const double floor = stage.h * 0.84;
  const QPointF foot(stage.w * stage.dice.Between(0.36, 0.64), floor + stage.h * 0.06);
  const double size = std::min(stage.h * 0.8, stage.w * 1.05);
  if (outdoors) {
    stage.light = LightOf(stage.hour < 12 || stage.hour > 21 ? 23.0 : 20.9);
    PaintSky(stage, floor, 0.25);
    PaintBokeh(stage, 26, stage.h * 0.45, stage.h * 0.8, 20, 60, 0.7);
    const QColor snow = Lit(LightOf(20.2), QColor(232, 240, 255));
    const Noise noise(stage.dice.Number());
    PaintLand(
        stage, [&](double x) { return floor - stage.h * 0.06 * noise.Layers(x / stage.w * 2, 0, 2); },
        Mix(snow, Qt::white, 0.15), snow.darker(190));
    PaintTree(stage, foot, size);
    Glow(p, foot, size * 0.6, QColor(255, 200, 120, 110));
    PaintSnowfall(stage, 240);
    return;
  }
  const QColor wall = Hsv(stage.dice.Pick(std::vector<double>{18, 28, 350, 210, 150}), 0.45, 0.38);
  FillDown(stage, 0, floor, wall.darker(150), Mix(wall, QColor(200, 120, 60), 0.25));
  Glow(p, {foot.x(), foot.y() - size * 0.5}, stage.w * 0.62, QColor(255, 180, 90, 150));
  PaintBokeh(stage, 34, 0, stage.h * 0.75, 10, 55, 0.65);
  const QColor planks(112, 70, 42);
  FillDown(stage, floor, stage.h, planks.darker(150), planks);
  p.setPen(QPen(QColor(40, 20, 10, 90), 1.2));
  for (int i = 1; i < 4; ++i) {
    const double y = floor + (stage.h - floor) * i * i / 12.0;
    p.drawLine(QPointF(0, y), QPointF(stage.w, y));
  }
  Glow(p, foot, stage.w * 0.45, QColor(255, 190, 110, 110));
  PaintTree(stage, foot, size);
  const int gifts = stage.dice.Whole(3, 6);
  for (int i = 0; i < gifts; ++i) {
    const double side = (i % 2 == 0 ? -1 : 1) * stage.dice.Between(0.1, 0.34);
    PaintGift(stage, foot + QPointF(side * size, stage.h * stage.dice.Between(0.01, 0.07)),
              size * stage.dice.Between(0.11, 0.17));
  }
}

void PaintFireworks(Stage& stage) {
  stage.light = LightOf(23);
  const double shore = stage.h * 0.76;
  FillDown(stage, 0, shore, QColor(6, 8, 24), QColor(38, 32, 70));
  QPainter& p = stage.painter;
  const int rockets = stage.dice.Whole(3, 6);
  const double firstHue = stage.dice.Unit() * 360;
  for (int i = 0; i < rockets; ++i) {
    const QPointF at(stage.w * (0.12 + 0.76 * std::fmod(0.5 + i * 0.618, 1.0)),
                     stage.h * stage.dice.Between(0.14, 0.46));
    const double reach = stage.h * stage.dice.Between(0.13, i == 0 ? 0.32 : 0.24);
    // Smoke lit from below, and the trail.
    Glow(p, at + QPointF(reach * 0.3, reach * 0.4), reach * 1.3, QColor(140, 130, 160, 50), false);
    QLinearGradient trail(at, {at.x(), shore});
    trail.setColorAt(0, QColor(255, 214, 150, 150));
    trail.setColorAt(1, QColor(255, 214, 150, 0));
    p.setPen(QPen(trail, 1.4));
    p.drawLine(at, QPointF(at.x() + stage.dice.Between(-12, 12), shore));
    PaintRocket(stage, at, reach, firstHue + i * 75.0);
  }
  const double far = stage.dice.Unit();
  double x = -10;
  while (x < stage.w) {
    const double width = stage.w * stage.dice.Between(0.04, 0.09);
    const double tall = stage.h * stage.dice.Between(0.04, 0.13 + 0.06 * far);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(12, 12, 30));
    p.drawRect(QRectF(x, shore - tall, width + 1, tall));
    p.setBrush(QColor(255, 206, 120, 200));
    for (int i = 0; i < 7; ++i) {
      p.drawRect(QRectF(x + width * stage.dice.Between(0.1, 0.85),
                        shore - tall * stage.dice.Between(0.1, 0.9), 2, 2.4));
    }
    x += width;
  }
  PaintMirror(stage, shore, stage.h, QColor(20, 20, 56), 0.85);
}

void PaintRoses(Stage& stage) {
  QPainter& p = stage.painter;
  FillDown(stage, 0, stage.h, QColor(92, 22, 44), QColor(214, 120, 128));
  const bool petalsOnTable = stage.dice.Chance(0.4);
  p.save();
  p.setCompositionMode(QPainter::CompositionMode_Screen);
  p.setPen(Qt::NoPen);
  for (int i = 0; i < 26; ++i) {
    p.setBrush(WithAlpha(Hsv(stage.dice.Between(335, 375), stage.dice.Between(0.3, 0.65), 0.9),
                         stage.dice.Between(0.1, 0.4)));
    p.drawPath(Heart({stage.dice.Unit() * stage.w, stage.dice.Unit() * stage.h * 0.75},
                     stage.h * stage.dice.Between(0.015, 0.06)));
  }
  p.restore();
  PaintBokeh(stage, 24, 0, stage.h * 0.8, 335, 380, 0.5);
  const double unit = std::min(stage.w, stage.h);
  const QPointF centre(stage.w * stage.dice.Between(0.42, 0.58), stage.h * 0.5);
  const QColor colour =
      Hsv(stage.dice.Pick(std::vector<double>{350, 345, 338, 2, 20}), stage.dice.Between(0.55, 0.85), 0.86);
  // Paper around the stems.
  p.setPen(Qt::NoPen);
  QLinearGradient paper(centre.x() - unit * 0.4, 0, centre.x() + unit * 0.4, 0);
  paper.setColorAt(0, QColor(250, 236, 226));
  paper.setColorAt(0.5, QColor(228, 200, 188));
  paper.setColorAt(1, QColor(180, 140, 136));
  p.setBrush(paper);
  p.drawPolygon(Shape({{centre.x() - unit * 0.44, centre.y() + unit * 0.02},
                       {centre.x() + unit * 0.44, centre.y() + unit * 0.02},
                       {centre.x() + unit * 0.1, stage.h + 20},
                       {centre.x() - unit * 0.1, stage.h + 20}}));
  for (int i = 0; i < 26; ++i) {
    const double angle = stage.dice.Unit() * 2 * kPi;
    const QPointF at = centre + QPointF(std::cos(angle) * 0.42, std::sin(angle) * 0.3) * unit;
    p.save();
    p.translate(at);
    p.rotate(angle * 180 / kPi);
    p.setBrush(Hsv(stage.dice.Between(100, 140), 0.55, stage.dice.Between(0.22, 0.42)));
    p.drawEllipse(QPointF(0, 0), unit * 0.1, unit * 0.042);
    p.restore();
  }
  // Ring by ring, the last one in front.
  for (int i = 0; i < 17; ++i) {
    const double ring = i < 9 ? 0.33 : i < 15 ? 0.19 : 0.04;
    const int inRing = i < 9 ? 9 : i < 15 ? 6 : 2;
    const double angle = 2 * kPi * i / inRing + stage.dice.Between(-0.15, 0.15);
    const QPointF at = centre + QPointF(std::cos(angle) * ring, std::sin(angle) * ring * 0.72) * unit;
    PaintRose(p, stage.dice, at, unit * stage.dice.Between(0.1, 0.125),
              Hsv(colour.hsvHue() + stage.dice.Between(-5, 5), colour.hsvSaturationF(),
                  stage.dice.Between(0.74, 0.95)));
  }
  if (petalsOnTable) {
    for (int i = 0; i < 24; ++i) {
      p.save();
      p.translate(stage.dice.Unit() * stage.w, stage.h * stage.dice.Between(0.82, 1));
      p.rotate(stage.dice.Unit() * 360);
      p.setPen(Qt::NoPen);
      p.setBrush(WithAlpha(Mix(colour, Qt::white, stage.dice.Between(0, 0.35)), 0.9));
      p.drawEllipse(QPointF(0, 0), unit * 0.03, unit * 0.02);
      p.restore();
    }
  }
}

}  // namespace Zenvora::Lumidex::Host
