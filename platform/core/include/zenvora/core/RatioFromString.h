#pragma once

#include <zenvora/core/Export.h>

#include <boost/rational.hpp>

#include <cstdint>
#include <string>

namespace Zenvora::Core {

/// Reads a fraction as EXIF data are written out, "2436/100", or a whole number, "48". Pure; safe from any
/// thread.
///
/// The text is decimal digits with an optional '-' before each number and nothing else: no blanks, no '+',
/// no decimal point. The fraction comes in lowest terms with the sign above the line: "1/-2" is -1/2.
///
/// False for every other text, for numbers beyond 2^63 - 1 on either side of zero, and for "0/0", by which
/// EXIF says that a value is not known: then `ratio` stays as it was. Throws `boost::bad_rational` for any
/// other number over zero, which is no value at all; then, too.
ZENVORA_CORE_EXPORT bool RatioFromString(const std::string& text, boost::rational<std::int64_t>& ratio);

}  // namespace Zenvora::Core
