#pragma once

#include <cstddef>
#include <iosfwd>
#include <random>
#include <string>
#include <vector>

namespace Zenvora::Test {

using Template = std::vector<float>;

/// Sorts of feature vectors that an index has to cope with.
enum class VectorKind {
  Random,     ///< directions of chance
  Histogram,  ///< no value below 0, so that all are somewhat alike
  Mixed,      ///< both, some alone and some in bursts of near copies
  Edge,       ///< scores within 1e-6 of the threshold, on either side
  Copies,     ///< few different ones, scaled
  Broken,     ///< zeros, NaN, infinities, values that are hardly there or hardly fit, other lengths
  Parallel,   ///< cosine of about 0.88 everywhere
  Sparse,     ///< few values that are not 0
};

constexpr VectorKind kVectorKinds[] = {VectorKind::Random,   VectorKind::Histogram, VectorKind::Mixed,
                                       VectorKind::Edge,     VectorKind::Copies,    VectorKind::Broken,
                                       VectorKind::Parallel, VectorKind::Sparse};

std::ostream& operator<<(std::ostream& stream, VectorKind kind);

/// `count` vectors of `size` values. The same for the same `seed`, on any system.
std::vector<Template> MakeVectors(VectorKind kind, std::size_t count, std::size_t size, float threshold,
                                  unsigned seed);

/// Numbers whose values do not depend on the standard library.
class Chance {
 public:
  explicit Chance(unsigned seed) : engine_(seed) {}
  /// From 0 up to, not including, 1; a multiple of 2^-24.
  float Share() { return static_cast<float>(engine_() >> 8) / 16777216.0F; }
  /// About normal: mean 0, variance 1.
  float Normal();
  std::size_t Below(std::size_t limit) { return engine_() % limit; }

 private:
  std::mt19937 engine_;
};

}  // namespace Zenvora::Test
