#include "SampleTexts.h"

namespace Zenvora::Lumidex::Gallery {

const std::vector<SampleText>& SampleTexts() {
  static const std::vector<SampleText> texts = {
      {QStringLiteral("Latin"), QStringLiteral("Summer holidays in the mountains, the second week of July")},
      {QStringLiteral("Cyrillic"),
       QStringLiteral("Летние каникулы в горах, вторая неделя июля, снова дождь")},
      {QStringLiteral("Japanese"), QStringLiteral("七月の第二週、山で過ごした夏休みの写真と動画のアルバム")},
      {QStringLiteral("Arabic"), QStringLiteral("عطلة الصيف في الجبال، الأسبوع الثاني من شهر يوليو")},
      {QStringLiteral("Two directions"), QStringLiteral("صور IMG_0412 من عطلة الصيف (July 2015) في الجبال")},
      {QStringLiteral("Faces"), QStringLiteral("Beach \U0001F60E\U0001F600\U0001F602 with the family "
                                               "\U0001F60D\U0001F60A and friends \U0001F60B")},
      {QStringLiteral("Marks"), QStringLiteral("E\u0301te\u0301 a\u0300 la montan\u0303a, o\u0308ffnet 7. "
                                               "ju\u030alla, c\u030carovny\u0301 vy\u0301let")},
      {QStringLiteral("A long word"),
       QStringLiteral("Rhabarberkuchenbackwettbewerbsteilnehmerverzeichnis 2015")},
      {QStringLiteral("Short"), QStringLiteral("Easter")},
      {QStringLiteral("Nothing"), QString()},
  };
  return texts;
}

const std::vector<SampleText>& SampleNames() {
  static const std::vector<SampleText> names = {
      {QStringLiteral("Fits"), QStringLiteral("photo.jpg")},
      {QStringLiteral("Elided"), QStringLiteral("holiday_in_the_mountains_second_week_0412.jpg")},
      {QStringLiteral("Two dots"), QStringLiteral("all_the_pictures_of_that_summer.tar.gz")},
      {QStringLiteral("No extension"), QStringLiteral("README_before_you_delete_anything")},
      {QStringLiteral("Begins with a dot"), QStringLiteral(".settings_of_the_viewer_on_this_card")},
      {QStringLiteral("Cyrillic"), QStringLiteral("каникулы_в_горах_вторая_неделя.jpeg")},
  };
  return names;
}

QString SampleTranslator::translate(const char* context, const char* source, const char* /*disambiguation*/,
                                    int /*n*/) const {
  // Null: no entry.
  if (qstrcmp(context, "QFrame") != 0 || QString::fromUtf8(source) != SampleTexts().front().text) {
    return QString();
  }
  if (language_ == QLatin1String("de")) {
    return QStringLiteral("Sommerferien in den Bergen, die zweite Juliwoche");
  }
  return language_ == QLatin1String("ja") ? SampleTexts()[2].text : QString();
}

}  // namespace Zenvora::Lumidex::Gallery
