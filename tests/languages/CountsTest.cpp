// Counted words against the plural rules of ICU, for every number from 0 to 200.

#include <LumidexUtil/Wording.h>
#include <host/settings/InterfaceTexts.h>

#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <unicode/plurrule.h>
#include <utility>

namespace Zenvora::Test {
namespace {

constexpr int kMost = 200;

/// What the language calls the kind of number: "one", "few", "many", "other".
class PluralRules {
 public:
  explicit PluralRules(const std::string& locale) {
    UErrorCode error = U_ZERO_ERROR;
    rules_.reset(icu::PluralRules::forLocale(icu::Locale(locale.c_str()), error));
    EXPECT_TRUE(U_SUCCESS(error)) << locale << ": " << u_errorName(error);
  }
  std::string CategoryOf(int number) const {
    std::string category;
    rules_->select(number).toUTF8String(category);
    return category;
  }

 private:
  std::unique_ptr<icu::PluralRules> rules_;
};

/// The words by heart, one row a noun: they do not come from the catalogues.
using Forms = std::map<std::string, std::string>;
struct Noun {
  const char* noun;
  const char* plural;
  Forms forms;
};

Forms Two(const char* one, const char* many) {
  return {{"one", one}, {"other", many}, {"many", many}};
}
Forms Same(const char* word) {
  return {{"other", word}};
}
Forms Three(const char* one, const char* few, const char* many) {
  return {{"one", one}, {"few", few}, {"many", many}};
}

const std::map<std::string, std::vector<Noun>>& Nouns() {
  static const std::map<std::string, std::vector<Noun>> nouns = {
      {"en_US",
       {{"day", "days", Two("day", "days")},
        {"album", "albums", Two("album", "albums")},
        {"group", "groups", Two("group", "groups")},
        {"photo", "photos", Two("photo", "photos")}}},
      {"de_DE",
       {{"day", "days", Two("Tag", "Tage")},
        {"album", "albums", Two("Album", "Alben")},
        {"group", "groups", Two("Gruppe", "Gruppen")},
        {"photo", "photos", Two("Foto", "Fotos")}}},
      {"es_ES",
       {{"day", "days", Two("d\u00EDa", "d\u00EDas")},
        {"album", "albums", Two("\u00E1lbum", "\u00E1lbumes")},
        {"group", "groups", Two("grupo", "grupos")},
        {"photo", "photos", Two("foto", "fotos")}}},
      {"fr_FR",
       {{"day", "days", Two("jour", "jours")},
        {"album", "albums", Two("album", "albums")},
        {"group", "groups", Two("groupe", "groupes")},
        {"photo", "photos", Two("photo", "photos")}}},
      {"it_IT",
       {{"day", "days", Two("giorno", "giorni")},
        {"album", "albums", Two("album", "album")},
        {"group", "groups", Two("gruppo", "gruppi")},
        {"photo", "photos", Two("foto", "foto")}}},
      {"ja_JP",
       {{"day", "days", Same("\u65E5")},
        {"album", "albums", Same("\u4EF6\u306E\u30A2\u30EB\u30D0\u30E0")},
        {"group", "groups", Same("\u4EF6\u306E\u30B0\u30EB\u30FC\u30D7")},
        {"photo", "photos", Same("\u679A\u306E\u5199\u771F")}}},
      {"nl_NL",
       {{"day", "days", Two("dag", "dagen")},
        {"album", "albums", Two("album", "albums")},
        {"group", "groups", Two("groep", "groepen")},
        {"photo", "photos", Two("foto", "foto\u2019s")}}},
      {"pt_BR",
       {{"day", "days", Two("dia", "dias")},
        {"album", "albums", Two("\u00E1lbum", "\u00E1lbuns")},
        {"group", "groups", Two("grupo", "grupos")},
        {"photo", "photos", Two("foto", "fotos")}}},
      {"ru_RU",
       {{"day", "days", Three("\u0434\u0435\u043D\u044C", "\u0434\u043D\u044F", "\u0434\u043D\u0435\u0439")},
        {"album", "albums",
         Three("\u0430\u043B\u044C\u0431\u043E\u043C", "\u0430\u043B\u044C\u0431\u043E\u043C\u0430",
               "\u0430\u043B\u044C\u0431\u043E\u043C\u043E\u0432")},
        {"group", "groups",
         Three("\u0433\u0440\u0443\u043F\u043F\u0430", "\u0433\u0440\u0443\u043F\u043F\u044B",
               "\u0433\u0440\u0443\u043F\u043F")},
        {"photo", "photos",
         Three("\u0444\u043E\u0442\u043E\u0433\u0440\u0430\u0444\u0438\u044F",
               "\u0444\u043E\u0442\u043E\u0433\u0440\u0430\u0444\u0438\u0438",
               "\u0444\u043E\u0442\u043E\u0433\u0440\u0430\u0444\u0438\u0439")}}}};
  return nouns;
}

using Inexact = std::set<std::pair<std::string, int>>;

Inexact KnownToBeInexact() {
  std::ifstream file(LUMIDEX_INEXACT_COUNTS);
  EXPECT_TRUE(file.is_open());
  Inexact known;
  std::string line;
  while (std::getline(file, line)) {
    if (line.empty() || line[0] == '#') {
      continue;
    }
    std::istringstream words(line);
    std::string locale;
    words >> locale;
    for (int number = 0; words >> number;) {
      known.emplace(locale, number);
    }
  }
  return known;
}

TEST(CountedWords, AgreeWithTheRulesOfEachLanguageButForTheKnownNumbers) {
  Inexact found;
  for (const std::string& locale : App::InterfaceLanguages()) {
    const Lumidex::Host::InterfaceTexts language(locale);
    const PluralRules rules(locale);
    for (const Noun& noun : Nouns().at(locale)) {
      for (int number = 0; number <= kMost; ++number) {
        const auto wanted = noun.forms.find(rules.CategoryOf(number));
        ASSERT_NE(wanted, noun.forms.end()) << locale << ' ' << rules.CategoryOf(number);
        const std::string got = Util::GetCountString(noun.noun, noun.plural, number).toStdString();
        if (got != wanted->second) {
          found.emplace(locale, number);
        }
      }
    }
  }
  EXPECT_EQ(found, KnownToBeInexact());
}

TEST(CountedWords, StandBehindNumbersOfDays) {
  const Inexact known = KnownToBeInexact();
  for (const std::string& locale : App::InterfaceLanguages()) {
    const Lumidex::Host::InterfaceTexts language(locale);
    const PluralRules rules(locale);
    for (int days = 1; days <= kMost; ++days) {
      if (known.count({locale, days}) == 0) {
        const std::string word = Nouns().at(locale).front().forms.at(rules.CategoryOf(days));
        EXPECT_EQ(Util::GetLocalizedNumberOfDays(days).toStdString(),
                  std::to_string(days) + (locale == "ja_JP" ? "" : " ") + word)
            << locale;
      }
    }
  }
}

// Sentences have as many forms as the language asks for, so nothing is left to be inexact.
TEST(CountedSentences, AgreeWithTheRulesOfEachLanguage) {
  for (const std::string& locale : App::InterfaceLanguages()) {
    const Lumidex::Host::InterfaceTexts language(locale);
    const PluralRules rules(locale);
    std::map<std::string, std::string> forms;
    for (int number = 0; number <= kMost; ++number) {
      const std::string text =
          QCoreApplication::translate("Terminal", "%1 groups of similar photos", nullptr, number)
              .toStdString();
      const auto [form, isNew] = forms.emplace(rules.CategoryOf(number), text);
      EXPECT_EQ(text, form->second) << locale << ' ' << number << ' ' << form->first;
    }
    std::set<std::string> different;
    for (const auto& [category, text] : forms) {
      different.insert(text);
    }
    EXPECT_EQ(different.size(), forms.size()) << locale;
  }
}

}  // namespace
}  // namespace Zenvora::Test
