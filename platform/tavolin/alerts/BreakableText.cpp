#include "BreakableText.h"

#include <QTextBoundaryFinder>

namespace Zenvora::Tavolin {

namespace {

/// Characters as people count them; what the narrowest boxes show in a line.
constexpr int kLongestRun = 40;
/// Half of a small screen. UTF-16 units.
constexpr int kLongestText = 800;

/// The nearest place at or before `at` that parts no character.
int Boundary(const QString& text, int at) {
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
  characters.setPosition(at);
  return characters.isAtBoundary() ? at : qMax(0, characters.toPreviousBoundary());
}

QString Shortened(const QString& text) {
  if (text.size() <= kLongestText) {
    return text;
  }
  return text.left(Boundary(text, kLongestText / 2)) + QChar(0x2026) +
         text.mid(Boundary(text, text.size() - kLongestText / 2));
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
