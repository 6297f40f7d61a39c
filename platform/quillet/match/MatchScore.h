#pragma once

#include <cmath>
#include <limits>

namespace Zenvora::Quillet {

/// Whether a vector with that sum of squares has a direction. Sums of squares of finite floats neither
/// overflow nor vanish in a double, so the sum tells of zeros, NaN and infinities alike.
inline bool HasDirection(double squares) {
  return squares > 0 && squares <= std::numeric_limits<double>::max();
}

/// What `MatchTemplate` makes of the sums of two vectors of one length.
inline float ScoreOf(double products, double aSquares, double bSquares) {
  if (!HasDirection(aSquares) || !HasDirection(bSquares)) {
    return 0;
  }
  return static_cast<float>(products / std::sqrt(aSquares * bSquares));
}

}  // namespace Zenvora::Quillet
