#include "SceneTools.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr double kPi = 3.14159265358979323846;

struct SkyKey {
  double hour;
  QRgb zenith;
  QRgb middle;
  QRgb horizon;
  double day;
  double evening;
};

constexpr SkyKey kSkyKeys[] = {
    {0, 0xFF0A1028, 0xFF132046, 0xFF22315C, 0, 0},
    {4.6, 0xFF10183A, 0xFF27305F, 0xFF4F4E74, 0.06, 0},
    {6.2, 0xFF3D4F8E, 0xFFC88F96, 0xFFF9C58D, 0.5, 1},
    {8, 0xFF5597D4, 0xFF9DC9EA, 0xFFEAF0EA, 0.9, 0.2},
    {12, 0xFF2F79C4, 0xFF79B4E6, 0xFFCFE7F3, 1, 0},
    {16, 0xFF3F86CB, 0xFF92C1E6, 0xFFEFE7D2, 0.97, 0.15},
    {18.6, 0xFF4560A8, 0xFFDD9680, 0xFFFCC46C, 0.66, 1},
    {20, 0xFF2C3470, 0xFFA2567E, 0xFFF0875A, 0.36, 1},
    {21.2, 0xFF161D4A, 0xFF39386F, 0xFF875A7C, 0.12, 0.4},
    {22.4, 0xFF0B122E, 0xFF17234C, 0xFF2A3763, 0.02, 0},
    {24, 0xFF0A1028, 0xFF132046, 0xFF22315C, 0, 0},
};

void PaintStars(Stage& stage, double horizon) {
  QPainter& p = stage.painter;
  p.setPen(Qt::NoPen);
  const double strength = 1 - std::min(1.0, stage.light.day * 4);
  for (int i = 0; i < 170; ++i) {
    const double y = horizon * std::pow(stage.dice.Unit(), 1.3);
    const double size = 0.5 + 1.1 * std::pow(stage.dice.Unit(), 4);
    p.setBrush(WithAlpha(QColor(255, 250, 235), strength * stage.dice.Between(0.25, 0.95)));
    p.drawEllipse(QPointF(stage.dice.Unit() * stage.w, y), size, size);
  }
}

QImage CloudLayer(Dice& dice, double cover, const QColor& lit, const QColor& shade) {
  constexpr int kWidth = 192;
  constexpr int kHeight = 96;
  const Noise noise(dice.Number());
  QImage layer(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < kHeight; ++y) {
    auto* line = reinterpret_cast<QRgb*>(layer.scanLine(y));
    // Clouds far away are flat and close together.
    const double deep = 1.6 / (1.12 - static_cast<double>(y) / kHeight);
    for (int x = 0; x < kWidth; ++x) {
      const double u = (x - kWidth * 0.5) * 0.016 * deep + 40;
      const double v = deep * 2.6;
      const double density = noise.Layers(u, v, 5);
      const double above = noise.Layers(u + 0.08, v + 0.16, 3);
      const double alpha = std::clamp((density - (1 - cover)) * 4.5, 0.0, 1.0);
      const double fade = std::min(1.0, (kHeight - y) / 22.0);
      const double bright = std::clamp(0.62 + (density - above) * 2.4, 0.0, 1.0);
      const QColor colour = Mix(shade, lit, bright);
      line[x] = qPremultiply(WithAlpha(colour, alpha * fade * 0.92).rgba());
    }
  }
  return layer;
}

}  // namespace

double Noise::Corner(std::int32_t x, std::int32_t y) const {
  std::uint32_t h =
      seed_ ^ static_cast<std::uint32_t>(x) * 0x8DA6B343U ^ static_cast<std::uint32_t>(y) * 0xD8163841U;
  h ^= h >> 13;
  h *= 0x5BD1E995U;
  h ^= h >> 15;
  return h * (1.0 / 4294967296.0);
}

double Noise::At(double x, double y) const {
  const double left = std::floor(x);
  const double top = std::floor(y);
  double u = x - left;
  double v = y - top;
  u = u * u * (3 - 2 * u);
  v = v * v * (3 - 2 * v);
  const auto ix = static_cast<std::int32_t>(left);
  const auto iy = static_cast<std::int32_t>(top);
  const double upper = Corner(ix, iy) * (1 - u) + Corner(ix + 1, iy) * u;
  const double lower = Corner(ix, iy + 1) * (1 - u) + Corner(ix + 1, iy + 1) * u;
  return upper * (1 - v) + lower * v;
}

double Noise::Layers(double x, double y, int octaves) const {
  double sum = 0;
  double weight = 0;
  double share = 1;
  for (int i = 0; i < octaves; ++i) {
    sum += share * At(x, y);
    weight += share;
    share *= 0.5;
    // Off by an odd amount, so that the layers' lattices do not line up.
    x = x * 2 + 17.3;
    y = y * 2 + 9.1;
  }
  return sum / weight;
}

Light LightOf(double hour) {
  const double at = std::clamp(hour, 0.0, 24.0);
  const SkyKey* later = std::find_if(std::begin(kSkyKeys) + 1, std::end(kSkyKeys) - 1,
                                     [at](const SkyKey& key) { return key.hour >= at; });
  const SkyKey& a = *(later - 1);
  const SkyKey& b = *later;
  const double share = (at - a.hour) / (b.hour - a.hour);
  Light light;
  light.zenith = Mix(QColor(a.zenith), QColor(b.zenith), share);
  light.middle = Mix(QColor(a.middle), QColor(b.middle), share);
  light.horizon = Mix(QColor(a.horizon), QColor(b.horizon), share);
  light.day = a.day + (b.day - a.day) * share;
  light.evening = a.evening + (b.evening - a.evening) * share;
  return light;
}

QPolygonF Shape(std::initializer_list<QPointF> corners) {
  return {QVector<QPointF>(corners)};
}

QColor Mix(const QColor& a, const QColor& b, double share) {
  const double s = std::clamp(share, 0.0, 1.0);
  const auto between = [s](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * s)); };
  return {between(a.red(), b.red()), between(a.green(), b.green()), between(a.blue(), b.blue()),
          between(a.alpha(), b.alpha())};
}

QColor WithAlpha(const QColor& colour, double alpha) {
  QColor result = colour;
  result.setAlpha(static_cast<int>(std::lround(std::clamp(alpha, 0.0, 1.0) * 255)));
  return result;
}

QColor Hsv(double degrees, double saturation, double value) {
  const int hue = static_cast<int>(std::lround(degrees) % 360 + 360) % 360;
  return QColor::fromHsv(hue, static_cast<int>(std::clamp(saturation, 0.0, 1.0) * 255),
                         static_cast<int>(std::clamp(value, 0.0, 1.0) * 255));
}

QColor Lit(const Light& light, const QColor& colour) {
  const double strength = 0.16 + 0.84 * light.day;
  QColor result(static_cast<int>(colour.red() * strength), static_cast<int>(colour.green() * strength),
                static_cast<int>(colour.blue() * (strength + 0.08 * (1 - light.day))), colour.alpha());
  return Mix(result, WithAlpha(light.horizon, colour.alphaF()), 0.1 + 0.16 * light.evening);
}

void FillDown(Stage& stage, double top, double bottom, const QColor& from, const QColor& to) {
  QLinearGradient gradient(0, top, 0, bottom);
  gradient.setColorAt(0, from);
  gradient.setColorAt(1, to);
  stage.painter.fillRect(QRectF(0, top, stage.w, bottom - top), gradient);
}

void Glow(QPainter& painter, const QPointF& centre, double radius, const QColor& colour, bool add) {
  QRadialGradient gradient(centre, radius);
  gradient.setColorAt(0, colour);
  gradient.setColorAt(0.25, WithAlpha(colour, colour.alphaF() * 0.56));
  gradient.setColorAt(0.55, WithAlpha(colour, colour.alphaF() * 0.18));
  gradient.setColorAt(1, WithAlpha(colour, 0));
  painter.save();
  painter.setPen(Qt::NoPen);
  if (add) {
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
  }
  painter.setBrush(gradient);
  painter.drawEllipse(centre, radius, radius);
  painter.restore();
}

void Ball(QPainter& painter, const QPointF& centre, double radius, const QColor& colour) {
  QRadialGradient gradient(centre, radius, centre - QPointF(radius * 0.38, radius * 0.42));
  gradient.setColorAt(0, Mix(colour, Qt::white, 0.85));
  gradient.setColorAt(0.22, Mix(colour, Qt::white, 0.25));
  gradient.setColorAt(0.7, colour);
  gradient.setColorAt(1, colour.darker(170));
  painter.setPen(Qt::NoPen);
  painter.setBrush(gradient);
  painter.drawEllipse(centre, radius, radius);
}

QPointF PaintSky(Stage& stage, double horizon, double clouds) {
  QPainter& p = stage.painter;
  const Light& light = stage.light;
  QLinearGradient gradient(0, 0, 0, horizon);
  gradient.setColorAt(0, light.zenith);
  gradient.setColorAt(0.55, light.middle);
  gradient.setColorAt(1, light.horizon);
  p.fillRect(QRectF(0, 0, stage.w, stage.h), gradient);

  const bool night = light.day < 0.25;
  if (night) {
    PaintStars(stage, horizon);
  }
  const double side = stage.hour < 12 ? stage.dice.Between(0.12, 0.45) : stage.dice.Between(0.55, 0.88);
  QPointF disc(side * stage.w, 0);
  if (night) {
    disc.setY(horizon * stage.dice.Between(0.2, 0.5));
    const double radius = stage.h * 0.035;
    Glow(p, disc, radius * 6, QColor(200, 214, 255, 90));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(250, 247, 230));
    p.drawEllipse(disc, radius, radius);
    p.setBrush(QColor(222, 218, 200, 120));
    for (int i = 0; i < 5; ++i) {
      const double crater = radius * stage.dice.Between(0.1, 0.26);
      p.drawEllipse(disc + QPointF(stage.dice.Between(-0.5, 0.5), stage.dice.Between(-0.5, 0.5)) * radius,
                    crater, crater);
    }
  } else {
    disc.setY(horizon *
              (light.evening > 0.45 ? stage.dice.Between(0.72, 0.9) : stage.dice.Between(0.12, 0.3)));
    const QColor sun = Mix(QColor(255, 252, 235), QColor(255, 214, 140), light.evening);
    Glow(p, disc, stage.h * (0.42 + 0.25 * light.evening), WithAlpha(sun, 0.75));
    Glow(p, disc, stage.h * 0.12, sun);
    p.setPen(Qt::NoPen);
    p.setBrush(Mix(sun, Qt::white, 0.6));
    p.drawEllipse(disc, stage.h * 0.03, stage.h * 0.03);
  }
  if (clouds > 0) {
    const QColor bright = night ? Mix(light.middle, Qt::white, 0.22)
                                : Mix(QColor(255, 255, 255), QColor(255, 196, 150), light.evening * 0.9);
    const QColor dark = Mix(light.middle, night ? QColor(20, 26, 50) : QColor(150, 150, 175), 0.5);
    const QImage layer = CloudLayer(stage.dice, clouds, bright, dark);
    p.save();
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(QRectF(0, 0, stage.w, horizon), layer);
    p.restore();
  }
  return disc;
}

void PaintLand(Stage& stage, const std::function<double(double)>& height, const QColor& top,
               const QColor& bottom) {
  QPainterPath land;
  double highest = stage.h;
  land.moveTo(-2, stage.h + 2);
  for (double x = -2; x <= stage.w + 2; x += 2) {
    const double y = height(x);
    highest = std::min(highest, y);
    land.lineTo(x, y);
  }
  land.lineTo(stage.w + 2, stage.h + 2);
  land.closeSubpath();
  QLinearGradient gradient(0, highest, 0, stage.h);
  gradient.setColorAt(0, top);
  gradient.setColorAt(1, bottom);
  stage.painter.setPen(Qt::NoPen);
  stage.painter.setBrush(gradient);
  stage.painter.drawPath(land);
}

void PaintMirror(Stage& stage, double top, double bottom, const QColor& water, double strength) {
  QImage& image = stage.image;
  const int first = std::clamp(static_cast<int>(top), 1, image.height() - 1);
  const int last = std::clamp(static_cast<int>(bottom), first, image.height());
  const Noise ripple(stage.dice.Number());
  for (int y = first; y < last; ++y) {
    const double depth = static_cast<double>(y - first) / std::max(1, image.height() - first);
    // Ripples grow towards the viewer, and the mirror image gets squeezed and dimmer.
    const double wave = (ripple.Layers(y * 0.35, 0.5, 2) - 0.5) * (2 + 18 * depth);
    const int from = std::clamp(static_cast<int>(first - 1 - (y - first) * 0.92 + wave), 0, first - 1);
    const auto* source = reinterpret_cast<const QRgb*>(image.constScanLine(from));
    auto* target = reinterpret_cast<QRgb*>(image.scanLine(y));
    const double keep = strength * (1 - 0.45 * depth);
    for (int x = 0; x < image.width(); ++x) {
      const double shift = (ripple.At(x * 0.012, y * (0.55 - 0.3 * depth)) - 0.5) * (4 + 26 * depth);
      const int at = std::clamp(static_cast<int>(x + shift), 0, image.width() - 1);
      target[x] = MixPixels(water.rgb(), source[at], keep);
    }
  }
  // Light streaks lie flat on the water.
  stage.painter.setPen(Qt::NoPen);
  for (int i = 0; i < 90; ++i) {
    const double depth = std::pow(stage.dice.Unit(), 1.6);
    const double y = first + depth * (last - first);
    stage.painter.setBrush(WithAlpha(Mix(stage.light.horizon, Qt::white, 0.3),
                                     stage.dice.Between(0.03, 0.13) * (0.4 + stage.light.day)));
    stage.painter.drawEllipse(QPointF(stage.dice.Unit() * stage.w, y), 6 + 46 * depth, 0.4 + 1.3 * depth);
  }
}

void PaintSnowfall(Stage& stage, int flakes) {
  stage.painter.setPen(Qt::NoPen);
  for (int i = 0; i < flakes; ++i) {
    const double size = 0.7 + 2.6 * std::pow(stage.dice.Unit(), 3);
    stage.painter.setBrush(WithAlpha(Qt::white, stage.dice.Between(0.3, 0.9)));
    stage.painter.drawEllipse(QPointF(stage.dice.Unit() * stage.w, stage.dice.Unit() * stage.h), size, size);
  }
}

void PaintConifer(QPainter& painter, Dice& dice, double x, double base, double height, const QColor& colour,
                  double snow) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(Mix(colour, QColor(50, 34, 24), 0.6));
  painter.drawRect(QRectF(x - height * 0.02, base - height * 0.1, height * 0.04, height * 0.1));
  const int tiers = 7;
  for (int tier = 0; tier < tiers; ++tier) {
    const double from = base - height * (0.06 + 0.125 * tier);
    const double to = from - height * 0.26;
    const double half = height * 0.24 * (1 - tier / (tiers + 0.6));
    QPolygonF shape;
    shape << QPointF(x, std::max(to, base - height));
    const int teeth = 5;
    for (int i = 0; i <= teeth * 2; ++i) {
      const double u = 1 - static_cast<double>(i) / teeth;
      const double droop = (i % 2 == 0 ? 0.035 : -0.015) * height * dice.Between(0.5, 1.2);
      shape << QPointF(x + u * half * dice.Between(0.93, 1.07),
                       from + droop - (1 - std::abs(u)) * height * 0.01);
    }
    QLinearGradient gradient(x - half, to, x + half, from);
    gradient.setColorAt(0, Mix(colour, Qt::white, 0.1 + 0.5 * snow));
    gradient.setColorAt(0.5, Mix(colour, Qt::white, 0.18 * snow));
    gradient.setColorAt(1, colour.darker(125));
    painter.setBrush(gradient);
    painter.drawPolygon(shape);
    if (snow > 0) {
      painter.setBrush(WithAlpha(QColor(240, 246, 255), 0.75 * snow));
      painter.drawEllipse(QPointF(x - half * 0.35, from - height * 0.01), half * 0.42, height * 0.012);
      painter.drawEllipse(QPointF(x + half * 0.4, from - height * 0.004), half * 0.35, height * 0.01);
    }
  }
}

void PaintLeafTree(QPainter& painter, Dice& dice, double x, double base, double height, const QColor& leaves,
                   const QColor& trunk) {
  painter.setPen(QPen(trunk, height * 0.05, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(x, base), QPointF(x + dice.Between(-0.02, 0.02) * height, base - height * 0.5));
  painter.setPen(QPen(trunk, height * 0.022, Qt::SolidLine, Qt::RoundCap));
  for (const double side : {-1.0, 1.0}) {
    painter.drawLine(QPointF(x, base - height * 0.32), QPointF(x + side * height * dice.Between(0.1, 0.18),
                                                               base - height * dice.Between(0.5, 0.62)));
  }
  painter.setPen(Qt::NoPen);
  constexpr int kDabs = 130;
  for (int i = 0; i < kDabs; ++i) {
    const double angle = dice.Unit() * 2 * kPi;
    const double reach = std::sqrt(dice.Unit());
    const QPointF at(std::cos(angle) * reach * height * 0.33, std::sin(angle) * reach * height * 0.3);
    // Later dabs lie on top: the lit ones, upper left.
    const double lit =
        std::clamp(0.5 - (at.x() + at.y()) / (height * 0.8) + (i - kDabs * 0.5) * 0.002, 0.0, 1.0);
    painter.setBrush(WithAlpha(Mix(leaves.darker(190), leaves.lighter(122), lit), 0.86));
    const double size = height * dice.Between(0.025, 0.062);
    painter.drawEllipse(QPointF(x, base - height * 0.64) + at, size, size * 0.85);
  }
}

void PaintBokeh(Stage& stage, int count, double top, double bottom, double firstHue, double lastHue,
                double strength) {
  QPainter& p = stage.painter;
  p.save();
  p.setCompositionMode(QPainter::CompositionMode_Screen);
  for (int i = 0; i < count; ++i) {
    const QPointF at(stage.dice.Unit() * stage.w, stage.dice.Between(top, bottom));
    const double radius = stage.h * stage.dice.Between(0.015, 0.06);
    const QColor colour = Hsv(stage.dice.Between(firstHue, lastHue), stage.dice.Between(0.3, 0.75), 1);
    const double alpha = strength * stage.dice.Between(0.15, 0.6);
    QRadialGradient gradient(at, radius);
    gradient.setColorAt(0, WithAlpha(colour, alpha * 0.7));
    gradient.setColorAt(0.85, WithAlpha(colour, alpha));
    gradient.setColorAt(1, WithAlpha(colour, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(gradient);
    p.drawEllipse(at, radius, radius);
  }
  p.restore();
}

}  // namespace Zenvora::Lumidex::Host
