// The catalogues as they are built into the program.

#include "CatalogueFile.h"

#include <host/settings/InterfaceTexts.h>

#include <zenvora/app/RealServices.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>

#include <optional>

namespace Zenvora::Test {
namespace {

using Lumidex::Host::InterfaceTexts;

std::string Yes() {
  return QCoreApplication::translate("QPlatformTheme", "&Yes").toStdString();
}

class Spoken : public ::testing::TestWithParam<std::string> {};

TEST_P(Spoken, HasEveryTextOfItsCatalogue) {
  const InterfaceTexts texts(GetParam());
  for (const CatalogueText& text : ReadCatalogue(GetParam())) {
    const QByteArray context = text.context.toUtf8();
    const QByteArray source = text.source.toUtf8();
    const QByteArray comment = text.comment.toUtf8();
    const QString found = QCoreApplication::translate(
        context, source, text.comment.isEmpty() ? nullptr : comment.constData(), text.counts ? 1'000 : -1);
    EXPECT_EQ(found.toStdString(), text.translations.last().toStdString()) << text.context.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, Spoken, ::testing::ValuesIn(App::InterfaceLanguages()),
                         [](const auto& row) { return row.param; });

TEST(InterfaceTextsOf, LanguagesAreInForceWhileTheyLive) {
  EXPECT_EQ(Yes(), "&Yes");
  {
    const InterfaceTexts german("de_DE");
    EXPECT_EQ(Yes(), "&Ja");
    {
      const InterfaceTexts french("fr_FR");
      EXPECT_EQ(Yes(), "&Oui");
      {
        const InterfaceTexts english("en_US");
        EXPECT_EQ(Yes(), "&Yes") << "also where English is the translation";
      }
      EXPECT_EQ(Yes(), "&Oui");
    }
    EXPECT_EQ(Yes(), "&Ja");
  }
  EXPECT_EQ(Yes(), "&Yes");
}

TEST(InterfaceTextsOf, TheNearestLanguageServe) {
  const struct {
    const char* wish;
    const char* yes;
  } kRows[] = {{"de", "&Ja"}, {"de_AT.UTF-8", "&Ja"}, {"pt-PT", "&Sim"}, {"FR_fr", "&Oui"}, {"xx", "&Yes"},
               {"", "&Yes"},  {"C", "&Yes"},          {"sv_SE", "&Yes"}, {"../etc", "&Yes"}};
  for (const auto& row : kRows) {
    const InterfaceTexts texts(row.wish);
    EXPECT_EQ(Yes(), row.yes) << row.wish;
  }
}

/// Counts what windows are told when the language changes.
class Window : public QObject {
 public:
  Window() { QCoreApplication::instance()->installEventFilter(this); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    changes += event->type() == QEvent::LanguageChange ? 1 : 0;
    return QObject::eventFilter(watched, event);
  }
  int changes = 0;
};

TEST(InterfaceTextsOf, OneLanguageGiveWayToAnother) {
  InterfaceTexts texts("de_DE");
  std::optional<InterfaceTexts> page("it_IT");
  Window window;
  texts.Speak("ru_RU");
  QCoreApplication::processEvents();
  EXPECT_GE(window.changes, 1);
  EXPECT_EQ(Yes(), "&S\u00EC") << "it keeps its place below the later one";
  page.reset();
  EXPECT_EQ(Yes(), "&\u0414\u0430");
}

TEST(InterfaceTextsOf, ALanguageCanChangeWhileItIsInForce) {
  InterfaceTexts texts("de_DE");
  texts.Speak("nl_NL");
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "&No"), QStringLiteral("&Nee"));
  texts.Speak("en_US");
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "&No"), QStringLiteral("&No"));
}

}  // namespace
}  // namespace Zenvora::Test
