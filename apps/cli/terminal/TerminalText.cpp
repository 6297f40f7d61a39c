#include "Utf8.h"

#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>

#include <QChar>

#include <algorithm>
#include <array>
#include <cstdio>

namespace Zenvora::Lumidex::Cli {

namespace {

struct Range {
  char32_t first;
  char32_t last;
};

// East Asian Width W and F of Unicode 15, unassigned gaps inside a wide block taken in.
constexpr std::array kWide = {
    Range{0x1100, 0x115F},   Range{0x231A, 0x231B},   Range{0x2329, 0x232A},   Range{0x23E9, 0x23EC},
    Range{0x23F0, 0x23F0},   Range{0x23F3, 0x23F3},   Range{0x25FD, 0x25FE},   Range{0x2614, 0x2615},
    Range{0x2648, 0x2653},   Range{0x267F, 0x267F},   Range{0x2693, 0x2693},   Range{0x26A1, 0x26A1},
    Range{0x26AA, 0x26AB},   Range{0x26BD, 0x26BE},   Range{0x26C4, 0x26C5},   Range{0x26CE, 0x26CE},
    Range{0x26D4, 0x26D4},   Range{0x26EA, 0x26EA},   Range{0x26F2, 0x26F3},   Range{0x26F5, 0x26F5},
    Range{0x26FA, 0x26FA},   Range{0x26FD, 0x26FD},   Range{0x2705, 0x2705},   Range{0x270A, 0x270B},
    Range{0x2728, 0x2728},   Range{0x274C, 0x274C},   Range{0x274E, 0x274E},   Range{0x2753, 0x2755},
    Range{0x2757, 0x2757},   Range{0x2795, 0x2797},   Range{0x27B0, 0x27B0},   Range{0x27BF, 0x27BF},
    Range{0x2B1B, 0x2B1C},   Range{0x2B50, 0x2B50},   Range{0x2B55, 0x2B55},   Range{0x2E80, 0x303E},
    Range{0x3041, 0x3247},   Range{0x3250, 0x4DBF},   Range{0x4E00, 0xA4CF},   Range{0xA960, 0xA97F},
    Range{0xAC00, 0xD7A3},   Range{0xF900, 0xFAFF},   Range{0xFE10, 0xFE19},   Range{0xFE30, 0xFE6F},
    Range{0xFF01, 0xFF60},   Range{0xFFE0, 0xFFE6},   Range{0x16FE0, 0x18CFF}, Range{0x18D00, 0x18D08},
    Range{0x1AFF0, 0x1AFFE}, Range{0x1B000, 0x1B2FF}, Range{0x1F004, 0x1F004}, Range{0x1F0CF, 0x1F0CF},
    Range{0x1F18E, 0x1F18E}, Range{0x1F191, 0x1F19A}, Range{0x1F200, 0x1F320}, Range{0x1F32D, 0x1F335},
    Range{0x1F337, 0x1F37C}, Range{0x1F37E, 0x1F393}, Range{0x1F3A0, 0x1F3CA}, Range{0x1F3CF, 0x1F3D3},
    Range{0x1F3E0, 0x1F3F0}, Range{0x1F3F4, 0x1F3F4}, Range{0x1F3F8, 0x1F43E}, Range{0x1F440, 0x1F440},
    Range{0x1F442, 0x1F4FC}, Range{0x1F4FF, 0x1F53D}, Range{0x1F54B, 0x1F54E}, Range{0x1F550, 0x1F567},
    Range{0x1F57A, 0x1F57A}, Range{0x1F595, 0x1F596}, Range{0x1F5A4, 0x1F5A4}, Range{0x1F5FB, 0x1F64F},
    Range{0x1F680, 0x1F6C5}, Range{0x1F6CC, 0x1F6CC}, Range{0x1F6D0, 0x1F6D2}, Range{0x1F6D5, 0x1F6D7},
    Range{0x1F6DC, 0x1F6DF}, Range{0x1F6EB, 0x1F6EC}, Range{0x1F6F4, 0x1F6FC}, Range{0x1F7E0, 0x1F7EB},
    Range{0x1F7F0, 0x1F7F0}, Range{0x1F90C, 0x1F93A}, Range{0x1F93C, 0x1F945}, Range{0x1F947, 0x1F9FF},
    Range{0x1FA70, 0x1FAFF}, Range{0x20000, 0x2FFFD}, Range{0x30000, 0x3FFFD},
};

bool IsWide(char32_t code) {
  const auto range = std::lower_bound(kWide.begin(), kWide.end(), code,
                                      [](const Range& candidate, char32_t c) { return candidate.last < c; });
  return range != kWide.end() && range->first <= code;
}

bool TakesNoColumn(char32_t code) {
  constexpr char32_t kSoftHyphen = 0xAD;
  if (code == kSoftHyphen) {
    return false;
  }
  // Vowels and final consonants of Korean syllables that are written in parts join the consonant before them.
  if ((code >= 0x1160 && code <= 0x11FF) || (code >= 0xD7B0 && code <= 0xD7FF)) {
    return true;
  }
  switch (QChar::category(static_cast<uint>(code))) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
    case QChar::Other_Control:
      return true;
    default:
      return false;
  }
}

int WidthOf(char32_t code) {
  if (code < 0x7F) {
    return 1;
  }
  return TakesNoColumn(code) ? 0 : IsWide(code) ? 2 : 1;
}

bool IsTreacherous(char32_t code) {
  const bool isControl = code < 0x20 || (code >= 0x7F && code <= 0x9F);
  const bool isLineEnd = code == 0x2028 || code == 0x2029;
  const bool turnsDirection = (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069) ||
                              code == 0x200E || code == 0x200F;
  return isControl || isLineEnd || turnsDirection;
}

std::string Escaped(const Utf8Step& step) {
  if (step.valid) {
    switch (step.code) {
      case '\n':
        return "\\n";
      case '\r':
        return "\\r";
      case '\t':
        return "\\t";
      default:
        break;
    }
  }
  std::array<char, 16> text{};
  const bool isByte = !step.valid || step.code < 0x80;
  std::snprintf(text.data(), text.size(), isByte ? "\\x%02x" : "\\u%04x", static_cast<unsigned>(step.code));
  return text.data();
}

std::string InGroups(unsigned long long number, const std::string& separator) {
  std::string digits = std::to_string(number);
  for (std::size_t place = digits.size(); place > 3;) {
    place -= 3;
    digits.insert(place, separator);
  }
  return digits;
}

}  // namespace

std::string EscapeForTerminal(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  while (!text.empty()) {
    const Utf8Step step = FirstCharacter(text);
    if (!step.valid || IsTreacherous(step.code)) {
      escaped += Escaped(step);
    } else {
      escaped += text.substr(0, step.length);
    }
    text.remove_prefix(step.length);
  }
  return escaped;
}

int DisplayWidth(std::string_view text) {
  int width = 0;
  while (!text.empty()) {
    const Utf8Step step = FirstCharacter(text);
    width += step.valid ? WidthOf(step.code) : 1;
    text.remove_prefix(step.length);
  }
  return width;
}

std::string CutToWidth(std::string_view text, int columns) {
  std::size_t end = 0;
  int width = 0;
  while (end < text.size()) {
    const Utf8Step step = FirstCharacter(text.substr(end));
    width += step.valid ? WidthOf(step.code) : 1;
    if (width > columns) {
      break;
    }
    end += step.length;
  }
  return std::string(text.substr(0, end));
}

std::string GroupDigits(unsigned long long number) {
  return InGroups(number, Say(Words::tr(",", "between thousands")));
}

std::string Counted(unsigned long long number, std::string_view noun) {
  return InGroups(number, ",") + " " + std::string(noun) + (number == 1 ? "" : "s");
}

}  // namespace Zenvora::Lumidex::Cli
