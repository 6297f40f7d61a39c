// The translators' files: complete, and with nothing lost on the way.

#include "CatalogueFile.h"

#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QLocale>
#include <QRegularExpression>

#include <map>
#include <set>
#include <tuple>

namespace Zenvora::Test {
namespace {

class Catalogues : public ::testing::TestWithParam<std::string> {
 protected:
  const std::vector<CatalogueText> texts_ = ReadCatalogue(GetParam());
};

std::string Name(const CatalogueText& text) {
  return (text.context + QStringLiteral(": ") + text.source).toStdString();
}

using Key = std::tuple<QString, QString, QString, bool>;

std::set<Key> KeysOf(const std::vector<CatalogueText>& texts) {
  std::set<Key> keys;
  for (const CatalogueText& text : texts) {
    keys.emplace(text.context, text.source, text.comment, text.counts);
  }
  return keys;
}

QStringList PlacesIn(const QString& text) {
  static const QRegularExpression place(QStringLiteral("%(?:[1-9]|L?n)"));
  QStringList places;
  for (auto match = place.globalMatch(text); match.hasNext();) {
    places << match.next().captured();
  }
  places.sort();
  return places;
}

QString BlanksAround(const QString& text) {
  static const QRegularExpression inner(QStringLiteral("\\S.*\\S|\\S"),
                                        QRegularExpression::DotMatchesEverythingOption);
  return QString(text).replace(inner, QStringLiteral("x"));
}

TEST(CatalogueFiles, AreThereForEachInterfaceLanguageAndNoOther) {
  QStringList wanted;
  for (const std::string& locale : App::InterfaceLanguages()) {
    wanted << QStringLiteral("lumidex_%1.ts").arg(QString::fromStdString(locale));
  }
  wanted.sort();
  EXPECT_EQ(
      QDir(QStringLiteral(LUMIDEX_TRANSLATIONS)).entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name),
      wanted);
}

TEST(CatalogueFiles, HaveWhatTheirUsersLookUp) {
  std::map<QString, int> counts;
  for (const CatalogueText& text : ReadCatalogue("de_DE")) {
    ++counts[text.context];
  }
  EXPECT_EQ(counts[QStringLiteral("QObject")], 1);
  EXPECT_EQ(counts[QStringLiteral("QPlatformTheme")], 18);
  EXPECT_GE(counts[QStringLiteral("Report")], 15);
  EXPECT_GE(counts[QStringLiteral("Terminal")], 250);
  EXPECT_GE(counts[QStringLiteral("Causes")], 100);
  EXPECT_EQ(counts[QStringLiteral("Zenvora::Lumidex::Utils")], 10 + 2 + 4 * 6);
  EXPECT_EQ(counts.size(), 6U) << "a context that nobody has counted";
}

TEST_P(Catalogues, HaveTheTextsOfAllLanguages) {
  EXPECT_EQ(KeysOf(texts_), KeysOf(ReadCatalogue("en_US")));
  EXPECT_EQ(KeysOf(texts_).size(), texts_.size()) << "a text twice";
}

TEST_P(Catalogues, AreFinished) {
  const QLocale locale(QString::fromStdString(GetParam()));
  const int forms = locale.language() == QLocale::Japanese  ? 1
                    : locale.language() == QLocale::Russian ? 3
                                                            : 2;
  for (const CatalogueText& text : texts_) {
    EXPECT_EQ(text.state, QString()) << Name(text) << " is not finished, or no longer used";
    EXPECT_EQ(text.translations.size(), text.counts ? forms : 1) << Name(text);
    for (const QString& translation : text.translations) {
      EXPECT_FALSE(translation.isEmpty()) << Name(text);
    }
  }
}

TEST_P(Catalogues, KeepPlaceholders) {
  for (const CatalogueText& text : texts_) {
    for (const QString& translation : text.translations) {
      EXPECT_EQ(PlacesIn(translation), PlacesIn(text.source))
          << Name(text) << ": " << translation.toStdString();
    }
  }
}

TEST_P(Catalogues, KeepBlanksAtTheEndsAndLineFeeds) {
  for (const CatalogueText& text : texts_) {
    for (const QString& translation : text.translations) {
      EXPECT_EQ(BlanksAround(translation), BlanksAround(text.source)) << Name(text);
      EXPECT_EQ(translation.count(QLatin1Char('\n')), text.source.count(QLatin1Char('\n'))) << Name(text);
      EXPECT_FALSE(translation.contains(QStringLiteral("  "))) << Name(text);
    }
  }
}

TEST_P(Catalogues, HaveNoLineWiderThanATerminal) {
  // Texts with line feeds are laid out by hand.
  for (const CatalogueText& text : texts_) {
    for (const QString& translation : text.translations) {
      for (const QString& line : translation.split(QLatin1Char('\n'))) {
        EXPECT_TRUE(!translation.contains(QLatin1Char('\n')) || line.size() <= 100) << line.toStdString();
      }
    }
  }
}

TEST_P(Catalogues, KeepAcceleratorsApart) {
  std::set<QChar> used;
  for (const CatalogueText& text : texts_) {
    const int wanted = text.source.count(QLatin1Char('&'));
    for (const QString& translation : text.translations) {
      ASSERT_EQ(translation.count(QLatin1Char('&')), wanted) << Name(text);
      if (wanted == 1) {
        const QChar key = translation[translation.indexOf(QLatin1Char('&')) + 1].toLower();
        EXPECT_TRUE(key.isLetter()) << translation.toStdString();
        EXPECT_TRUE(used.insert(key).second) << translation.toStdString() << ": the key has another button";
      }
    }
  }
}

TEST_P(Catalogues, KeepWhatIsTyped) {
  static const QRegularExpression typed(QStringLiteral("lumidex [a-z]+|--[a-z-]+|JPG|PNG|Lumidex"));
  for (const CatalogueText& text : texts_) {
    for (auto match = typed.globalMatch(text.source); match.hasNext();) {
      const QString word = match.next().captured();
      for (const QString& translation : text.translations) {
        EXPECT_TRUE(translation.contains(word)) << Name(text) << ": " << translation.toStdString();
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, Catalogues, ::testing::ValuesIn(App::InterfaceLanguages()),
                         [](const auto& row) { return row.param; });

class Translations : public Catalogues {};

// Words that are the same in two languages are few; sentences are none.
TEST_P(Translations, AreNotLeftInEnglish) {
  static const QRegularExpression sentence(QStringLiteral("[A-Za-z]{3,}.* .*[A-Za-z]{3,}"));
  for (const CatalogueText& text : texts_) {
    if (sentence.match(text.source).hasMatch()) {
      EXPECT_NE(text.translations.first(), text.source) << Name(text);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, Translations,
                         ::testing::Values("de_DE", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pt_BR",
                                           "ru_RU"),
                         [](const auto& row) { return row.param; });

TEST(English, IsItsOwnTranslation) {
  static const QRegularExpression countKey(QStringLiteral("^(One|Nominative|Genetive|Plural) "));
  for (const CatalogueText& text : ReadCatalogue("en_US")) {
    if (!countKey.match(text.source).hasMatch()) {
      EXPECT_EQ(text.translations.last().toStdString(), text.source.toStdString());
    }
  }
}

}  // namespace
}  // namespace Zenvora::Test
