#include <zenvora/strandel/DateText.h>

#include <algorithm>

namespace Zenvora::Strandel {

namespace {

/// Reads as many groups of digits as there are, each behind one of its separators.
class Groups {
 public:
  explicit Groups(const std::string& text, std::size_t at) : text_(text), at_(at) {}

  bool Read(const char* separators, std::size_t digits, int& value) {
    std::size_t at = at_;
    if (separators != nullptr) {
      if (at >= text_.size() || text_[at] == '\0' ||
          std::string(separators).find(text_[at]) == std::string::npos) {
        return false;
      }
      ++at;
    }
    int read = 0;
    for (std::size_t i = 0; i < digits; ++i, ++at) {
      if (at >= text_.size() || text_[at] < '0' || text_[at] > '9') {
        return false;
      }
      read = read * 10 + (text_[at] - '0');
    }
    at_ = at;
    value = read;
    return true;
  }
  std::size_t At() const { return at_; }

 private:
  const std::string& text_;
  std::size_t at_;
};

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\0';
}

std::size_t SkipBlanks(const std::string& text, std::size_t at) {
  while (at < text.size() && IsBlank(text[at])) {
    ++at;
  }
  return at;
}

std::size_t SkipDigits(const std::string& text, std::size_t at) {
  while (at < text.size() && text[at] >= '0' && text[at] <= '9') {
    ++at;
  }
  return at;
}

/// Nothing, or the place behind a time zone.
std::optional<std::size_t> BehindZone(const std::string& text, std::size_t at) {
  if (at >= text.size()) {
    return std::nullopt;
  }
  if (text[at] == 'Z' || text[at] == 'z') {
    return at + 1;
  }
  int hours = 0;
  int minutes = 0;
  Groups groups(text, at);
  if (!groups.Read("+-", 2, hours)) {
    return std::nullopt;
  }
  if (!groups.Read(":", 2, minutes) && !groups.Read(nullptr, 2, minutes)) {
    return std::nullopt;
  }
  return groups.At();
}

void Put(std::string& text, std::size_t at, int value, std::size_t digits) {
  for (std::size_t i = digits; i > 0; --i, value /= 10) {
    text[at + i - 1] = static_cast<char>('0' + value % 10);
  }
}

}  // namespace

std::optional<DateText> DateText::Parse(const std::string& text) {
  constexpr const char* kSeparators = ":-/.";
  DateText result;
  result.text_ = text;
  result.begin_ = SkipBlanks(text, 0);
  Groups groups(text, result.begin_);
  int year = 0;
  int month = 1;
  int day = 1;
  int hour = 0;
  int minute = 0;
  int second = 0;
  if (!groups.Read(nullptr, 4, year)) {
    return std::nullopt;
  }
  result.parts_ = kYear;
  if (groups.Read(kSeparators, 2, month)) {
    result.parts_ = kMonth;
    if (groups.Read(kSeparators, 2, day)) {
      result.parts_ = kDay;
    }
  }
  if (result.parts_ == kDay && groups.Read(" T", 2, hour)) {
    if (!groups.Read(":", 2, minute)) {
      return std::nullopt;
    }
    result.parts_ = groups.Read(":", 2, second) ? kSecond : kMinute;
  }
  std::size_t at = groups.At();
  if (result.parts_ == kSecond && at < text.size() && (text[at] == '.' || text[at] == ',')) {
    result.fraction_ = at + 1;
    at = SkipDigits(text, result.fraction_);
    result.fractionSize_ = at - result.fraction_;
  }
  if (result.HasTime()) {
    const std::size_t zone = at < text.size() && text[at] == ' ' ? at + 1 : at;
    if (const auto behind = BehindZone(text, zone)) {
      result.hasZone_ = true;
      at = *behind;
    }
  }
  // Blanks may follow; behind a NUL there is nothing any more.
  const std::size_t end = std::min(text.find('\0', at), text.size());
  const QDate date(year, month, day);
  const QTime time(hour, minute, second);
  if (SkipBlanks(text, at) < end || year < 1 || !date.isValid() || !time.isValid()) {
    return std::nullopt;
  }
  result.value_ = QDateTime(date, time, Qt::UTC);
  return result;
}

bool DateText::Agrees(const QDate& day) const {
  const QDate own = value_.date();
  return day.isValid() && own.year() == day.year() && (parts_ < kMonth || own.month() == day.month()) &&
         (parts_ < kDay || own.day() == day.day());
}

std::string DateText::With(const QDateTime& date) const {
  // Where each group begins, the separators being one character each.
  constexpr std::size_t kMonthAt = 5;
  constexpr std::size_t kDayAt = 8;
  constexpr std::size_t kHourAt = 11;
  constexpr std::size_t kMinuteAt = 14;
  constexpr std::size_t kSecondAt = 17;
  std::string text = text_;
  Put(text, begin_, date.date().year(), 4);
  if (parts_ >= kMonth) {
    Put(text, begin_ + kMonthAt, date.date().month(), 2);
  }
  if (parts_ >= kDay) {
    Put(text, begin_ + kDayAt, date.date().day(), 2);
  }
  if (parts_ >= kMinute) {
    Put(text, begin_ + kHourAt, date.time().hour(), 2);
    Put(text, begin_ + kMinuteAt, date.time().minute(), 2);
  }
  if (parts_ == kMinute && date.time().second() != 0) {
    text.insert(begin_ + kSecondAt - 1, ":00");
  }
  if (parts_ == kSecond || date.time().second() != 0) {
    if (parts_ >= kMinute) {
      Put(text, begin_ + kSecondAt, date.time().second(), 2);
    }
  }
  return text;
}

std::string DateText::WithFraction(const QDateTime& date) const {
  std::string text = With(date);
  if (fractionSize_ > 0) {
    std::string digits(3, '0');
    Put(digits, 0, date.time().msec(), 3);
    digits.resize(fractionSize_, '0');
    text.replace(fraction_, fractionSize_, digits);
  }
  return text;
}

}  // namespace Zenvora::Strandel
