#pragma once

#include <zenvora/tavolin/RenameSettingsMode.h>

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What is wrong with a pattern.
struct RenamePatternFault {
  /// Where: the character (code point), counted from 1.
  std::size_t at = 0;
  /// What: English, lower case, without a full stop.
  std::string cause;
};

/// What a photo's new name is made from.
struct RenameFacts {
  /// The old name without its extension: bytes as on the disk.
  std::string name;
  /// As the camera's clock showed; invalid: unknown.
  QDateTime taken;
  std::uint64_t number = 0;
};

/// How the new names of photos are made: text with placeholders in braces.
///
///     {number}    {number:4}                      a number, with at least so many digits (1..12)
///     {date}      {date:yyyy-MM-dd}               the day, in Qt's letters d, M and y
///     {datetime}  {datetime:yyyy-MM-dd_HH-mm-ss}  day and time, also with h, H, m, s, z, AP and ap
///     {name}                                      the old name without its extension
///     {{  }}                                      one brace
///
/// Names of days and months are English, whatever the interface language: names of files should not depend on
/// it. Text within a format goes into single quotes. A character that a system forbids in names is a fault of
/// the pattern, in text and formats alike.
///
/// Thread-safety: as a value.
class RenamePattern {
 public:
  /// None, with the first fault, when the text (UTF-8) is no pattern: empty or blank, unbalanced or unknown
  /// braces, a width or format that means nothing, a character that no name can have, or bytes that are not
  /// UTF-8.
  static std::optional<RenamePattern> Parse(const std::string& text, RenamePatternFault& fault);

  /// The mode that says most of where a photo's name comes from: date-time if the pattern has one, else date,
  /// else number, else text ({name} counts as text).
  Tavolin::RenameSettingsMode MainMode() const;
  /// True when a photo without a date cannot be named.
  bool NeedsDate() const;

  /// The new name without extension, unchecked. Empty texts stand for dates that are not known.
  std::string NameFor(const RenameFacts& facts) const;

 private:
  friend class RenamePatternParser;

  enum class PieceKind { Text, Name, Number, Date, DateTime };
  struct Piece {
    PieceKind kind = PieceKind::Text;
    std::string text;  ///< Text: UTF-8.
    QString format;    ///< Dates.
    int width = 1;     ///< Numbers.
  };

  RenamePattern() = default;
  bool Has(PieceKind kind) const;

  std::vector<Piece> pieces_;
};

}  // namespace Zenvora::Lumidex::Host
