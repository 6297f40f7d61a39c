#include <cli/terminal/ValueTexts.h>

#include <gtest/gtest.h>

#include <limits>

namespace Zenvora::Lumidex::Cli {
namespace {

long long Offset(const std::string& text) {
  std::string fault;
  const auto offset = ParseOffset(text, fault);
  EXPECT_EQ(fault.empty(), offset.has_value()) << text;
  return offset ? offset->count() : 0;
}

TEST(ValueTexts, TakeOffsetsInUnitsAndByTheClock) {
  const struct {
    const char* text;
    long long seconds;
    const char* shortest;
  } rows[] = {
      {"+1h", 3'600, "+1h"},      {"-2d3h", -183'600, "-2d3h"},
      {"+90m", 5'400, "+1h30m"},  {"-45s", -45, "-45s"},
      {"+1:30", 5'400, "+1h30m"}, {"-0:00:45", -45, "-45s"},
      {"+24:00", 86'400, "+1d"},  {"+1d2h3m4s", 93'784, "+1d2h3m4s"},
      {"+0d1s", 1, "+1s"},        {"+9999999d", 863'999'913'600, "+9999999d"},
      {"+007m", 420, "+7m"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Offset(row.text), row.seconds) << row.text;
    EXPECT_EQ(OffsetText(std::chrono::seconds(row.seconds)), row.shortest) << row.text;
    EXPECT_EQ(Offset(row.shortest), row.seconds) << row.text;
  }
}

TEST(ValueTexts, RefuseWhatIsNoOffset) {
  for (const char* const text : {"",
                                 "+",
                                 "-",
                                 "1h",
                                 "0",
                                 "+0",
                                 "+0h",
                                 "-0:00",
                                 "+1",
                                 "+h",
                                 "+1H",
                                 "+1w",
                                 "+1h2",
                                 "+1h1h",
                                 "+1m1h",
                                 "+1.5h",
                                 "+ 1h",
                                 " +1h",
                                 "+1h ",
                                 "+-1h",
                                 "--1h",
                                 "++1h",
                                 "+1:5",
                                 "+1:60",
                                 "+1:30:60",
                                 "+1:30:5",
                                 "+1:30:00:00",
                                 "+:30",
                                 "+1:",
                                 "+1:30h",
                                 "+1h:30",
                                 "+1h30:00",
                                 "+12345678d",
                                 "+99999999999999999999h",
                                 "+1\xC3\xA9"}) {
    EXPECT_EQ(Offset(text), 0) << text;
  }
  std::string fault;
  ParseOffset("2h", fault);
  EXPECT_EQ(fault, "a sign: +2h to set the clock forward, -2h to set it back");
}

TEST(ValueTexts, SpellNoOffsetAsZero) {
  EXPECT_EQ(OffsetText(std::chrono::seconds(0)), "+0s");
}

std::string Date(const std::string& text) {
  std::string fault;
  const auto date = ParseDate(text, fault);
  EXPECT_EQ(fault.empty(), date.has_value()) << text;
  EXPECT_TRUE(!date || date->timeSpec() == Qt::UTC) << text;
  return date ? date->toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toStdString() : "";
}

TEST(ValueTexts, TakeDatesInAllTheirForms) {
  const struct {
    const char* text;
    const char* date;
  } rows[] = {
      {"2024-05-17", "2024-05-17 00:00:00"},          {"2024-05-17 18:30", "2024-05-17 18:30:00"},
      {"2024-05-17 18:30:05", "2024-05-17 18:30:05"}, {"2024-05-17T18:30:05", "2024-05-17 18:30:05"},
      {"2024-05-17T18:30", "2024-05-17 18:30:00"},    {"2024:05:17 18:30:05", "2024-05-17 18:30:05"},
      {"2024:05:17", "2024-05-17 00:00:00"},          {"2024-02-29 23:59:59", "2024-02-29 23:59:59"},
      {"0001-01-01", "0001-01-01 00:00:00"},          {"9999-12-31 00:00", "9999-12-31 00:00:00"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Date(row.text), row.date) << row.text;
  }
}

TEST(ValueTexts, RefuseWhatIsNoDate) {
  for (const char* const text : {"",
                                 "2024",
                                 "2024-05",
                                 "24-05-17",
                                 "2024-5-17",
                                 "2024-13-01",
                                 "2023-02-29",
                                 "2024-00-10",
                                 "0000-01-01",
                                 "12024-05-17",
                                 "2024-05:17",
                                 "2024:05-17",
                                 "2024/05/17",
                                 "20240517",
                                 "17.05.2024",
                                 "2024-05-17 ",
                                 "2024-05-17T",
                                 "2024-05-17 18",
                                 "2024-05-17 24:00",
                                 "2024-05-17 18:60",
                                 "2024-05-17 18:30:60",
                                 "2024-05-17  18:30",
                                 "2024-05-17 18:30:05.5",
                                 "2024-05-17T18:30Z",
                                 "2024-05-17 18:30+02:00",
                                 "2024-05-17t18:30",
                                 " 2024-05-17",
                                 "-2024-05-17",
                                 "today"}) {
    EXPECT_EQ(Date(text), "") << text;
  }
}

TEST(ValueTexts, TakeSizes) {
  const struct {
    const char* text;
    std::uint64_t bytes;
  } rows[] = {
      {"0", 0},
      {"1", 1},
      {"10B", 10},
      {"1K", 1024},
      {"1kB", 1024},
      {"500M", 524'288'000},
      {"5G", 5'368'709'120},
      {"5g", 5'368'709'120},
      {"5GiB", 5'368'709'120},
      {"2T", 2'199'023'255'552},
      {"9223372036854775807", 9'223'372'036'854'775'807},
      {"8388607T", 9'223'370'937'343'148'032},
  };
  std::string fault;
  for (const auto& row : rows) {
    EXPECT_EQ(ParseSize(row.text, fault), row.bytes) << row.text;
  }
  EXPECT_EQ(fault, "");
}

TEST(ValueTexts, RefuseWhatIsNoSize) {
  for (const char* const text : {"", "G", "-1", "+1", "1.5G", "1 G", " 1", "1P", "1KK", "1iB", "1Gb ", "1GBs",
                                 "0x10", "8388608T", "9223372036854775808", "99999999999999999999"}) {
    std::string fault;
    EXPECT_FALSE(ParseSize(text, fault)) << text;
    EXPECT_NE(fault, "") << text;
  }
}

TEST(ValueTexts, SpellSizes) {
  const struct {
    std::uint64_t bytes;
    const char* text;
  } rows[] = {
      {0, "0 B"},
      {1023, "1023 B"},
      {1024, "1 KiB"},
      {1536, "1.5 KiB"},
      {1'048'575, "1023 KiB"},
      {5'368'709'120, "5 GiB"},
      {104'752'742, "99.8 MiB"},
      {std::numeric_limits<std::uint64_t>::max(), "15.9 EiB"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(SizeText(row.bytes), row.text);
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli
