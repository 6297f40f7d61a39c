#pragma once

#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <limits>
#include <map>

namespace Zenvora::Util {

/// How much is to be written on each volume, in ascending order.
using VolumeTotals = std::map<ioPath, std::uint64_t>;

/// The sum; one that has no place in 64 bits stays at their end instead of wrapping to a small one.
constexpr std::uint64_t AddSizes(std::uint64_t left, std::uint64_t right) {
  constexpr std::uint64_t MOST = std::numeric_limits<std::uint64_t>::max();
  return right > MOST - left ? MOST : left + right;
}

/// `available`: free bytes; zero and less mean that the volume does not tell, and then it is never blamed.
constexpr bool HasRoom(std::uint64_t needed, std::int64_t available) {
  return available <= 0 || needed <= static_cast<std::uint64_t>(available);
}

}  // namespace Zenvora::Util
