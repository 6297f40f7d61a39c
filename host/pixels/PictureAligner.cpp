#include "PictureAligner.h"

#include "AlignedTiles.h"
#include "PicturePlane.h"

#include <host/pixels/PhotoPixels.h>

#include <QSize>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr double kDegree = 3.14159265358979324 / 180;

/// From a place in the second picture to one in the first, both from the middle and in halves of the longer
/// side of each.
struct Placing {
  double xx = 1;
  double xy = 0;
  double yx = 0;
  double yy = 1;
  double x = 0;
  double y = 0;
  double gain = 1;  ///< Of the first picture's light, to make the second's.
  double offset = 0;

  double Scale() const { return std::sqrt(std::max(0.0, xx * yy - xy * yx)); }
  double Turn() const { return std::atan2(yx - xy, xx + yy) / kDegree; }
  /// How far it is from turning and scaling alone.
  double Skew() const { return (std::abs(xx - yy) + std::abs(xy + yx)) / std::max(0.01, Scale()); }
};

/// A picture at one size.
struct Level {
  PicturePlane light;
  QImage picture;
  double half = 1;  ///< Of the longer side, in pixels.
};

Level MakeLevel(const QImage& picture, int longerSide) {
  const QSize size = FittedSize(picture.size(), longerSide);
  const QImage small = size == picture.size()
                           ? picture
                           : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                 .convertToFormat(QImage::Format_RGB32);
  return {LightOf(small), small, std::max(size.width(), size.height()) / 2.0};
}

/// Light between pixels; nothing beyond the borders.
std::optional<double> LightAt(const PicturePlane& plane, double x, double y) {
  const double left = std::floor(x);
  const double top = std::floor(y);
  if (left < 0 || top < 0 || left + 1 >= plane.Width() || top + 1 >= plane.Height()) {
    return std::nullopt;
  }
  const int column = static_cast<int>(left);
  const int row = static_cast<int>(top);
  const double dx = x - left;
  const double dy = y - top;
  const float* const above = plane.Row(row) + column;
  const float* const below = plane.Row(row + 1) + column;
  return (1 - dy) * ((1 - dx) * static_cast<double>(above[0]) + dx * static_cast<double>(above[1])) +
         dy * ((1 - dx) * static_cast<double>(below[0]) + dx * static_cast<double>(below[1]));
}

struct Place {
  double u = 0;  ///< In the second picture, in its halves.
  double v = 0;
  double x = 0;  ///< In the first, in pixels.
  double y = 0;
};

Place PlaceOf(const Level& first, const Level& second, const Placing& placing, int x, int y) {
  Place place;
  place.u = (x + 0.5 - second.light.Width() / 2.0) / second.half;
  place.v = (y + 0.5 - second.light.Height() / 2.0) / second.half;
  place.x = (placing.xx * place.u + placing.xy * place.v + placing.x) * first.half +
            first.light.Width() / 2.0 - 0.5;
  place.y = (placing.yx * place.u + placing.yy * place.v + placing.y) * first.half +
            first.light.Height() / 2.0 - 0.5;
  return place;
}

constexpr std::size_t kUnknowns = 8;
using Row = std::array<double, kUnknowns + 1>;

/// False when the equations say nothing.
bool Solve(std::array<Row, kUnknowns>& rows) {
  for (std::size_t column = 0; column < kUnknowns; ++column) {
    std::size_t pivot = column;
    for (std::size_t i = column + 1; i < kUnknowns; ++i) {
      pivot = std::abs(rows[i][column]) > std::abs(rows[pivot][column]) ? i : pivot;
    }
    std::swap(rows[column], rows[pivot]);
    if (std::abs(rows[column][column]) < 1e-9) {
      return false;
    }
    for (std::size_t i = 0; i < kUnknowns; ++i) {
      const double factor = rows[i][column] / rows[column][column];
      for (std::size_t j = column; i != column && j <= kUnknowns; ++j) {
        rows[i][j] -= factor * rows[column][j];
      }
    }
  }
  for (std::size_t i = 0; i < kUnknowns; ++i) {
    rows[i][kUnknowns] /= rows[i][i];
  }
  return true;
}

/// How well the second picture is made of the first: 1 fully, 0 not at all. Refines the placing by as many
/// steps; what does not fit counts less and less.
double Refine(const Level& first, const Level& second, Placing& placing, int steps) {
  double share = 0;
  for (int step = 0; step <= steps; ++step) {
    std::array<Row, kUnknowns> rows{};
    double count = 0;
    double sum = 0;
    double squares = 0;
    double errors = 0;
    constexpr double kUnlike = 20;  // Grey levels.
    for (int y = 0; y < second.light.Height(); ++y) {
      for (int x = 0; x < second.light.Width(); ++x) {
        const Place place = PlaceOf(first, second, placing, x, y);
        const auto light = LightAt(first.light, place.x, place.y);
        const auto right = LightAt(first.light, place.x + 1, place.y);
        const auto below = LightAt(first.light, place.x, place.y + 1);
        if (!light || !right || !below) {
          continue;
        }
        const double target = static_cast<double>(second.light.At(x, y));
        const double error = target - placing.gain * *light - placing.offset;
        const double weight = 1 / (1 + error * error / (kUnlike * kUnlike));
        const double across = placing.gain * (*right - *light) * first.half;
        const double down = placing.gain * (*below - *light) * first.half;
        const std::array<double, kUnknowns> slope = {across * place.u, across * place.v,
                                                     down * place.u,   down * place.v,
                                                     across,           down,
                                                     *light - 128,     1};
        for (std::size_t i = 0; i < kUnknowns; ++i) {
          for (std::size_t j = i; j < kUnknowns; ++j) {
            rows[i][j] += weight * slope[i] * slope[j];
          }
          rows[i][kUnknowns] += weight * slope[i] * error;
        }
        ++count;
        sum += target;
        squares += target * target;
        errors += std::min(error * error, 9 * kUnlike * kUnlike);
      }
    }
    if (count < 16) {
      return 0;
    }
    share = 1 - errors / std::max(1.0, squares - sum * sum / count + count);
    if (step == steps) {
      break;
    }
    for (std::size_t i = 0; i < kUnknowns; ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        rows[i][j] = rows[j][i];
      }
      rows[i][i] *= 1.001;
      rows[i][i] += 1e-3;
    }
    if (!Solve(rows)) {
      break;
    }
    placing.xx += rows[0][kUnknowns];
    placing.xy += rows[1][kUnknowns];
    placing.yx += rows[2][kUnknowns];
    placing.yy += rows[3][kUnknowns];
    placing.x += rows[4][kUnknowns];
    placing.y += rows[5][kUnknowns];
    placing.gain += rows[6][kUnknowns];
    placing.offset += rows[7][kUnknowns] - 128 * rows[6][kUnknowns];
  }
  return share;
}

bool IsBelievable(const Placing& placing) {
  return placing.Scale() > 0.7 && placing.Scale() < 1.45 && std::abs(placing.Turn()) < 10 &&
         placing.Skew() < 0.12 && placing.gain > 0.4 && placing.gain < 2.5;
}

using Tried = std::pair<double, Placing>;

/// From many beginnings at a small size; how well it fits, and where.
Tried FindRoughPlacing(const QImage& first, const QImage& second, bool asTheyLie) {
  constexpr int kSmall = 40;
  constexpr int kSteps = 10;
  constexpr double kClear = 0.97;
  const Level smallFirst = MakeLevel(first, kSmall);
  const Level smallSecond = MakeLevel(second, kSmall);
  constexpr std::array<double, 5> kScales = {1, 0.92, 1.08, 0.84, 1.18};
  constexpr std::array<double, 3> kTurns = {0, -4, 4};
  constexpr std::array<std::pair<double, double>, 5> kMoves = {
      {{0, 0}, {0.09, 0.07}, {-0.09, 0.07}, {0.09, -0.07}, {-0.09, -0.07}}};
  Tried best;
  for (const double scale : kScales) {
    for (const double turn : kTurns) {
      for (const auto& [x, y] : kMoves) {
        const double cosine = scale * std::cos(turn * kDegree);
        const double sine = scale * std::sin(turn * kDegree);
        Placing placing{cosine, -sine, sine, cosine, x, y};
        const double share = Refine(smallFirst, smallSecond, placing, kSteps);
        if (share > best.first && IsBelievable(placing)) {
          best = {share, placing};
        }
        if (asTheyLie || best.first > kClear) {
          return best;
        }
      }
    }
  }
  return best;
}

std::optional<Placing> FindPlacing(const QImage& first, const QImage& second, bool asTheyLie) {
  // Pages have little to hold on to at a small size. What was laid wrongly shows when it is compared.
  constexpr double kLeast = 0.05;
  auto [share, placing] = FindRoughPlacing(first, second, asTheyLie);
  if (share < kLeast) {
    return std::nullopt;
  }
  constexpr std::array<std::pair<int, int>, 3> kLevels = {{{80, 8}, {160, 8}, {320, 5}}};
  for (const auto& [side, steps] : kLevels) {
    Refine(MakeLevel(first, side), MakeLevel(second, side), placing, steps);
  }
  return IsBelievable(placing) ? std::make_optional(placing) : std::nullopt;
}

// --- What is common

constexpr int kCompared = 512;

}  // namespace

AlignedFinding Align(const QImage& first, const QImage& second, bool asTheyLie) {
  AlignedFinding finding;
  const std::optional<Placing> placing = FindPlacing(first, second, asTheyLie);
  if (!placing) {
    return finding;
  }
  Level a = MakeLevel(first, kCompared);
  Level b = MakeLevel(second, kCompared);
  // What is laid between pixels loses its finest detail there, which says nothing of what is shown.
  a.light = BoxMean(a.light, 1);
  b.light = BoxMean(b.light, 1);
  const PicturePlanes from = PlanesOf(a.picture);
  const PicturePlanes to = PlanesOf(b.picture);
  // One that was made grey has no colour to compare.
  const bool isColoured = ColourStrength(from) > kGrey && ColourStrength(to) > kGrey;
  PicturePlane laid(b.light.Width(), b.light.Height());
  PicturePlane colour(b.light.Width(), b.light.Height());
  double common = 0;
  for (int y = 0; y < laid.Height(); ++y) {
    for (int x = 0; x < laid.Width(); ++x) {
      const Place place = PlaceOf(a, b, *placing, x, y);
      const auto light = LightAt(a.light, place.x, place.y);
      common += light ? 1 : 0;
      laid.Row(y)[x] =
          light ? static_cast<float>(std::clamp(placing->gain * *light + placing->offset, 0.0, 255.0))
                : -1000.0F;
      if (light && isColoured) {
        const double blue = *LightAt(from.blue, place.x, place.y) - static_cast<double>(to.blue.At(x, y));
        const double red = *LightAt(from.red, place.x, place.y) - static_cast<double>(to.red.At(x, y));
        colour.Row(y)[x] = static_cast<float>(blue * blue + red * red);
      }
    }
  }
  finding.found = true;
  finding.secondShown = common / (static_cast<double>(laid.Width()) * laid.Height());
  const double scale = placing->Scale() * a.half / b.half;
  finding.firstShown =
      std::min(1.0, common * scale * scale / (static_cast<double>(a.light.Width()) * a.light.Height()));
  finding.scale = placing->Scale();
  finding.turned = placing->Turn();
  finding.gain = placing->gain;
  finding.brightness = MeanOf(b.light) - MeanOf(a.light);
  AlignedTiles(laid, b.light, colour).Count(finding);
  return finding;
}

}  // namespace Zenvora::Lumidex::Host
