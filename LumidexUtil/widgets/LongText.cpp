#include "LongText.h"

#include <QChar>

#include <algorithm>

namespace Zenvora::Lumidex {

namespace {

/// The most units that Qt shapes at once.
constexpr int kItem = 4096;
/// So many letters are wider than an ellipsis, whatever the font.
constexpr int kVisible = 256;

struct Character {
  uint code = 0;
  int units = 1;
};

Character At(const QString& text, int i) {
  const QChar unit = text[i];
  if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
    return {QChar::surrogateToUcs4(unit, text[i + 1]), 2};
  }
  return {unit.unicode(), 1};
}

bool IsControl(ushort unit) {
  return (unit >= 0x200E && unit <= 0x200F) || (unit >= 0x202A && unit <= 0x202E) ||
         (unit >= 0x2066 && unit <= 0x2069);
}

bool IsStrong(QChar::Direction direction) {
  return direction == QChar::DirL || direction == QChar::DirR || direction == QChar::DirAL;
}

bool IsIsolate(QChar::Direction direction) {
  return direction == QChar::DirLRI || direction == QChar::DirRLI || direction == QChar::DirFSI;
}

bool HasScript(uint code) {
  return QChar::script(code) > QChar::Script_Common;
}

/// Consonants that join with those behind them.
bool IsJamo(uint code) {
  return (code >= 0x1100 && code <= 0x11FF) || (code >= 0xA960 && code <= 0xA97F) ||
         (code >= 0xD7B0 && code <= 0xD7FF);
}

bool IsLetter(uint code) {
  return QChar::isLetter(code) && !IsJamo(code);
}

/// Characters with a boundary between any two of them that nothing around can take away.
bool IsSolid(uint code) {
  return (code >= 0x20 && code <= 0x7E) || (code > 0x7E && IsLetter(code));
}

/// What a text from its beginning to some place says of directions and scripts.
struct Head {
  bool hasLeft = false;    ///< Letters that run from left to right, or marks that make others do so.
  bool hasOther = false;   ///< Anything else that has a direction, or sets one.
  bool hasStrong = false;  ///< So the text's own direction is known.
  bool hasScript = false;
  bool hasThai = false;
  bool hasBracket = false;
  int isolates = 0;  ///< That are open.

  void Add(uint code);
};

void Head::Add(uint code) {
  if (code < 0x80) {
    const bool letter = (code | 0x20) >= 'a' && (code | 0x20) <= 'z';
    hasLeft = hasLeft || letter;
    hasScript = hasScript || letter;
    hasStrong = hasStrong || (letter && isolates == 0);
    hasBracket = hasBracket || code == '(' || code == '[' || code == '{';
    return;
  }
  const QChar::Direction direction = QChar::direction(code);
  switch (direction) {
    case QChar::DirL:
      hasLeft = true;
      break;
    case QChar::DirLRE:
    case QChar::DirLRO:
      // Also of the numbers behind them.
      hasLeft = true;
      hasOther = true;
      break;
    case QChar::DirR:
    case QChar::DirAL:
    case QChar::DirAN:
    case QChar::DirRLE:
    case QChar::DirRLO:
    case QChar::DirPDF:
      hasOther = true;
      break;
    case QChar::DirLRI:
    case QChar::DirRLI:
    case QChar::DirFSI:
      hasOther = true;
      ++isolates;
      break;
    case QChar::DirPDI:
      hasOther = true;
      isolates = std::max(isolates - 1, 0);
      break;
    default:
      break;
  }
  hasStrong = hasStrong || (isolates == 0 && IsStrong(direction));
  hasBracket = hasBracket || QChar::category(code) == QChar::Punctuation_Open;
  const QChar::Script script = QChar::script(code);
  hasScript = hasScript || script > QChar::Script_Common;
  hasThai = hasThai || script == QChar::Script_Thai;
}

}  // namespace

LongText::LongText(const QString& text) : text_(text) {
  hasVariants_ = text.contains(QChar(0x9C));
  for (int i = 0; i < text.size(); ++i) {
    if (IsControl(text[i].unicode())) {
      controls_.push_back(i);
    }
  }
}

int LongText::SafeEnd(int from, int sure) {
  const int whole = text_.size();
  // Not where it would overflow, and not for a handful of units.
  if (whole - from <= sure || whole - from - sure <= kItem + kVisible) {
    return whole;
  }
  Head head;
  int visible = 0;
  bool solid = false;
  bool settles = false;
  for (int i = from; i < whole;) {
    const Character next = At(text_, i);
    const bool nextIsSolid = IsSolid(next.code);
    if (solid && nextIsSolid && i >= from + sure + kItem && visible >= kVisible) {
      if (!head.hasOther) {
        // From left to right, unless a letter far behind turns it.
        const int strong = head.hasStrong ? -1 : NextStrong(i);
        const int scripted = head.hasScript ? -1 : NextScripted(i);
        const bool turned = strong >= 0 && QChar::direction(At(text_, strong).code) != QChar::DirL;
        const uint witness = scripted >= 0 ? At(text_, scripted).code : 0;
        const bool odd = scripted >= 0 && (QChar::direction(witness) != QChar::DirL || !IsLetter(witness) ||
                                           QChar::script(witness) == QChar::Script_Thai);
        return turned || odd ? whole : i;
      }
      if (settles && head.isolates == 0) {
        return i;
      }
    }
    head.Add(next.code);
    if (head.hasThai || (head.hasOther && head.hasLeft && head.hasBracket)) {
      return whole;
    }
    solid = nextIsSolid;
    settles = IsLetter(next.code) && IsStrong(QChar::direction(next.code));
    visible += nextIsSolid && i >= from + sure ? 1 : 0;
    i += next.units;
  }
  return whole;
}

QString LongText::Witness(int from, int end) {
  const int scripted = NextScripted(from);
  return scripted < end ? QString() : text_.mid(scripted, At(text_, scripted).units);
}

QString LongText::ControlsBehind(int position) const {
  QString controls;
  for (auto it = std::lower_bound(controls_.begin(), controls_.end(), position); it != controls_.end();
       ++it) {
    controls += text_[*it];
  }
  return controls;
}

int LongText::NextStrong(int from) {
  if (from < strong_.from || (from > strong_.found && strong_.found >= 0) || strong_.from < 0) {
    strong_ = {from, -1};
    int isolates = 0;
    for (int i = from; i < text_.size() && strong_.found < 0;) {
      const Character next = At(text_, i);
      const QChar::Direction direction = QChar::direction(next.code);
      if (IsIsolate(direction)) {
        ++isolates;
      } else if (direction == QChar::DirPDI) {
        isolates = std::max(isolates - 1, 0);
      } else if (isolates == 0 && IsStrong(direction)) {
        strong_.found = i;
      }
      i += next.units;
    }
  }
  return strong_.found;
}

int LongText::NextScripted(int from) {
  if (from < scripted_.from || (from > scripted_.found && scripted_.found >= 0) || scripted_.from < 0) {
    scripted_ = {from, -1};
    for (int i = from; i < text_.size() && scripted_.found < 0;) {
      const Character next = At(text_, i);
      if (HasScript(next.code)) {
        scripted_.found = i;
      }
      i += next.units;
    }
  }
  return scripted_.found;
}

}  // namespace Zenvora::Lumidex
