#pragma once

#include "SampleScenes.h"

#include <host/base/Dice.h>

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPointF>
#include <QPolygonF>

#include <cstdint>
#include <functional>
#include <initializer_list>

namespace Zenvora::Lumidex::Host {

/// Smooth random values over the plane, 0..1.
class Noise {
 public:
  explicit Noise(std::uint32_t seed) : seed_(seed) {}
  double At(double x, double y = 0) const;
  /// `octaves` layers, each twice as fine and half as strong.
  double Layers(double x, double y, int octaves) const;

 private:
  double Corner(std::int32_t x, std::int32_t y) const;
  std::uint32_t seed_;
};

/// The light of an hour of the day.
struct Light {
  QColor zenith;
  QColor middle;
  QColor horizon;
  double day = 1;      ///< 0: deep night, 1: full day.
  double evening = 0;  ///< 1: the sun stands at the horizon.
};

Light LightOf(double hour);

/// What the painters of the scenes share.
struct Stage {
  QImage& image;
  QPainter& painter;
  double w;
  double h;
  Dice& dice;
  Light light;
  double hour;
  int month;
};

QPolygonF Shape(std::initializer_list<QPointF> corners);
QColor Mix(const QColor& a, const QColor& b, double share);
/// The same for opaque pixels, `share` being 0..1.
inline QRgb MixPixels(QRgb a, QRgb b, double share) {
  const int s = static_cast<int>(share * 256);
  return qRgb(qRed(a) + (qRed(b) - qRed(a)) * s / 256, qGreen(a) + (qGreen(b) - qGreen(a)) * s / 256,
              qBlue(a) + (qBlue(b) - qBlue(a)) * s / 256);
}
QColor WithAlpha(const QColor& colour, double alpha);
QColor Hsv(double degrees, double saturation, double value);
/// A thing's colour in the scene's light.
QColor Lit(const Light& light, const QColor& colour);

void FillDown(Stage& stage, double top, double bottom, const QColor& from, const QColor& to);
/// A round spot fading to nothing. `add`: light upon light instead of paint upon paint.
void Glow(QPainter& painter, const QPointF& centre, double radius, const QColor& colour, bool add = true);
/// A ball lit from the upper left.
void Ball(QPainter& painter, const QPointF& centre, double radius, const QColor& colour);

/// Sky with sun or moon, stars and clouds down to `horizon`. Returns where the sun or moon stands.
QPointF PaintSky(Stage& stage, double horizon, double clouds);
/// Paints everything below the outline `height(x)` (in pixels from the top), shaded downwards.
void PaintLand(Stage& stage, const std::function<double(double)>& height, const QColor& top,
               const QColor& bottom);
/// Water from `top` to `bottom` that mirrors what is above it.
void PaintMirror(Stage& stage, double top, double bottom, const QColor& water, double strength);
void PaintSnowfall(Stage& stage, int flakes);
void PaintConifer(QPainter& painter, Dice& dice, double x, double base, double height, const QColor& colour,
                  double snow);
void PaintLeafTree(QPainter& painter, Dice& dice, double x, double base, double height, const QColor& leaves,
                   const QColor& trunk);
/// Soft discs of light out of focus.
void PaintBokeh(Stage& stage, int count, double top, double bottom, double firstHue, double lastHue,
                double strength);

void PaintLake(Stage& stage);
void PaintBeach(Stage& stage);
void PaintFlowers(Stage& stage);
void PaintCity(Stage& stage);
void PaintHouses(Stage& stage);
void PaintChristmasTree(Stage& stage);
void PaintFireworks(Stage& stage);
void PaintRoses(Stage& stage);

}  // namespace Zenvora::Lumidex::Host
