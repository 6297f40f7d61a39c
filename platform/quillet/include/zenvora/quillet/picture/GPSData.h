#pragma once

#include <zenvora/quillet/Export.h>

namespace Zenvora::Quillet::Geo {

/// A place on the globe (WGS 84), or no place. Thread-safety: as a value.
class ZENVORA_QUILLET_EXPORT GPSData {
 public:
  /// Decimal degrees, north and east positive. Kept as they are, also beyond the globe.
  GPSData(double latitude, double longitude) noexcept : latitude_(latitude), longitude_(longitude) {}
  /// The value that means no position.
  static GPSData Invalid() noexcept;

  /// True for -90 to 90 degrees of latitude and -180 to 180 of longitude.
  bool IsValid() const noexcept;
  /// Not a number in `Invalid()`.
  double GetLatitude() const noexcept { return latitude_; }
  double GetLongitude() const noexcept { return longitude_; }

  /// Number by number; `Invalid()` equals itself.
  bool operator==(const GPSData& other) const noexcept;
  bool operator!=(const GPSData& other) const noexcept { return !(*this == other); }

 private:
  double latitude_;
  double longitude_;
};

}  // namespace Zenvora::Quillet::Geo
