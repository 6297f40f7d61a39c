#include <LumidexUtil/SearchHelper.h>
#include <support/Doubles.h>
#include <support/Zone.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLocale>

#include <memory>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex {
namespace {

using Days = std::pair<QDate, QDate>;
using Zenvora::Test::Zone;

std::string Text(const Days& days) {
  return SearchHelper::GetDatesStr(days).toStdString();
}

std::string ShownIn(const char* locale, const Days& days) {
  const App::ServiceScope<App::ILookAndFeelManager> scope(
      std::make_shared<Zenvora::Test::FakeLookAndFeel>(locale));
  return SearchHelper::GetDatesStrLocalized(days).toStdString();
}

Days Read(const char* text) {
  return SearchHelper::StrToDates(QString::fromUtf8(text));
}

const QDate kFirst(2015, 3, 1);
const QDate kNinth(2015, 3, 9);
const QDate kNone;

TEST(DatesSeparator, IsBlankHyphenBlank) {
  EXPECT_EQ(SearchHelper::DATES_SEPARATOR, QLatin1String("\x20\x2D\x20"));
}

TEST(SearchHelperClass, CanBeAssignedAndMoved) {
  EXPECT_TRUE(std::is_copy_assignable_v<SearchHelper>);
  EXPECT_TRUE(std::is_move_assignable_v<SearchHelper>);
}

TEST(DatesText, IsTwoIsoDatesWithTheSeparatorBetween) {
  EXPECT_EQ(Text({kFirst, kNinth}), "2015-03-01 - 2015-03-09");
  EXPECT_EQ(Text({QDate(987, 1, 2), QDate(9999, 12, 31)}), "0987-01-02 - 9999-12-31");
}

TEST(DatesText, IsOneDateForASingleDay) {
  EXPECT_EQ(Text({kFirst, kFirst}), "2015-03-01");
}

TEST(DatesText, KeepsTheOrderThatItIsGiven) {
  EXPECT_EQ(Text({kNinth, kFirst}), "2015-03-09 - 2015-03-01");
}

TEST(DatesText, LeavesNullDatesEmpty) {
  EXPECT_EQ(Text({kNone, kNone}), "");
  EXPECT_EQ(Text({kNone, kNinth}), " - 2015-03-09");
  EXPECT_EQ(Text({kFirst, kNone}), "2015-03-01 - ");
}

TEST(DatesText, DoesNotDependOnTheInterfaceLanguage) {
  const auto language = std::make_shared<Zenvora::Test::FakeLookAndFeel>("ja_JP");
  const App::ServiceScope<App::ILookAndFeelManager> scope(language);
  EXPECT_EQ(Text({kFirst, kNinth}), "2015-03-01 - 2015-03-09");
  EXPECT_EQ(language->asked, 0);
}

TEST(LocalizedDatesText, IsInTheShortFormOfTheInterfaceLanguage) {
  const std::vector<std::pair<const char*, const char*>> rows = {
      {"en_US", "3/1/15 - 3/9/15"},         {"de_DE", "01.03.15 - 09.03.15"},
      {"es_ES", "1/3/15 - 9/3/15"},         {"fr_FR", "01/03/2015 - 09/03/2015"},
      {"it_IT", "01/03/15 - 09/03/15"},     {"ja_JP", "2015/03/01 - 2015/03/09"},
      {"nl_NL", "01-03-2015 - 09-03-2015"}, {"pt_BR", "01/03/2015 - 09/03/2015"},
      {"ru_RU", "01.03.2015 - 09.03.2015"}};
  for (const auto& [locale, text] : rows) {
    EXPECT_EQ(ShownIn(locale, {kFirst, kNinth}), text) << locale;
  }
}

TEST(LocalizedDatesText, HasTheSameCasesAsTheMachineForm) {
  EXPECT_EQ(ShownIn("de_DE", {kFirst, kFirst}), "01.03.15");
  EXPECT_EQ(ShownIn("de_DE", {kNinth, kFirst}), "09.03.15 - 01.03.15");
  EXPECT_EQ(ShownIn("de_DE", {kNone, kNone}), "");
  EXPECT_EQ(ShownIn("de_DE", {kNone, kNinth}), " - 09.03.15");
  EXPECT_EQ(ShownIn("de_DE", {kFirst, kNone}), "01.03.15 - ");
}

TEST(LocalizedDatesText, AsksForTheLanguageAnewForEachDate) {
  const auto language = std::make_shared<Zenvora::Test::FakeLookAndFeel>("de_DE");
  const App::ServiceScope<App::ILookAndFeelManager> scope(language);
  EXPECT_EQ(SearchHelper::GetDatesStrLocalized({kFirst, kFirst}), QStringLiteral("01.03.15"));
  EXPECT_EQ(language->asked, 1);
  language->locale = "ru_RU";
  EXPECT_EQ(SearchHelper::GetDatesStrLocalized({kFirst, kNinth}), QStringLiteral("01.03.2015 - 09.03.2015"));
  EXPECT_EQ(language->asked, 3);
}

struct ReadCase {
  const char* text;
  QDate first;
  QDate second;
};

void PrintTo(const ReadCase& row, std::ostream* stream) {
  *stream << row.text;
}

class ReadingDates : public ::testing::TestWithParam<ReadCase> {};

TEST_P(ReadingDates, TakesTheFirstAndTheLastPart) {
  EXPECT_EQ(Read(GetParam().text), Days(GetParam().first, GetParam().second)) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Accepted, ReadingDates,
                         ::testing::Values(ReadCase{"2015-03-01", kFirst, kFirst},
                                           ReadCase{"2015-03-01 - 2015-03-09", kFirst, kNinth},
                                           ReadCase{"2015-03-09 - 2015-03-01", kNinth, kFirst},
                                           ReadCase{"2015-03-01 - 2015-03-09 - 2016-01-01", kFirst,
                                                    QDate(2016, 1, 1)},
                                           ReadCase{"2015-03-01 - anything - 2015-03-09", kFirst, kNinth},
                                           ReadCase{"2015-03-01 -  - 2015-03-09", kFirst, kNinth},
                                           ReadCase{"2016-02-29", QDate(2016, 2, 29), QDate(2016, 2, 29)}));

INSTANTIATE_TEST_SUITE_P(
    Rejected, ReadingDates,
    ::testing::Values(ReadCase{"", kNone, kNone}, ReadCase{" ", kNone, kNone}, ReadCase{" - ", kNone, kNone},
                      ReadCase{" - 2015-03-09", kNone, kNinth}, ReadCase{"2015-03-01 - ", kFirst, kNone},
                      ReadCase{"2015-02-29 - 2015-03-09", kNone, kNinth},
                      ReadCase{"2015-03-01 - 2015-13-09", kFirst, kNone},
                      ReadCase{"01.03.15 - 09.03.15", kNone, kNone}, ReadCase{"3/1/15", kNone, kNone},
                      ReadCase{"yesterday", kNone, kNone}));

TEST(ReadingDatesBack, GivesEveryPairOfValidDates) {
  const std::vector<QDate> dates = {
      QDate(1, 1, 1), QDate(1582, 10, 4), QDate(1582, 10, 15), QDate(1900, 2, 28), QDate(2000, 2, 29), kFirst,
      kNinth,         QDate(9999, 12, 31)};
  for (const QDate& first : dates) {
    for (const QDate& second : dates) {
      EXPECT_EQ(SearchHelper::StrToDates(SearchHelper::GetDatesStr({first, second})), Days(first, second));
    }
  }
}

TEST(Instants, SpanWholeDaysInLocalTime) {
  const auto [start, end] = SearchHelper::ToDateTimeInterval({kFirst, kNinth});
  EXPECT_EQ(start, QDateTime(kFirst, QTime(0, 0)));
  EXPECT_EQ(end, QDateTime(kNinth, QTime(23, 59, 59, 999), Qt::LocalTime));
  EXPECT_EQ(start.timeSpec(), Qt::LocalTime);
  EXPECT_EQ(end.timeSpec(), Qt::LocalTime);
}

TEST(Instants, OfASingleDaySpanItToItsLastMillisecond) {
  const auto [start, end] = SearchHelper::ToDateTimeInterval({kFirst, kFirst});
  EXPECT_EQ(start.msecsTo(end), 86'399'999);
  EXPECT_EQ(end.addMSecs(1).date(), kFirst.addDays(1));
}

TEST(Instants, KeepAnOrderThatRunsBackwards) {
  const auto [start, end] = SearchHelper::ToDateTimeInterval({kNinth, kFirst});
  EXPECT_EQ(start.date(), kNinth);
  EXPECT_EQ(end.date(), kFirst);
}

TEST(Instants, AreInvalidForNullDates) {
  const auto [start, end] = SearchHelper::ToDateTimeInterval({kNone, kNone});
  EXPECT_FALSE(start.isValid());
  EXPECT_FALSE(end.isValid());
  EXPECT_TRUE(SearchHelper::ToDateTimeInterval({kFirst, kNone}).first.isValid());
  EXPECT_TRUE(SearchHelper::ToDateTimeInterval({kNone, kFirst}).second.isValid());
}

TEST(Instants, FollowTheClockOnDaysOfAnotherLength) {
  // The rules of Middle Europe, and those of the United States, written out: every system reads these.
#ifdef _WIN32
  const Zone zone("EST5EDT");
  const QDate shortDay(2021, 3, 14);
  const QDate longDay(2021, 11, 7);
#else
  const Zone zone("CET-1CEST,M3.5.0,M10.5.0/3");
  const QDate shortDay(2021, 3, 28);
  const QDate longDay(2021, 10, 31);
#endif
  constexpr qint64 kHour = 3'600'000;
  for (const auto& [day, length] :
       {std::pair(shortDay, 23 * kHour), std::pair(longDay, 25 * kHour), std::pair(kFirst, 24 * kHour)}) {
    const auto [start, end] = SearchHelper::ToDateTimeInterval({day, day});
    EXPECT_EQ(start.time(), QTime(0, 0)) << day.toString(Qt::ISODate).toStdString();
    EXPECT_EQ(end.time(), QTime(23, 59, 59, 999)) << day.toString(Qt::ISODate).toStdString();
    EXPECT_EQ(start.msecsTo(end) + 1, length) << day.toString(Qt::ISODate).toStdString();
  }
}

#ifndef _WIN32
TEST(Instants, StartLaterWhereMidnightIsSkipped) {
  // The clocks go forward at midnight to the first Sunday of November.
  const Zone zone("<-03>3<-02>,M11.1.0/0,M2.3.0/0");
  const QDate day(2018, 11, 4);
  const auto [start, end] = SearchHelper::ToDateTimeInterval({day, day});
  EXPECT_TRUE(start.isValid());
  EXPECT_EQ(start.date(), day);
  EXPECT_EQ(start.time(), QTime(1, 0));
  EXPECT_EQ(start.msecsTo(end) + 1, 23 * 3'600'000);
}

TEST(Instants, EndEarlierWhereTheEndOfTheDayIsSkipped) {
  // Forward from 23:00 of the last Saturday in March to midnight.
  const Zone zone("<-02>2<-01>,M3.5.6/23,M10.5.0/0");
  const QDate day(2024, 3, 30);
  const auto [start, end] = SearchHelper::ToDateTimeInterval({day, day});
  EXPECT_TRUE(end.isValid());
  EXPECT_EQ(end.date(), day);
  EXPECT_EQ(end.time(), QTime(22, 59, 59, 999));
  EXPECT_EQ(start.msecsTo(end) + 1, 23 * 3'600'000);
  EXPECT_EQ(end.addMSecs(1).date(), day.addDays(1));
}

TEST(Instants, AreInvalidForADayThatAZoneLeftOut) {
  // Samoa went over the date line at the end of 29 December 2011.
  const Zone zone("Pacific/Apia");
  const QDate before(2011, 12, 29);
  const QDate leftOut(2011, 12, 30);
  if (SearchHelper::ToDateTimeInterval({before, before}).second.addMSecs(1).date() == leftOut) {
    GTEST_SKIP() << "this system has no history of time zones";
  }
  const auto [start, end] = SearchHelper::ToDateTimeInterval({leftOut, leftOut});
  EXPECT_FALSE(start.isValid());
  EXPECT_FALSE(end.isValid());
}
#endif

}  // namespace
}  // namespace Zenvora::Lumidex
