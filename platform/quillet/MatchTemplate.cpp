#include <zenvora/quillet/MatchTemplate.h>

#include <cmath>

namespace Zenvora::Quillet {

namespace {

constexpr std::size_t kLanes = 16;

double Dot(const float* a, const float* b, std::size_t size) {
  double lanes[kLanes] = {};
  for (std::size_t i = 0; i < size; ++i) {
    lanes[i % kLanes] += static_cast<double>(a[i]) * static_cast<double>(b[i]);
  }
  for (std::size_t half = kLanes / 2; half > 0; half /= 2) {
    for (std::size_t i = 0; i < half; ++i) {
      lanes[i] += lanes[i + half];
    }
  }
  return lanes[0];
}

bool IsUsable(double squares) {
  return squares > 0 && std::isfinite(squares);
}

}  // namespace

float MatchTemplate(const std::vector<float>& a, const std::vector<float>& b) {
  if (a.size() != b.size()) {
    return 0;
  }
  const double aSquares = Dot(a.data(), a.data(), a.size());
  const double bSquares = Dot(b.data(), b.data(), b.size());
  if (!IsUsable(aSquares) || !IsUsable(bSquares)) {
    return 0;
  }
  return static_cast<float>(Dot(a.data(), b.data(), a.size()) / std::sqrt(aSquares * bSquares));
}

}  // namespace Zenvora::Quillet
