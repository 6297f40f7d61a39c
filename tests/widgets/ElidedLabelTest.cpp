// What an elided label paints, by the calls that it makes. Letters are 10 pixels wide, lines 20 high with the
// base line 16 below their top.

#include "PaintRecorder.h"
#include "PlainRule.h"
#include "TestFont.h"

#include <LumidexUtil/ElidedClickableLabel.h>
#include <LumidexUtil/ElidedLabel.h>
#include <LumidexUtil/ElidedLabelWithExtention.h>
#include <support/TextCatalogue.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QMetaMethod>
#include <QPainter>
#include <QTest>

#include <cstring>
#include <string>
#include <type_traits>

namespace Zenvora::Lumidex {
namespace {

using Zenvora::Test::Drawn;
using Zenvora::Test::kLetter;
using Zenvora::Test::kLine;
using Zenvora::Test::Paint;
using Zenvora::Test::PaintPlainly;
using Zenvora::Test::PaintRecorder;
using Zenvora::Test::Plain;
using Zenvora::Test::TestFont;
using Zenvora::Test::TextCatalogue;

const QChar kEllipsis(0x2026);

/// A label that tells what it is asked, and counts its repaints.
class Probe : public ElidedLabel {
 public:
  explicit Probe(QWidget* parent = nullptr) : ElidedLabel(parent) { setFont(TestFont()); }

  int Width() const override { return elisionWidth < 0 ? ElidedLabel::Width() : elisionWidth; }
  void PrepareLastRowText(QString& row) override {
    ElidedLabel::PrepareLastRowText(row);
    rows.push_back(row);
    row += appended;
  }

  std::vector<QString> rows;
  int repaints = 0;
  int elisionWidth = -1;
  QString appended;

 protected:
  void paintEvent(QPaintEvent* event) override {
    ++repaints;
    ElidedLabel::paintEvent(event);
  }
};

/// The texts of the lines with their tops, as "top: text", those of one line together.
std::vector<std::string> Lines(const std::vector<Drawn>& drawn) {
  std::vector<std::string> lines;
  qreal last = -1;
  for (const Drawn& run : drawn) {
    if (run.at.y() != last) {
      lines.push_back(std::to_string(qRound(run.at.y()) - 16) + ": ");
      last = run.at.y();
    }
    lines.back() += run.text.toStdString();
  }
  return lines;
}

std::vector<std::string> LinesOf(const QString& text, int width, int height) {
  Probe label;
  label.resize(width, height);
  label.SetOriginText(text);
  return Lines(Paint(label));
}

using Texts = std::vector<std::string>;

TEST(ElidedLabel, TestsMeasureWithTheirOwnFont) {
  const QFontMetrics metrics(TestFont());
  EXPECT_EQ(metrics.lineSpacing(), kLine);
  EXPECT_EQ(metrics.ascent(), 16);
  EXPECT_EQ(metrics.horizontalAdvance(QStringLiteral("photo")), 5 * kLetter);
  EXPECT_EQ(metrics.horizontalAdvance(kEllipsis), kLetter);
}

TEST(ElidedLabel, IsAFrameWithoutWindowFlagsAndEmptyAtFirst) {
  QWidget parent;
  const auto* const label = new ElidedLabel(&parent);
  EXPECT_EQ(label->parentWidget(), &parent);
  EXPECT_FALSE(label->windowFlags() & Qt::Window);
  EXPECT_EQ(label->frameStyle(), QFrame(&parent).frameStyle());
  EXPECT_TRUE(label->GetOriginText().isEmpty());
  EXPECT_TRUE(label->toolTip().isEmpty());
  EXPECT_TRUE((std::is_base_of_v<QFrame, ElidedLabel>));
  EXPECT_TRUE((std::is_base_of_v<ElidedLabel, ElidedClickableLabel>));
  EXPECT_TRUE((std::is_base_of_v<ElidedLabel, ElidedLabelWithExtention>));
  EXPECT_TRUE(std::has_virtual_destructor_v<ElidedLabel>);
}

TEST(ElidedLabel, OnlyTheClickableOneHasAMetaObject) {
  const ElidedLabel label(nullptr);
  const ElidedLabelWithExtention named(nullptr);
  const ElidedClickableLabel clickable(nullptr);
  EXPECT_STREQ(label.metaObject()->className(), "QFrame");
  EXPECT_STREQ(named.metaObject()->className(), "QFrame");
  EXPECT_STREQ(clickable.metaObject()->className(), "Zenvora::Lumidex::ElidedClickableLabel");
  EXPECT_EQ(clickable.metaObject()->superClass(), &QFrame::staticMetaObject);
  ASSERT_EQ(clickable.metaObject()->methodCount() - clickable.metaObject()->methodOffset(), 1);
  const QMetaMethod method = clickable.metaObject()->method(clickable.metaObject()->methodOffset());
  EXPECT_EQ(method.methodSignature(), "clicked()");
  EXPECT_EQ(method.methodType(), QMetaMethod::Signal);
}

/// The place of a virtual operation in the table, as the common C++ binary interface has it in a pointer to
/// it.
template <class Operation>
std::size_t SlotNumber(Operation operation) {
  std::size_t offset = 0;
  std::memcpy(&offset, static_cast<const void*>(&operation), sizeof(offset));
  return offset / sizeof(void*);
}

struct OneMore : QFrame {
  virtual void First() {}
};

struct SlotsOfLabel : ElidedLabel {
  using ElidedLabel::ElidedLabel;
  static std::vector<std::size_t> Numbers() {
    return {SlotNumber(&SlotsOfLabel::SetOriginText), SlotNumber(&SlotsOfLabel::GetOriginText),
            SlotNumber(&SlotsOfLabel::Width), SlotNumber(&SlotsOfLabel::PrepareLastRowText)};
  }
};

TEST(ElidedLabel, HasItsOperationsInTheSlotsBehindThoseOfTheFrame) {
  const std::size_t first = SlotNumber(&OneMore::First);
  EXPECT_EQ(SlotsOfLabel::Numbers(), (std::vector<std::size_t>{first, first + 1, first + 2, first + 3}));
}

TEST(ElidedLabel, HoldsItsTextAndItsAlignment) {
  EXPECT_EQ(sizeof(ElidedLabel), sizeof(QFrame) + 2 * sizeof(void*));
  // The flag lies in the padding behind the alignment.
  EXPECT_EQ(sizeof(ElidedClickableLabel), sizeof(ElidedLabel));
  EXPECT_EQ(sizeof(ElidedLabelWithExtention), sizeof(QFrame) + 3 * sizeof(void*));
}

TEST(ElidedLabel, KeepsItsTextAndMakesItTheToolTip) {
  ElidedLabel label(nullptr);
  for (const QString& text : {QStringLiteral("Summer"), QStringLiteral("<b>a</b>\nb"), QString()}) {
    label.SetOriginText(text);
    EXPECT_EQ(label.GetOriginText(), text);
    EXPECT_EQ(label.toolTip(), text);
  }
  EXPECT_TRUE((std::is_same_v<decltype(std::declval<const ElidedLabel&>().GetOriginText()), const QString>));
}

TEST(ElidedLabel, ShowsOneElidedLineWhenThereIsNoRoomForTwo) {
  const QString text = QStringLiteral("summer holidays");
  for (const int height : {1, 2, kLine, 2 * kLine - 1}) {
    EXPECT_EQ(LinesOf(text, 100, height), Texts{"0: summer h\u2026"}) << height;
  }
  EXPECT_EQ(LinesOf(text, 150, kLine), Texts{"0: summer holidays"}) << "just fits";
  EXPECT_EQ(LinesOf(text, 149, kLine), Texts{"0: summer holida\u2026"});
}

TEST(ElidedLabel, ShowsOneMoreLineFromTwoLinesOn) {
  const QString text = QStringLiteral("summer holidays in the mountains");
  EXPECT_EQ(LinesOf(text, 100, 2 * kLine), (Texts{"0: summer", "20: holidays\u2026"}));
  EXPECT_EQ(LinesOf(text, 100, 3 * kLine - 1), (Texts{"0: summer", "20: holidays\u2026"}));
  EXPECT_EQ(LinesOf(text, 100, 3 * kLine), (Texts{"0: summer", "20: holidays", "40: in the m\u2026"}));
  EXPECT_EQ(LinesOf(text, 100, 4 * kLine),
            (Texts{"0: summer", "20: holidays", "40: in the", "60: mountains"}));
}

TEST(ElidedLabel, BreaksWordsThatAreTooLong) {
  EXPECT_EQ(LinesOf(QStringLiteral("IMG20150314120000"), 60, 3 * kLine),
            (Texts{"0: IMG201", "20: 503141", "40: 20000"}));
  EXPECT_EQ(LinesOf(QStringLiteral("a IMG20150314120000"), 60, 2 * kLine), (Texts{"0: a", "20: IMG2\u2026"}));
}

TEST(ElidedLabel, DrawsNoElidedRowWhenTheTextEndsAboveTheLastLine) {
  Probe label;
  label.resize(100, 3 * kLine);
  label.SetOriginText(QStringLiteral("summer trip"));
  EXPECT_EQ(Lines(Paint(label)), (Texts{"0: summer", "20: trip"}));
  EXPECT_TRUE(label.rows.empty());
}

TEST(ElidedLabel, DrawsLinesLineSpacingApartWhateverIsInThem) {
  // A line of the layout with a larger font in it would be higher; the rule does not ask it.
  Probe label;
  label.resize(50, 3 * kLine);
  label.SetOriginText(QStringLiteral("aaaaa bbbbb ccccc"));
  const std::vector<Drawn> drawn = Paint(label);
  ASSERT_EQ(drawn.size(), 3U);
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    EXPECT_EQ(drawn[i].at, QPointF(0, 16.0 + static_cast<double>(i) * kLine));
  }
}

TEST(ElidedLabel, PutsAllTheRestOnTheLastRow) {
  Probe label;
  label.resize(100, 2 * kLine);
  // The rest goes beyond the line that the layout made of it, and over its separator.
  label.SetOriginText(QStringLiteral("summer\u2028a\u2028b c"));
  Paint(label);
  EXPECT_EQ(label.rows, std::vector<QString>{QStringLiteral("a\u2028b c")});
}

TEST(ElidedLabel, DrawsAnEmptyRowOfAnEmptyText) {
  Probe label;
  label.resize(100, kLine);
  label.SetOriginText(QString());
  EXPECT_TRUE(Paint(label).empty());
  EXPECT_EQ(label.rows, std::vector<QString>{QString()});
  EXPECT_TRUE(label.toolTip().isEmpty());
  label.appended = QStringLiteral("x");
  EXPECT_EQ(Lines(Paint(label)), Texts{"0: x"});
  // With room for two lines the only line of an empty text is not the last one.
  label.rows.clear();
  label.resize(100, 2 * kLine);
  EXPECT_TRUE(Paint(label).empty());
  EXPECT_TRUE(label.rows.empty());
}

TEST(ElidedLabel, ElidesOnlyTheLastRowToItsWidthOperation) {
  Probe label;
  label.resize(100, 2 * kLine);
  label.elisionWidth = 50;
  label.SetOriginText(QStringLiteral("summer holidays"));
  EXPECT_EQ(label.Width(), 50);
  EXPECT_EQ(Lines(Paint(label)), (Texts{"0: summer", "20: hol\u2026"}));
  for (const int width : {0, 9}) {
    label.elisionWidth = width;
    label.rows.clear();
    Paint(label);
    EXPECT_EQ(label.rows, std::vector<QString>{QString()}) << "no room for the ellipsis itself";
  }
  label.elisionWidth = -1;
  EXPECT_EQ(label.Width(), 100);
}

TEST(ElidedLabel, LeavesTheLastWordToPrepareLastRowText) {
  Probe label;
  label.resize(100, kLine);
  label.appended = QStringLiteral("!");
  label.SetOriginText(QStringLiteral("summer holidays"));
  EXPECT_EQ(Lines(Paint(label)), Texts{"0: summer h\u2026!"});
  EXPECT_EQ(label.rows, std::vector<QString>{QStringLiteral("summer h\u2026")});
}

TEST(ElidedLabel, ClipsTheLastRowToItsRectangle) {
  Probe label;
  label.resize(100, 2 * kLine);
  label.elisionWidth = 1000;
  label.SetOriginText(QStringLiteral("summer holidays in the mountains"));
  const std::vector<Drawn> drawn = Paint(label);
  ASSERT_GE(drawn.size(), 2U);
  EXPECT_TRUE(drawn.front().clip.isNull());
  EXPECT_EQ(drawn.back().clip, QRectF(0, kLine, 100, kLine));
}

TEST(ElidedLabel, AlignsEveryLine) {
  Probe label;
  label.resize(100, 2 * kLine);
  label.SetOriginText(QStringLiteral("summer holiday"));
  const auto begins = [&](Qt::Alignment alignment) {
    label.SetAlignment(alignment);
    std::vector<QPointF> places;
    for (const Drawn& run : Paint(label)) {
      places.push_back(run.at);
    }
    return places;
  };
  EXPECT_EQ((std::vector<QPointF>{{0, 16}, {0, 36}}), begins(Qt::AlignLeft));
  EXPECT_EQ((std::vector<QPointF>{{40, 16}, {30, 36}}), begins(Qt::AlignRight));
  EXPECT_EQ((std::vector<QPointF>{{20, 16}, {15, 36}}), begins(Qt::AlignHCenter));
  EXPECT_EQ((std::vector<QPointF>{{20, 16}, {15, 36}}), begins(Qt::AlignCenter));
  EXPECT_EQ((std::vector<QPointF>{{0, 16}, {0, 36}}), begins(Qt::AlignBottom))
      << "rows are as high as a line";
}

TEST(ElidedLabel, IsAlignedToTheLeftAtFirst) {
  Probe label;
  label.resize(100, kLine);
  label.SetOriginText(QStringLiteral("a"));
  EXPECT_EQ(Paint(label).at(0).at, QPointF(0, 16));
}

TEST(ElidedLabel, PaintsItsFrameFirst) {
  Probe label;
  label.setFrameShape(QFrame::Box);
  label.resize(100, 2 * kLine);
  label.SetOriginText(QStringLiteral("summer holidays"));
  PaintRecorder recorder;
  label.render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
  EXPECT_GT(recorder.Others(), 0);
  EXPECT_TRUE(recorder.OthersCameFirst());
  // The frame takes no room away from the text.
  EXPECT_EQ(Lines(recorder.Texts()), (Texts{"0: summer", "20: holidays"}));
}

class ShownLabel : public testing::Test {
 protected:
  ShownLabel() {
    label_.resize(100, 2 * kLine);
    label_.SetOriginText(QStringLiteral("summer holidays"));
    label_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&label_));
    Settle();
  }
  int Repaints() {
    label_.repaints = 0;
    Settle();
    return label_.repaints;
  }
  static void Settle() {
    for (int i = 0; i < 5; ++i) {
      QCoreApplication::sendPostedEvents();
      QCoreApplication::processEvents();
    }
  }
  Probe label_;
};

TEST_F(ShownLabel, IsRepaintedWhenItsTextIsSet) {
  ASSERT_EQ(Repaints(), 0);
  label_.SetOriginText(QStringLiteral("winter"));
  EXPECT_GE(Repaints(), 1);
  label_.SetOriginText(QStringLiteral("winter"));
  EXPECT_GE(Repaints(), 1) << "also with the same";
}

TEST_F(ShownLabel, IsNotRepaintedWhenItsAlignmentIsSet) {
  label_.SetAlignment(Qt::AlignRight);
  EXPECT_EQ(Repaints(), 0);
  EXPECT_EQ(Paint(label_).at(0).at.x(), 40) << "but the next repaint shows it";
}

TEST_F(ShownLabel, IsRepaintedInANewLanguage) {
  label_.SetOriginText(QStringLiteral("Weekend"));
  Settle();
  EXPECT_EQ(Lines(Paint(label_)), Texts{"0: Weekend"});
  {
    const TextCatalogue german(QStringLiteral("QFrame"),
                               {{QStringLiteral("Weekend"), QStringLiteral("Wochenende")}});
    EXPECT_GE(Repaints(), 1);
    EXPECT_EQ(Lines(Paint(label_)), Texts{"0: Wochenende"});
    EXPECT_EQ(label_.GetOriginText(), QStringLiteral("Weekend"));
    EXPECT_EQ(label_.toolTip(), QStringLiteral("Weekend"));
    label_.SetOriginText(QStringLiteral("Easter"));
    EXPECT_EQ(Lines(Paint(label_)), Texts{"0: Easter"}) << "not in the catalogue";
  }
  EXPECT_GE(Repaints(), 1);
}

TEST_F(ShownLabel, IsRepaintedOnNoOtherChange) {
  QEvent change(QEvent::ModifiedChange);
  QCoreApplication::sendEvent(&label_, &change);
  EXPECT_EQ(Repaints(), 0);
  QEvent language(QEvent::LanguageChange);
  QCoreApplication::sendEvent(&label_, &language);
  EXPECT_GE(Repaints(), 1);
}

TEST_F(ShownLabel, PassesChangesToTheFrame) {
  // The frame follows the style's width of frames.
  label_.setFrameShape(QFrame::StyledPanel);
  label_.setStyleSheet(QStringLiteral("QFrame { border: 7px solid black }"));
  EXPECT_EQ(label_.frameWidth(), 7);
}

TEST(ElidedLabel, TakesTranslationsOfFramesOnly) {
  const TextCatalogue other(QStringLiteral("Zenvora::Lumidex::ElidedClickableLabel"),
                            {{QStringLiteral("Weekend"), QStringLiteral("wrong")}});
  const TextCatalogue frames(QStringLiteral("QFrame"),
                             {{QStringLiteral("Gr\u00fc\u00dfe"), QStringLiteral("Greetings")}});
  ElidedClickableLabel label(nullptr);
  label.setFont(TestFont());
  label.resize(200, kLine);
  label.SetOriginText(QStringLiteral("Weekend"));
  EXPECT_EQ(Lines(Paint(label)), Texts{"0: Weekend"});
  label.SetOriginText(QStringLiteral("Gr\u00fc\u00dfe"));
  EXPECT_EQ(Lines(Paint(label)), Texts{"0: Greetings"}) << "texts are looked up as UTF-8";
}

TEST(ElidedLabel, ShowsATextUpToItsFirstNul) {
  const QString text = QStringLiteral("ab") + QChar(0) + QStringLiteral("cd");
  EXPECT_EQ(LinesOf(text, 100, kLine), Texts{"0: ab"});
  Probe label;
  label.SetOriginText(text);
  EXPECT_EQ(label.GetOriginText(), text);
}

TEST(ElidedLabel, BearsAnySize) {
  const QString text = QStringLiteral("summer holidays in the mountains");
  for (const QSize size :
       {QSize(0, 0), QSize(1, 1), QSize(0, 500), QSize(500, 0), QSize(1, 200), QSize(30000, 30000)}) {
    Probe label;
    label.resize(size);
    label.SetOriginText(text);
    EXPECT_EQ(Paint(label),
              PaintPlainly(Plain{text, TestFont(), label.size(), Qt::AlignLeft, label.width(), {}}));
  }
}

struct Sample {
  const char* what;
  QString text;
};

std::vector<Sample> Samples() {
  return {
      {"Latin", QStringLiteral("Summer holidays in the mountains, second week")},
      {"Cyrillic", QStringLiteral("Летние каникулы в горах, вторая неделя")},
      {"Japanese", QStringLiteral("一二三、丁七万丈上下不与丐丑专且丕世丗丘丙")},
      {"Arabic", QStringLiteral("عطلة الصيف في الجبال، الأسبوع الثاني")},
      {"Hebrew", QStringLiteral("חופשת קיץ בהרים, השבוע השני")},
      {"Arabic with Latin", QStringLiteral("صور IMG_20150314 (نسخة 2).jpg من الجبال في 14/3")},
      {"Latin with Hebrew", QStringLiteral("Photos of שלום (2015) and חופש in spring")},
      {"faces",
       QStringLiteral("\U0001F600\U0001F601 trip \U0001F602\U0001F603\U0001F604\U0001F605\U0001F606")},
      {"combining marks",
       QStringLiteral(
           "e\u0301te\u0301 a\u0300 la\u0302 mer\u0301\u0302\u0303 n\u0303andu\u0301 e\u0301e\u0301")},
      {"Devanagari", QStringLiteral("गर्मी की छुट्टियाँ पहाड़ों में")},
      {"Thai", QStringLiteral("วันหยุดฤดูร้อนบนภูเขา")},
      {"a long word", QString(100, QLatin1Char('w'))},
      {"blanks", QStringLiteral("   a      b        c             ")},
      {"only blanks", QString(60, QLatin1Char(' '))},
      {"tabs", QStringLiteral("a\tb\t\tc\td")},
      {"line feeds", QStringLiteral("a\nb\r\nc\n\nd e f g h i j k l m n o p")},
      {"separators", QStringLiteral("a\u2028b\u2029c\u2028\u2028d\u2028")},
      {"soft hyphens", QStringLiteral("moun\u00adtains in the sum\u00admer holi\u00addays")},
      {"marks of direction",
       QStringLiteral("a \u202bשלום b\u202c c \u2067d e f\u2069 g \u200fh i j k l m n o p")},
      {"lone surrogates", QStringLiteral("a") + QChar(0xD800) + QStringLiteral("b") + QChar(0xDC00) +
                              QStringLiteral("c d e f g h i")},
      {"variants", QStringLiteral("a long variant of a text\u009cshort")},
      {"mark-up", QStringLiteral("<b>bold</b> &amp; &file of <i>summer</i>")},
      {"an ellipsis", QStringLiteral("and so on\u2026 and on\u2026")},
  };
}

TEST(ElidedLabel, PaintsWhatThePlainRulePaints) {
  for (const Sample& sample : Samples()) {
    for (const int width : {7, 35, 100, 160, 333}) {
      for (const int height : {kLine, 2 * kLine, 3 * kLine + 5, 10 * kLine}) {
        for (const Qt::Alignment alignment :
             {Qt::Alignment(Qt::AlignLeft), Qt::Alignment(Qt::AlignRight), Qt::Alignment(Qt::AlignHCenter),
              Qt::Alignment(Qt::AlignJustify), Qt::AlignLeft | Qt::AlignAbsolute}) {
          Probe label;
          label.resize(width, height);
          label.SetAlignment(alignment);
          label.SetOriginText(sample.text);
          // Through UTF-8, as translations are.
          const QString shown = QString::fromUtf8(sample.text.toUtf8());
          ASSERT_EQ(Paint(label), PaintPlainly(Plain{shown, TestFont(), label.size(), alignment, 0, {}}))
              << sample.what << ", " << width << " x " << height << ", alignment "
              << static_cast<int>(alignment);
        }
      }
    }
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex
