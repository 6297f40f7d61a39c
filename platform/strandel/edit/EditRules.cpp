#include <zenvora/strandel/EditRules.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace Zenvora::Strandel {

namespace {

constexpr std::int64_t kMostSeconds = std::int64_t{10'000} * 366 * 24 * 3600;

}  // namespace

int TurnedOrientation(int orientation, Turn turn) {
  // One quarter to the right leads from each to the next, mirrored ones among themselves.
  static constexpr std::array<std::array<int, 4>, 2> kCircles = {{{1, 6, 3, 8}, {2, 7, 4, 5}}};
  for (const auto& circle : kCircles) {
    const auto* const found = std::find(circle.begin(), circle.end(), orientation);
    if (found != circle.end()) {
      const auto at = static_cast<std::size_t>(found - circle.begin());
      return circle[(at + static_cast<std::size_t>(turn)) % circle.size()];
    }
  }
  return TurnedOrientation(1, turn);
}

QDateTime ShiftedTime(const QDateTime& date, std::chrono::seconds shift) {
  if (!date.isValid() || shift.count() > kMostSeconds || shift.count() < -kMostSeconds) {
    return QDateTime();
  }
  const QDateTime shifted = QDateTime(date.date(), date.time(), Qt::UTC).addSecs(shift.count());
  const int year = shifted.date().year();
  return shifted.isValid() && year >= 1 && year <= 9999 ? shifted : QDateTime();
}

}  // namespace Zenvora::Strandel
