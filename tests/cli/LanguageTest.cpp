// The language that the command speaks.

#include "CliFixture.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <string>

namespace Zenvora::Test {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

/// What "Catalogue: " at the end of a scan is, and the first and the last words of a table of two albums.
struct Spoken {
  const char* locale;
  const char* catalogue;
  const char* heading;
  const char* summary;
};

const Spoken kSpoken[] = {
    {"en_US", "Catalogue: ", "ALBUM", "2 albums from 43 photos; 0 accepted."},
    {"de_DE", "Katalog: ", "ALBUM", "2 Alben aus 43 Fotos; 0 \u00FCbernommen."},
    {"es_ES", "Cat\u00E1logo: ", "\u00C1LBUM", "2 \u00E1lbumes a partir de 43 fotos; 0 aceptados."},
    {"fr_FR", "Catalogue\u00A0: ", "ALBUM", "2 albums \u00E0 partir de 43 photos\u00A0; 0 accept\u00E9."},
    {"it_IT", "Catalogo: ", "ALBUM", "2 album da 43 foto; 0 accettati."},
    {"ja_JP", "\u30AB\u30BF\u30ED\u30B0: ", "\u30A2\u30EB\u30D0\u30E0",
     "\u5199\u771F43\u679A\u304B\u3089\u30A2\u30EB\u30D0\u30E02\u4EF6\u3001\u63A1\u7528\u6E08\u307F0\u4EF6"
     "\u3002"},
    {"nl_NL", "Catalogus: ", "ALBUM", "2 albums uit 43 foto\u2019s; 0 geaccepteerd."},
    {"pt_BR", "Cat\u00E1logo: ", "\u00C1LBUM", "2 \u00E1lbuns a partir de 43 fotos; 0 aceito."},
    {"ru_RU", "\u041A\u0430\u0442\u0430\u043B\u043E\u0433: ", "\u0410\u041B\u042C\u0411\u041E\u041C",
     "2 \u0430\u043B\u044C\u0431\u043E\u043C\u0430 \u0438\u0437 43 "
     "\u0444\u043E\u0442\u043E\u0433\u0440\u0430\u0444\u0438\u0439; "
     "\u043F\u0440\u0438\u043D\u044F\u0442\u043E 0."}};

class LanguageOption : public CliTest {};

/// The document without what others on the disk change.
std::string Lasting(const std::string& document) {
  static const QRegularExpression free(QStringLiteral("\"bytesFree\": \\d+"));
  return QString::fromStdString(document).remove(free).toStdString();
}

TEST_F(LanguageOption, SpeaksEachOfTheNine) {
  ScanTwoAlbums();
  for (const Spoken& spoken : kSpoken) {
    const QString locale = QString::fromUtf8(spoken.locale);
    const Ran scan = Run({"--lang", locale, "scan", "photos"});
    EXPECT_EQ(scan.exitCode, 0) << spoken.locale;
    EXPECT_THAT(scan.out, HasSubstr(std::string("\n") + spoken.catalogue)) << spoken.locale;
    const Ran albums = Run({"albums", "--lang", locale});
    EXPECT_EQ(albums.exitCode, 0) << spoken.locale;
    EXPECT_THAT(albums.err, IsEmpty()) << spoken.locale;
    EXPECT_THAT(albums.out, StartsWith(spoken.heading));
    EXPECT_THAT(albums.out, HasSubstr(std::string("\n\n") + spoken.summary + '\n'));
  }
}

TEST_F(LanguageOption, ChangesNoDocumentAndNoExitCode) {
  ScanTwoAlbums();
  tree.Write("photos/broken.jpg", "no picture");
  tree.Write("calendar.json", "{\"events\": {}}");
  Run({"similar"});
  for (const QStringList& command :
       std::vector<QStringList>{{"scan", "--dry-run", "--full", "photos"},
                                {"check", "photos"},
                                {"info", "photos"},
                                {"calendar", "check", "calendar.json"},
                                {"rename", "--dry-run", "--pattern", "{number}", "photos/xmas"},
                                {"undo", "--list"},
                                {"albums", "--accept", "nothing"},
                                {"similar", "--min", "100"}}) {
    const Ran english = Run(QStringList{"--json"} + command);
    for (const char* const language : {"de_DE", "ja_JP"}) {
      const Ran other = Run(QStringList{"--json", "--lang", language} + command);
      const std::string name = command.join(QLatin1Char(' ')).toStdString() + ", " + language;
      if (command.first() != QLatin1String("albums")) {
        EXPECT_EQ(Lasting(other.out), Lasting(english.out)) << name;
        EXPECT_EQ(other.err, english.err) << name;
      }
      EXPECT_EQ(other.exitCode, english.exitCode) << name;
      EXPECT_EQ(Run(QStringList{"--lang", language} + command).exitCode, english.exitCode) << name;
    }
  }
}

TEST_F(LanguageOption, ChoosesTheHolidaysOfDocuments) {
  ScanTwoAlbums();
  const QJsonObject document = Run({"albums", "--json", "--lang", "de_DE"}).Json();
  EXPECT_EQ(document["locale"].toString(), QStringLiteral("de_DE"));
  EXPECT_EQ(document["albums"].toArray().last().toObject()["name"].toString(),
            QStringLiteral("Weihnachten\nDezember 2023"));
}

TEST_F(LanguageOption, ChangesNeitherTheLogNorErrors) {
  const Ran english = Run({"-v", "scan", "missing"});
  const Ran german = Run({"-v", "--lang", "de_DE", "scan", "missing"});
  EXPECT_EQ(german.err, english.err);
  EXPECT_EQ(german.exitCode, 4);
}

TEST_F(LanguageOption, StandsBeforeOrBehindTheCommand) {
  const std::string page = Run({"help", "albums"}).out;
  EXPECT_EQ(Run({"--lang", "de_DE", "help", "albums"}).out, page) << "help pages are in English";
  EXPECT_EQ(Run({"--lang=de_DE", "help", "albums"}).out, page);
  const std::string kNothing = "Es gibt nichts r\u00FCckg\u00E4ngig zu machen.\n";
  EXPECT_EQ(Run({"--lang", "de_DE", "undo"}).out, kNothing);
  EXPECT_EQ(Run({"undo", "--lang", "de_DE"}).out, kNothing);
  EXPECT_EQ(Run({"undo", "--lang=de_DE"}).out, kNothing);
}

TEST_F(LanguageOption, TakesTheNearestLanguageAndSaysSoInIt) {
  const Ran ran = Run({"--lang", "de_AT", "undo"});
  EXPECT_EQ(ran.err, "lumidex: de_AT wird nicht unterst\u00FCtzt; de_DE wird verwendet.\n");
  EXPECT_THAT(ran.out, StartsWith("Es gibt nichts"));
  EXPECT_THAT(Run({"--lang", "DE-de", "undo"}).err, IsEmpty());
  EXPECT_THAT(Run({"--lang", "de", "undo"}).err, IsEmpty()) << "any country is as good as another";
  EXPECT_THAT(Run({"-q", "--lang", "de_AT", "undo"}).err, IsEmpty());
  EXPECT_EQ(Run({"--json", "--lang", "de_AT", "undo"}).err,
            "lumidex: de_AT is not supported; de_DE is used.\n");
}

TEST_F(LanguageOption, RefusesWhatIsNotSpoken) {
  for (const char* const wish : {"xx", "sv_SE", "C", "deutsch"}) {
    const Ran ran = Run({"--lang", wish, "undo"});
    EXPECT_EQ(ran.exitCode, 2) << wish;
    EXPECT_THAT(ran.out, IsEmpty()) << wish;
    EXPECT_EQ(
        ran.err,
        "lumidex: error: --lang: \"" + std::string(wish) +
            "\" is not supported; choose one of en_US, de_DE, es_ES, fr_FR, it_IT, ja_JP, nl_NL, pt_BR, "
            "ru_RU\n");
    EXPECT_EQ(Run({"--json", "--lang", wish, "undo"}).Json()["kind"].toString(), QStringLiteral("usage"));
  }
  EXPECT_EQ(Run({"--lang", "", "undo"}).exitCode, 2);
  EXPECT_EQ(Run({"undo", "--lang"}).exitCode, 2);
  EXPECT_EQ(Run({"--lang", "de_DE", "--lang", "fr_FR", "undo"}).exitCode, 2);
}

TEST_F(LanguageOption, IsThatOfTheSettingsWithoutIt) {
  tree.Write("config/lumidex/lumidex.ini", "[Interface]\nLanguage=fr_FR\n");
  EXPECT_EQ(Run({"undo"}).out, "Il n\u2019y a rien \u00E0 annuler.\n");
  EXPECT_EQ(Run({"--lang", "en_US", "undo"}).out, "There is nothing to undo.\n");
}

#ifndef _WIN32
TEST_F(LanguageOption, IsThatOfTheSystemWithoutAny) {
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("it_IT.UTF-8"));
  EXPECT_EQ(Run({"undo"}).out, "Non c\u2019\u00E8 nulla da annullare.\n");
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("sv_SE.UTF-8"));
  EXPECT_EQ(Run({"undo"}).out, "There is nothing to undo.\n");
}
#endif

TEST_F(LanguageOption, LeavesTheAlbumsToTheOptionLocale) {
  ScanTwoAlbums();
  const Ran ran = Run({"albums", "--lang", "de_DE", "--locale", "fr_FR", "--report", "page.html"});
  EXPECT_EQ(ran.exitCode, 0) << ran.err;
  EXPECT_THAT(ran.out, AllOf(StartsWith("ALBUM"), HasSubstr("WANN"), HasSubstr("No\u00EBl  "),
                             HasSubstr("Bericht: ")));
  // The page goes with its albums.
  const std::string page = ReadFile(tree.Path("page.html"));
  EXPECT_THAT(page, AllOf(HasSubstr("<html lang=\"fr\""), HasSubstr("Albums propos\u00E9s"),
                          Not(HasSubstr("Alben"))));
  EXPECT_THAT(Run({"calendar", "show", "--lang", "de_DE", "--locale", "fr_FR"}).out,
              AllOf(HasSubstr("Feiertage f\u00FCr fr_FR.\n"), HasSubstr("No\u00EBl")));
}

TEST_F(LanguageOption, WritesPagesInTheirLanguageForScriptsToo) {
  ScanTwoAlbums();
  EXPECT_EQ(Run({"--json", "--lang", "nl_NL", "albums", "--report", "page.html"}).exitCode, 0);
  EXPECT_THAT(ReadFile(tree.Path("page.html")), HasSubstr("Voorgestelde albums"));
  EXPECT_EQ(Run({"--json", "--lang", "nl_NL", "similar", "--report", "page.html"}).exitCode, 0);
  EXPECT_THAT(ReadFile(tree.Path("page.html")), HasSubstr("Gelijkende foto\u2019s"));
}

TEST_F(LanguageOption, TellsStepsOfTheJournalInTheirLanguage) {
  MakePhotos("trip", "2023:05:06", 2);
  EXPECT_EQ(Run({"rename", "--pattern", "a{number}", "photos/trip"}).exitCode, 0);
  EXPECT_EQ(Run({"rotate", "left", "photos/trip"}).exitCode, 0);
  EXPECT_EQ(Run({"shift-date", "+1h", "photos/trip"}).exitCode, 0);
  EXPECT_EQ(Run({"set-date", "2020-01-02", "photos/trip"}).exitCode, 0);
  const std::string list = Run({"--lang", "de_DE", "undo", "--list"}).out;
  EXPECT_THAT(list, AllOf(HasSubstr("  2 Fotos umbenennen "), HasSubstr("  nach links drehen "),
                          HasSubstr("  Datumsangaben um +1h verschieben "),
                          HasSubstr("  Datumsangaben auf den 2020-01-02 00:00:00 setzen ")));
  EXPECT_EQ(Run({"--lang", "fr_FR", "undo"}).out,
            "Annul\u00E9\u00A0: fixer les dates au 2020-01-02 00:00:00.\n");
  EXPECT_EQ(Run({"--json", "--lang", "fr_FR", "undo"})
                .Json()["done"]
                .toArray()
                .first()
                .toObject()["name"]
                .toString(),
            QStringLiteral("shift dates by +1h"));
}

}  // namespace
}  // namespace Zenvora::Test
