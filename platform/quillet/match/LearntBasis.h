#pragma once

#include "MatchKernel.h"

#include <cstddef>
#include <vector>

namespace Zenvora::Quillet {

/// Directions at right angles, those along which a sample is long first. Nothing that is decided depends on
/// how well they were learnt, but for how soon.
struct LearntBasis {
  std::size_t size = 0;       ///< values of a vector
  std::size_t count = 0;      ///< directions, `size` at most
  std::size_t width = 0;      ///< `count`, up to a multiple of `kWidthStep`
  std::vector<float> matrix;  ///< `size` rows of `width`: a direction is a column
  /// No exactly orthonormal set is needed: one lies this close, as operators are measured.
  double defect = 0;
};

/// `sample`: `count` vectors of length 1, `stride` floats apart, a multiple of `kWidthStep`; what is behind
/// `size` is zero. Throws `std::bad_alloc`.
LearntBasis LearnBasis(const MatchKernel& kernel, const std::vector<float>& sample, std::size_t count,
                       std::size_t size, std::size_t stride, std::size_t directions);

}  // namespace Zenvora::Quillet
