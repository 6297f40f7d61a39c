#include "RenameDateFormat.h"

#include <host/base/RenameNames.h>
#include <host/rename/RenamePattern.h>

#include <QByteArray>
#include <QLocale>
#include <QVector>

#include <algorithm>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr int kWidest = 12;
constexpr const char* kDateFormat = "yyyy-MM-dd";
constexpr const char* kDateTimeFormat = "yyyy-MM-dd_HH-mm-ss";

std::string ToUtf8(const std::u32string& text) {
  return QString::fromUcs4(text.data(), static_cast<int>(text.size())).toStdString();
}

std::string Padded(std::uint64_t number, int width) {
  std::string digits = std::to_string(number);
  const auto wanted = static_cast<std::size_t>(width);
  if (digits.size() < wanted) {
    digits.insert(0, wanted - digits.size(), '0');
  }
  return digits;
}

/// 0: none.
int ParseWidth(const std::u32string& text) {
  const bool digits =
      std::all_of(text.begin(), text.end(), [](char32_t c) { return c >= U'0' && c <= U'9'; });
  if (text.empty() || text.size() > 2 || !digits) {
    return 0;
  }
  int width = 0;
  for (const char32_t c : text) {
    width = width * 10 + static_cast<int>(c - U'0');
  }
  return width <= kWidest ? width : 0;
}

}  // namespace

class RenamePatternParser {
 public:
  using Kind = RenamePattern::PieceKind;
  using Piece = RenamePattern::Piece;

  RenamePatternParser(std::u32string text, RenamePatternFault& fault)
      : text_(std::move(text)), fault_(fault) {}

  bool Run(std::vector<Piece>& pieces) {
    if (text_.empty()) {
      return Fail(0, "the pattern is empty");
    }
    while (at_ < text_.size()) {
      if (!Step()) {
        return false;
      }
    }
    EndText();
    pieces = std::move(pieces_);
    return true;
  }

 private:
  bool Fail(std::size_t at, const std::string& cause) {
    fault_ = {at + 1, cause};
    return false;
  }

  bool IsAt(std::size_t at, char32_t wanted) const { return at < text_.size() && text_[at] == wanted; }

  bool Step() {
    const char32_t c = text_[at_];
    if (c == U'{' || c == U'}') {
      if (IsAt(at_ + 1, c)) {
        literal_ += c;
        at_ += 2;
        return true;
      }
      return c == U'{' ? Placeholder() : Fail(at_, "'}' closes nothing; a brace itself is written '}}'");
    }
    const std::string fault = FindCharacterFault(c);
    if (!fault.empty()) {
      return Fail(at_, "a name cannot hold " + fault);
    }
    literal_ += c;
    ++at_;
    return true;
  }

  bool Placeholder() {
    const std::size_t open = at_;
    const std::size_t end = text_.find_first_of(U"{}", open + 1);
    if (end == std::u32string::npos || text_[end] == U'{') {
      return Fail(open, "'{' is not closed; a brace itself is written '{{'");
    }
    const std::size_t colon = std::min(text_.find(U':', open), end);
    const std::u32string scheme = text_.substr(open + 1, colon - open - 1);
    EndText();
    at_ = end + 1;
    // Where what is behind the colon begins; without a colon, nothing does.
    const std::size_t argument = colon < end ? colon + 1 : std::u32string::npos;
    return Scheme(scheme, open, argument, end);
  }

  bool Scheme(const std::u32string& scheme, std::size_t open, std::size_t argument, std::size_t end) {
    const bool has = argument != std::u32string::npos;
    const std::u32string value = has ? text_.substr(argument, end - argument) : std::u32string();
    if (scheme == U"number") {
      return Number(has, value, argument);
    }
    if (scheme == U"date") {
      return Date(Kind::Date, has, value, argument);
    }
    if (scheme == U"datetime") {
      return Date(Kind::DateTime, has, value, argument);
    }
    if (scheme == U"name") {
      return has ? Fail(argument - 1, "{name} takes no format") : Add(Kind::Name);
    }
    return Fail(open,
                "{" + ToUtf8(scheme) + "} is unknown; there are {number}, {date}, {datetime} and {name}");
  }

  bool Number(bool has, const std::u32string& value, std::size_t argument) {
    const int width = has ? ParseWidth(value) : 1;
    if (width == 0) {
      return Fail(argument, "the width of a number is 1 to " + std::to_string(kWidest));
    }
    Add(Kind::Number);
    pieces_.back().width = width;
    return true;
  }

  bool Date(Kind kind, bool has, const std::u32string& value, std::size_t argument) {
    const bool withTime = kind == Kind::DateTime;
    if (has) {
      const DateFormatFault fault = FindDateFormatFault(value, withTime);
      if (!fault.cause.empty()) {
        return Fail(argument + fault.at, fault.cause);
      }
    }
    Add(kind);
    pieces_.back().format = has ? QString::fromUcs4(value.data(), static_cast<int>(value.size()))
                                : QString::fromLatin1(withTime ? kDateTimeFormat : kDateFormat);
    return true;
  }

  bool Add(Kind kind) {
    pieces_.emplace_back();
    pieces_.back().kind = kind;
    return true;
  }

  void EndText() {
    if (!literal_.empty()) {
      Add(Kind::Text);
      pieces_.back().text = ToUtf8(literal_);
      literal_.clear();
    }
  }

  std::u32string text_;
  RenamePatternFault& fault_;
  std::size_t at_ = 0;
  std::u32string literal_;
  std::vector<Piece> pieces_;
};

std::optional<RenamePattern> RenamePattern::Parse(const std::string& text, RenamePatternFault& fault) {
  const int length = static_cast<int>(text.size());
  const QString decoded = QString::fromUtf8(text.data(), length);
  if (decoded.toUtf8() != QByteArray::fromRawData(text.data(), length)) {
    fault = {1, "the pattern is not valid UTF-8"};
    return std::nullopt;
  }
  if (length > 0 && decoded.trimmed().isEmpty()) {
    fault = {1, "the pattern is nothing but blanks, which make no name"};
    return std::nullopt;
  }
  std::u32string characters;
  for (const uint character : decoded.toUcs4()) {
    characters += static_cast<char32_t>(character);
  }
  RenamePattern pattern;
  if (!RenamePatternParser(std::move(characters), fault).Run(pattern.pieces_)) {
    return std::nullopt;
  }
  return pattern;
}

bool RenamePattern::Has(PieceKind kind) const {
  return std::any_of(pieces_.begin(), pieces_.end(),
                     [kind](const Piece& piece) { return piece.kind == kind; });
}

Tavolin::RenameSettingsMode RenamePattern::MainMode() const {
  using Mode = Tavolin::RenameSettingsMode;
  if (Has(PieceKind::DateTime)) {
    return Mode::DateTime;
  }
  if (Has(PieceKind::Date)) {
    return Mode::Date;
  }
  return Has(PieceKind::Number) ? Mode::Number : Mode::Text;
}

bool RenamePattern::NeedsDate() const {
  return Has(PieceKind::Date) || Has(PieceKind::DateTime);
}

std::string RenamePattern::NameFor(const RenameFacts& facts) const {
  std::string name;
  for (const Piece& piece : pieces_) {
    switch (piece.kind) {
      case PieceKind::Text:
        name += piece.text;
        break;
      case PieceKind::Name:
        name += facts.name;
        break;
      case PieceKind::Number:
        name += Padded(facts.number, piece.width);
        break;
      case PieceKind::Date:
        name += QLocale::c().toString(facts.taken.date(), piece.format).toStdString();
        break;
      case PieceKind::DateTime:
        name += QLocale::c().toString(facts.taken, piece.format).toStdString();
        break;
    }
  }
  return name;
}

}  // namespace Zenvora::Lumidex::Host
