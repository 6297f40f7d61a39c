#include <support/Doubles.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <QLocale>

#include <memory>
#include <string>

namespace Zenvora::App {
namespace {

using Zenvora::Test::FakeSettings;

TEST(InterfaceLanguages, AreNamesThatQtTakes) {
  ASSERT_FALSE(InterfaceLanguages().empty());
  EXPECT_EQ(InterfaceLanguages().front(), "en_US");
  for (const std::string& name : InterfaceLanguages()) {
    EXPECT_EQ(QLocale(QString::fromStdString(name)).name().toStdString(), name);
  }
}

TEST(NearestInterfaceLanguage, IsTheLanguageItselfIfSpoken) {
  for (const std::string& name : InterfaceLanguages()) {
    EXPECT_EQ(NearestInterfaceLanguage(name), name);
  }
}

struct Wish {
  const char* wish;
  const char* language;
};

class LanguageWish : public testing::TestWithParam<Wish> {};

TEST_P(LanguageWish, IsServedByTheNearest) {
  EXPECT_EQ(NearestInterfaceLanguage(GetParam().wish), GetParam().language) << GetParam().wish;
}

INSTANTIATE_TEST_SUITE_P(OfASpokenLanguage, LanguageWish,
                         testing::Values(Wish{"de", "de_DE"}, Wish{"de_AT", "de_DE"}, Wish{"de-AT", "de_DE"},
                                         Wish{"de_DE.UTF-8", "de_DE"}, Wish{"de_DE@euro", "de_DE"},
                                         Wish{"de-AT.UTF-8@euro", "de_DE"}, Wish{"DE", "de_DE"},
                                         Wish{"de_de", "de_DE"}, Wish{"PT-pt", "pt_BR"},
                                         Wish{"en_GB", "en_US"}, Wish{"ru", "ru_RU"},
                                         Wish{"ja_JP_extra", "ja_JP"}, Wish{"nl_", "nl_NL"}));

INSTANTIATE_TEST_SUITE_P(OfNoSpokenLanguage, LanguageWish,
                         testing::Values(Wish{"", "en_US"}, Wish{"C", "en_US"}, Wish{"POSIX", "en_US"},
                                         Wish{"pl_PL", "en_US"}, Wish{"d", "en_US"}, Wish{"deu", "en_US"},
                                         Wish{"German", "en_US"}, Wish{"_DE", "en_US"},
                                         Wish{"xx_DE", "en_US"}, Wish{".UTF-8", "en_US"},
                                         Wish{" de", "en_US"}, Wish{"\xC3\xA9", "en_US"}));

TEST(FindInterfaceLanguage, TellsHowWellItFits) {
  struct Row {
    const char* wish;
    const char* locale;
    LanguageMatch match;
  };
  for (const Row& row :
       {Row{"de_DE", "de_DE", LanguageMatch::Exact}, Row{"de-DE", "de_DE", LanguageMatch::Exact},
        Row{"DE_de", "de_DE", LanguageMatch::Exact}, Row{"ru_RU.UTF-8", "ru_RU", LanguageMatch::Exact},
        Row{"de", "de_DE", LanguageMatch::Near}, Row{"DE", "de_DE", LanguageMatch::Near},
        Row{"pt_PT", "pt_BR", LanguageMatch::Near}, Row{"en_GB", "en_US", LanguageMatch::Near},
        Row{"fr_CA@euro", "fr_FR", LanguageMatch::Near}, Row{"xx", "en_US", LanguageMatch::None},
        Row{"C", "en_US", LanguageMatch::None}, Row{"", "en_US", LanguageMatch::None},
        Row{"_", "en_US", LanguageMatch::None}, Row{"english", "en_US", LanguageMatch::None}}) {
    const InterfaceLanguage found = FindInterfaceLanguage(row.wish);
    EXPECT_EQ(found.locale, row.locale) << row.wish;
    EXPECT_EQ(found.match, row.match) << row.wish;
  }
}

class HostLanguage : public testing::Test {
 protected:
  std::string With(const std::string& wish) {
    settings->SetString(SettingsKey::kLanguage, wish);
    return MakeHostLookAndFeel()->GetCurrentLocale();
  }
  const std::shared_ptr<FakeSettings> settings = std::make_shared<FakeSettings>();
  const ServiceScope<ISettingsManager> scope{settings};
};

TEST_F(HostLanguage, FollowsTheSetting) {
  EXPECT_EQ(With("fr_FR"), "fr_FR");
  EXPECT_EQ(With("it"), "it_IT");
  EXPECT_EQ(With("pl_PL"), "en_US");
}

TEST_F(HostLanguage, FollowsTheSystemWithoutASetting) {
  const std::string system = NearestInterfaceLanguage(QLocale::system().name().toStdString());
  EXPECT_EQ(MakeHostLookAndFeel()->GetCurrentLocale(), system);
  EXPECT_EQ(With(""), system);
}

TEST_F(HostLanguage, ChangesWithTheSetting) {
  const auto lookAndFeel = MakeHostLookAndFeel();
  settings->SetString(SettingsKey::kLanguage, "de");
  EXPECT_EQ(lookAndFeel->GetCurrentLocale(), "de_DE");
  settings->SetString(SettingsKey::kLanguage, "nl");
  EXPECT_EQ(lookAndFeel->GetCurrentLocale(), "nl_NL");
}

TEST_F(HostLanguage, IsTheApplicationsLanguageByDefault) {
  settings->SetString(SettingsKey::kLanguage, "es");
  EXPECT_EQ(GetCurrentLocale(), "es_ES");
}

TEST(FixedLanguage, IsReportedExactlyAsGiven) {
  for (const char* locale : {"de_DE", "xx_YY", "", "anything at all"}) {
    EXPECT_EQ(MakeFixedLookAndFeel(locale)->GetCurrentLocale(), locale);
  }
}

}  // namespace
}  // namespace Zenvora::App
