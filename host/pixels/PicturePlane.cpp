#include "PicturePlane.h"

#include <algorithm>
#include <cmath>

namespace Zenvora::Lumidex::Host {

namespace {

/// Means along one row, over 2 * reach + 1 pixels as far as they are there.
void MeansAlong(const float* from, float* to, int count, int reach) {
  double sum = 0;
  for (int i = 0; i < std::min(reach, count); ++i) {
    sum += from[i];
  }
  for (int i = 0; i < count; ++i) {
    if (i + reach < count) {
      sum += from[i + reach];
    }
    if (i - reach - 1 >= 0) {
      sum -= from[i - reach - 1];
    }
    const int used = std::min(i + reach, count - 1) - std::max(i - reach, 0) + 1;
    to[i] = static_cast<float>(sum / used);
  }
}

}  // namespace

PicturePlanes PlanesOf(const QImage& picture) {
  const int width = picture.width();
  const int height = picture.height();
  PicturePlanes planes{LightOf(picture), PicturePlane(width, height), PicturePlane(width, height)};
  constexpr float kBlue = 0.564F;
  constexpr float kRed = 0.713F;
  for (int y = 0; y < height; ++y) {
    const QRgb* const row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    const float* const light = planes.light.Row(y);
    float* const blue = planes.blue.Row(y);
    float* const red = planes.red.Row(y);
    for (int x = 0; x < width; ++x) {
      blue[x] = kBlue * (static_cast<float>(qBlue(row[x])) - light[x]);
      red[x] = kRed * (static_cast<float>(qRed(row[x])) - light[x]);
    }
  }
  return planes;
}

PicturePlane LightOf(const QImage& picture) {
  PicturePlane light(picture.width(), picture.height());
  for (int y = 0; y < picture.height(); ++y) {
    const QRgb* const row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    float* const to = light.Row(y);
    for (int x = 0; x < picture.width(); ++x) {
      to[x] = 0.299F * static_cast<float>(qRed(row[x])) + 0.587F * static_cast<float>(qGreen(row[x])) +
              0.114F * static_cast<float>(qBlue(row[x]));
    }
  }
  return light;
}

PicturePlane SquaredDifference(const PicturePlane& a, const PicturePlane& b) {
  PicturePlane result(a.Width(), a.Height());
  for (int y = 0; y < a.Height(); ++y) {
    const float* const first = a.Row(y);
    const float* const second = b.Row(y);
    float* const to = result.Row(y);
    for (int x = 0; x < a.Width(); ++x) {
      to[x] = (first[x] - second[x]) * (first[x] - second[x]);
    }
  }
  return result;
}

PicturePlane BoxMean(const PicturePlane& plane, int reach) {
  const int width = plane.Width();
  const int height = plane.Height();
  PicturePlane along(width, height);
  for (int y = 0; y < height; ++y) {
    MeansAlong(plane.Row(y), along.Row(y), width, reach);
  }
  PicturePlane result(width, height);
  std::vector<double> sums(static_cast<std::size_t>(width), 0);
  const auto add = [&](int y, double factor) {
    const float* const row = along.Row(y);
    for (int x = 0; x < width; ++x) {
      sums[static_cast<std::size_t>(x)] += factor * row[x];
    }
  };
  for (int y = 0; y < std::min(reach, height); ++y) {
    add(y, 1);
  }
  for (int y = 0; y < height; ++y) {
    if (y + reach < height) {
      add(y + reach, 1);
    }
    if (y - reach - 1 >= 0) {
      add(y - reach - 1, -1);
    }
    const int used = std::min(y + reach, height - 1) - std::max(y - reach, 0) + 1;
    float* const to = result.Row(y);
    for (int x = 0; x < width; ++x) {
      to[x] = static_cast<float>(sums[static_cast<std::size_t>(x)] / used);
    }
  }
  return result;
}

double ColourStrength(const PicturePlanes& planes) {
  const PicturePlane none(planes.light.Width(), planes.light.Height());
  return std::sqrt(MeanOf(SquaredDifference(planes.blue, none)) +
                   MeanOf(SquaredDifference(planes.red, none)));
}

double MeanOf(const PicturePlane& plane) {
  double sum = 0;
  for (int y = 0; y < plane.Height(); ++y) {
    for (int x = 0; x < plane.Width(); ++x) {
      sum += plane.At(x, y);
    }
  }
  return plane.IsEmpty() ? 0 : sum / (static_cast<double>(plane.Width()) * plane.Height());
}

}  // namespace Zenvora::Lumidex::Host
