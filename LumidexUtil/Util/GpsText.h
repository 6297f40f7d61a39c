#pragma once

#include <zenvora/core/RatioFromString.h>

#include <array>
#include <cstddef>
#include <string>

namespace Zenvora::Util {

/// -1 for "S" and "W", 1 for everything else.
inline int SignOf(const std::string& reference) {
  return reference == "S" || reference == "W" ? -1 : 1;
}

/// The first three parts between single blanks; two blanks have an empty part between them.
inline std::array<std::string, 3> FirstThreeParts(const std::string& text) {
  std::array<std::string, 3> parts;
  std::size_t begin = 0;
  for (std::string& part : parts) {
    const std::size_t end = text.find(' ', begin);
    part = text.substr(begin, end - begin);
    if (end == std::string::npos) {
      break;
    }
    begin = end + 1;
  }
  return parts;
}

/// 0 for what is no fraction. Throws `boost::bad_rational` for a number over zero.
inline double FractionOf(const std::string& text) {
  boost::rational<std::int64_t> ratio;
  Core::RatioFromString(text, ratio);
  return ratio.denominator() > 0
             ? static_cast<double>(ratio.numerator()) / static_cast<double>(ratio.denominator())
             : 0;
}

/// Degrees from "48/1 51/1 2436/100" and a reference. Throws as `FractionOf`.
inline double DegreesOf(const std::string& text, const std::string& reference) {
  constexpr double MINUTES = 60.0;
  constexpr double SECONDS = 3600.0;
  const std::array<std::string, 3> parts = FirstThreeParts(text);
  const double degrees = FractionOf(parts[0]);
  const double minutes = FractionOf(parts[1]);
  const double seconds = FractionOf(parts[2]);
  // In this order: other sums differ in the last bit, and positions are compared.
  return ((minutes / MINUTES + degrees) + seconds / SECONDS) * SignOf(reference);
}

}  // namespace Zenvora::Util
