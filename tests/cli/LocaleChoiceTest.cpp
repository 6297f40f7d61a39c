#include "LocaleChoice.h"

#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

namespace Zenvora::Lumidex::Cli {
namespace {

TEST(LocaleChoice, TakesEveryInterfaceLanguageAsItIs) {
  for (const std::string& locale : App::InterfaceLanguages()) {
    const auto choice = ChooseLocale(locale);
    ASSERT_TRUE(choice) << locale;
    EXPECT_EQ(choice->locale, locale);
    EXPECT_TRUE(choice->isExact) << locale;
    EXPECT_NE(SpokenLocales().find(locale), std::string::npos);
  }
}

TEST(LocaleChoice, FindsTheSameLanguageOfAnotherCountry) {
  struct Row {
    const char* wish;
    const char* locale;
  };
  for (const Row& row : {Row{"de", "de_DE"}, Row{"de_AT", "de_DE"}, Row{"de-DE", "de_DE"}, Row{"DE", "de_DE"},
                         Row{"pt_PT", "pt_BR"}, Row{"en_GB", "en_US"}, Row{"ru_RU.UTF-8", "ru_RU"},
                         Row{"fr_CA@euro", "fr_FR"}}) {
    const auto choice = ChooseLocale(row.wish);
    ASSERT_TRUE(choice) << row.wish;
    EXPECT_EQ(choice->locale, row.locale) << row.wish;
    EXPECT_FALSE(choice->isExact) << row.wish;
  }
}

TEST(LocaleChoice, RefusesLanguagesThatAreNotSpoken) {
  for (const char* const wish : {"xx", "sv_SE", "C", "", "_", "english", "d", "e n"}) {
    EXPECT_FALSE(ChooseLocale(wish)) << wish;
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli
