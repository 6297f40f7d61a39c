#include "PictureSquare.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr int kSide = PictureSquare::kSide;

/// For each of `kSide` pixels the source pixels that it is made of.
struct Filter {
  struct Taps {
    std::size_t first = 0;   ///< Source pixel.
    std::size_t weight = 0;  ///< Index of its weight.
    std::size_t count = 0;
  };
  std::array<Taps, kSide> pixels;
  std::vector<float> weights;
};

/// A triangle as wide as two pixels of the coarser side.
Filter TriangleFilter(int sourceSide) {
  Filter filter{};
  const double scale = static_cast<double>(sourceSide) / kSide;
  const double reach = std::max(1.0, scale);
  for (int i = 0; i < kSide; ++i) {
    const double centre = (i + 0.5) * scale;
    const int first = std::max(0, static_cast<int>(std::floor(centre - reach + 0.5)));
    const int last = std::min(sourceSide, static_cast<int>(std::floor(centre + reach + 0.5)));
    const auto weightAt = [&](int source) {
      return std::max(0.0, 1 - std::abs(source + 0.5 - centre) / reach);
    };
    double sum = 0;
    for (int source = first; source < last; ++source) {
      sum += weightAt(source);
    }
    filter.pixels[static_cast<std::size_t>(i)] = {static_cast<std::size_t>(first), filter.weights.size(),
                                                  static_cast<std::size_t>(last - first)};
    for (int source = first; source < last; ++source) {
      filter.weights.push_back(static_cast<float>(weightAt(source) / sum));
    }
  }
  return filter;
}

/// Lines of numbers, one behind the other.
struct Lines {
  std::size_t length = 0;
  std::vector<float> numbers;

  Lines(std::size_t count, std::size_t lineLength) : length(lineLength), numbers(count * lineLength) {}
  float* At(std::size_t line) { return numbers.data() + line * length; }
  const float* At(std::size_t line) const { return numbers.data() + line * length; }
};

/// Each row of the picture as a line: its reds, its greens, its blues.
Lines RowsOf(const QImage& picture, const QRect& part) {
  const auto width = static_cast<std::size_t>(part.width());
  Lines rows(static_cast<std::size_t>(part.height()), 3 * width);
  for (int y = 0; y < part.height(); ++y) {
    const QRgb* pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(part.top() + y)) + part.left();
    float* row = rows.At(static_cast<std::size_t>(y));
    for (std::size_t x = 0; x < width; ++x) {
      row[x] = static_cast<float>(qRed(pixels[x]));
      row[width + x] = static_cast<float>(qGreen(pixels[x]));
      row[2 * width + x] = static_cast<float>(qBlue(pixels[x]));
    }
  }
  return rows;
}

/// As many lines as the square has, each made of those around its place.
Lines Filtered(const Lines& lines, const Filter& filter) {
  Lines result(kSide, lines.length);
  for (std::size_t i = 0; i < kSide; ++i) {
    const Filter::Taps& taps = filter.pixels[i];
    float* sum = result.At(i);
    for (std::size_t tap = 0; tap < taps.count; ++tap) {
      const float weight = filter.weights[taps.weight + tap];
      const float* line = lines.At(taps.first + tap);
      for (std::size_t at = 0; at < lines.length; ++at) {
        sum[at] += weight * line[at];
      }
    }
  }
  return result;
}

/// Rows of three channels become columns of three channels.
Lines ColumnsOf(const Lines& rows) {
  const std::size_t width = rows.length / 3;
  Lines columns(width, 3 * kSide);
  for (std::size_t y = 0; y < kSide; ++y) {
    for (std::size_t channel = 0; channel < 3; ++channel) {
      const float* row = rows.At(y) + channel * width;
      for (std::size_t x = 0; x < width; ++x) {
        columns.At(x)[channel * kSide + y] = row[x];
      }
    }
  }
  return columns;
}

}  // namespace

PictureSquare SquareOf(const QImage& picture, const QRect& part) {
  const Lines rows = Filtered(RowsOf(picture, part), TriangleFilter(part.height()));
  const Lines columns = Filtered(ColumnsOf(rows), TriangleFilter(part.width()));
  PictureSquare planes;
  for (std::size_t x = 0; x < kSide; ++x) {
    const float* column = columns.At(x);
    for (std::size_t y = 0; y < kSide; ++y) {
      const float red = column[y];
      const float green = column[kSide + y];
      const float blue = column[2 * kSide + y];
      const float light = 0.299F * red + 0.587F * green + 0.114F * blue;
      planes.light[y * kSide + x] = light;
      planes.blue[y * kSide + x] = 0.564F * (blue - light);
      planes.red[y * kSide + x] = 0.713F * (red - light);
    }
  }
  return planes;
}

}  // namespace Zenvora::Lumidex::Host
