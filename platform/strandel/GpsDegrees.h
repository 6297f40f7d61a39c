#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Strandel {

/// The angle that EXIF writes as degrees, minutes and seconds (numerator and denominator each; minutes and
/// seconds may be missing, and 0/0 then), positive to the north and east. `side`: N, S, E or W; `most`: 90 or
/// 180. None where it makes no sense, and where the side is missing: it would be somewhere else.
std::optional<double> GpsDegrees(const std::vector<std::pair<std::uint32_t, std::uint32_t>>& parts,
                                 const std::string& side, double most);

}  // namespace Zenvora::Strandel
