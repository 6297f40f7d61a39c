#include <zenvora/strandel/PhotoFacts.h>

#include <algorithm>

namespace Zenvora::Strandel {

namespace {

/// Takes a text apart from its front.
class Cursor {
 public:
  explicit Cursor(const std::string& text) : text_(text) {}

  bool AtEnd() const { return at_ == text_.size(); }
  /// Exactly so many digits.
  bool Number(std::size_t digits, int& value) {
    const std::string found = Digits(digits);
    if (found.size() != digits) {
      return false;
    }
    value = std::stoi(found);
    return true;
  }
  std::string Digits(std::size_t atMost) {
    const std::size_t start = at_;
    while (at_ < text_.size() && at_ - start < atMost && text_[at_] >= '0' && text_[at_] <= '9') {
      ++at_;
    }
    return text_.substr(start, at_ - start);
  }
  bool OneOf(const char* characters) {
    if (AtEnd() || std::string(characters).find(text_[at_]) == std::string::npos) {
      return false;
    }
    ++at_;
    return true;
  }

 private:
  const std::string& text_;
  std::size_t at_ = 0;
};

std::string Trimmed(const std::string& text) {
  // Fields are padded with either.
  const std::string blanks(" \t\r\n\0", 5);
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string::npos) {
    return std::string();
  }
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Milliseconds of the digits behind the decimal point; 0 for anything else.
int Milliseconds(const std::string& fraction) {
  Cursor cursor(fraction);
  std::string digits = cursor.Digits(fraction.size());
  if (!cursor.AtEnd() || digits.empty()) {
    return 0;
  }
  digits.resize(3, '0');
  return std::stoi(digits);
}

bool ReadZone(Cursor& cursor) {
  int hours = 0;
  int minutes = 0;
  if (cursor.OneOf("Zz")) {
    return true;
  }
  if (!cursor.OneOf("+-") || !cursor.Number(2, hours)) {
    return false;
  }
  cursor.OneOf(":");
  return cursor.Number(2, minutes);
}

}  // namespace

QDateTime CameraTime(const QDate& date, const QTime& time) {
  if (!date.isValid() || !time.isValid()) {
    return QDateTime();
  }
  const QDateTime local(date, time);
  return local.isValid() && local.date() == date && local.time() == time ? local
                                                                         : QDateTime(date, time, Qt::UTC);
}

QDateTime ParseExifDateTime(const std::string& text, const std::string& subSeconds) {
  const std::string trimmed = Trimmed(text);
  Cursor cursor(trimmed);
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
  constexpr const char* kDateSeparators = ":-/.";
  if (!cursor.Number(4, year) || !cursor.OneOf(kDateSeparators) || !cursor.Number(2, month) ||
      !cursor.OneOf(kDateSeparators) || !cursor.Number(2, day) || !cursor.OneOf(" T") ||
      !cursor.Number(2, hour) || !cursor.OneOf(":") || !cursor.Number(2, minute)) {
    return QDateTime();
  }
  std::string fraction = Trimmed(subSeconds);
  if (cursor.OneOf(":")) {
    if (!cursor.Number(2, second)) {
      return QDateTime();
    }
    if (cursor.OneOf(".,")) {
      const std::string own = cursor.Digits(trimmed.size());
      if (fraction.empty()) {
        fraction = own;
      }
    }
  }
  if (!cursor.AtEnd()) {
    cursor.OneOf(" ");
    if (!ReadZone(cursor) || !cursor.AtEnd()) {
      return QDateTime();
    }
  }
  return CameraTime(QDate(year, month, day), QTime(hour, minute, second, Milliseconds(fraction)));
}

}  // namespace Zenvora::Strandel
