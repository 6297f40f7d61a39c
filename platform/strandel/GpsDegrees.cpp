#include "GpsDegrees.h"

namespace Zenvora::Strandel {

namespace {

constexpr double kSixty = 60;
constexpr double kHalfTurn = 180;

/// 1 or -1; 0: of neither side.
int SignOf(const std::string& side, bool isLongitude) {
  const char letter = side.empty() ? '\0' : side.front();
  const char positive = isLongitude ? 'E' : 'N';
  const char negative = isLongitude ? 'W' : 'S';
  return letter == positive ? 1 : letter == negative ? -1 : 0;
}

}  // namespace

std::optional<double> GpsDegrees(const std::vector<std::pair<std::uint32_t, std::uint32_t>>& parts,
                                 const std::string& side, double most) {
  constexpr std::size_t kMostParts = 3;
  const int sign = SignOf(side, most == kHalfTurn);
  if (sign == 0 || parts.empty() || parts.size() > kMostParts) {
    return std::nullopt;
  }
  double degrees = 0;
  double unit = 1;
  for (const auto& [numerator, denominator] : parts) {
    const bool isLeftOut = numerator == 0 && denominator == 0 && unit != 1;
    if (denominator == 0 && !isLeftOut) {
      return std::nullopt;
    }
    const double part = isLeftOut ? 0 : static_cast<double>(numerator) / denominator;
    // A full minute comes from rounding.
    if (unit != 1 && part > kSixty) {
      return std::nullopt;
    }
    degrees += part / unit;
    unit *= kSixty;
  }
  return degrees <= most ? std::optional(sign * degrees) : std::nullopt;
}

}  // namespace Zenvora::Strandel
