#pragma once

#include <QImage>

#include <cstddef>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// One number for each pixel of a picture. Belongs to one thread.
class PicturePlane {
 public:
  PicturePlane() = default;
  PicturePlane(int width, int height)
      : width_(width),
        height_(height),
        values_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

  int Width() const { return width_; }
  int Height() const { return height_; }
  bool IsEmpty() const { return values_.empty(); }
  float* Row(int y) { return values_.data() + static_cast<std::ptrdiff_t>(y) * width_; }
  const float* Row(int y) const { return values_.data() + static_cast<std::ptrdiff_t>(y) * width_; }
  float At(int x, int y) const { return Row(y)[x]; }

 private:
  int width_ = 0;
  int height_ = 0;
  std::vector<float> values_;
};

/// The light of a picture and how blue and how red it is, 0..255 and about 0. `picture`: Format_RGB32.
struct PicturePlanes {
  PicturePlane light;
  PicturePlane blue;
  PicturePlane red;
};

PicturePlanes PlanesOf(const QImage& picture);
PicturePlane LightOf(const QImage& picture);

/// The square of the difference at each pixel; both of one size.
PicturePlane SquaredDifference(const PicturePlane& a, const PicturePlane& b);

/// The mean over the square with 2 * reach + 1 pixels on a side around each pixel, as far as it is there.
PicturePlane BoxMean(const PicturePlane& plane, int reach);

/// How strong the colours are, in grey levels; about 0 for a grey picture.
double ColourStrength(const PicturePlanes& planes);
/// Up to here a picture counts as grey: compressing leaves some colour.
constexpr double kGrey = 2;

/// The mean of all; 0 for an empty plane.
double MeanOf(const PicturePlane& plane);

}  // namespace Zenvora::Lumidex::Host
