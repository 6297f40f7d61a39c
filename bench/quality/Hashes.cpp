#include "Hashes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Zenvora::Bench {

namespace {

using Bits = std::vector<std::uint8_t>;
using Grey = std::vector<double>;

Grey GreyOf(const QImage& picture, int width, int height) {
  const QImage small = picture.convertToFormat(QImage::Format_RGB32)
                           .scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  Grey grey;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const QRgb pixel = small.pixel(x, y);
      grey.push_back(0.299 * qRed(pixel) + 0.587 * qGreen(pixel) + 0.114 * qBlue(pixel));
    }
  }
  return grey;
}

double Mean(const Grey& grey) {
  double sum = 0;
  for (const double value : grey) {
    sum += value;
  }
  return sum / static_cast<double>(grey.size());
}

double Median(Grey grey) {
  const auto middle = grey.begin() + static_cast<std::ptrdiff_t>(grey.size() / 2);
  std::nth_element(grey.begin(), middle, grey.end());
  return *middle;
}

Bits Above(const Grey& grey, double limit) {
  Bits bits;
  for (const double value : grey) {
    bits.push_back(value > limit ? 1 : 0);
  }
  return bits;
}

Bits Average(const QImage& picture) {
  const Grey grey = GreyOf(picture, 8, 8);
  return Above(grey, Mean(grey));
}

Bits Difference(const QImage& picture) {
  const Grey grey = GreyOf(picture, 9, 8);
  Bits bits;
  for (std::size_t y = 0; y < 8; ++y) {
    for (std::size_t x = 0; x < 8; ++x) {
      bits.push_back(grey[y * 9 + x + 1] > grey[y * 9 + x] ? 1 : 0);
    }
  }
  return bits;
}

Bits CosineTransform(const QImage& picture) {
  constexpr std::size_t kSide = 32;
  constexpr std::size_t kKept = 8;
  const Grey grey = GreyOf(picture, kSide, kSide);
  const auto cosine = [](std::size_t frequency, std::size_t at) {
    return std::cos(3.14159265358979324 * static_cast<double>(frequency) * (static_cast<double>(at) + 0.5) /
                    static_cast<double>(kSide));
  };
  Grey waves;
  for (std::size_t v = 0; v < kKept; ++v) {
    for (std::size_t u = 0; u < kKept; ++u) {
      double sum = 0;
      for (std::size_t y = 0; y < kSide; ++y) {
        for (std::size_t x = 0; x < kSide; ++x) {
          sum += grey[y * kSide + x] * cosine(u, x) * cosine(v, y);
        }
      }
      waves.push_back(sum);
    }
  }
  waves.front() = 0;
  return Above(waves, Median(waves));
}

Bits BlockMeans(const QImage& picture) {
  const Grey grey = GreyOf(picture, 16, 16);
  const double median = Median(grey);
  Bits bits;
  for (const double value : grey) {
    bits.push_back(value >= median ? 1 : 0);
  }
  return bits;
}

}  // namespace

const std::vector<PictureHash>& UsualHashes() {
  static const std::vector<PictureHash> hashes = {{"average", Average},
                                                  {"difference", Difference},
                                                  {"cosine transform", CosineTransform},
                                                  {"block means", BlockMeans}};
  return hashes;
}

}  // namespace Zenvora::Bench
