#include "CopyCheck.h"

#include "PicturePlane.h"

#include <QBuffer>

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

/// What compressing at this quality does is what copies may differ by.
constexpr int kQuality = 20;

constexpr std::size_t kTaps = 9;
constexpr std::size_t kUnknowns = kTaps + 1;

/// A filter of 3 x 3 pixels and an offset, which make the one picture of the other as well as can be: what
/// programs differ in when they scale a picture.
struct Filter {
  std::array<double, kUnknowns> taps{};

  double Sum() const {
    double sum = 0;
    for (std::size_t i = 0; i < kTaps; ++i) {
      sum += taps[i];
    }
    return sum;
  }
  /// What is left of lines as fine as the pixels allow, across and down.
  double Finest() const {
    double across = 0;
    double down = 0;
    for (std::size_t i = 0; i < kTaps; ++i) {
      across += taps[i] * (i % 3 == 1 ? 1 : -1);
      down += taps[i] * (i / 3 == 1 ? 1 : -1);
    }
    return (std::abs(across) + std::abs(down)) / 2;
  }
};

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

QImage Compressed(const QImage& picture) {
  QBuffer buffer;
  buffer.open(QIODevice::ReadWrite);
  picture.save(&buffer, "JPEG", kQuality);
  QImage result;
  result.loadFromData(buffer.data(), "JPEG");
  return result.size() == picture.size() ? result.convertToFormat(QImage::Format_RGB32) : picture;
}

constexpr int kReach = 3;

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

/// What compressing does to each place; around a place, since errors of compression spread over its blocks.
PicturePlane Expected(const PicturePlane& whole, const PicturePlane& compressed) {
  return LargestAround(LargestAround(BoxMean(SquaredDifference(whole, compressed), kReach), true), false);
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

PicturePlane Smaller(PicturePlane a, const PicturePlane& b) {
  for (int y = 0; y < a.Height(); ++y) {
    float* const to = a.Row(y);
    for (int x = 0; x < a.Width(); ++x) {
      to[x] = std::min(to[x], b.At(x, y));
    }
  }
  return a;
}

/// Grey levels that differ in any copy: rounding, and what is left of other filters.
constexpr double kLightFloor = 9;
constexpr double kColourFloor = 16;
constexpr double kTimes = 4.5;
constexpr double kColourTimes = 5;

struct Worst {
  double value = 0;
  QPoint where;
};

/// What an error may be: so many times what is expected, and a little more.
struct Allowance {
  double times = 1;
  double floor = 0;
  double Ratio(double error, double expected) const { return error / (times * expected + floor); }
};

Worst WorstPlace(const PicturePlane& error, const PicturePlane& expected, const Allowance& allowance) {
  Worst worst;
  for (int y = 0; y < error.Height(); ++y) {
    for (int x = 0; x < error.Width(); ++x) {
      const double ratio = allowance.Ratio(error.At(x, y), expected.At(x, y));
      if (ratio > worst.value) {
        worst = {ratio, {x, y}};
      }
    }
  }
  return worst;
}

/// How much of the allowance the picture takes as a whole: copies of high quality are held to it everywhere.
double Strictness(const PicturePlane& error, const PicturePlane& expected, double least) {
  constexpr double kRoom = 2.5;
  std::vector<float> ratios;
  for (int y = 0; y < error.Height(); y += 4) {
    for (int x = 0; x < error.Width(); x += 4) {
      if (expected.At(x, y) > 4) {
        ratios.push_back(error.At(x, y) / expected.At(x, y));
      }
    }
  }
  if (ratios.size() < 16) {
    return least;
  }
  // Not the middle: most of a page is white.
  const auto middle = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() * 6 / 10);
  std::nth_element(ratios.begin(), middle, ratios.end());
  return std::clamp(kRoom * static_cast<double>(*middle), least, 1.0);
}

/// The share in which there is something to see, and the share of that which is within the allowance.
std::pair<double, double> SharesAlike(const PicturePlane& light, const PicturePlane& error,
                                      const PicturePlane& expected, const Allowance& allowance) {
  constexpr double kSeen = 16;
  const PicturePlane contrast = BoxMean(SquaredDifference(light, BoxMean(light, kReach)), kReach);
  double all = 0;
  double seen = 0;
  double alike = 0;
  for (int y = 0; y < light.Height(); y += 2) {
    for (int x = 0; x < light.Width(); x += 2) {
      ++all;
      if (contrast.At(x, y) > kSeen) {
        ++seen;
        alike += allowance.Ratio(error.At(x, y), expected.At(x, y)) <= 1 ? 1 : 0;
      }
    }
  }
  return {seen / std::max(1.0, all), alike / std::max(1.0, seen)};
}

/// The middle one of all differences: what compressing makes of text does not count.
double MiddleDifference(const PicturePlane& from, const PicturePlane& to) {
  std::vector<float> differences;
  for (int y = 0; y < from.Height(); y += 3) {
    for (int x = 0; x < from.Width(); x += 3) {
      differences.push_back(to.At(x, y) - from.At(x, y));
    }
  }
  const auto middle = differences.begin() + static_cast<std::ptrdiff_t>(differences.size() / 2);
  std::nth_element(differences.begin(), middle, differences.end());
  return static_cast<double>(*middle);
}

}  // namespace

CopyFinding CompareAsCopies(const QImage& first, const QImage& second, bool isScaled) {
  // Programs scale in ways that no small filter makes good.
  const double least = isScaled ? 0.4 : 0.1;
  const PicturePlanes a = PlanesOf(first);
  const PicturePlanes b = PlanesOf(second);
  const Filter forth = FitFilter(a.light, b.light);
  const Filter back = FitFilter(b.light, a.light);
  // A filter that takes noise away is wrong at edges, and none at all where the picture was scaled.
  const auto errorOf = [](const PicturePlane& one, const PicturePlane& other) {
    return BoxMean(SquaredDifference(one, other), kReach);
  };
  const PicturePlane error =
      Smaller(errorOf(a.light, b.light),
              Smaller(errorOf(Filtered(a.light, forth), b.light), errorOf(Filtered(b.light, back), a.light)));

  const PicturePlanes compressedA = PlanesOf(Compressed(first));
  const PicturePlanes compressedB = PlanesOf(Compressed(second));
  const PicturePlane expected =
      Larger(Expected(a.light, compressedA.light), Expected(b.light, compressedB.light));
  const Allowance allowance{kTimes * Strictness(error, expected, least), kLightFloor};

  CopyFinding finding;
  const Worst worst = WorstPlace(error, expected, allowance);
  finding.worst = worst.value;
  finding.where = worst.where;
  std::tie(finding.seen, finding.alike) = SharesAlike(a.light, error, expected, allowance);
  finding.gain = forth.Sum();
  finding.brightness = MiddleDifference(a.light, b.light);
  finding.otherTone = std::max({std::abs(finding.brightness), std::abs(MiddleDifference(a.blue, b.blue)),
                                std::abs(MiddleDifference(a.red, b.red))});
  finding.sharpness = forth.Finest() / std::max(0.01, std::abs(forth.Sum()));
  finding.colour = ColourStrength(a);
  finding.otherColour = ColourStrength(b);
  const auto colour = [&](const PicturePlane PicturePlanes::*plane) {
    return WorstPlace(BoxMean(SquaredDifference(BoxMean(a.*plane, 1), BoxMean(b.*plane, 1)), kReach),
                      Larger(Expected(a.*plane, compressedA.*plane), Expected(b.*plane, compressedB.*plane)),
                      {kColourTimes, kColourFloor});
  };
  for (const Worst& place : {colour(&PicturePlanes::blue), colour(&PicturePlanes::red)}) {
    if (place.value > finding.worstColour) {
      finding.worstColour = place.value;
      finding.whereColour = place.where;
    }
  }
  return finding;
}

}  // namespace Zenvora::Lumidex::Host
