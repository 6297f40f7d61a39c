#include "BreakableText.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <iterator>
#include <numeric>

namespace Zenvora::Tavolin {

namespace {

/// Characters as people count them; what the narrowest boxes show in a line.
constexpr int kLongestRun = 40;
/// Half of a small screen, in letters.
constexpr int kLongestText = 800;

/// The scripts of East Asia, whose characters are as wide as two letters. Those outside of the basic plane
/// are two units anyway.
bool IsWide(QChar unit) {
  const char16_t code = unit.unicode();
  return (code >= 0x1100 && code < 0x1200) || (code >= 0x2E80 && code < 0xD7B0) ||
         (code >= 0xF900 && code < 0xFB00) || (code >= 0xFE30 && code < 0xFE70) ||
         (code >= 0xFF00 && code < 0xFF61);
}

/// How much of a line a unit takes: line ends all of it.
int RoomOf(QChar unit) {
  constexpr int kTab = 10;
  constexpr int kWide = 2;
  switch (unit.unicode()) {
    case u'\n':
    case u'\r':
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
      return kLongestRun;
    case u'\t':
      return kTab;
    default:
      return IsWide(unit) ? kWide : 1;
  }
}

/// How many of the units fit into half of the room.
template <class Iterator>
int FittingHalf(Iterator begin, Iterator end) {
  int room = kLongestText / 2;
  return static_cast<int>(
      std::find_if(begin, end, [&room](QChar unit) { return (room -= RoomOf(unit)) < 0; }) - begin);
}

/// The nearest place at or before `at` that parts no character.
int Boundary(const QString& text, int at) {
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
  characters.setPosition(at);
  return characters.isAtBoundary() ? at : qMax(0, characters.toPreviousBoundary());
}

QString Shortened(const QString& text) {
  const int room =
      std::accumulate(text.begin(), text.end(), 0, [](int sum, QChar unit) { return sum + RoomOf(unit); });
  if (room <= kLongestText) {
    return text;
  }
  const int left = FittingHalf(text.begin(), text.end());
  const int right =
      FittingHalf(std::make_reverse_iterator(text.end()), std::make_reverse_iterator(text.begin()));
  return text.left(Boundary(text, left)) + QChar(0x2026) + text.mid(Boundary(text, text.size() - right));
}

}  // namespace

QString BreakableText(const QString& text) {
  constexpr QChar kBreak(0x200B);
  const QString shortened = Shortened(text);
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, shortened);
  QTextBoundaryFinder lines(QTextBoundaryFinder::Line, shortened);
  QString broken;
  int run = 0;
  for (int begin = 0, end = characters.toNextBoundary(); end > 0;
       begin = end, end = characters.toNextBoundary()) {
    lines.setPosition(begin);
    if (lines.isAtBoundary()) {
      run = 0;
    } else if (run == kLongestRun) {
      broken += kBreak;
      run = 0;
    }
    broken += shortened.mid(begin, end - begin);
    ++run;
  }
  return broken;
}

}  // namespace Zenvora::Tavolin
