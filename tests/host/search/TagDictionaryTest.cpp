#include "TagSynonyms.h"

#include <host/base/LookAlikes.h>
#include <host/search/TagDictionary.h>

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

void PrintTo(const Tag& tag, std::ostream* stream) {
  *stream << TagTypeName(tag.type) << ' ' << tag.name.toStdString();
}

namespace {

const TagDictionary& Dictionary() {
  return TagDictionary::Shipped();
}

Tag System(const char* key) {
  return {TagType::System, QString::fromUtf8(key)};
}
Tag Icon(const char* key) {
  return {TagType::Icon, QString::fromUtf8(key)};
}
Tag Automatic(const char* key) {
  return {TagType::Automatic, QString::fromUtf8(key)};
}
Tag Own(const char* name) {
  return {TagType::Own, QString::fromUtf8(name)};
}

std::string Name(const Tag& tag, const char* locale) {
  return Dictionary().NameOf(tag, locale).toStdString();
}

std::optional<Tag> Named(const char* word, const char* locale) {
  return Dictionary().Named(QString::fromUtf8(word), locale);
}

bool Means(const char* word, const Tag& tag) {
  return Dictionary().MeaningOf(QString::fromUtf8(word)).Includes(tag);
}

TEST(NamesOfTags, AreInTheLanguageThatIsAskedFor) {
  EXPECT_EQ(Name(System("Landscapes"), "en_US"), "Landscape");
  EXPECT_EQ(Name(System("Landscapes"), "pt_BR"), "Panorama");
  EXPECT_EQ(Name(Icon("plane"), "de_DE"), "Flugzeug");
  EXPECT_EQ(Name(Icon("plane"), "ja_JP"), "飛行機");
  EXPECT_EQ(Name(Icon("camera"), "en_US"), "\u0421amera");
  EXPECT_EQ(Name(Automatic("Airplane"), "ru_RU"), "Самолет");
}

TEST(NamesOfTags, AreThoseOfTheLanguageWhereTheCountryIsAnother) {
  EXPECT_EQ(Name(Icon("plane"), "de_AT"), "Flugzeug");
  EXPECT_EQ(Name(Icon("plane"), "en_GB"), "Plane");
}

TEST(NamesOfTags, AreEnglishWhereTheDictionaryDoesNotSpeakTheLanguage) {
  EXPECT_EQ(Name(Icon("plane"), "sv_SE"), "Plane");
  EXPECT_EQ(Name(Automatic("Airplane"), "de_DE"), "Airplane");
  EXPECT_EQ(Name(Icon("plane"), ""), "Plane");
}

TEST(NamesOfTags, OfOneselfAndUnknownOnesAreWhatIsStored) {
  EXPECT_EQ(Name(Own("Plane"), "de_DE"), "Plane");
  EXPECT_EQ(Name(Icon("plain"), "de_DE"), "plain");
  EXPECT_EQ(Name(System("landscapes"), "de_DE"), "landscapes");
}

TEST(WordsForTagging, NameTheTagsOfTheLanguageAndOfEnglish) {
  EXPECT_EQ(Named("Flugzeug", "de_DE"), Icon("plane"));
  EXPECT_EQ(Named("plane", "de_DE"), Icon("plane"));
  EXPECT_EQ(Named("FAMILY", "fr_FR"), System("Family"));
  EXPECT_EQ(Named("Camera", "en_US"), Icon("camera"));  // With a Latin letter.
  EXPECT_EQ(Named("cafe", "es_ES"), Icon("coffee"));
  EXPECT_EQ(Named("Landscapes", "de_DE"), System("Landscapes"));
  EXPECT_EQ(Named("wear", "de_DE"), Icon("wear"));
}

TEST(WordsForTagging, MeanNoTagOfOtherLanguages) {
  EXPECT_EQ(Named("Flugzeug", "en_US"), std::nullopt);
  EXPECT_EQ(Named("Animal", "en_US"), std::nullopt);
  EXPECT_EQ(Named("Animal", "pt_BR"), Icon("pet"));
}

TEST(WordsForTagging, MeanTheOwnLanguageFirst) {
  // "Position" is a place in French, and nothing in English.
  EXPECT_EQ(Named("Position", "fr_FR"), Icon("location"));
  EXPECT_EQ(Named("Position", "en_US"), std::nullopt);
}

TEST(WordsForTagging, NeverNameAutomaticTags) {
  EXPECT_EQ(Named("Dog", "en_US"), std::nullopt);
  EXPECT_EQ(Named("Airplane", "en_US"), std::nullopt);
  EXPECT_EQ(Named("", "en_US"), std::nullopt);
}

TEST(WordsForTagging, LeaveAWordThatOnlyHelpsToFindAsItIs) {
  EXPECT_EQ(Named("Beach", "en_US"), std::nullopt);
  EXPECT_EQ(Named("Strand", "de_DE"), std::nullopt);
}

// A word of two things finds photos of both: only where languages leave no choice.
TEST(Synonyms, HaveEachWordForOneThing) {
  std::map<std::string, std::string> owners;
  std::set<std::string> shared;
  for (const TagSynonym& synonym : TagSynonyms()) {
    std::set<QString> forms;
    for (const char* const list : synonym) {
      for (const QString& word : QString::fromUtf8(list).split(QLatin1Char(','))) {
        EXPECT_FALSE(word.isEmpty()) << synonym[0];
        EXPECT_EQ(word, word.simplified()) << synonym[0];
        forms.insert(LookAlikeForm(word));
      }
    }
    for (const QString& form : forms) {
      if (!owners.emplace(form.toStdString(), synonym[0]).second) {
        shared.insert(form.toStdString());
      }
    }
  }
  // The sea in German, a lake in Dutch.
  EXPECT_EQ(shared, std::set<std::string>{"meer"});
}

TEST(WordsForTagging, AreUniqueInEachLanguage) {
  // Else the order of the dictionaries would decide what a word means.
  for (const char* const locale :
       {"en_US", "de_DE", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pt_BR", "ru_RU"}) {
    for (const Tag& tag :
         {System("Landscapes"), System("Hobby"), System("Travel"), System("Family"), Icon("tag"),
          Icon("art"),          Icon("camera"),  Icon("car"),      Icon("coffee"),   Icon("flower"),
          Icon("food"),         Icon("forest"),  Icon("gift"),     Icon("home"),     Icon("location"),
          Icon("office"),       Icon("palm"),    Icon("people"),   Icon("pet"),      Icon("phone"),
          Icon("photo"),        Icon("plane"),   Icon("snow"),     Icon("sport"),    Icon("wear")}) {
      EXPECT_EQ(Named(Name(tag, locale).c_str(), locale), tag) << locale;
    }
  }
}

struct MeaningRow {
  const char* word;
  Tag tag;
  bool means;
};

class MeaningsOfWords : public ::testing::TestWithParam<MeaningRow> {};

TEST_P(MeaningsOfWords, CrossLanguagesAndSynonyms) {
  EXPECT_EQ(Means(GetParam().word, GetParam().tag), GetParam().means) << GetParam().word;
}

INSTANTIATE_TEST_SUITE_P(
    Words, MeaningsOfWords,
    ::testing::Values(
        // Any language, the key, and letters that look alike.
        MeaningRow{"Flugzeug", Icon("plane"), true}, MeaningRow{"飛行機", Icon("plane"), true},
        MeaningRow{"Camera", Icon("camera"), true}, MeaningRow{"\u0421amera", Icon("camera"), true},
        MeaningRow{"PAYSAGE", System("Landscapes"), true}, MeaningRow{"familia", System("Family"), true},
        // Synonyms.
        MeaningRow{"Jet", Automatic("Airplane"), true}, MeaningRow{"самолёты", Automatic("Airplane"), true},
        MeaningRow{"puppies", Automatic("Dog"), true},
        // From one dictionary to another, over a word that both have.
        MeaningRow{"Flugzeug", Automatic("Airplane"), true}, MeaningRow{"Jet", Icon("plane"), true},
        MeaningRow{"Telefon", Automatic("Cell phone"), true},
        // Own tags, by all of these words.
        MeaningRow{"Flugzeug", Own("Plane"), true}, MeaningRow{"Plane", Own("Flugzeug"), true},
        MeaningRow{"собака", Own("dog"), true}, MeaningRow{"Beach", Own("beach"), true},
        MeaningRow{"CAFÉ", Own("Cafe"), true},
        // Things that no dictionary names, in all languages and numbers.
        MeaningRow{"Strand", Own("Beach"), true}, MeaningRow{"Beach", Own("playa"), true},
        MeaningRow{"пляжи", Own("ビーチ"), true}, MeaningRow{"Hochzeit", Own("Wedding"), true},
        // And in those that a dictionary does not speak.
        MeaningRow{"Hund", Automatic("Dog"), true}, MeaningRow{"puppies", Own("Hund"), true},
        MeaningRow{"Schnee", Own("Snow"), true}, MeaningRow{"Snow", Icon("snow"), true},
        // Not others.
        MeaningRow{"Strand", Icon("palm"), false}, MeaningRow{"Strand", Own("Sea"), false},
        MeaningRow{"Strand", Own("Strandbad"), false}, MeaningRow{"Jet", Automatic("Bird"), false},
        MeaningRow{"Beach", Own("Beach house"), false}, MeaningRow{"Plane", Own("Plan"), false},
        MeaningRow{"Dog", Automatic("Hot dog"), false}, MeaningRow{"", Icon("plane"), false},
        MeaningRow{"Plane", System("Travel"), false},
        MeaningRow{"Airplane,Plane", Automatic("Airplane"), false}));

}  // namespace
}  // namespace Zenvora::Lumidex::Host
