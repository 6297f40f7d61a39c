#include <host/rename/RenamePattern.h>

#include <gtest/gtest.h>

#include <QDate>
#include <QTime>

#include <limits>
#include <string>

namespace Zenvora::Lumidex::Host {
namespace {

using Mode = Tavolin::RenameSettingsMode;

RenameFacts Facts() {
  return {"IMG_0042", QDateTime(QDate(2024, 5, 1), QTime(15, 4, 9, 37)), 7};
}

std::string Named(const std::string& text, const RenameFacts& facts = Facts()) {
  RenamePatternFault fault;
  const auto pattern = RenamePattern::Parse(text, fault);
  if (!pattern) {
    ADD_FAILURE() << text << ": at " << fault.at << ": " << fault.cause;
    return {};
  }
  return pattern->NameFor(facts);
}

TEST(RenamePattern, MakesNames) {
  const std::pair<const char*, const char*> table[] = {
      {"Ferien", "Ferien"},
      {"{number}", "7"},
      {"{number:1}", "7"},
      {"{number:4}", "0007"},
      {"{number:04}", "0007"},
      {"{number:12}", "000000000007"},
      {"{date}", "2024-05-01"},
      {"{date:yyyyMMdd}", "20240501"},
      {"{date:d. MMMM yy}", "1. May 24"},
      {"{date:ddd dddd MMM M dd}", "Wed Wednesday May 5 01"},
      {"{date:yyyy'y 'MM'm'}", "2024y 05m"},
      {"{date:yyyy''MM}", "2024'05"},
      {"{date:yyyy年MM月dd日}", "2024年05月01日"},
      {"{datetime}", "2024-05-01_15-04-09"},
      {"{datetime:yyMMdd-HHmmsszzz}", "240501-150409037"},
      {"{datetime:H.m.s.z}", "15.4.9.037"},
      {"{datetime:h.mm AP}", "3.04 PM"},
      {"{datetime:hh.mm ap}", "03.04 pm"},
      {"{name}", "IMG_0042"},
      {"{date:yyyy-MM-dd}_Ferien_{number:3}", "2024-05-01_Ferien_007"},
      {"{name}{name}-{number}{number:2}", "IMG_0042IMG_0042-707"},
      {"{{", "{"},
      {"}}", "}"},
      {"{{number}}", "{number}"},
      {"{{{number}}}", "{7}"},
      {"日本 {number} 🙂", "日本 7 🙂"},
      {" a'b ", " a'b "},
  };
  for (const auto& [text, name] : table) {
    EXPECT_EQ(Named(text), name) << text;
  }
}

TEST(RenamePattern, LetsLongNumbersGrow) {
  RenameFacts facts = Facts();
  facts.number = 1000;
  EXPECT_EQ(Named("{number:3}", facts), "1000");
  facts.number = 0;
  EXPECT_EQ(Named("{number}", facts), "0");
  facts.number = std::numeric_limits<std::uint64_t>::max();
  EXPECT_EQ(Named("{number:2}", facts), "18446744073709551615");
}

TEST(RenamePattern, KeepsTheBytesOfTheOldName) {
  RenameFacts facts = Facts();
  facts.name = "caf\xE9 {number}";
  EXPECT_EQ(Named("a{name}b", facts), "acaf\xE9 {number}b");
}

TEST(RenamePattern, WritesTheCamerasTimeAlsoInTheHourThatClocksSkip) {
  RenameFacts facts = Facts();
  facts.taken = QDateTime(QDate(2024, 3, 31), QTime(2, 30), Qt::UTC);
  EXPECT_EQ(Named("{datetime}", facts), "2024-03-31_02-30-00");
}

TEST(RenamePattern, TellsWhatIsWrongAndWhere) {
  struct Row {
    std::string text;
    std::size_t at;
    const char* part;
  };
  const Row table[] = {
      {"", 1, "the pattern is empty"},
      {"a\xE9", 1, "not valid UTF-8"},
      {"a{", 2, "'{' is not closed"},
      {"a{number", 2, "'{' is not closed"},
      {"a{num{ber}", 2, "'{' is not closed"},
      {"{{{", 3, "'{' is not closed"},
      {"a}", 2, "'}' closes nothing"},
      {"{number}}", 9, "'}' closes nothing"},
      {"日本{}", 3, "{} is unknown"},
      {"{Number}", 1, "{Number} is unknown"},
      {"{ number}", 1, "{ number} is unknown"},
      {"{counter:3}", 1, "{counter} is unknown"},
      {"{:3}", 1, "{} is unknown"},
      {"{number:}", 9, "the width of a number is 1 to 12"},
      {"{number:0}", 9, "the width of a number is 1 to 12"},
      {"{number:13}", 9, "the width of a number is 1 to 12"},
      {"{number:100}", 9, "the width of a number is 1 to 12"},
      {"{number:-3}", 9, "the width of a number is 1 to 12"},
      {"{number:x}", 9, "the width of a number is 1 to 12"},
      {"{number: 3}", 9, "the width of a number is 1 to 12"},
      {"{name:3}", 6, "{name} takes no format"},
      {"{date:}", 7, "the date format is empty"},
      {"{date:--}", 7, "says nothing of the date"},
      {"{date:'yyyy'}", 7, "says nothing of the date"},
      {"{date:yyyy'MM}", 11, "the quote is not closed"},
      {"{date:yyyy-mm-dd}", 12, "'mm' is of the time, which a date lacks; months are 'MM'"},
      {"{date:yyyy HH}", 12, "'HH' is of the time, which a date lacks; use {datetime:...}"},
      {"{date:yyyy AP}", 12, "is of the time"},
      {"{date:YYYY}", 7, "'YYYY' means nothing in a date format; text goes into single quotes"},
      {"{date:yyy}", 7, "too many or too few letters"},
      {"{date:y}", 7, "too many or too few letters"},
      {"{date:MMMMM}", 7, "too many or too few letters"},
      {"{date:dddddddddddddd}", 7, "too many or too few letters"},
      {"{datetime:zz}", 11, "too many or too few letters"},
      {"{datetime:yyyy t}", 16, "'t' means nothing"},
      {"{datetime:yyyy aP}", 17, "'P' means nothing"},
      {"{datetime:HH:mm}", 13, "a name cannot hold the character :"},
      {"{date:dd/MM/yyyy}", 9, "a name cannot hold a separator of folders /"},
      {"{date:dd'/'MM}", 10, "a name cannot hold a separator of folders /"},
      {"a/b", 2, "a name cannot hold a separator of folders /"},
      {"a\\b", 2, "a name cannot hold a separator of folders \\"},
      {"a\tb", 2, "a name cannot hold a control character"},
      {"日?", 2, "a name cannot hold the character ?"},
      {std::string("a\0b", 3), 2, "a name cannot hold a control character"},
  };
  for (const Row& row : table) {
    RenamePatternFault fault;
    EXPECT_FALSE(RenamePattern::Parse(row.text, fault)) << row.text;
    EXPECT_EQ(fault.at, row.at) << row.text << ": " << fault.cause;
    EXPECT_NE(fault.cause.find(row.part), std::string::npos) << row.text << ": " << fault.cause;
  }
}

TEST(RenamePattern, HasTheModeThatSaysMostOfTheName) {
  struct Row {
    const char* text;
    Mode mode;
    bool needsDate;
  };
  const Row table[] = {
      {"Ferien", Mode::Text, false},           {"{name}", Mode::Text, false},
      {"{{date}}", Mode::Text, false},         {"Ferien {number}", Mode::Number, false},
      {"{name}{number}", Mode::Number, false}, {"{date}_{number}", Mode::Date, true},
      {"{datetime:HH}", Mode::DateTime, true}, {"{date} {datetime} {number} {name}", Mode::DateTime, true},
  };
  for (const Row& row : table) {
    RenamePatternFault fault;
    const auto pattern = RenamePattern::Parse(row.text, fault);
    ASSERT_TRUE(pattern) << row.text;
    EXPECT_EQ(pattern->MainMode(), row.mode) << row.text;
    EXPECT_EQ(pattern->NeedsDate(), row.needsDate) << row.text;
  }
}

TEST(RenameSettingsMode, KeepsTheNumbersThatAreStored) {
  EXPECT_EQ(static_cast<int>(Mode::Text), 0);
  EXPECT_EQ(static_cast<int>(Mode::Number), 1);
  EXPECT_EQ(static_cast<int>(Mode::Date), 2);
  EXPECT_EQ(static_cast<int>(Mode::DateTime), 3);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
