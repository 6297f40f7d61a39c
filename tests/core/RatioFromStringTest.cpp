#include <zenvora/core/RatioFromString.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace Zenvora::Core {
namespace {

using Ratio = boost::rational<std::int64_t>;

TEST(RatioFromString, ReadsFractionsInLowestTerms) {
  const struct {
    const char* text;
    std::int64_t numerator, denominator;
  } rows[] = {
      {"48/1", 48, 1},
      {"2436/100", 609, 25},
      {"48", 48, 1},
      {"0", 0, 1},
      {"0/5", 0, 1},
      {"0/-5", 0, 1},
      {"-1/2", -1, 2},
      {"1/-2", -1, 2},
      {"-1/-2", 1, 2},
      {"-7", -7, 1},
      {"-0", 0, 1},
      {"007/010", 7, 10},
      {"4294967295/4294967295", 1, 1},
      {"9223372036854775807/1", INT64_MAX, 1},
      {"1/9223372036854775807", 1, INT64_MAX},
      {"-9223372036854775807/-9223372036854775807", 1, 1},
  };
  for (const auto& row : rows) {
    Ratio ratio(3, 7);
    EXPECT_TRUE(RatioFromString(row.text, ratio)) << row.text;
    EXPECT_EQ(ratio.numerator(), row.numerator) << row.text;
    EXPECT_EQ(ratio.denominator(), row.denominator) << row.text;
  }
}

TEST(RatioFromString, LeavesTheRatioAloneForEverythingElse) {
  const std::string rows[] = {
      "", " ", "/", "1/", "/2", "a", "1/a", "a/1", "1/2a", "1a/2", "1/2/3", "1//2", "--1/2", "-/2", "1/-",
      "+1/2", "1/+2", "1.5", "1.5/2", "1e3/2", "0x10/2", "1,5/2",
      // Blanks anywhere
      " 1/2", "1/2 ", "1 /2", "1/ 2", "1/2\n", "\t1/2",
      // Numbers out of range; the least one has no opposite
      "9223372036854775808/1", "1/9223372036854775808", "-9223372036854775808/1", "1/-9223372036854775808",
      "-9223372036854775809/1", "99999999999999999999999999999999", "9223372036854775808",
      // Not known
      "0/0", "-0/0", "0/-0",
      // Bytes that end texts of other kinds
      std::string("1/2\0", 4), std::string("1\0/2", 4), "1/2\xC2\xA0", "\xEF\xBC\x91/2"};
  for (const std::string& text : rows) {
    Ratio ratio(3, 7);
    EXPECT_FALSE(RatioFromString(text, ratio)) << text;
    EXPECT_EQ(ratio, Ratio(3, 7)) << text;
  }
}

TEST(RatioFromString, RefusesNumbersOverZero) {
  for (const char* text : {"1/0", "-1/0", "1/-0", "9223372036854775807/0"}) {
    Ratio ratio(3, 7);
    EXPECT_THROW(RatioFromString(text, ratio), boost::bad_rational) << text;
    EXPECT_EQ(ratio, Ratio(3, 7)) << text;
  }
}

}  // namespace
}  // namespace Zenvora::Core
