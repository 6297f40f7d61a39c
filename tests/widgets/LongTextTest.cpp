// Long texts are laid out in part. They must look as if they were not.

#include "LabelText.h"
#include "LongText.h"
#include "PaintRecorder.h"
#include "PlainRule.h"
#include "TestFont.h"

#include <LumidexUtil/ElidedLabel.h>
#include <LumidexUtil/ElidedLabelWithExtention.h>
#include <support/TextCatalogue.h>

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <random>

namespace Zenvora::Lumidex {
namespace {

using Zenvora::Test::kLine;
using Zenvora::Test::Paint;
using Zenvora::Test::PaintPlainly;
using Zenvora::Test::Plain;
using Zenvora::Test::TestFont;

constexpr int kSize = 12000;

QString Filled(const QString& piece, int size = kSize) {
  return piece.repeated(size / piece.size() + 1).left(size);
}

struct Sample {
  const char* what;
  QString text;
  bool cut;  ///< Whether less than the whole text is to be laid out.
};

std::vector<Sample> Samples() {
  const QString hebrew = QStringLiteral("חופשת קיץ בהרים ");
  const QString arabic = QStringLiteral("عطلة الصيف في الجبال ");
  const QString digits = Filled(QStringLiteral("2015 03 14, "));
  return {
      {"words", Filled(QStringLiteral("summer holidays in the mountains, ")), true},
      {"one word", Filled(QStringLiteral("w")), true},
      {"Cyrillic", Filled(QStringLiteral("летние каникулы в горах ")), true},
      {"East Asian", Filled(QStringLiteral("一二三丁七万丈上下不与丐")), true},
      {"Korean", Filled(QStringLiteral("가각갂 갃간 ")), true},
      {"Devanagari", Filled(QStringLiteral("गर्मी की छुट्टियाँ ")), true},
      {"Thai", Filled(QStringLiteral("วันหยุดฤดูร้อนบนภูเขา")), false},
      {"Latin, then Thai", Filled(QStringLiteral("summer holidays ")) + QStringLiteral("วันหยุด"), true},
      {"Hebrew", Filled(hebrew), true},
      {"Arabic", Filled(arabic), true},
      {"Arabic with numbers and brackets", Filled(arabic + QStringLiteral("(14.3) %5 ")), true},
      {"Arabic with Latin", Filled(arabic + QStringLiteral("IMG 14 ")), true},
      {"Arabic with Latin and brackets", Filled(arabic + QStringLiteral("(IMG 14) ")), false},
      {"Latin with Hebrew", Filled(QStringLiteral("photos of ") + hebrew), true},
      {"Latin, Hebrew at the end", Filled(QStringLiteral("photos of 5 (a) ")) + hebrew, true},
      {"an open bracket",
       QStringLiteral("a (") + Filled(QStringLiteral("b c ")) + hebrew + QStringLiteral(")"), true},
      {"an open bracket in two directions",
       hebrew + QStringLiteral("a (") + Filled(hebrew) + QStringLiteral(")"), false},
      {"an open bracket in an embedding to the right",
       QStringLiteral("\u202a") + hebrew + QStringLiteral("(") + Filled(hebrew) + QStringLiteral("a)"),
       false},
      {"an open bracket behind an override to the right",
       hebrew + QStringLiteral("\u202d") + hebrew + QStringLiteral("\u202c1 (2 ") + Filled(hebrew) +
           QStringLiteral(")"),
       false},
      {"too many brackets",
       hebrew + QStringLiteral("(a) ") + Filled(hebrew) + Filled(QStringLiteral("("), 100), false},
      {"an embedding", QStringLiteral("a \u202b") + Filled(QStringLiteral("b ") + hebrew), true},
      {"an override", QStringLiteral("a \u202e") + Filled(QStringLiteral("b c, ")), true},
      {"isolates", Filled(QStringLiteral("a \u2067 b ") + hebrew + QStringLiteral("\u2069 c d e f ")), true},
      {"an open isolate", QStringLiteral("a \u2067") + Filled(QStringLiteral("b ") + hebrew), false},
      {"marks of direction at the end",
       Filled(QStringLiteral("a b c ")) + QStringLiteral("\u202b\u202c\u200f"), true},
      {"numbers", digits, true},
      {"numbers, then Latin", digits + QStringLiteral("a"), true},
      {"numbers, then Cyrillic", digits + QStringLiteral("ж"), true},
      {"numbers, then Hebrew", digits + hebrew, false},
      {"numbers, then Thai", digits + QStringLiteral("วันหยุด"), false},
      {"numbers, then isolated Hebrew",
       digits + QStringLiteral("\u2067") + hebrew + QStringLiteral("\u2069 a"), false},
      {"Hebrew and a price", hebrew + Filled(QStringLiteral("$")) + QStringLiteral("5"), false},
      {"blanks", Filled(QStringLiteral(" ")), true},
      {"tabs", Filled(QStringLiteral("a\tbc\t")), true},
      {"line feeds", Filled(QStringLiteral("summer\nholidays\r\n")), true},
      {"separators", Filled(QStringLiteral("summer\u2028\u2028holidays \u2029")), true},
      {"a separator far away", Filled(QStringLiteral("a")) + QStringLiteral("\u2028"), true},
      {"soft hyphens", Filled(QStringLiteral("sum\u00admer holi\u00addays ")), true},
      {"accents", Filled(QStringLiteral("e\u0301te\u0301 ")), true},
      // Short ones: Qt takes the square of their number.
      {"a heap of accents", QStringLiteral("e") + Filled(QStringLiteral("\u0301"), 8300), false},
      {"words, then a heap of accents", Filled(QStringLiteral("summer ")) + Filled(QStringLiteral("\u0301")),
       true},
      {"faces", Filled(QStringLiteral("\U0001F600\U0001F601")), false},
      {"faces and words", Filled(QStringLiteral("trip \U0001F600\U0001F601 ")), true},
      {"lone surrogates", Filled(QStringLiteral("ab") + QChar(0xD800) + QStringLiteral("cd")), true},
      {"numbers without end", Filled(QStringLiteral("1,2.3,4/")), true},
      {"jamo", Filled(QStringLiteral("\u1100\u1161\u11a8")), false},
      {"variants", Filled(QStringLiteral("summer ")) + QStringLiteral("\u009cshort one"), true},
      {"many variants",
       QStringLiteral("summer \u009c") + Filled(QStringLiteral("long ")) + QStringLiteral("\u009cb"), true},
  };
}

class LongLabel : public ElidedLabel {
 public:
  explicit LongLabel(const QString& text) : ElidedLabel(nullptr) {
    setFont(TestFont());
    SetOriginText(text);
  }
  using ElidedLabel::PrepareLastRowText;
  QString row;

 protected:
  void PrepareLastRowText(QString& text) override { row = text; }
};

void ExpectPlain(const std::string& what, const QString& text, QSize size, const QFont& font,
                 Qt::Alignment alignment = Qt::AlignLeft) {
  LongLabel label(text);
  label.setFont(font);
  label.resize(size);
  label.SetAlignment(alignment);
  QString row;
  const auto keep = [&row](QString& shown) { row = shown; };
  const auto plain = PaintPlainly(Plain{QString::fromUtf8(text.toUtf8()), font, size, alignment, 0, keep});
  ASSERT_EQ(Paint(label), plain) << what << ", " << size.width() << " x " << size.height();
  ASSERT_EQ(label.row, row) << what << ", " << size.width() << " x " << size.height();
}

TEST(LongTexts, LookAsWithTheWholeOfThem) {
  for (const Sample& sample : Samples()) {
    ExpectPlain(sample.what, sample.text, {160, 3 * kLine}, TestFont(), Qt::AlignRight);
    ExpectPlain(sample.what, sample.text, {47, 8 * kLine}, TestFont());
  }
}

TEST(LongTexts, LookSoOnManyLines) {
  // More than the first piece has room for.
  for (const char* piece : {"summer holidays ", "w", "летние (5) ", "קיץ "}) {
    ExpectPlain(piece, Filled(QString::fromUtf8(piece), 20000), {400, 60 * kLine}, TestFont());
    ExpectPlain(piece, Filled(QString::fromUtf8(piece), 30000), {30000, kLine}, TestFont());
  }
}

TEST(LongTexts, LookSoInFontsWithUnusualSpacing) {
  const QString text = Filled(QStringLiteral("Summer Holidays "));
  QFont narrow = TestFont();
  narrow.setLetterSpacing(QFont::AbsoluteSpacing, -12);
  QFont condensed = TestFont();
  condensed.setLetterSpacing(QFont::PercentageSpacing, 50);
  QFont words = TestFont();
  words.setWordSpacing(-30);
  QFont wide = TestFont();
  wide.setLetterSpacing(QFont::AbsoluteSpacing, 3);
  QFont capitals = TestFont();
  capitals.setCapitalization(QFont::SmallCaps);
  for (const QFont& font : {narrow, condensed, words, wide, capitals}) {
    ExpectPlain(font.key().toStdString(), text, {160, 3 * kLine}, font);
  }
}

TEST(LongTexts, LookSoWhenPutTogetherByChance) {
  const std::vector<QString> pieces = {
      QStringLiteral("summer "),    QStringLiteral("w"),           QStringLiteral("горах "),
      QStringLiteral("一二三"),     QStringLiteral("קיץ "),        QStringLiteral("الصيف "),
      QStringLiteral("14.3 "),      QStringLiteral("("),           QStringLiteral(") "),
      QStringLiteral("\u202b"),     QStringLiteral("\u202c"),      QStringLiteral("\u2067"),
      QStringLiteral("\u2069"),     QStringLiteral("\u2028"),      QStringLiteral("\n"),
      QStringLiteral("\t"),         QStringLiteral("e\u0301"),     QStringLiteral("\u200b"),
      QStringLiteral("\U0001F600"), QStringLiteral("छुट्टियाँ "),     QStringLiteral("$%"),
      QStringLiteral("\u200f"),     QStringLiteral("   "),         QStringLiteral("\u2029"),
      QStringLiteral("[a] "),       QStringLiteral("\u1100\u1161")};
  std::mt19937 dice(20150314);
  for (int i = 0; i < 30; ++i) {
    // Few kinds of pieces make odder texts than all of them.
    std::vector<QString> chosen;
    for (int kinds = 2 + static_cast<int>(dice() % 4); kinds > 0; --kinds) {
      chosen.push_back(pieces[dice() % pieces.size()]);
    }
    QString text;
    while (text.size() < kSize) {
      const QString& piece = chosen[dice() % chosen.size()];
      text += dice() % 50 == 0 ? pieces[dice() % pieces.size()]
                               : piece.repeated(1 + static_cast<int>(dice() % 9));
    }
    ExpectPlain("text " + std::to_string(i), text, {120, 4 * kLine}, TestFont());
  }
}

TEST(LongTexts, AreLaidOutInPart) {
  for (const Sample& sample : Samples()) {
    LongText text(sample.text);
    constexpr int kSure = 1000;
    const int end = text.SafeEnd(0, kSure);
    EXPECT_EQ(end < text.Text().size(), sample.cut) << sample.what << ": " << end;
    EXPECT_GE(end, kSure) << sample.what;
  }
}

TEST(LongTexts, AreCutAtTheSamePlaceHoweverLongTheyAre) {
  LongText some(Filled(QStringLiteral("summer holidays "), 20000));
  LongText more(Filled(QStringLiteral("summer holidays "), 1000000));
  for (const int from : {0, 7, 500}) {
    EXPECT_EQ(some.SafeEnd(from, 2000), more.SafeEnd(from, 2000));
    EXPECT_LT(more.SafeEnd(from, 2000), 10000);
  }
}

TEST(LongTexts, AreHandedToLayoutsInPart) {
  const int owner = 0;
  const QString text = Filled(QStringLiteral("summer holidays "), 100000);
  const LabelText label(&owner, text);
  for (const QFont& font : {TestFont(), QFont()}) {
    const LabelText::Piece piece = label.Head(font, 0, LabelText::kFirstLook);
    EXPECT_FALSE(piece.whole);
    EXPECT_LT(piece.text.size(), 10000);
  }
  LabelText::Forget(&owner, text);
}

TEST(LongTexts, AreTranslatedAnew) {
  const QString text = Filled(QStringLiteral("Weekend "));
  const QString other = Filled(QStringLiteral("Wochenende "));
  LongLabel label(text);
  label.resize(200, kLine);
  Paint(label);
  EXPECT_TRUE(label.row.startsWith(QStringLiteral("Weekend W")));
  {
    const Zenvora::Test::TextCatalogue german(QStringLiteral("QFrame"), {{text, other}});
    QCoreApplication::sendPostedEvents();
    Paint(label);
    EXPECT_TRUE(label.row.startsWith(QStringLiteral("Wochenende W")));
  }
  QCoreApplication::sendPostedEvents();
  Paint(label);
  EXPECT_TRUE(label.row.startsWith(QStringLiteral("Weekend W")));
}

TEST(LongTexts, GiveWayToOthers) {
  LongLabel label(Filled(QStringLiteral("summer ")));
  label.resize(200, kLine);
  Paint(label);
  EXPECT_TRUE(label.row.startsWith(QStringLiteral("summer s")));
  label.SetOriginText(Filled(QStringLiteral("winter ")));
  Paint(label);
  EXPECT_TRUE(label.row.startsWith(QStringLiteral("winter w")));
  label.SetOriginText(QStringLiteral("spring"));
  Paint(label);
  EXPECT_EQ(label.row, QStringLiteral("spring"));
}

}  // namespace
}  // namespace Zenvora::Lumidex
