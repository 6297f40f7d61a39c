#include "DictionaryTables.h"

#include <LumidexUtil/Resource.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QResource>
#include <QStringList>

#include <algorithm>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

namespace Zenvora::Test {
namespace {

using Util::Resource;
using Locales = std::vector<std::string>;

const Locales& NineLocales() {
  static const Locales locales = {"en_US", "de_DE", "es_ES", "fr_FR", "it_IT",
                                  "ja_JP", "nl_NL", "pt_BR", "ru_RU"};
  return locales;
}

const Locales& TwoLocales() {
  static const Locales locales = {"en_US", "ru_RU"};
  return locales;
}

/// The form of all dictionaries, said once more.
std::string Written(const std::vector<DictionaryRow>& rows, const Locales& locales) {
  std::string text = "{\r\n";
  for (std::size_t i = 0; i < rows.size(); ++i) {
    text += '"' + rows[i].key + "\": {\r\n";
    for (std::size_t l = 0; l < locales.size(); ++l) {
      text += "\t\"" + locales[l] + "\":\"" + rows[i].texts.at(l) +
              (l + 1 < locales.size() ? "\",\r\n" : "\"\r\n");
    }
    text += i + 1 < rows.size() ? "},\r\n" : "}\r\n";
  }
  return text + "}\r\n";
}

std::string ReadAll(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll().toStdString();
}

std::string Dictionary(const char* name) {
  return ReadAll(Resource::GetName(QLatin1String(name)));
}

QJsonObject Parsed(const char* name) {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(Dictionary(name)), &error);
  EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
  return document.object();
}

QStringList Synonyms(const QJsonObject& dictionary, const char* key, const char* locale) {
  return dictionary[QLatin1String(key)].toObject()[QLatin1String(locale)].toString().split(QLatin1Char(','));
}

TEST(ResourceNames, AreMadeOfAnyName) {
  EXPECT_EQ(Resource::GetName(Resource::AutoTag), QStringLiteral(":/LumidexUtil/configs/AutoTag.json"));
  EXPECT_EQ(Resource::GetName(Resource::SysTagTr), QStringLiteral(":/LumidexUtil/configs/SysTagTr.json"));
  EXPECT_EQ(Resource::GetName(QStringLiteral("IconTag")),
            QStringLiteral(":/LumidexUtil/configs/IconTag.json"));
  EXPECT_EQ(Resource::GetName({}), QStringLiteral(":/LumidexUtil/configs/.json"));
  EXPECT_EQ(Resource::GetName(QStringLiteral("no such")),
            QStringLiteral(":/LumidexUtil/configs/no such.json"));
  EXPECT_EQ(Resource::GetName(QStringLiteral("%1")), QStringLiteral(":/LumidexUtil/configs/%1.json"));
}

TEST(ResourceNames, HaveConstantsForTwoDictionaries) {
  EXPECT_EQ(Resource::AutoTag, QStringLiteral("AutoTag"));
  EXPECT_EQ(Resource::SysTagTr, QStringLiteral("SysTagTr"));
}

TEST(ResourceNames, BelongToAClassThatCanBeAssignedAndMoved) {
  EXPECT_TRUE(std::is_copy_assignable_v<Resource>);
  EXPECT_TRUE(std::is_move_assignable_v<Resource>);
}

TEST(Dictionaries, HoldTheirTablesByteForByte) {
  EXPECT_EQ(Dictionary("SysTagTr"), Written(SysTagTrRows(), NineLocales()));
  EXPECT_EQ(Dictionary("IconTag"), Written(IconTagRows(), NineLocales()));
  EXPECT_EQ(Dictionary("AutoTag"), Written(AutoTagRows(), TwoLocales()));
}

TEST(Dictionaries, HaveTheirSizes) {
  EXPECT_EQ(Dictionary("SysTagTr").size(), 846U);
  EXPECT_EQ(Dictionary("IconTag").size(), 4'308U);
  EXPECT_EQ(Dictionary("AutoTag").size(), 9'299U);
  EXPECT_EQ(SysTagTrRows().size(), 4U);
  EXPECT_EQ(IconTagRows().size(), 21U);
  EXPECT_EQ(AutoTagRows().size(), 80U);
}

// What a checkout may have made of line ends.
TEST(Dictionaries, AreTheFilesOfTheSources) {
  for (const char* const name : {"SysTagTr", "IconTag", "AutoTag"}) {
    EXPECT_EQ(ReadAll(QStringLiteral(DICTIONARIES_FOLDER "/%1.json").arg(QLatin1String(name))),
              Dictionary(name));
  }
}

TEST(Dictionaries, AreJsonWithoutAByteOrderMark) {
  for (const char* const name : {"SysTagTr", "IconTag", "AutoTag"}) {
    EXPECT_EQ(Dictionary(name).substr(0, 3), "{\r\n");
  }
  EXPECT_EQ(Parsed("SysTagTr").size(), 4);
  EXPECT_EQ(Parsed("IconTag").size(), 21);
  EXPECT_EQ(Parsed("AutoTag").size(), 80);
}

TEST(Dictionaries, StandAloneInTheirFolder) {
  QStringList names = QDir(QStringLiteral(":/LumidexUtil/configs")).entryList();
  names.sort();
  EXPECT_EQ(names, (QStringList{QStringLiteral("AutoTag.json"), QStringLiteral("IconTag.json"),
                                QStringLiteral("SysTagTr.json")}));
}

TEST(StoredForm, IsPlainButOfAutoTag) {
  for (const char* const name : {"SysTagTr", "IconTag"}) {
    const QResource resource(Resource::GetName(QLatin1String(name)));
    EXPECT_EQ(resource.compressionAlgorithm(), QResource::NoCompression) << name;
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(resource.data()),
                          static_cast<std::size_t>(resource.size())),
              Dictionary(name));
  }
}

TEST(StoredForm, OfAutoTagIsItsLengthAndAZlibStream) {
  const QResource resource(Resource::GetName(Resource::AutoTag));
  ASSERT_EQ(resource.compressionAlgorithm(), QResource::ZlibCompression);
  const QByteArray stored(reinterpret_cast<const char*>(resource.data()), static_cast<int>(resource.size()));
  EXPECT_EQ(stored.left(4), QByteArray("\x00\x00\x24\x53", 4));
  EXPECT_EQ(stored.at(4), '\x78');
  EXPECT_LT(stored.size(), 9'299 * 7 / 10);
  EXPECT_EQ(qUncompress(stored).toStdString(), Dictionary("AutoTag"));
  EXPECT_EQ(resource.uncompressedSize(), 9'299);
}

TEST(StoredForm, HasModificationTimesThatNoCheckoutChanges) {
  for (const char* const name : {"SysTagTr", "IconTag", "AutoTag"}) {
    const QDateTime modified = QResource(Resource::GetName(QLatin1String(name))).lastModified();
    ASSERT_TRUE(modified.isValid()) << name;
    EXPECT_EQ(modified.toMSecsSinceEpoch() % 86'400'000, 0) << name;
    EXPECT_GE(modified.toUTC().date(), QDate(2025, 11, 21)) << name;
  }
}

// They are matched as they are stored, and look like the Latin letter.
TEST(IconTagTexts, OfCameraAndCoffeeBeginWithACyrillicLetter) {
  const QJsonObject icons = Parsed("IconTag");
  for (const auto& [key, latin] : {std::pair("camera", "Camera"), std::pair("coffee", "Coffee")}) {
    const QString english = Synonyms(icons, key, "en_US").first();
    EXPECT_NE(english, QLatin1String(latin));
    EXPECT_EQ(english.at(0), QChar(0x0421));
    EXPECT_EQ(english.mid(1), QLatin1String(latin).mid(1));
  }
  EXPECT_EQ(Synonyms(icons, "camera", "nl_NL").first(), QStringLiteral("Camera"));
}

TEST(IconTagTexts, HaveNoOtherForeignLettersInEnglish) {
  for (const auto& rows : {SysTagTrRows(), IconTagRows(), AutoTagRows()}) {
    for (const DictionaryRow& row : rows) {
      const bool isAscii = std::all_of(row.texts[0].begin(), row.texts[0].end(),
                                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
      EXPECT_EQ(isAscii, row.key != "camera" && row.key != "coffee") << row.key;
    }
  }
}

TEST(SynonymLists, HoldWordsWithoutBlanksAroundThem) {
  for (const DictionaryRow& row : AutoTagRows()) {
    for (const std::string& text : row.texts) {
      const QStringList words = QString::fromStdString(text).split(QLatin1Char(','));
      std::set<QString> known;
      for (const QString& word : words) {
        EXPECT_FALSE(word.isEmpty()) << row.key;
        EXPECT_EQ(word, word.simplified()) << row.key;
        EXPECT_TRUE(word.at(0).isUpper()) << row.key;
        EXPECT_TRUE(known.insert(word.toCaseFolded()).second) << row.key << ": " << word.toStdString();
      }
    }
  }
}

TEST(SynonymLists, BeginWithTheKeyInEnglish) {
  for (const DictionaryRow& row : AutoTagRows()) {
    EXPECT_EQ(row.texts[0].substr(0, row.texts[0].find(',')), row.key);
  }
}

TEST(SynonymLists, OfRussianAreInCyrillicLetters) {
  for (const DictionaryRow& row : AutoTagRows()) {
    for (const QChar letter : QString::fromStdString(row.texts[1])) {
      const bool isCyrillic = letter.unicode() >= 0x0410 && letter.unicode() <= 0x044F;
      EXPECT_TRUE(isCyrillic || letter == QLatin1Char(',') || letter == QLatin1Char(' ') ||
                  letter == QLatin1Char('-'))
          << row.key;
    }
  }
}

TEST(SynonymLists, OfAirplanesAreTheLongestInEnglish) {
  for (const DictionaryRow& row : AutoTagRows()) {
    const auto commas = std::count(row.texts[0].begin(), row.texts[0].end(), ',');
    EXPECT_TRUE(row.key == "Airplane" ? commas == 9 : commas < 9) << row.key;
  }
}

TEST(SynonymLists, OfDifferentKeysShareNoWord) {
  for (const std::size_t locale : {std::size_t{0}, std::size_t{1}}) {
    std::set<QString> known;
    for (const DictionaryRow& row : AutoTagRows()) {
      for (const QString& word : QString::fromStdString(row.texts[locale]).split(QLatin1Char(','))) {
        EXPECT_TRUE(known.insert(word).second) << row.key << ": " << word.toStdString();
      }
    }
  }
}

}  // namespace
}  // namespace Zenvora::Test
