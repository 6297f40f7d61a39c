#include "BreakableText.h"

#include <gtest/gtest.h>

namespace Zenvora::Tavolin {
namespace {

QString Times(int count, const QString& text) {
  return text.repeated(count);
}

const QString kBreak(QChar(0x200B));

TEST(BreakableText, LeavesWhatFitsAsItIs) {
  for (const QString& text : {QString(), QStringLiteral("A text of words, some of them long."),
                              Times(100, QStringLiteral("word ")), Times(40, QStringLiteral("x")),
                              Times(100, QStringLiteral("写")), Times(30, QStringLiteral("/folder")),
                              QStringLiteral("line\nfeed\n"), Times(300, QStringLiteral("\n"))}) {
    EXPECT_EQ(BreakableText(text), text) << text.toStdString();
  }
}

TEST(BreakableText, MarksLongNames) {
  const QString run = Times(40, QStringLiteral("x"));
  EXPECT_EQ(BreakableText(run + QStringLiteral("y")), run + kBreak + QStringLiteral("y"));
  EXPECT_EQ(BreakableText(QStringLiteral("a ") + run + run), QStringLiteral("a ") + run + kBreak + run);
}

TEST(BreakableText, PartsNoCharacter) {
  const QString pair = QString::fromUtf8("\xF0\x90\x90\xB7");       // A letter of two units
  const QString combined = QString::fromUtf8("e\xCC\x81\xCC\xA3");  // One with two marks
  for (const QString& character : {pair, combined}) {
    EXPECT_EQ(BreakableText(Times(41, character)), Times(40, character) + kBreak + character);
  }
}

TEST(BreakableText, LeavesTheMiddleOfEndlessTextsOut) {
  const QString text =
      QStringLiteral("begin ") + Times(2000, QStringLiteral("word ")) + QStringLiteral("end");
  const QString shortened = BreakableText(text);
  EXPECT_LE(shortened.size(), 810);
  EXPECT_TRUE(shortened.startsWith(QStringLiteral("begin word")));
  EXPECT_TRUE(shortened.endsWith(QStringLiteral("word end")));
  EXPECT_EQ(shortened.count(QChar(0x2026)), 1);
  const QString pairs =
      BreakableText(QStringLiteral("x") + Times(2000, QString::fromUtf8("\xF0\x9F\x93\xB7")));
  EXPECT_EQ(pairs, QString::fromUtf8(pairs.toUtf8())) << "no half of a character is left";
}

}  // namespace
}  // namespace Zenvora::Tavolin
