#include "PictureSquare.h"
#include "PlainBars.h"

#include <host/pixels/PhotoAnalysis.h>
#include <host/pixels/PhotoPixels.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

using Plane = PictureSquare::Plane;
constexpr int kSide = PictureSquare::kSide;
constexpr int kPixels = PictureSquare::kPixels;

/// One more than the highest frequency that is looked at.
constexpr int kFrequencies = 11;
constexpr int kLightWaves = 60;
constexpr int kColourWaves = 24;
/// Windows along each side in which directions are counted, and numbers for each.
constexpr int kCells = 6;
constexpr int kDirections = 4;
/// Mean colour and light, and one constant, so that no vector is zero.
constexpr int kMeans = 4;
static_assert(kLightWaves + 2 * kColourWaves + kCells * kCells * kDirections + kMeans ==
              LayoutAnalyser::kSize);

/// Found by measuring; docs/decisions/similar-photos.md says how.
constexpr double kWindow = 0.3;     ///< Of the layout: standard deviation, in sides of the picture.
constexpr double kCell = 0.11;      ///< Likewise of one window of directions.
constexpr double kWhitening = 0.5;  ///< Power of the frequency by which it is lifted.
constexpr double kLightCutOff = 5;  ///< Frequencies above move too far when a picture is cropped.
constexpr double kColourCutOff = 4;
constexpr float kColourShare = 1.0F;
constexpr float kDirectionShare = 0.6F;
constexpr float kMeanShare = 0.05F;
/// Below these a part says little, and counts for little, instead of being noise at full strength.
constexpr float kFaintLight = 2;
constexpr float kFaintColour = 3;
constexpr float kFaintDirections = 2;
/// Of a gradient, in grey levels: what lies below is noise.
constexpr float kFaintEdge = 4;
/// Two directions at right angles look alike to the coarse numbers; the fine ones count for less.
constexpr float kFineDirections = 0.65F;
/// How much of what all windows have in common is taken away.
constexpr float kCommonDirections = 0.5F;

struct Wave {
  int across = 0;
  int down = 0;
  float weight = 0;
};

double Squared(int value) {
  return static_cast<double>(value) * value;
}

std::vector<Wave> MakeWaves(int count, double cutOff) {
  std::vector<Wave> waves;
  for (int down = 0; down < kFrequencies; ++down) {
    for (int across = down == 0 ? 1 : 0; across < kFrequencies; ++across) {
      const double square = Squared(across) + Squared(down);
      const double fall = square / (cutOff * cutOff);
      waves.push_back(
          {across, down,
           static_cast<float>(std::pow(1 + square, kWhitening / 2) * std::exp(-fall * fall) / kSide)});
    }
  }
  std::stable_sort(waves.begin(), waves.end(), [](const Wave& a, const Wave& b) {
    return Squared(a.across) + Squared(a.down) < Squared(b.across) + Squared(b.down);
  });
  waves.resize(static_cast<std::size_t>(count));
  return waves;
}

/// What depends on no picture. Rounded to float, so that the last bit of a system's cosine does not matter.
struct Tables {
  std::array<std::array<float, kSide>, kFrequencies> cosines;
  std::array<std::array<float, kSide>, kCells> cells;
  Plane window;
  float windowSum = 0;
  std::vector<Wave> light = MakeWaves(kLightWaves, kLightCutOff);
  std::vector<Wave> colour = MakeWaves(kColourWaves, kColourCutOff);

  Tables() : cosines(), cells(), window() {
    for (int f = 0; f < kFrequencies; ++f) {
      const double scale = std::sqrt((f == 0 ? 1.0 : 2.0) / kSide);
      for (int i = 0; i < kSide; ++i) {
        cosines[Index(f)][Index(i)] = static_cast<float>(scale * std::cos(3.14159265358979324 * f * At(i)));
      }
    }
    for (int c = 0; c < kCells; ++c) {
      FillCell(cells[Index(c)], (c + 0.5) / kCells);
    }
    double sum = 0;
    for (int y = 0; y < kSide; ++y) {
      for (int x = 0; x < kSide; ++x) {
        const float weight = static_cast<float>(Bell(At(x) - 0.5, kWindow) * Bell(At(y) - 0.5, kWindow));
        window[Index(y * kSide + x)] = weight;
        sum += weight;
      }
    }
    windowSum = static_cast<float>(sum);
  }

 private:
  static std::size_t Index(int i) { return static_cast<std::size_t>(i); }
  static double At(int i) { return (i + 0.5) / kSide; }
  static double Bell(double distance, double deviation) {
    return std::exp(-distance * distance / (2 * deviation * deviation));
  }
  static void FillCell(std::array<float, kSide>& cell, double centre) {
    double sum = 0;
    for (int i = 0; i < kSide; ++i) {
      sum += Bell(At(i) - centre, kCell);
    }
    for (int i = 0; i < kSide; ++i) {
      cell[Index(i)] = static_cast<float>(Bell(At(i) - centre, kCell) / sum);
    }
  }
};

const Tables& TheTables() {
  static const Tables tables;
  return tables;
}

/// Its mean, under the window, becomes 0, and its outer parts, which move most, count least.
Plane Windowed(const Plane& plane) {
  const Tables& tables = TheTables();
  float sum = 0;
  for (std::size_t i = 0; i < plane.size(); ++i) {
    sum += plane[i] * tables.window[i];
  }
  const float mean = sum / tables.windowSum;
  Plane result;
  for (std::size_t i = 0; i < plane.size(); ++i) {
    result[i] = (plane[i] - mean) * tables.window[i];
  }
  return result;
}

void AppendWaves(const Plane& plane, const std::vector<Wave>& waves, std::vector<float>& out) {
  const Tables& tables = TheTables();
  const Plane windowed = Windowed(plane);
  std::array<std::array<float, kSide>, kFrequencies> columns{};
  for (std::size_t down = 0; down < kFrequencies; ++down) {
    for (std::size_t y = 0; y < kSide; ++y) {
      for (std::size_t x = 0; x < kSide; ++x) {
        columns[down][x] += tables.cosines[down][y] * windowed[y * kSide + x];
      }
    }
  }
  for (const Wave& wave : waves) {
    const auto& cosine = tables.cosines[static_cast<std::size_t>(wave.across)];
    const auto& column = columns[static_cast<std::size_t>(wave.down)];
    float sum = 0;
    for (std::size_t x = 0; x < kSide; ++x) {
      sum += cosine[x] * column[x];
    }
    out.push_back(sum * wave.weight);
  }
}

Plane Blurred(const Plane& plane) {
  // A bell of one pixel's deviation. Beyond the edges the last pixel goes on.
  constexpr std::array kBell = {0.00443305F, 0.05400558F, 0.24203623F, 0.39905028F,
                                0.24203623F, 0.05400558F, 0.00443305F};
  constexpr std::size_t kReach = kBell.size() / 2;
  Plane across{};
  for (std::size_t y = 0; y < kSide; ++y) {
    std::array<float, kSide + 2 * kReach> row{};
    const float* pixels = plane.data() + y * kSide;
    std::fill_n(row.begin(), kReach, pixels[0]);
    std::copy_n(pixels, kSide, row.begin() + kReach);
    std::fill_n(row.begin() + kReach + kSide, kReach, pixels[kSide - 1]);
    for (std::size_t i = 0; i < kBell.size(); ++i) {
      for (std::size_t x = 0; x < kSide; ++x) {
        across[y * kSide + x] += kBell[i] * row[x + i];
      }
    }
  }
  Plane result{};
  for (std::size_t y = 0; y < kSide; ++y) {
    for (std::size_t i = 0; i < kBell.size(); ++i) {
      const std::size_t from = std::clamp<std::size_t>(y + i, kReach, kSide + kReach - 1) - kReach;
      for (std::size_t x = 0; x < kSide; ++x) {
        result[y * kSide + x] += kBell[i] * across[from * kSide + x];
      }
    }
  }
  return result;
}

/// Of every pixel the direction of its edge: as points on a circle that is run through twice in a full turn,
/// and on one that is run through four times. No angle is needed for either.
std::array<Plane, kDirections> EdgeDirections(const Plane& light) {
  std::array<Plane, kDirections> result{};
  for (std::size_t y = 0; y < kSide; ++y) {
    for (std::size_t x = 0; x < kSide; ++x) {
      const std::size_t at = y * kSide + x;
      const bool innerX = x > 0 && x + 1 < kSide;
      const bool innerY = y > 0 && y + 1 < kSide;
      const float dx = innerX ? light[at + 1] - light[at - 1] : 0;
      const float dy = innerY ? light[at + kSide] - light[at - kSide] : 0;
      const float square = dx * dx + dy * dy;
      if (square <= 0) {
        continue;
      }
      const float slope = std::sqrt(square);
      const float strength = slope / std::sqrt(slope + kFaintEdge);
      const float cosine = (dx * dx - dy * dy) / square;
      const float sine = 2 * dx * dy / square;
      result[0][at] = strength * cosine;
      result[1][at] = strength * sine;
      result[2][at] = kFineDirections * strength * (cosine * cosine - sine * sine);
      result[3][at] = kFineDirections * strength * 2 * cosine * sine;
    }
  }
  return result;
}

void AppendCells(const Plane& plane, std::vector<float>& out) {
  const Tables& tables = TheTables();
  std::array<float, kCells * kCells> cells{};
  float sum = 0;
  for (std::size_t down = 0; down < kCells; ++down) {
    std::array<float, kSide> column{};
    for (std::size_t y = 0; y < kSide; ++y) {
      for (std::size_t x = 0; x < kSide; ++x) {
        column[x] += tables.cells[down][y] * plane[y * kSide + x];
      }
    }
    for (std::size_t across = 0; across < kCells; ++across) {
      float cell = 0;
      for (std::size_t x = 0; x < kSide; ++x) {
        cell += tables.cells[across][x] * column[x];
      }
      cells[down * kCells + across] = cell;
      sum += cell;
    }
  }
  const float common = kCommonDirections * sum / static_cast<float>(cells.size());
  for (const float cell : cells) {
    out.push_back(cell - common);
  }
}

void AppendDirections(const Plane& light, std::vector<float>& out) {
  for (const Plane& direction : EdgeDirections(Blurred(light))) {
    AppendCells(direction, out);
  }
}

float MeanOf(const Plane& plane) {
  float sum = 0;
  for (const float value : plane) {
    sum += value;
  }
  return sum / kPixels;
}

void AppendMeans(const PictureSquare& planes, std::vector<float>& out) {
  constexpr float kHalf = 128;
  constexpr float kAlways = 32;
  for (const float mean : {MeanOf(planes.blue), MeanOf(planes.red), MeanOf(planes.light) - kHalf, kAlways}) {
    out.push_back(kMeanShare * mean / kHalf);
  }
}

/// Gives the part of the vector from `begin` the length `share`, or less when it is faint.
void Level(std::vector<float>& vector, std::size_t begin, float faint, float share) {
  float square = 0;
  for (std::size_t i = begin; i < vector.size(); ++i) {
    square += vector[i] * vector[i];
  }
  const float factor = share / std::sqrt(square + faint * faint);
  for (std::size_t i = begin; i < vector.size(); ++i) {
    vector[i] *= factor;
  }
}

}  // namespace

std::vector<float> LayoutAnalyser::Describe(const QImage& picture) const {
  if (picture.isNull()) {
    return {};
  }
  QImage small = OnWhite(picture);
  const QSize size = FittedSize(small.size(), LongerSide());
  if (size != small.size()) {
    small = small.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                .convertToFormat(QImage::Format_RGB32);
  }
  const PictureSquare planes = SquareOf(small, WithinPlainBars(small));
  std::vector<float> result;
  result.reserve(kSize);
  AppendWaves(planes.light, TheTables().light, result);
  Level(result, 0, kFaintLight, 1);
  std::size_t begin = result.size();
  AppendWaves(planes.blue, TheTables().colour, result);
  AppendWaves(planes.red, TheTables().colour, result);
  Level(result, begin, kFaintColour, kColourShare);
  begin = result.size();
  AppendDirections(planes.light, result);
  Level(result, begin, kFaintDirections, kDirectionShare);
  AppendMeans(planes, result);
  Level(result, 0, 0, 1);
  return result;
}

}  // namespace Zenvora::Lumidex::Host
