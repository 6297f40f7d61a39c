#include "CopyMeasures.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// What compressing at this quality does is what copies may differ by.
constexpr int kQuality = 20;

using Row = std::array<double, kUnknowns + 1>;

/// Solves the equations; those of the last column stand for the right side. By elimination with pivots.
Filter Solve(std::array<Row, kUnknowns>& rows) {
  for (std::size_t column = 0; column < kUnknowns; ++column) {
    std::size_t pivot = column;
    for (std::size_t i = column + 1; i < kUnknowns; ++i) {
      if (std::abs(rows[i][column]) > std::abs(rows[pivot][column])) {
        pivot = i;
      }
    }
    std::swap(rows[column], rows[pivot]);
    for (std::size_t i = 0; i < kUnknowns; ++i) {
      const double factor = rows[i][column] / rows[column][column];
      for (std::size_t j = column; i != column && j <= kUnknowns; ++j) {
        rows[i][j] -= factor * rows[column][j];
      }
    }
  }
  Filter filter;
  for (std::size_t i = 0; i < kUnknowns; ++i) {
    filter.taps[i] = rows[i][kUnknowns] / rows[i][i];
  }
  return filter;
}

std::array<double, kUnknowns> Around(const PicturePlane& plane, int x, int y) {
  std::array<double, kUnknowns> values{};
  std::size_t at = 0;
  for (int dy = -1; dy <= 1; ++dy) {
    const float* const row = plane.Row(y + dy);
    for (int dx = -1; dx <= 1; ++dx) {
      values[at++] = static_cast<double>(row[x + dx]) - 128;
    }
  }
  values[kTaps] = 1;
  return values;
}

PicturePlane Filtered(const PicturePlane& plane, const Filter& filter) {
  PicturePlane result = plane;
  std::array<float, kTaps> taps{};
  std::transform(filter.taps.begin(), filter.taps.begin() + kTaps, taps.begin(),
                 [](double tap) { return static_cast<float>(tap); });
  const auto offset = static_cast<float>(filter.taps[kTaps] + 128 - 128 * filter.Sum());
  for (int y = 1; y + 1 < plane.Height(); ++y) {
    const float* const above = plane.Row(y - 1);
    const float* const row = plane.Row(y);
    const float* const below = plane.Row(y + 1);
    float* const to = result.Row(y);
    for (int x = 1; x + 1 < plane.Width(); ++x) {
      const float sum = taps[0] * above[x - 1] + taps[1] * above[x] + taps[2] * above[x + 1] +
                        taps[3] * row[x - 1] + taps[4] * row[x] + taps[5] * row[x + 1] +
                        taps[6] * below[x - 1] + taps[7] * below[x] + taps[8] * below[x + 1];
      to[x] = std::clamp(sum + offset, 0.0F, 255.0F);
    }
  }
  return result;
}

/// The largest of five values half a block apart, along rows or columns.
PicturePlane LargestAround(const PicturePlane& plane, bool alongRows) {
  constexpr int kHalfBlock = 4;
  PicturePlane most = plane;
  for (int step = -2; step <= 2; ++step) {
    const int move = step * kHalfBlock;
    for (int y = 0; y < plane.Height(); ++y) {
      const int from = alongRows ? y : std::clamp(y + move, 0, plane.Height() - 1);
      const float* const row = plane.Row(from);
      float* const to = most.Row(y);
      const int first = alongRows ? std::max(0, -move) : 0;
      const int end = alongRows ? std::min(plane.Width(), plane.Width() - move) : plane.Width();
      const int shift = alongRows ? move : 0;
      for (int x = first; x < end; ++x) {
        to[x] = std::max(to[x], row[x + shift]);
      }
    }
  }
  return most;
}

PicturePlane Smaller(PicturePlane a, const PicturePlane& b) {
  for (int y = 0; y < a.Height(); ++y) {
    float* const to = a.Row(y);
    for (int x = 0; x < a.Width(); ++x) {
      to[x] = std::min(to[x], b.At(x, y));
    }
  }
  return a;
}

PicturePlane Larger(PicturePlane a, const PicturePlane& b) {
  for (int y = 0; y < a.Height(); ++y) {
    float* const to = a.Row(y);
    for (int x = 0; x < a.Width(); ++x) {
      to[x] = std::max(to[x], b.At(x, y));
    }
  }
  return a;
}

}  // namespace

Filter FitFilter(const PicturePlane& from, const PicturePlane& to) {
  constexpr double kMostSamples = 200'000;
  const double pixels = static_cast<double>(from.Width()) * from.Height();
  const int step = std::max(1, static_cast<int>(std::ceil(std::sqrt(pixels / kMostSamples))));
  std::array<Row, kUnknowns> rows{};
  double samples = 0;
  for (int y = 1; y + 1 < from.Height(); y += step) {
    for (int x = 1 + (y / step) % step; x + 1 < from.Width(); x += step) {
      const auto values = Around(from, x, y);
      const double wanted = static_cast<double>(to.At(x, y)) - 128;
      for (std::size_t i = 0; i < kUnknowns; ++i) {
        for (std::size_t j = i; j < kUnknowns; ++j) {
          rows[i][j] += values[i] * values[j];
        }
        rows[i][kUnknowns] += values[i] * wanted;
      }
      ++samples;
    }
  }
  // Where there is nothing to be seen, nothing shall be made of it.
  constexpr double kTrust = 2;
  for (std::size_t i = 0; i < kUnknowns; ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      rows[i][j] = rows[j][i];
    }
    if (i < kTaps) {
      rows[i][i] += kTrust * samples;
      rows[i][kUnknowns] += i == kTaps / 2 ? kTrust * samples : 0;
    }
  }
  return Solve(rows);
}

PicturePlane CopyError(const PicturePlane& a, const PicturePlane& b, const Filter& forth,
                       const Filter& back) {
  const auto errorOf = [](const PicturePlane& one, const PicturePlane& other) {
    return BoxMean(SquaredDifference(one, other), kReach);
  };
  return Smaller(errorOf(a, b), Smaller(errorOf(Filtered(a, forth), b), errorOf(Filtered(b, back), a)));
}

QImage CoarselyCompressed(const QImage& picture) {
  QBuffer buffer;
  buffer.open(QIODevice::ReadWrite);
  picture.save(&buffer, "JPEG", kQuality);
  QImage result;
  result.loadFromData(buffer.data(), "JPEG");
  return result.size() == picture.size() ? result.convertToFormat(QImage::Format_RGB32) : picture;
}

PicturePlane ExpectedError(const PicturePlane& a, const PicturePlane& compressedA, const PicturePlane& b,
                           const PicturePlane& compressedB) {
  const PicturePlane larger = Larger(BoxMean(SquaredDifference(a, compressedA), kReach),
                                     BoxMean(SquaredDifference(b, compressedB), kReach));
  return LargestAround(LargestAround(larger, true), false);
}

double ErrorRatios::Strictness(double least) {
  constexpr double kRoom = 2.5;
  if (ratios_.size() < 16) {
    return least;
  }
  // Not the middle: most of a page is white.
  const auto middle = ratios_.begin() + static_cast<std::ptrdiff_t>(ratios_.size() * 6 / 10);
  std::nth_element(ratios_.begin(), middle, ratios_.end());
  return std::clamp(kRoom * static_cast<double>(*middle), least, 1.0);
}

}  // namespace Zenvora::Lumidex::Host
