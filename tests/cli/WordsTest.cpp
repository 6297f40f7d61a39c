// Texts in another language: how they are filled in, what answers mean, and that tables stay tables.

#include <cli/session/StepText.h>
#include <cli/session/TerminalQuestions.h>
#include <cli/terminal/Question.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/AlbumsView.h>
#include <host/settings/InterfaceTexts.h>

#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <vector>

namespace Zenvora::Lumidex::Cli {
namespace {

using App::AlertButton;
using App::AlertButtons;
using Host::InterfaceTexts;

TEST(Say, PutsEachValueInItsPlaceAsItIs) {
  EXPECT_EQ(Say(QStringLiteral("%2 of %1"), {"a", "b"}), "b of a");
  EXPECT_EQ(Say(QStringLiteral("%1, %2"), {"%2", "100%"}), "%2, 100%") << "values are not looked at";
  EXPECT_EQ(Say(QStringLiteral("%1%1"), {"\xff"}), "\xff\xff") << "names may be any bytes";
  EXPECT_EQ(Say(QStringLiteral("100% %3 %0 %"), {"a", "b"}), "100% %3 %0 %") << "no value, no place";
  EXPECT_EQ(Say(QStringLiteral("\u5199\u771F%1\u679A"), {"3"}), "\u5199\u771F3\u679A");
  EXPECT_EQ(Say(QString()), "");
}

TEST(Numbers, AreWrittenAsTheLanguageDoes) {
  struct Row {
    const char* locale;
    const char* number;
    const char* size;
  };
  for (const Row& row :
       {Row{"en_US", "1,234,567", "1.5 KiB"}, Row{"de_DE", "1.234.567", "1,5 KiB"},
        Row{"fr_FR", "1\u202F234\u202F567", "1,5\u00A0Kio"}, Row{"ja_JP", "1,234,567", "1.5 KiB"},
        Row{"ru_RU", "1\u00A0234\u00A0567", "1,5 \u041A\u0438\u0411"}}) {
    const InterfaceTexts texts(row.locale);
    EXPECT_EQ(GroupDigits(1'234'567), row.number);
    EXPECT_EQ(SizeText(1'536), row.size);
    EXPECT_EQ(Counted(1'234, "photo"), "1,234 photos") << "what is stored is in English";
  }
}

TEST(Amount, KeepsTheGrammaticalNumberOfWhatIsTooLarge) {
  EXPECT_EQ(Amount(0), 0);
  EXPECT_EQ(Amount(21), 21);
  EXPECT_EQ(Amount(std::numeric_limits<int>::max()), std::numeric_limits<int>::max());
  EXPECT_EQ(Amount(5'000'000'021ULL), 1'000'021);
  EXPECT_EQ(Amount(std::numeric_limits<unsigned long long>::max()), 1'551'615);
}

TEST(CountsInSentences, TakeTheFormsOfTheLanguage) {
  const struct {
    const char* locale;
    std::size_t photos;
    const char* text;
  } kRows[] = {{"en_US", 0, "0 photos"},
               {"en_US", 1, "1 photo"},
               {"en_US", 1'234, "1,234 photos"},
               {"de_DE", 1, "1 Foto"},
               {"de_DE", 21, "21 Fotos"},
               {"fr_FR", 0, "0 photo"},
               {"fr_FR", 2, "2 photos"},
               {"pt_BR", 0, "0 foto"},
               {"ja_JP", 1, "\u5199\u771F1\u679A"},
               {"ru_RU", 1, "1 \u0444\u043E\u0442\u043E\u0433\u0440\u0430\u0444\u0438\u044F"},
               {"ru_RU", 3, "3 \u0444\u043E\u0442\u043E\u0433\u0440\u0430\u0444\u0438\u0438"},
               {"ru_RU", 11, "11 \u0444\u043E\u0442\u043E\u0433\u0440\u0430\u0444\u0438\u0439"},
               {"ru_RU", 21, "21 \u0444\u043E\u0442\u043E\u0433\u0440\u0430\u0444\u0438\u044F"}};
  for (const auto& row : kRows) {
    const InterfaceTexts language(row.locale);
    EXPECT_EQ(PhotosText(row.photos), row.text) << row.locale;
  }
}

TEST(Answers, AreUnderstoodInTheLanguageAndInEnglish) {
  const struct {
    const char* locale;
    std::vector<const char*> yes;
  } kRows[] = {{"de_DE", {"j", "Ja", " JA\r"}},
               {"es_ES", {"s", "S\u00ED", "si", "SI"}},
               {"fr_FR", {"o", "oui"}},
               {"it_IT", {"s", "s\u00EC", "si"}},
               {"ja_JP", {"h", "\u306F\u3044", "\uFF48", "\uFF59"}},
               {"nl_NL", {"j", "ja"}},
               {"pt_BR", {"s", "SIM"}},
               {"ru_RU", {"\u0434", "\u0414\u0430"}}};
  for (const auto& row : kRows) {
    const InterfaceTexts language(row.locale);
    for (const char* const yes : row.yes) {
      EXPECT_TRUE(IsYes(yes)) << row.locale << ' ' << yes;
    }
    EXPECT_TRUE(IsYes("y") && IsYes("Yes")) << row.locale;
    for (const char* const no : {"", " ", "n", "no", "nein", "\u043D\u0435\u0442", "x", "\xff", "y yes"}) {
      EXPECT_FALSE(IsYes(no)) << row.locale << ' ' << no;
    }
  }
}

TEST(Buttons, HaveTheirNamesInTheLanguageAndAnswerToEnglishToo) {
  const AlertButtons buttons = AlertButtons(AlertButton::Yes) | AlertButton::No | AlertButton::Cancel;
  const auto of = [buttons](const char* line) { return ButtonOf(line, buttons, AlertButton::None); };
  {
    const InterfaceTexts language("de_DE");
    EXPECT_EQ(ButtonsText(buttons, AlertButton::Yes), "[Ja*/Nein/Abbrechen]");
    EXPECT_EQ(of("j"), AlertButton::Yes);
    EXPECT_EQ(of("nein"), AlertButton::No);
    EXPECT_EQ(of("ab"), AlertButton::Cancel);
    EXPECT_EQ(of("y"), AlertButton::Yes);
    EXPECT_EQ(of("cancel"), AlertButton::Cancel);
    EXPECT_EQ(of("oui"), AlertButton::None);
  }
  {
    const InterfaceTexts language("es_ES");
    EXPECT_EQ(of("si"), AlertButton::Yes) << "without its accent";
    EXPECT_EQ(of("S\u00ED"), AlertButton::Yes);
  }
  {
    const InterfaceTexts language("ru_RU");
    EXPECT_EQ(of("\u041E\u0422\u041C"), AlertButton::Cancel) << "in capitals";
    EXPECT_EQ(of("no"), AlertButton::No);
  }
}

TEST(StepsOfTheJournal, AreKnownByTheirEnglishNames) {
  const char* const kNames[] = {"rename 1 photo",
                                "rename 1,234 photos",
                                "rename 1 photo (2 files)",
                                "rename 3 photos (6 files)",
                                "rotate left",
                                "rotate right",
                                "rotate 180",
                                "shift dates by -2d3h",
                                "set dates to 2024-05-17 18:30:00",
                                "move similar photos to the trash",
                                "tag +Beach -Family"};
  for (const char* const name : kNames) {
    {
      const InterfaceTexts language("en_US");
      EXPECT_EQ(StepText(name), name);
    }
    const InterfaceTexts language("de_DE");
    EXPECT_NE(StepText(name), name);
  }
  const InterfaceTexts language("de_DE");
  EXPECT_EQ(StepText("rename 3 photos (6 files)"), "3 Fotos (6 Dateien) umbenennen");
  for (const char* const other :
       {"", "edit", "rename", "rename x photos", "rename 3 photos (6 files", "rename 3 dogs", "rename ,",
        "rename 1 photos (2 files) more", "rotate up", "rename 99999999999999999999 photos"}) {
    EXPECT_EQ(StepText(other), other);
  }
}

TEST(TablesInEveryLanguage, KeepTheirColumns) {
  Host::PhotoRecord photo;
  AlbumsView view;
  for (const char* const name :
       {"\u30AF\u30EA\u30B9\u30DE\u30B9\n12\u6708 2023", "No\u00EBl\nD\u00E9cembre 2023",
        "\u0420\u043E\u0436\u0434\u0435\u0441\u0442\u0432\u043E\n2023"}) {
    AlbumRow row;
    row.name = QString::fromUtf8(name);
    row.firstDay = QDate(2023, 12, 24);
    row.lastDay = QDate(2023, 12, 26);
    row.photos = {&photo};
    view.rows.push_back(row);
  }
  for (const std::string& locale : App::InterfaceLanguages()) {
    const InterfaceTexts language(locale);
    std::istringstream text(AlbumsText(view));
    std::string heading;
    std::getline(text, heading);
    const int column = DisplayWidth(heading.substr(0, heading.find(Say(Words::tr("FIRST DAY")))));
    for (std::size_t i = 0; i < view.rows.size(); ++i) {
      std::string line;
      std::getline(text, line);
      EXPECT_EQ(DisplayWidth(line.substr(0, line.find("2023-12-24"))), column) << locale << ": " << line;
    }
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli
