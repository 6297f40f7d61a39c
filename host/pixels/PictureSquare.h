#pragma once

#include <QImage>
#include <QRect>

#include <array>
#include <cstddef>

namespace Zenvora::Lumidex::Host {

/// A picture as a square of few pixels, whatever its shape: a crop changes the shape a little.
struct PictureSquare {
  static constexpr int kSide = 48;
  static constexpr int kPixels = kSide * kSide;
  using Plane = std::array<float, kPixels>;  ///< Row by row.

  Plane light;  ///< 0 to 255.
  Plane blue;   ///< How much bluer than the light, and redder.
  Plane red;
};

/// Of a part of the picture, which is of the format RGB32. Pure: the same bits on every system.
PictureSquare SquareOf(const QImage& picture, const QRect& part);

}  // namespace Zenvora::Lumidex::Host
