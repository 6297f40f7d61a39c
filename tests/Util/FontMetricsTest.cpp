#include <LumidexUtil/MetadataReaders.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QFontMetrics>
#include <QString>

namespace Zenvora::Test {
namespace {

/// Objects compare by identity.
void ExpectSame(const QFontMetrics& left, const QFontMetrics& right) {
  const QString text = QStringLiteral("Lumidex 0123 \u00C4\u0416");
  EXPECT_EQ(left.height(), right.height());
  EXPECT_EQ(left.ascent(), right.ascent());
  EXPECT_EQ(left.lineSpacing(), right.lineSpacing());
  EXPECT_EQ(left.horizontalAdvance(text), right.horizontalAdvance(text));
}

TEST(GetFontMetrics, MeasuresTheApplicationsFontAtThatSize) {
  for (const int size : {1, 8, 12, 40, 200}) {
    QFont font;
    font.setPixelSize(size);
    ExpectSame(Util::GetFontMetrics(size), QFontMetrics(font));
  }
  EXPECT_LT(Util::GetFontMetrics(10).height(), Util::GetFontMetrics(40).height());
}

TEST(GetFontMetrics, FollowsTheApplicationsFont) {
  const QFont former = QApplication::font();
  QFont bold = former;
  bold.setBold(!former.bold());
  bold.setPointSize(former.pointSize() + 9);
  QApplication::setFont(bold);
  QFont expected = bold;
  expected.setPixelSize(17);
  ExpectSame(Util::GetFontMetrics(17), QFontMetrics(expected));
  QApplication::setFont(former);
}

TEST(GetFontMetrics, KeepsTheFontsOwnSizeForNone) {
  for (const int size : {0, -1}) {
    ExpectSame(Util::GetFontMetrics(size), QFontMetrics(QFont()));
  }
}

}  // namespace
}  // namespace Zenvora::Test
