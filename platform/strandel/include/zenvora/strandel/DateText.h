#pragma once

#include <zenvora/strandel/Export.h>

#include <QDate>
#include <QDateTime>

#include <cstddef>
#include <optional>
#include <string>

namespace Zenvora::Strandel {

/// A date as EXIF ("2021:05:01 10:20:30") or XMP ("2021-05-01T10:20:30.25+02:00") writes it: where its digits
/// stand, so that it can be changed and stay as it is in all other respects. A value; pure.
class ZENVORA_STRANDEL_EXPORT DateText {
 public:
  /// Nothing for what is no date, and for days and times that do not exist.
  static std::optional<DateText> Parse(const std::string& text);

  /// False for a year or a month alone.
  bool HasDay() const { return parts_ >= kDay; }
  /// False for a day alone, too.
  bool HasTime() const { return parts_ >= kMinute; }
  bool HasZone() const { return hasZone_; }
  /// The digits behind the seconds; mostly none.
  std::string Fraction() const { return text_.substr(fraction_, fractionSize_); }
  /// UTC, whatever its zone, and without the fraction. Midnight or the first day where it says no more.
  QDateTime Value() const { return value_; }
  /// True when it says of the day what can be said in its form.
  bool Agrees(const QDate& day) const;

  /// The text with another date in the same form: as long as before, but for seconds that had no place yet.
  std::string With(const QDateTime& date) const;
  /// The same, and a fraction that it has says the milliseconds of `date`, with as many digits as it had.
  std::string WithFraction(const QDateTime& date) const;

 private:
  enum Part { kYear = 1, kMonth, kDay, kMinute, kSecond };

  std::string text_;
  std::size_t begin_ = 0;
  std::size_t fraction_ = 0;
  std::size_t fractionSize_ = 0;
  int parts_ = 0;
  bool hasZone_ = false;
  QDateTime value_;
};

}  // namespace Zenvora::Strandel
