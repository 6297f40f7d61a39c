// Christmas, New Year, Halloween, birthdays, Valentine's Day.

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

void PaintPumpkin(Stage& stage, const QPointF& foot, double size, bool face) {
  QPainter& p = stage.painter;
  const QPointF centre = foot - QPointF(0, size * 0.62);
  const QColor skin = Lit(stage.light, Hsv(stage.dice.Between(18, 30), 0.88, 0.95));
  const QColor flesh = face ? Mix(skin, QColor(226, 110, 24), 0.55) : skin;
  Glow(p, foot + QPointF(size * 0.1, 0), size * 1.25, QColor(0, 0, 0, 170), false);
  p.setPen(Qt::NoPen);
  for (const double rib : {-0.72, 0.72, -0.46, 0.46, -0.2, 0.2, 0.0}) {
    const QPointF at = centre + QPointF(rib * size, 0);
    QRadialGradient gradient(at - QPointF(size * 0.1, size * 0.24), size * 0.78);
    gradient.setColorAt(0, Mix(flesh, QColor(255, 226, 150), 0.35));
    gradient.setColorAt(0.55, Mix(flesh, QColor(60, 10, 0), std::abs(rib) * 0.35));
    gradient.setColorAt(1, Mix(flesh, QColor(70, 16, 0), 0.72));
    p.setBrush(gradient);
    p.drawEllipse(at, size * 0.42, size * (0.64 - 0.1 * std::abs(rib)));
  }
  QPainterPath stem(centre + QPointF(-size * 0.1, -size * 0.55));
  stem.quadTo(centre + QPointF(-size * 0.04, -size * 0.75), centre + QPointF(size * 0.06, -size * 0.9));
  stem.lineTo(centre + QPointF(size * 0.2, -size * 0.84));
  stem.quadTo(centre + QPointF(size * 0.1, -size * 0.7), centre + QPointF(size * 0.13, -size * 0.55));
  p.setBrush(Lit(stage.light, QColor(104, 116, 56)));
  p.drawPath(stem);
  if (!face) {
    return;
  }
  QPainterPath cut;
  for (const double side : {-1.0, 1.0}) {
    cut.moveTo(centre + QPointF(side * size * 0.52, -size * 0.06));
    cut.lineTo(centre + QPointF(side * size * 0.34, -size * 0.36));
    cut.lineTo(centre + QPointF(side * size * 0.15, -size * 0.05));
    cut.closeSubpath();
  }
  cut.moveTo(centre + QPointF(-size * 0.08, size * 0.08));
  cut.lineTo(centre + QPointF(0, -size * 0.06));
  cut.lineTo(centre + QPointF(size * 0.08, size * 0.08));
  cut.closeSubpath();
  // A grin with teeth.
  const int teeth = 7;
  cut.moveTo(centre + QPointF(-size * 0.62, size * 0.12));
  for (int i = 1; i <= teeth * 2; ++i) {
    const double u = -1 + static_cast<double>(i) / teeth;
    const double bow = (1 - u * u) * size * 0.2;
    cut.lineTo(centre + QPointF(u * size * 0.62,
                                size * 0.12 + bow + (i % 2 == 0 || i == teeth * 2 ? 0 : size * 0.09)));
  }
  for (int i = teeth * 2; i >= 0; --i) {
    const double u = -1 + static_cast<double>(i) / teeth;
    const double bow = (1 - u * u) * size * 0.4;
    cut.lineTo(centre + QPointF(u * size * 0.6, size * 0.13 + bow - (i % 2 == 0 ? 0 : size * 0.07)));
  }
  cut.closeSubpath();
  QRadialGradient fire(centre + QPointF(0, size * 0.2), size * 0.75);
  fire.setColorAt(0, QColor(255, 250, 190));
  fire.setColorAt(0.5, QColor(255, 206, 74));
  fire.setColorAt(1, QColor(240, 120, 20));
  p.setBrush(fire);
  p.setPen(QPen(QColor(120, 40, 0), std::max(1.0, size * 0.022)));
  p.drawPath(cut);
  p.setPen(Qt::NoPen);
  Glow(p, centre + QPointF(0, size * 0.1), size * 1.35, QColor(255, 160, 50, 120));
}

void PaintBat(QPainter& p, const QPointF& at, double size) {
  QPainterPath bat(at + QPointF(0, -size * 0.1));
  for (const double side : {1.0, -1.0}) {
    const auto to = [&](double x, double y) { return at + QPointF(side * x * size, y * size); };
    if (side > 0) {
      bat.lineTo(to(0.08, -0.26));
      bat.quadTo(to(0.5, -0.5), to(1, -0.3));
      bat.quadTo(to(0.8, -0.1), to(0.78, 0.1));
      bat.quadTo(to(0.55, -0.05), to(0.42, 0.16));
      bat.quadTo(to(0.25, 0.02), to(0, 0.3));
    } else {
      bat.quadTo(to(0.25, 0.02), to(0.42, 0.16));
      bat.quadTo(to(0.55, -0.05), to(0.78, 0.1));
      bat.quadTo(to(0.8, -0.1), to(1, -0.3));
      bat.quadTo(to(0.5, -0.5), to(0.08, -0.26));
    }
  }
  bat.closeSubpath();
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(14, 8, 22));
  p.drawPath(bat);
}

void PaintBalloon(Stage& stage, const QPointF& at, double size, double hue) {
  QPainter& p = stage.painter;
  QPainterPath string(at + QPointF(0, size * 1.2));
  string.cubicTo(at + QPointF(size * 0.4, size * 2), at + QPointF(-size * 0.4, size * 3),
                 at + QPointF(size * 0.1, size * 5));
  p.setBrush(Qt::NoBrush);
  p.setPen(QPen(QColor(255, 255, 255, 120), 1));
  p.drawPath(string);
  const QColor rubber = Hsv(hue, 0.68, 0.93);
  QRadialGradient gradient(at, size * 1.25, at - QPointF(size * 0.35, size * 0.45));
  gradient.setColorAt(0, Mix(rubber, Qt::white, 0.8));
  gradient.setColorAt(0.25, Mix(rubber, Qt::white, 0.15));
  gradient.setColorAt(1, rubber.darker(175));
  p.setPen(Qt::NoPen);
  p.setBrush(gradient);
  QPainterPath skin(at + QPointF(0, size * 1.2));
  skin.cubicTo(at + QPointF(-size * 0.5, size * 0.95), at + QPointF(-size, size * 0.4),
               at + QPointF(-size, -size * 0.15));
  skin.cubicTo(at + QPointF(-size, -size * 1.4), at + QPointF(size, -size * 1.4),
               at + QPointF(size, -size * 0.15));
  skin.cubicTo(at + QPointF(size, size * 0.4), at + QPointF(size * 0.5, size * 0.95),
               at + QPointF(0, size * 1.2));
  p.drawPath(skin);
  p.setBrush(rubber.darker(150));
  p.drawPolygon(Shape({at + QPointF(0, size * 1.16), at + QPointF(-size * 0.1, size * 1.32),
                       at + QPointF(size * 0.1, size * 1.32)}));
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

void PaintCandle(Stage& stage, const QPointF& foot, double size, double hue) {
  QPainter& p = stage.painter;
  const QRectF wax(foot.x() - size * 0.09, foot.y() - size, size * 0.18, size);
  p.setPen(Qt::NoPen);
  p.setBrush(Hsv(hue, 0.45, 0.96));
  p.drawRect(wax);
  p.setBrush(QColor(255, 255, 255, 150));
  for (int stripe = 0; stripe < 4; ++stripe) {
    const double y = wax.top() + size * (0.08 + 0.25 * stripe);
    p.drawPolygon(Shape({{wax.left(), y + size * 0.1},
                         {wax.right(), y},
                         {wax.right(), y + size * 0.07},
                         {wax.left(), y + size * 0.17}}));
  }
  const QPointF flame(foot.x(), wax.top() - size * 0.22);
  Glow(p, flame, size * 1.3, QColor(255, 190, 90, 150));
  QPainterPath drop(flame - QPointF(0, size * 0.3));
  drop.cubicTo(flame + QPointF(size * 0.2, 0), flame + QPointF(size * 0.1, size * 0.2),
               flame + QPointF(0, size * 0.2));
  drop.cubicTo(flame + QPointF(-size * 0.1, size * 0.2), flame + QPointF(-size * 0.2, 0),
               flame - QPointF(0, size * 0.3));
  p.setBrush(QColor(255, 214, 110));
  p.drawPath(drop);
  p.setBrush(QColor(255, 252, 230));
  p.drawEllipse(flame + QPointF(0, size * 0.07), size * 0.04, size * 0.09);
}

void PaintTier(Stage& stage, const QPointF& foot, double half, double tall, const QColor& icing,
               const QColor& drip) {
  QPainter& p = stage.painter;
  const double flat = half * 0.2;
  QLinearGradient side(foot.x() - half, 0, foot.x() + half, 0);
  side.setColorAt(0, Mix(icing, Qt::white, 0.25));
  side.setColorAt(0.35, icing);
  side.setColorAt(1, icing.darker(142));
  QPainterPath body(foot + QPointF(-half, 0));
  body.arcTo(QRectF(foot.x() - half, foot.y() - flat, half * 2, flat * 2), 180, 180);
  body.lineTo(foot + QPointF(half, -tall));
  body.lineTo(foot + QPointF(-half, -tall));
  body.closeSubpath();
  p.setPen(Qt::NoPen);
  p.setBrush(side);
  p.drawPath(body);
  p.setBrush(drip);
  p.drawEllipse(foot + QPointF(0, -tall), half * 1.02, flat * 1.04);
  QLinearGradient syrup(foot.x() - half, 0, foot.x() + half, 0);
  syrup.setColorAt(0, Mix(drip, Qt::white, 0.2));
  syrup.setColorAt(1, drip.darker(140));
  p.setBrush(syrup);
  const int runs = 13;
  for (int i = 0; i < runs; ++i) {
    const double u = -1 + 2.0 * (i + 0.5) / runs;
    const double edge = foot.y() - tall + std::sqrt(1 - u * u) * flat;
    const double length = tall * stage.dice.Between(0.16, 0.5);
    const double thick = half / runs * 1.02;
    p.drawRoundedRect(QRectF(foot.x() + u * half - thick, edge - flat * 0.5, thick * 2, length + flat * 0.5),
                      thick, thick);
  }
  p.setBrush(Mix(drip, Qt::white, 0.22));
  p.drawEllipse(foot + QPointF(0, -tall), half * 0.97, flat * 0.94);
  for (int i = 0; i < 46; ++i) {
    const double angle = stage.dice.Unit() * 2 * kPi;
    const double reach = std::sqrt(stage.dice.Unit()) * 0.92;
    p.setBrush(Hsv(stage.dice.Unit() * 360, 0.6, 1));
    p.drawEllipse(foot + QPointF(std::cos(angle) * reach * half, -tall + std::sin(angle) * reach * flat),
                  half * 0.018, half * 0.012);
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

void PaintPumpkins(Stage& stage) {
  const bool night = stage.hour > 16.5 || stage.hour < 6;
  QPainter& p = stage.painter;
  const double ground = stage.h * 0.72;
  if (night) {
    stage.light = LightOf(21.4);
    FillDown(stage, 0, stage.h, QColor(22, 14, 44), QColor(122, 58, 70));
    const QPointF moon(stage.w * stage.dice.Between(0.25, 0.75), stage.h * 0.27);
    const double radius = stage.h * stage.dice.Between(0.12, 0.18);
    Glow(p, moon, radius * 3.4, QColor(255, 206, 130, 130));
    QRadialGradient disc(moon - QPointF(radius * 0.3, radius * 0.3), radius * 1.5);
    disc.setColorAt(0, QColor(255, 246, 214));
    disc.setColorAt(1, QColor(240, 188, 110));
    p.setPen(Qt::NoPen);
    p.setBrush(disc);
    p.drawEllipse(moon, radius, radius);
    p.setBrush(QColor(206, 150, 84, 70));
    for (int i = 0; i < 7; ++i) {
      const double crater = radius * stage.dice.Between(0.06, 0.2);
      p.drawEllipse(moon + QPointF(stage.dice.Between(-0.55, 0.55), stage.dice.Between(-0.55, 0.55)) * radius,
                    crater, crater * 0.9);
    }
    for (int i = 0; i < stage.dice.Whole(4, 8); ++i) {
      PaintBat(p, {stage.w * stage.dice.Between(0.08, 0.92), stage.h * stage.dice.Between(0.06, 0.46)},
               stage.h * stage.dice.Between(0.025, 0.07));
    }
    // Bare trees at the sides.
    p.setBrush(Qt::NoBrush);
    for (const double side : {0.04, 0.96}) {
      const QPointF root(stage.w * side, ground + 10);
      const double sign = side < 0.5 ? 1 : -1;
      for (int i = 0; i < 9; ++i) {
        const double level = ground - stage.h * (0.16 + 0.06 * i);
        QPainterPath branch(QPointF(root.x(), level + stage.h * 0.1));
        branch.cubicTo({root.x() + sign * stage.w * 0.05, level + stage.h * 0.03},
                       {root.x() + sign * stage.w * stage.dice.Between(0.06, 0.1), level},
                       {root.x() + sign * stage.w * stage.dice.Between(0.08, 0.2),
                        level - stage.h * stage.dice.Between(-0.02, 0.1)});
        p.setPen(QPen(QColor(16, 8, 22), 5 - i * 0.4, Qt::SolidLine, Qt::RoundCap));
        p.drawPath(branch);
      }
      p.setPen(QPen(QColor(16, 8, 22), 16));
      p.drawLine(root, QPointF(root.x() + sign * 4, ground - stage.h * 0.74));
    }
  } else {
    PaintSky(stage, ground, 0.4);
    PaintBokeh(stage, 30, stage.h * 0.3, ground, 20, 60, 0.5);
    for (int i = 0; i < 5; ++i) {
      PaintLeafTree(
          p, stage.dice, stage.w * (0.06 + 0.22 * i), ground + 8, stage.h * stage.dice.Between(0.26, 0.42),
          Mix(Lit(stage.light, Hsv(stage.dice.Between(16, 46), 0.75, 0.8)), stage.light.horizon, 0.3),
          QColor(110, 80, 60));
    }
  }
  const Noise noise(stage.dice.Number());
  const QColor earth = night ? QColor(30, 20, 28) : Lit(stage.light, QColor(150, 120, 62));
  PaintLand(
      stage, [&](double x) { return ground + stage.h * 0.03 * noise.Layers(x / stage.w * 4, 0, 3); },
      earth.lighter(125), earth.darker(140));
  p.setPen(Qt::NoPen);
  for (int i = 0; i < 240; ++i) {
    const double depth = std::sqrt(stage.dice.Unit());
    p.setBrush(WithAlpha(Lit(stage.light, Hsv(stage.dice.Between(12, 46), 0.8, 0.8)), 0.75));
    p.drawEllipse(QPointF(stage.dice.Unit() * stage.w, ground + stage.h * 0.03 + depth * (stage.h - ground)),
                  1.5 + 5 * depth, 1 + 2.2 * depth);
  }
  const int count = stage.dice.Whole(3, 5);
  const bool carved = night || stage.dice.Chance(0.3);
  for (int i = 0; i < count; ++i) {
    const double near = static_cast<double>(i + 1) / count;
    const double x = stage.w * (0.14 + 0.72 * std::fmod(0.12 + i * 0.618 + (stage.month % 3) * 0.11, 1.0));
    const double size = std::min(stage.h, stage.w) * (0.09 + 0.12 * near) * stage.dice.Between(0.9, 1.15);
    PaintPumpkin(stage, {x, stage.h * (0.8 + 0.14 * near)}, size,
                 carved && (i + 1 == count || stage.dice.Chance(0.5)));
  }
}

void PaintCake(Stage& stage) {
  QPainter& p = stage.painter;
  const double base = stage.dice.Unit() * 360;
  const QColor wall = Hsv(base, 0.32, 0.5);
  FillDown(stage, 0, stage.h, Mix(wall, Qt::black, 0.25), Mix(wall, QColor(255, 200, 140), 0.4));
  PaintBokeh(stage, 46, 0, stage.h * 0.7, base - 60, base + 90, 0.75);
  // Bunting.
  p.setPen(Qt::NoPen);
  for (int i = 0; i < 11; ++i) {
    const double u = i / 10.0;
    const double y = stage.h * (0.02 + 0.12 * (1 - std::pow(2 * u - 1, 2)));
    const double width = stage.w * 0.036;
    p.setBrush(Hsv(base + i * 47, 0.5, 0.95));
    p.drawPolygon(
        Shape({{u * stage.w - width, y}, {u * stage.w + width, y}, {u * stage.w, y + width * 2.2}}));
  }
  const int balloons = stage.dice.Whole(4, 7);
  for (int i = 0; i < balloons; ++i) {
    const double side = i % 2 == 0 ? stage.dice.Between(0.04, 0.26) : stage.dice.Between(0.74, 0.96);
    PaintBalloon(stage, {stage.w * side, stage.h * stage.dice.Between(0.18, 0.5)},
                 std::min(stage.h, stage.w) * stage.dice.Between(0.075, 0.105), base + i * 61.0);
  }
  const double table = stage.h * 0.8;
  FillDown(stage, table, stage.h, QColor(252, 246, 238), QColor(206, 190, 178));
  const QPointF foot(stage.w * stage.dice.Between(0.44, 0.56), stage.h * 0.87);
  const double half = std::min(stage.w * 0.3, stage.h * 0.28);
  Glow(p, foot + QPointF(0, half * 0.1), half * 1.6, QColor(60, 30, 20, 150), false);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(238, 234, 230));
  p.drawEllipse(foot + QPointF(0, half * 0.06), half * 1.22, half * 0.27);
  p.setBrush(QColor(255, 255, 255));
  p.drawEllipse(foot + QPointF(0, half * 0.03), half * 1.16, half * 0.25);
  const QColor icing = Hsv(base + 180, stage.dice.Between(0.08, 0.3), 0.97);
  const QColor drip = stage.dice.Chance(0.5) ? QColor(94, 52, 34) : Hsv(base + 20, 0.5, 0.9);
  const bool two = stage.dice.Chance(0.6);
  PaintTier(stage, foot, half, half * 0.62, icing, drip);
  QPointF top = foot + QPointF(0, -half * 0.62);
  double reach = half;
  if (two) {
    PaintTier(stage, top, half * 0.66, half * 0.5, Mix(icing, Hsv(base + 60, 0.4, 1), 0.5), drip);
    top += QPointF(0, -half * 0.5);
    reach = half * 0.66;
  }
  const int candles = stage.dice.Whole(4, 7);
  for (int i = 0; i < candles; ++i) {
    const double angle = kPi * (1.0 + (i + 0.5) / candles);
    PaintCandle(stage,
                top + QPointF(std::cos(angle) * reach * 0.74,
                              -std::abs(std::sin(angle)) * -reach * 0.05 + reach * 0.03 * (i % 2)),
                half * 0.36, base + 80 + i * 53.0);
  }
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
