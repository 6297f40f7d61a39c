#include <LumidexUtil/Wording.h>
#include <support/Doubles.h>
#include <support/TextCatalogue.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLocale>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Test {
namespace {

using Util::DaysToCurrent;
using Util::GetCountString;
using Util::GetDateIntervalString;
using Util::GetLocalizedNumberOfDays;

const QString kContext = QStringLiteral("Zenvora::Lumidex::Utils");

/// A catalogue whose forms name themselves.
QMap<QString, QString> FormNames() {
  return {{"One day", "one"},
          {"Nominative day", "nominative"},
          {"Genetive day", "genetive"},
          {"Plural day", "plural"}};
}

/// The rule said in another way than the code says it: by the written digits.
std::string ExpectedForm(int count) {
  if (count == 1) {
    return "one";
  }
  if (count <= 0) {
    return "plural";
  }
  const std::string digits = "0" + std::to_string(count);
  const char last = digits[digits.size() - 1];
  const bool teen = digits[digits.size() - 2] == '1';
  if (teen || last == '0' || last >= '5') {
    return "plural";
  }
  return last == '1' ? "nominative" : "genetive";
}

TEST(CountString, FollowsTheThreeFormRuleForEveryCount) {
  const TextCatalogue catalogue(kContext, FormNames());
  for (int count = -121; count <= 1000; ++count) {
    EXPECT_EQ(GetCountString("day", "days", count).toStdString(), ExpectedForm(count)) << count;
  }
}

TEST(CountString, NamesTheBoundariesOfTheRule) {
  const TextCatalogue catalogue(kContext, FormNames());
  const std::vector<std::pair<int, const char*>> rows = {{0, "plural"},
                                                         {1, "one"},
                                                         {2, "genetive"},
                                                         {4, "genetive"},
                                                         {5, "plural"},
                                                         {10, "plural"},
                                                         {11, "plural"},
                                                         {12, "plural"},
                                                         {14, "plural"},
                                                         {19, "plural"},
                                                         {20, "plural"},
                                                         {21, "nominative"},
                                                         {22, "genetive"},
                                                         {24, "genetive"},
                                                         {25, "plural"},
                                                         {31, "nominative"},
                                                         {100, "plural"},
                                                         {101, "nominative"},
                                                         {102, "genetive"},
                                                         {111, "plural"},
                                                         {112, "plural"},
                                                         {119, "plural"},
                                                         {121, "nominative"},
                                                         {211, "plural"},
                                                         {-1, "plural"},
                                                         {-2, "plural"},
                                                         {-11, "plural"},
                                                         {-21, "plural"},
                                                         {-104, "plural"},
                                                         {2147483647, "plural"},
                                                         {-2147483647 - 1, "plural"},
                                                         {2147483641, "nominative"}};
  for (const auto& [count, form] : rows) {
    EXPECT_EQ(GetCountString("day", "days", count).toStdString(), form) << count;
  }
}

TEST(CountString, FallsBackToTheNounForOneAndToThePluralForAllOthers) {
  EXPECT_EQ(GetCountString("day", "days", 1), QStringLiteral("day"));
  for (const int count : {0, 2, 5, 11, 21, -1, -3}) {
    EXPECT_EQ(GetCountString("day", "days", count), QStringLiteral("days")) << count;
  }
}

TEST(CountString, TranslatesTheFallbacks) {
  const TextCatalogue catalogue(kContext, {{"photo", "Bild"}, {"photos", "Bilder"}});
  EXPECT_EQ(GetCountString("photo", "photos", 1), QStringLiteral("Bild"));
  EXPECT_EQ(GetCountString("photo", "photos", 7), QStringLiteral("Bilder"));
}

TEST(CountString, PrefersTheCatalogueEntryOfTheForm) {
  const TextCatalogue catalogue(kContext, {{"Genetive photo", "Bilder (2)"}, {"photos", "Bilder"}});
  EXPECT_EQ(GetCountString("photo", "photos", 3), QStringLiteral("Bilder (2)"));
  EXPECT_EQ(GetCountString("photo", "photos", 5), QStringLiteral("Bilder"));
}

TEST(CountString, ShowsTheKeyWithoutEntryAndWithoutFallback) {
  EXPECT_EQ(GetCountString("photo", "", 2), QStringLiteral("Genetive photo"));
  EXPECT_EQ(GetCountString("photo", "", 21), QStringLiteral("Nominative photo"));
  EXPECT_EQ(GetCountString("photo", "", 0), QStringLiteral("Plural photo"));
  // One falls back to the noun, whatever the plural fallback is.
  EXPECT_EQ(GetCountString("photo", "", 1), QStringLiteral("photo"));
  EXPECT_EQ(GetCountString("", "", 1), QStringLiteral("One "));
}

TEST(CountString, TakesAnEntryThatEqualsItsKeyForNone) {
  const TextCatalogue catalogue(kContext, {{"Plural day", "Plural day"}, {"days", "Tage"}});
  EXPECT_EQ(GetCountString("day", "days", 5), QStringLiteral("Tage"));
}

TEST(CountString, LooksOnlyIntoItsOwnContext) {
  const TextCatalogue catalogue(QStringLiteral("Other"), FormNames());
  EXPECT_EQ(GetCountString("day", "days", 5), QStringLiteral("days"));
}

TEST(CountString, ReadsNounsAsUtf8) {
  EXPECT_EQ(GetCountString("\xD0\xB4\xD0\xB5\xD0\xBD\xD1\x8C", "x", 1),
            QString::fromUtf8("\xD0\xB4\xD0\xB5\xD0\xBD\xD1\x8C"));
}

TEST(NumberOfDays, CountsWithAnEmptyCatalogue) {
  const std::vector<std::pair<int, const char*>> rows = {{-2147483647 - 1, "Expired"},
                                                         {-5, "Expired"},
                                                         {0, "Expired"},
                                                         {1, "1 day"},
                                                         {2, "2 days"},
                                                         {11, "11 days"},
                                                         {21, "21 days"},
                                                         {1000000, "1000000 days"},
                                                         {2147483647, "2147483647 days"}};
  for (const auto& [days, text] : rows) {
    EXPECT_EQ(GetLocalizedNumberOfDays(days).toStdString(), text) << days;
  }
}

TEST(NumberOfDays, UsesTheCatalogueForWordsPatternAndExpiry) {
  auto texts = FormNames();
  texts["Expired"] = "vorbei";
  texts["%1 %2"] = "%2: %1";
  const TextCatalogue catalogue(kContext, texts);
  EXPECT_EQ(GetLocalizedNumberOfDays(0), QStringLiteral("vorbei"));
  EXPECT_EQ(GetLocalizedNumberOfDays(1), QStringLiteral("one: 1"));
  EXPECT_EQ(GetLocalizedNumberOfDays(22), QStringLiteral("genetive: 22"));
}

TEST(NumberOfDays, FillsThePatternOneAfterTheOther) {
  // The number goes in first, so a pattern without its place leaves room for the noun only.
  const TextCatalogue catalogue(kContext, {{"%1 %2", "%2"}, {"One day", "tomorrow"}});
  EXPECT_EQ(GetLocalizedNumberOfDays(1), QStringLiteral("1"));
}

TEST(DaysToCurrent, CountsFromTheDateToToday) {
  const App::ServiceScope<App::IClock> scope(
      std::make_shared<FakeClock>(QDateTime(QDate(2015, 3, 10), QTime(0, 0, 1))));
  const std::vector<std::pair<const char*, int>> rows = {
      {"2015-03-01 10:00:00", 9},  {"2015-03-10 23:59:59", 0},    {"2015-03-09 23:59:59", 1},
      {"2015-03-11 00:00:00", -1}, {"2016-03-10 12:00:00", -366}, {"1900-01-01 00:00:00", 42071},
  };
  for (const auto& [text, days] : rows) {
    EXPECT_EQ(DaysToCurrent(QString::fromLatin1(text)), days) << text;
  }
}

TEST(DaysToCurrent, GivesZeroForTextsOfAnotherForm) {
  const App::ServiceScope<App::IClock> scope(
      std::make_shared<FakeClock>(QDateTime(QDate(2015, 3, 10), QTime(12, 0))));
  for (const char* text : {"", "2015-03-01 10:00", "2015-03-01", "2015-03-01T10:00:00", "01.03.2015 10:00:00",
                           "2015-02-29 10:00:00", "2015-13-01 10:00:00", "2015-03-01 24:00:00",
                           " 2015-03-01 10:00:00", "2015-03-01 10:00:00 ", "yesterday"}) {
    EXPECT_EQ(DaysToCurrent(QString::fromLatin1(text)), 0) << text;
  }
}

TEST(DaysToCurrent, ReadsTheRealClockByDefault) {
  const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1);
  const int days = DaysToCurrent(yesterday.toString("yyyy-MM-dd hh:mm:ss"));
  // Two when midnight passes between the two readings.
  EXPECT_TRUE(days == 1 || days == 2) << days;
}

class DateInterval : public ::testing::Test {
 protected:
  std::string Word(const QDate& from, const QDate& to) {
    return GetDateIntervalString(from, to).toStdString();
  }

  std::shared_ptr<FakeLookAndFeel> language = std::make_shared<FakeLookAndFeel>("en_US");
  App::ServiceScope<App::ILookAndFeelManager> scope_{language};
};

TEST_F(DateInterval, NamesMonthsAndYearsInEnglish) {
  const QDate march(2015, 3, 5);
  EXPECT_EQ(Word(march, march), "05 March 2015");
  EXPECT_EQ(Word(QDate(2015, 3, 1), QDate(2015, 3, 20)), "March 2015");
  EXPECT_EQ(Word(QDate(2015, 3, 31), QDate(2015, 5, 1)), "March - May 2015");
  EXPECT_EQ(Word(QDate(2014, 12, 31), QDate(2015, 1, 1)), "December 2014 - January 2015");
  EXPECT_EQ(Word(QDate(2014, 3, 5), QDate(2015, 3, 5)), "March 2014 - March 2015");
}

TEST_F(DateInterval, NeverLooksAtTheOrder) {
  EXPECT_EQ(Word(QDate(2015, 5, 1), QDate(2015, 3, 31)), "May - March 2015");
  EXPECT_EQ(Word(QDate(2015, 1, 1), QDate(2014, 12, 31)), "January 2015 - December 2014");
  EXPECT_EQ(Word(QDate(2015, 3, 20), QDate(2015, 3, 1)), "March 2015");
}

TEST_F(DateInterval, WordsInvalidDatesFromWhatQtGives) {
  EXPECT_EQ(Word(QDate(), QDate()), "");
  EXPECT_EQ(Word(QDate(), QDate(2015, 3, 1)), " - March 2015");
  EXPECT_EQ(Word(QDate(2015, 3, 1), QDate()), "March 2015 - ");
}

TEST_F(DateInterval, WritesFourDigitsOfTheYear) {
  EXPECT_EQ(Word(QDate(987, 3, 1), QDate(987, 3, 2)), "March 0987");
}

TEST_F(DateInterval, SpeaksAllNineLanguages) {
  struct Row {
    const char* locale;
    const char* day;
    const char* month;
    const char* months;
  };
  const std::vector<Row> rows = {
      {"en_US", "05 March 2015", "March 2015", "March - May 2015"},
      {"de_DE", "05 März 2015", "März 2015", "März - Mai 2015"},
      {"es_ES", "05 marzo 2015", "Marzo 2015", "Marzo - Mayo 2015"},
      {"fr_FR", "05 mars 2015", "Mars 2015", "Mars - Mai 2015"},
      {"it_IT", "05 marzo 2015", "Marzo 2015", "Marzo - Maggio 2015"},
      {"ja_JP", "05 3月 2015", "3月 2015", "3月 - 5月 2015"},
      {"nl_NL", "05 maart 2015", "Maart 2015", "Maart - Mei 2015"},
      {"pt_BR", "05 março 2015", "Março 2015", "Março - Maio 2015"},
      {"ru_RU", "05 марта 2015", "Март 2015", "Март - Май 2015"},
  };
  for (const Row& row : rows) {
    language->locale = row.locale;
    EXPECT_EQ(Word(QDate(2015, 3, 5), QDate(2015, 3, 5)), row.day) << row.locale;
    EXPECT_EQ(Word(QDate(2015, 3, 5), QDate(2015, 3, 6)), row.month) << row.locale;
    EXPECT_EQ(Word(QDate(2015, 3, 5), QDate(2015, 5, 6)), row.months) << row.locale;
  }
}

TEST_F(DateInterval, NamesEveryMonthOfTheNineLanguagesInItsTwoForms) {
  for (const char* locale :
       {"en_US", "de_DE", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pt_BR", "ru_RU"}) {
    language->locale = locale;
    const QLocale qt{QString::fromLatin1(locale)};
    for (int month = 1; month <= 12; ++month) {
      const QDate first(2015, month, 1);
      QString alone = qt.standaloneMonthName(month);
      alone[0] = alone[0].toUpper();
      EXPECT_EQ(GetDateIntervalString(first, first), "01 " + qt.monthName(month) + " 2015")
          << locale << month;
      EXPECT_EQ(GetDateIntervalString(first, first.addDays(1)), alone + " 2015") << locale << month;
    }
  }
}

TEST_F(DateInterval, UpperCasesAFirstLetterOutsideAscii) {
  const std::vector<std::pair<const char*, int>> rows = {{"cs_CZ", 10}, {"hy_AM", 3},  {"uk_UA", 3},
                                                         {"ka_GE", 3},  {"ksf_CM", 3}, {"yav_CM", 3}};
  for (const auto& [locale, month] : rows) {
    language->locale = locale;
    const QString alone = QLocale(QString::fromLatin1(locale)).standaloneMonthName(month);
    ASSERT_NE(alone.left(1), alone.left(1).toUpper()) << locale;
    ASSERT_GT(alone[0].unicode(), 127) << locale;
    const QString worded = GetDateIntervalString(QDate(2015, month, 1), QDate(2015, month, 2));
    EXPECT_EQ(worded, alone.left(1).toUpper() + alone.mid(1) + " 2015") << locale;
  }
  language->locale = "cs_CZ";
  // "říjen"
  EXPECT_EQ(Word(QDate(2015, 10, 1), QDate(2015, 10, 2)), "\xC5\x98\xC3\xADjen 2015");
}

TEST_F(DateInterval, AsksForTheLanguageAtEveryCall) {
  EXPECT_EQ(Word(QDate(2015, 3, 1), QDate(2015, 3, 2)), "March 2015");
  language->locale = "ru_RU";
  EXPECT_EQ(Word(QDate(2015, 3, 1), QDate(2015, 3, 2)), "Март 2015");
}

TEST_F(DateInterval, TakesAnUnknownLanguageForTheCLocale) {
  language->locale = "xx_XX";
  EXPECT_EQ(Word(QDate(2015, 3, 1), QDate(2015, 3, 2)), "March 2015");
}

}  // namespace
}  // namespace Zenvora::Test
