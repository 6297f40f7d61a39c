#pragma once

#include "PicturePlane.h"

#include <QImage>

#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What two copies of one picture may differ by. All of it is pure; pictures that are set against each other
/// are of one size.

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

/// The one that makes `to` of `from`.
Filter FitFilter(const PicturePlane& from, const PicturePlane& to);

/// Means are taken over the square with so many pixels on each side around a pixel.
constexpr int kReach = 3;

/// The error around each pixel by the filter either way or without one, whichever fits best there: a filter
/// that takes noise away is wrong at edges, and none at all where the picture was scaled. `forth` is fitted
/// from `a` to `b`, `back` the other way.
PicturePlane CopyError(const PicturePlane& a, const PicturePlane& b, const Filter& forth, const Filter& back);

/// The picture after compressing it as coarsely as copies may be.
QImage CoarselyCompressed(const QImage& picture);
/// What compressing does to each place of two pictures, whichever is more; around a place, since errors of
/// compression spread over its blocks.
PicturePlane ExpectedError(const PicturePlane& a, const PicturePlane& compressedA, const PicturePlane& b,
                           const PicturePlane& compressedB);

/// Grey levels that differ in any copy: rounding, and what is left of other filters.
constexpr double kLightFloor = 9;
constexpr double kColourFloor = 16;
constexpr double kTimes = 4.5;
constexpr double kColourTimes = 5;

/// What an error may be: so many times what is expected, and a little more.
struct Allowance {
  double times = 1;
  double floor = 0;
  double Ratio(double error, double expected) const { return error / (times * expected + floor); }
};

/// The errors for what is expected, at places of a picture where something is.
class ErrorRatios {
 public:
  void Add(float error, float expected) {
    constexpr float kSomething = 4;
    if (expected > kSomething) {
      ratios_.push_back(error / expected);
    }
  }
  /// How much of the allowance the picture takes as a whole, `least`..1: copies of high quality are held to
  /// it everywhere. To be asked once.
  double Strictness(double least);

 private:
  std::vector<float> ratios_;
};

}  // namespace Zenvora::Lumidex::Host
