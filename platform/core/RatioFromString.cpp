#include <zenvora/core/RatioFromString.h>

#include <charconv>
#include <limits>
#include <system_error>

namespace Zenvora::Core {

namespace {

/// Takes a number off the beginning; false when there is none or it is out of range.
bool ParseNumber(const char*& at, const char* end, std::int64_t& number) {
  const auto [behind, error] = std::from_chars(at, end, number);
  at = behind;
  // The least number has no opposite, which the lowest terms may need.
  return error == std::errc() && number != std::numeric_limits<std::int64_t>::min();
}

}  // namespace

bool RatioFromString(const std::string& text, boost::rational<std::int64_t>& ratio) {
  const char* at = text.data();
  const char* const end = at + text.size();
  std::int64_t numerator = 0;
  std::int64_t denominator = 1;
  if (!ParseNumber(at, end, numerator)) {
    return false;
  }
  if (at != end && (*at++ != '/' || !ParseNumber(at, end, denominator) || at != end)) {
    return false;
  }
  if (numerator == 0 && denominator == 0) {
    return false;
  }
  ratio.assign(numerator, denominator);
  return true;
}

}  // namespace Zenvora::Core
