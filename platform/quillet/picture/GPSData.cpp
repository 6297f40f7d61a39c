#include <zenvora/quillet/picture/GPSData.h>

#include <cmath>
#include <limits>

namespace Zenvora::Quillet::Geo {

namespace {

bool IsSame(double left, double right) {
  return left == right || (std::isnan(left) && std::isnan(right));
}

}  // namespace

GPSData GPSData::Invalid() noexcept {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  return {kNone, kNone};
}

bool GPSData::IsValid() const noexcept {
  constexpr double kPole = 90;
  constexpr double kDateLine = 180;
  return std::abs(latitude_) <= kPole && std::abs(longitude_) <= kDateLine;
}

bool GPSData::operator==(const GPSData& other) const noexcept {
  return IsSame(latitude_, other.latitude_) && IsSame(longitude_, other.longitude_);
}

}  // namespace Zenvora::Quillet::Geo
