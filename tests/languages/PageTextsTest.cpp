// The page of albums in each language.

#include "CatalogueFile.h"

#include <host/report/Report.h>
#include <host/settings/InterfaceTexts.h>
#include <support/TempTree.h>

#include <zenvora/app/RealServices.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLocale>

namespace Zenvora::Test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

class PageIn : public ::testing::TestWithParam<std::string> {
 protected:
  std::string Page(const std::vector<Lumidex::Host::ReportAlbum>& albums) const {
    const Lumidex::Host::InterfaceTexts language(GetParam());
    Lumidex::Host::ReportOptions options;
    options.locale = QString::fromStdString(GetParam());
    options.photosPerAlbum = 1;
    Lumidex::Host::WriteReport(tree_.Path("page.html"), albums, options, {});
    return ReadFile(tree_.Path("page.html"));
  }
  std::string Text(const char* source) const {
    for (const CatalogueText& text : ReadCatalogue(GetParam())) {
      if (text.context == QLatin1String("Report") && text.source == QLatin1String(source)) {
        return text.translations.last().toStdString();
      }
    }
    ADD_FAILURE() << source;
    return {};
  }

  const TempTree tree_;
};

TEST_P(PageIn, ALanguageSaysSo) {
  const std::string page = Page({});
  EXPECT_THAT(page, HasSubstr("<html lang=\"" +
                              QLocale(QString::fromStdString(GetParam())).bcp47Name().toStdString() +
                              "\" dir=\"ltr\">"));
  EXPECT_THAT(page, HasSubstr("<h1 dir=\"auto\">" + Text("Albums") + "</h1>"));
  EXPECT_THAT(page, HasSubstr("<h2>" + Text("No albums yet") + "</h2>"));
  EXPECT_THAT(page,
              HasSubstr(QString::fromStdString(Text("Made with Lumidex. This page holds all its pictures and "
                                                    "needs no other file."))
                            .toStdString()));
}

TEST_P(PageIn, ALanguageIsInThatLanguageThroughout) {
  Lumidex::Host::ReportAlbum album;
  album.accepted = true;
  album.photos.resize(3);
  const std::string page = Page({album, album});
  for (const char* const text : {"Albums by year", "Unnamed album", "Undated", "Accepted", "No picture"}) {
    EXPECT_THAT(page, HasSubstr(QString::fromStdString(Text(text)).toHtmlEscaped().toStdString())) << text;
    if (Text(text) != text) {
      EXPECT_THAT(page, Not(HasSubstr(std::string(">") + text + "<"))) << text;
    }
  }
  EXPECT_THAT(page, HasSubstr(QString::fromStdString(Text("and %1 more")).arg(2).toStdString()));
}

INSTANTIATE_TEST_SUITE_P(Languages, PageIn, ::testing::ValuesIn(App::InterfaceLanguages()),
                         [](const auto& row) { return row.param; });

TEST(PageCounts, AreWordsOfTheLanguage) {
  const TempTree tree;
  const struct {
    const char* locale;
    const char* totals;
  } kRows[] = {{"en_US", "1 album \u00B7 3 photos"},
               {"de_DE", "1 Album \u00B7 3 Fotos"},
               {"es_ES", "1 \u00E1lbum \u00B7 3 fotos"},
               {"fr_FR", "1 album \u00B7 3 photos"},
               {"it_IT", "1 album \u00B7 3 foto"},
               {"ja_JP", "1\u4EF6\u306E\u30A2\u30EB\u30D0\u30E0 \u00B7 3\u679A\u306E\u5199\u771F"},
               {"nl_NL", "1 album \u00B7 3 foto\u2019s"},
               {"pt_BR", "1 \u00E1lbum \u00B7 3 fotos"},
               {"ru_RU",
                "1 \u0430\u043B\u044C\u0431\u043E\u043C \u00B7 3 "
                "\u0444\u043E\u0442\u043E\u0433\u0440\u0430\u0444\u0438\u0438"}};
  Lumidex::Host::ReportAlbum album;
  album.photos.resize(3);
  for (const auto& row : kRows) {
    const Lumidex::Host::InterfaceTexts language(row.locale);
    Lumidex::Host::ReportOptions options;
    options.locale = QString::fromUtf8(row.locale);
    Lumidex::Host::WriteReport(tree.Path("page.html"), {album}, options, {});
    EXPECT_THAT(ReadFile(tree.Path("page.html")), HasSubstr(">" + std::string(row.totals) + "<"))
        << row.locale;
  }
}

}  // namespace
}  // namespace Zenvora::Test
