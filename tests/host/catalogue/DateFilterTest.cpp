#include <host/catalogue/DateFilter.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using ::testing::HasSubstr;
using Days = std::pair<QDate, QDate>;

const QDate kToday(2026, 6, 15);

std::optional<Days> Read(const char* text, const char* locale = "en_US") {
  std::string fault;
  const std::optional<Days> dates = ReadDates(QString::fromUtf8(text), locale, kToday, fault);
  EXPECT_EQ(dates.has_value(), fault.empty()) << text;
  return dates;
}

TEST(ReadingADateFilter, TakesTheStoredFormInEveryLanguage) {
  for (const char* const locale : {"en_US", "de_DE", "ja_JP"}) {
    EXPECT_EQ(Read("2015-03-01 - 2015-03-09", locale), Days(QDate(2015, 3, 1), QDate(2015, 3, 9)));
    EXPECT_EQ(Read("2015-03-01", locale), Days(QDate(2015, 3, 1), QDate(2015, 3, 1)));
  }
}

TEST(ReadingADateFilter, LeavesOneSideOpen) {
  EXPECT_EQ(Read("2015-03-01 - "), Days(QDate(2015, 3, 1), QDate()));
  EXPECT_EQ(Read(" - 2015-03-09"), Days(QDate(), QDate(2015, 3, 9)));
  EXPECT_EQ(Read("01.03.15 - ", "de_DE"), Days(QDate(2015, 3, 1), QDate()));
}

TEST(ReadingADateFilter, TakesTheShownFormOfTheLanguage) {
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"en_US", "3/1/15 - 3/9/15"},         {"de_DE", "01.03.15 - 09.03.15"},
      {"es_ES", "1/3/15 - 9/3/15"},         {"fr_FR", "01/03/2015 - 09/03/2015"},
      {"it_IT", "01/03/15 - 09/03/15"},     {"ja_JP", "2015/03/01 - 2015/03/09"},
      {"nl_NL", "01-03-2015 - 09-03-2015"}, {"pt_BR", "01/03/2015 - 09/03/2015"},
      {"ru_RU", "01.03.2015 - 09.03.2015"}};
  for (const auto& [locale, text] : rows) {
    EXPECT_EQ(Read(text, locale), Days(QDate(2015, 3, 1), QDate(2015, 3, 9))) << locale;
  }
  EXPECT_EQ(Read("1.3.2015", "de_DE"), Days(QDate(2015, 3, 1), QDate(2015, 3, 1)));
  EXPECT_EQ(Read("3/1/2015", "en_US"), Days(QDate(2015, 3, 1), QDate(2015, 3, 1)));
  EXPECT_EQ(Read("1/3/15", "fr_FR"), Days(QDate(2015, 3, 1), QDate(2015, 3, 1)));
}

TEST(ReadingADateFilter, TakesYearsAndMonthsInEveryLanguage) {
  for (const char* const locale : {"en_US", "de_DE", "ja_JP"}) {
    EXPECT_EQ(Read("2023", locale), Days(QDate(2023, 1, 1), QDate(2023, 12, 31)));
    EXPECT_EQ(Read("2023-06", locale), Days(QDate(2023, 6, 1), QDate(2023, 6, 30)));
    EXPECT_EQ(Read("2024-02", locale), Days(QDate(2024, 2, 1), QDate(2024, 2, 29)));
    EXPECT_EQ(Read("2023-12", locale), Days(QDate(2023, 12, 1), QDate(2023, 12, 31)));
  }
  EXPECT_EQ(Read("0001"), Days(QDate(1, 1, 1), QDate(1, 12, 31)));
  EXPECT_EQ(Read("9999"), Days(QDate(9999, 1, 1), QDate(9999, 12, 31)));
}

TEST(ReadingADateFilter, TakesRangesOfAllForms) {
  EXPECT_EQ(Read("2021 - 2023"), Days(QDate(2021, 1, 1), QDate(2023, 12, 31)));
  EXPECT_EQ(Read("2023-06 - 2023-08"), Days(QDate(2023, 6, 1), QDate(2023, 8, 31)));
  EXPECT_EQ(Read("2023 - 2023-06"), Days(QDate(2023, 1, 1), QDate(2023, 6, 30)));
  EXPECT_EQ(Read("2023-06-15 - 2023-06"), Days(QDate(2023, 6, 15), QDate(2023, 6, 30)));
  EXPECT_EQ(Read("2015 - 01.03.15", "de_DE"), Days(QDate(2015, 1, 1), QDate(2015, 3, 1)));
  EXPECT_EQ(Read("  2023-06  -  2023-08 "), Days(QDate(2023, 6, 1), QDate(2023, 8, 31)));
}

TEST(ReadingADateFilter, NeedsNoBlankAtTheOpenEnd) {
  EXPECT_EQ(Read("2023-12-25 -"), Days(QDate(2023, 12, 25), QDate()));
  EXPECT_EQ(Read("- 2023-12-25"), Days(QDate(), QDate(2023, 12, 25)));
  EXPECT_EQ(Read("2023 -"), Days(QDate(2023, 1, 1), QDate()));
  EXPECT_EQ(Read("- 2023-02"), Days(QDate(), QDate(2023, 2, 28)));
  EXPECT_EQ(Read("25.12.2023 -", "de_DE"), Days(QDate(2023, 12, 25), QDate()));
}

TEST(ReadingADateFilter, TakesShortYearsForThoseOfTheLastHundred) {
  EXPECT_EQ(Read("01.01.26", "de_DE")->first.year(), 2026);
  EXPECT_EQ(Read("01.01.27", "de_DE")->first.year(), 1927);
  EXPECT_EQ(Read("01.01.99", "de_DE")->first.year(), 1999);
  EXPECT_EQ(Read("01.01.00", "de_DE")->first.year(), 2000);
}

TEST(ReadingADateFilter, RefusesWhatIsNoDateOrRunsBackwards) {
  for (const char* const text : {"",
                                 " - ",
                                 "-",
                                 "--",
                                 " ",
                                 "yesterday",
                                 "0000",
                                 "201",
                                 "20155",
                                 "2015-3",
                                 "2015-13",
                                 "2015-00",
                                 "2015-",
                                 "-2015",
                                 "2015-03-",
                                 "2015-3-1",
                                 "2015-02-29",
                                 "2016 - 2015",
                                 "2015-03 - 2015-02",
                                 "2015 - - 2016",
                                 "2015-03-01 - x",
                                 "x - 2015-03-01",
                                 "13/1/15",
                                 "3/1/015",
                                 "3/1/20155",
                                 "3/1",
                                 "3-1-15",
                                 "3/1/15/1",
                                 "/1/15",
                                 "03.01.15",
                                 "2015-03-09 - 2015-03-01",
                                 "+3/1/15",
                                 "٣/١/١٥"}) {
    EXPECT_EQ(Read(text), std::nullopt) << text;
  }
  // The order of another language.
  EXPECT_EQ(Read("31/12/15", "en_US"), std::nullopt);
  EXPECT_NE(Read("31/12/15", "es_ES"), std::nullopt);
}

TEST(ReadingADateFilter, PassesNothingOver) {
  for (const char* const text :
       {"2015-03-01..2015-03-09", "2015-03-01-2015-03-09", "2015-03-01 to 2015-03-09", "2015-03-01T10:00",
        "2015-03-01x", "+200-03-01", "2015-03-01 - x - 2015-03-09", "2015-03-01 - 2015-03-09 - 2015-03-10",
        "3/1/15 - 3/5/15 - 3/9/15"}) {
    EXPECT_EQ(Read(text), std::nullopt) << text;
  }
}

TEST(ReadingADateFilter, SaysWhatItNeeds) {
  std::string fault;
  ReadDates(QStringLiteral("soon"), "de_DE", kToday, fault);
  EXPECT_THAT(fault, HasSubstr("\"2015-03-01 -\" or 01.03.15, not \"soon\""));
  ReadDates(QStringLiteral("2015-03-09 - 2015-03-01"), "de_DE", kToday, fault);
  EXPECT_THAT(fault, HasSubstr("the first day before the last one"));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
