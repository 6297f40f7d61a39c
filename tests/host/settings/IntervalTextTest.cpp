// Intervals of albums as languages write them.

#include <host/settings/IntervalText.h>

#include <gtest/gtest.h>

namespace Zenvora::Lumidex::Host {
namespace {

struct Row {
  const char* locale;
  const char* interval;
  const char* text;
  const char* inSentence;
};

class Intervals : public ::testing::TestWithParam<Row> {};

TEST_P(Intervals, AreWrittenAsTheLanguageDoes) {
  const QLocale locale(QString::fromLatin1(GetParam().locale));
  const QString interval = QString::fromUtf8(GetParam().interval);
  EXPECT_EQ(IntervalText(interval, locale).toStdString(), GetParam().text);
  EXPECT_EQ(IntervalInSentence(interval, locale).toStdString(), GetParam().inSentence);
}

INSTANTIATE_TEST_SUITE_P(
    Languages, Intervals,
    ::testing::Values(
        Row{"en_US", "March - May 2015", "March - May 2015", "March - May 2015"},
        Row{"de_DE", "Dezember 2014 - Januar 2015", "Dezember 2014 - Januar 2015",
            "Dezember 2014 - Januar 2015"},
        Row{"es_ES", "Diciembre 2014 - Enero 2015", "Diciembre 2014 - Enero 2015",
            "diciembre 2014 - enero 2015"},
        Row{"fr_FR", "Ao\u00FBt 2015", "Ao\u00FBt 2015", "ao\u00FBt 2015"},
        Row{"it_IT", "05 marzo 2015", "05 marzo 2015", "05 marzo 2015"},
        Row{"nl_NL", "Maart 2015", "Maart 2015", "maart 2015"},
        Row{"pt_BR", "Mar\u00E7o - Maio 2015", "Mar\u00E7o - Maio 2015", "mar\u00E7o - maio 2015"},
        Row{"ru_RU", "\u0418\u044E\u043D\u044C 2012", "\u0418\u044E\u043D\u044C 2012",
            "\u0438\u044E\u043D\u044C 2012"},
        Row{"ja_JP", "6\u6708 2012", "2012\u5E746\u6708", "2012\u5E746\u6708"},
        Row{"ja_JP", "05 6\u6708 2012", "2012\u5E746\u67085\u65E5", "2012\u5E746\u67085\u65E5"},
        Row{"ja_JP", "3\u6708 - 5\u6708 2015", "2015\u5E743\u6708 - 5\u6708", "2015\u5E743\u6708 - 5\u6708"},
        Row{"ja_JP", "12\u6708 2014 - 1\u6708 2015", "2014\u5E7412\u6708 - 2015\u5E741\u6708",
            "2014\u5E7412\u6708 - 2015\u5E741\u6708"},
        Row{"ja_JP", "Summer", "Summer", "Summer"}, Row{"es_ES", "", "", ""}));

}  // namespace
}  // namespace Zenvora::Lumidex::Host
