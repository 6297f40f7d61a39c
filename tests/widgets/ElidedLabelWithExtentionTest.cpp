#include "PaintRecorder.h"
#include "PlainRule.h"
#include "TestFont.h"

#include <LumidexUtil/ElidedLabelWithExtention.h>
#include <support/TextCatalogue.h>

#include <gtest/gtest.h>

namespace Zenvora::Lumidex {
namespace {

using Zenvora::Test::Drawn;
using Zenvora::Test::kLetter;
using Zenvora::Test::kLine;
using Zenvora::Test::Paint;
using Zenvora::Test::TestFont;

class Named : public ElidedLabelWithExtention {
 public:
  explicit Named(const QString& name, int width = 100, int height = kLine)
      : ElidedLabelWithExtention(nullptr) {
    setFont(TestFont());
    setFixedSize(width, height);
    SetOriginText(name);
  }
  int Width() const override { return ElidedLabelWithExtention::Width(); }
  void PrepareLastRowText(QString& row) override { ElidedLabelWithExtention::PrepareLastRowText(row); }
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): what the base stores is meant
  QString Stored() const { return ElidedLabel::GetOriginText(); }
  QString Shown() {
    QString text;
    for (const Drawn& run : Paint(*this)) {
      text += run.text;
    }
    return text;
  }
};

struct Split {
  const char* name;
  const char* base;
  const char* extension;
};

TEST(ElidedLabelWithExtention, SplitsNames) {
  for (const Split& split : {Split{"photo.jpg", "photo", ".jpg"},
                             {"archive.tar.gz", "archive.tar", ".gz"},
                             {"README", "README", ""},
                             {"", "", ""},
                             {".hidden", ".hidden", ""},
                             {".hidden.jpg", ".hidden", ".jpg"},
                             {"..jpg", ".", ".jpg"},
                             {".", ".", ""},
                             {"..", "..", ""},
                             {"photo.", "photo", "."},
                             {"a.b c", "a", ".b c"},
                             {"trip.2015/photo", "trip.2015/photo", ""},
                             {"trip.2015/photo.jpg", "trip.2015/photo", ".jpg"},
                             {"trip.2015/", "trip.2015/", ""},
                             {"\u043b\u0435\u0442\u043e.\u0444\u043e\u0442\u043e", "\u043b\u0435\u0442\u043e",
                              ".\u0444\u043e\u0442\u043e"},
                             {"\U0001F600.\U0001F601", "\U0001F600", ".\U0001F601"}}) {
    const QString name = QString::fromUtf8(split.name);
    Named label(name);
    EXPECT_EQ(label.Stored().toStdString(), split.base) << split.name;
    EXPECT_EQ(label.GetOriginText(), name);
    EXPECT_EQ(label.toolTip().toStdString(), split.base) << split.name;
    EXPECT_EQ(label.Width(),
              100 - QFontMetrics(TestFont()).horizontalAdvance(QString::fromUtf8(split.extension)));
  }
}

TEST(ElidedLabelWithExtention, ForgetsTheExtensionOfTheTextBefore) {
  Named label(QStringLiteral("photo.jpg"));
  label.SetOriginText(QStringLiteral("README"));
  EXPECT_EQ(label.GetOriginText(), QStringLiteral("README"));
  EXPECT_EQ(label.Shown(), QStringLiteral("README"));
  EXPECT_EQ(label.Width(), 100);
}

TEST(ElidedLabelWithExtention, KeepsTheExtensionBehindTheEllipsis) {
  EXPECT_EQ(Named(QStringLiteral("photo.jpg")).Shown(), QStringLiteral("photo.jpg"));
  EXPECT_EQ(Named(QStringLiteral("holiday_in_the_mountains.jpg"), 200).Shown(),
            QStringLiteral("holiday_in_the\u2026jpg"));
  EXPECT_EQ(Named(QStringLiteral("holiday_in_the_mountains"), 160).Shown(),
            QStringLiteral("holiday_in_the\u2026"))
      << "nothing to keep";
  EXPECT_EQ(Named(QStringLiteral("holiday_in_the_mountains."), 160).Shown(),
            QStringLiteral("holiday_in_th\u2026"))
      << "the ellipsis stands for the dot";
}

TEST(ElidedLabelWithExtention, AddsTheExtensionToARowByItsLastCharacter) {
  Named label(QStringLiteral("photo.jpg"));
  for (const auto& [row, expected] :
       {std::pair<QString, QString>{QStringLiteral("ho\u2026"), QStringLiteral("ho\u2026jpg")},
        {QStringLiteral("\u2026"), QStringLiteral("\u2026jpg")},
        {QStringLiteral("ho"), QStringLiteral("ho.jpg")},
        {QStringLiteral("ho..."), QStringLiteral("ho....jpg")},
        {QStringLiteral("h\u2026o"), QStringLiteral("h\u2026o.jpg")},
        {QStringLiteral("ho\u2026\u200f"), QStringLiteral("ho\u2026\u200f.jpg")},
        {QString(), QStringLiteral(".jpg")}}) {
    QString text = row;
    label.PrepareLastRowText(text);
    EXPECT_EQ(text, expected);
  }
  Named plain(QStringLiteral("README"));
  for (const QString& row : {QStringLiteral("READ\u2026"), QStringLiteral("README"), QString()}) {
    QString text = row;
    plain.PrepareLastRowText(text);
    EXPECT_EQ(text, row);
  }
  // A name that ends with an ellipsis of its own is taken for an elided one.
  EXPECT_EQ(Named(QStringLiteral("so\u2026.jpg")).Shown(), QStringLiteral("so\u2026jpg"));
}

TEST(ElidedLabelWithExtention, ElidesToItsLargestWidth) {
  ElidedLabelWithExtention label(nullptr);
  label.setFont(TestFont());
  label.setMaximumWidth(200);
  label.resize(60, kLine);
  label.SetOriginText(QStringLiteral("holiday_in_the_mountains.jpg"));
  std::vector<Drawn> drawn = Paint(label);
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_EQ(drawn[0].text, QStringLiteral("holiday_in_the\u2026jpg")) << "not to the 60 pixels that it has";
  EXPECT_EQ(drawn[0].clip, QRectF(0, 0, 60, kLine));
  label.setMaximumWidth(QWIDGETSIZE_MAX);
  drawn = Paint(label);
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_EQ(drawn[0].text, QStringLiteral("holiday_in_the_mountains.jpg"));
}

TEST(ElidedLabelWithExtention, MeasuresTheExtensionInItsFont) {
  Named label(QStringLiteral("abc.jpg"), 200);
  EXPECT_EQ(label.Width(), 200 - 4 * kLetter);
  QFont larger = TestFont();
  larger.setPixelSize(2 * kLine);
  label.setFont(larger);
  EXPECT_EQ(label.Width(), 200 - 4 * 2 * kLetter);
  label.setMaximumWidth(30);
  EXPECT_EQ(label.Width(), 30 - 80) << "less than nothing when it has no room";
  EXPECT_EQ(label.Shown(), QStringLiteral(".jpg"));
}

TEST(ElidedLabelWithExtention, ShowsTheExtensionOnTheLastLineOnly) {
  Named two(QStringLiteral("summer holidays in the mountains.jpg"), 150, 2 * kLine);
  EXPECT_EQ(two.Shown(), QStringLiteral("summer holidaysin the mo\u2026jpg"));
  Named tall(QStringLiteral("summer trip.jpg"), 80, 3 * kLine);
  EXPECT_EQ(tall.Shown(), QStringLiteral("summertrip")) << "the name ends above the last line";
  Named exact(QStringLiteral("summer trip.jpg"), 80, 2 * kLine);
  EXPECT_EQ(exact.Shown(), QStringLiteral("summertrip.jpg"));
}

TEST(ElidedLabelWithExtention, ShowsOnlyTheExtensionOfAnEmptyName) {
  // Set through the base, since no path has an extension and no name.
  Named label(QStringLiteral("a.jpg"));
  label.ElidedLabel::SetOriginText(
      QString());  // NOLINT(bugprone-parent-virtual-call): that of the base is meant
  EXPECT_EQ(label.Shown(), QStringLiteral(".jpg"));
  EXPECT_TRUE(label.toolTip().isEmpty());
  label.setFixedHeight(2 * kLine);
  EXPECT_EQ(label.Shown(), QString());
}

TEST(ElidedLabelWithExtention, TranslatesTheNameWithoutItsExtension) {
  const Zenvora::Test::TextCatalogue german(QStringLiteral("QFrame"),
                                            {{QStringLiteral("Beach"), QStringLiteral("Strand")},
                                             {QStringLiteral("Beach.jpg"), QStringLiteral("wrong")}});
  EXPECT_EQ(Named(QStringLiteral("Beach.jpg")).Shown(), QStringLiteral("Strand.jpg"));
}

}  // namespace
}  // namespace Zenvora::Lumidex
