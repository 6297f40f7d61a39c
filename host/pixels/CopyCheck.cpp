#include "CopyCheck.h"

#include "CopyMeasures.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

struct Worst {
  double value = 0;
  QPoint where;
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
  const PicturePlanes a = PlanesOf(first);
  const PicturePlanes b = PlanesOf(second);
  const Filter forth = FitFilter(a.light, b.light);
  const Filter back = FitFilter(b.light, a.light);
  const PicturePlane error = CopyError(a.light, b.light, forth, back);

  const PicturePlanes compressedA = PlanesOf(CoarselyCompressed(first));
  const PicturePlanes compressedB = PlanesOf(CoarselyCompressed(second));
  const PicturePlane expected = ExpectedError(a.light, compressedA.light, b.light, compressedB.light);
  ErrorRatios ratios;
  for (int y = 0; y < error.Height(); y += 4) {
    for (int x = 0; x < error.Width(); x += 4) {
      ratios.Add(error.At(x, y), expected.At(x, y));
    }
  }
  const Allowance allowance{kTimes * ratios.Strictness(LeastStrictness(isScaled)), kLightFloor};

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
                      ExpectedError(a.*plane, compressedA.*plane, b.*plane, compressedB.*plane),
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
