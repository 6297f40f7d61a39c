#include "SampleScenes.h"

#include "SceneTools.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Zenvora::Lumidex::Host {

namespace {

using ScenePainter = void (*)(Stage&);

// In the order of SceneKind.
constexpr std::array<ScenePainter, kSceneKinds> kPainters = {
    PaintLake,   PaintBeach,         PaintFlowers,   PaintCity,
    PaintHouses, PaintChristmasTree, PaintFireworks, PaintRoses,
};

QImage Shake(const QImage& still, const SceneLook& look) {
  if (look.shiftX == 0 && look.shiftY == 0 && look.turn == 0) {
    return still;
  }
  QImage moved(still.size(), still.format());
  QPainter painter(&moved);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.translate(still.width() * (0.5 + look.shiftX), still.height() * (0.5 + look.shiftY));
  painter.rotate(look.turn);
  // A little closer, so that no edge comes into view.
  painter.scale(1.045, 1.045);
  painter.translate(still.width() * -0.5, still.height() * -0.5);
  painter.drawImage(0, 0, still);
  return moved;
}

/// What lens and sensor add: exposure, darker corners, noise.
void Expose(QImage& image, const SceneLook& look) {
  std::array<int, 256> curve{};
  const double gain = std::exp2(look.exposure);
  for (std::size_t i = 0; i < curve.size(); ++i) {
    const double value = std::min(1.0, std::pow(static_cast<double>(i) / 255 * (0.6 + 0.4 * gain), 0.9));
    // A gentle S, as cameras develop their pictures.
    const double lively = value * value * (3 - 2 * value);
    curve[i] = static_cast<int>(std::lround(255 * (0.7 * value + 0.3 * lively)));
  }
  const int grain = look.hour < 6 || look.hour > 20 ? 9 : 5;
  std::uint32_t noise = look.grainSeed | 1U;
  const double cx = image.width() / 2.0;
  const double cy = image.height() / 2.0;
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    const double dy = (y - cy) / cy;
    for (int x = 0; x < image.width(); ++x) {
      const double dx = (x - cx) / cx;
      const double far = dx * dx + dy * dy;
      const int corner = 256 - static_cast<int>(26 * far * far * 0.6);
      noise ^= noise << 13U;
      noise ^= noise >> 17U;
      noise ^= noise << 5U;
      const int add = static_cast<int>(noise >> 16U) % (2 * grain + 1) - grain;
      const int grey = qGray(line[x]);
      const auto channel = [&](int value) {
        const int vivid = std::clamp(grey + (value - grey) * 9 / 8, 0, 255);
        return std::clamp(curve[static_cast<std::size_t>(vivid)] * corner / 256 + add, 0, 255);
      };
      line[x] = qRgb(channel(qRed(line[x])), channel(qGreen(line[x])), channel(qBlue(line[x])));
    }
  }
}

}  // namespace

QImage DrawScene(const SceneLook& look) {
  QImage image(look.size, QImage::Format_RGB32);
  image.fill(Qt::black);
  {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    Dice dice(MixSeed(look.seed, static_cast<std::uint32_t>(look.kind)));
    Stage stage{image,
                painter,
                static_cast<double>(look.size.width()),
                static_cast<double>(look.size.height()),
                dice,
                LightOf(look.hour),
                look.hour,
                look.month};
    kPainters[static_cast<std::size_t>(look.kind)](stage);
  }
  QImage shot = Shake(image, look);
  Expose(shot, look);
  return shot;
}

}  // namespace Zenvora::Lumidex::Host
