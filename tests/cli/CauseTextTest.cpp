// Causes and notes of the host, in the language of the person.

#include <cli/session/CauseText.h>
#include <host/settings/InterfaceTexts.h>

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <string>

namespace Zenvora::Lumidex::Cli {
namespace {

TEST(CauseText, IsTheSentenceOfTheLanguageWithTheNamesAsTheyAre) {
  const Host::InterfaceTexts german("de_DE");
  EXPECT_EQ(CauseText("it has no date to shift"), "es gibt kein Datum zu verschieben");
  EXPECT_EQ(CauseText("Cannot edit /a/%1.jpg: it has no date to shift"),
            "/a/%1.jpg l\u00E4sst sich nicht bearbeiten: es gibt kein Datum zu verschieben");
  EXPECT_EQ(CauseText("/a/b\xFF.jpg was changed later and is left as it is"),
            "/a/b\xFF.jpg wurde sp\u00E4ter ge\u00E4ndert und bleibt unver\u00E4ndert");
}

TEST(CauseText, TranslatesCausesWithinCauses) {
  const Host::InterfaceTexts german("de_DE");
  EXPECT_EQ(
      CauseText("Cannot edit a.jpg: its sidecar must be edited with it. Cannot edit a.xmp: it breaks off "
                "before its end; repair or move the sidecar"),
      "a.jpg l\u00E4sst sich nicht bearbeiten: die Begleitdatei muss mit bearbeitet werden. a.xmp l\u00E4sst "
      "sich nicht bearbeiten: die Datei bricht vor ihrem Ende ab; reparieren oder verschieben Sie die "
      "Begleitdatei");
  EXPECT_EQ(CauseText("a.jpg: b.jpg no longer exists."), "a.jpg: b.jpg gibt es nicht mehr.");
}

TEST(CauseText, KnowsWhyFilesKeepTheirNamesAndImportsDoNotBegin) {
  const Host::InterfaceTexts german("de_DE");
  EXPECT_EQ(CauseText("is the name of another file: b.jpg"), "ist der Name einer anderen Datei: b.jpg");
  EXPECT_EQ(CauseText("has no readable date: It is empty"), "hat kein lesbares Datum: Die Datei ist leer");
  EXPECT_EQ(CauseText("holds the character ?"), "enth\u00E4lt das Zeichen ?");
  EXPECT_EQ(CauseText("/c/.lumidex-import is a link to somewhere else, and imports do not write through "
                      "links. Remove the link, then import again."),
            "/c/.lumidex-import ist ein Link an eine andere Stelle, und durch Links wird beim Importieren "
            "nicht geschrieben. Entfernen Sie den Link und importieren Sie noch einmal.");
}

TEST(CauseText, NamesStepsInTheLanguage) {
  const Host::InterfaceTexts german("de_DE");
  EXPECT_EQ(CauseText("Interrupted undo of \"rename 2 photos\" is now complete."),
            "Das abgebrochene R\u00FCckg\u00E4ngigmachen von \u201E2 Fotos umbenennen\u201C ist jetzt "
            "abgeschlossen.");
  EXPECT_EQ(CauseText("\"rotate left\" was interrupted. Photos edited: 3; the others are unchanged."),
            "\u201Enach links drehen\u201C wurde abgebrochen. Bearbeitete Fotos: 3; die \u00FCbrigen sind "
            "unver\u00E4ndert.");
}

TEST(CauseText, LeavesWhatIsNoneOfOurs) {
  for (const char* const language : {"de_DE", "ja_JP"}) {
    const Host::InterfaceTexts texts(language);
    for (const char* const text :
         {"", "No such file or directory", "Some library: cannot cope.", "%1", "a. b."}) {
      EXPECT_EQ(CauseText(text), text) << language;
    }
  }
}

TEST(CauseText, IsTheSameInEnglish) {
  const Host::InterfaceTexts english("en_US");
  for (const char* const text :
       {"Cannot edit a.jpg: it has no date to shift", "a.jpg is kept: it is already in a trash.",
        "\"rename 2 photos\" was interrupted and cannot be finished (no room); the files have their former "
        "names."}) {
    EXPECT_EQ(CauseText(text), text);
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli
