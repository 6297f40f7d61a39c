#include <zenvora/strandel/DateText.h>
#include <zenvora/strandel/PhotoFacts.h>

#include <algorithm>

namespace Zenvora::Strandel {

namespace {

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
  if (!std::all_of(fraction.begin(), fraction.end(), [](char c) { return c >= '0' && c <= '9'; })) {
    return 0;
  }
  std::string digits = fraction;
  digits.resize(3, '0');
  return std::stoi(digits);
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
  const auto parsed = DateText::Parse(text);
  if (!parsed || !parsed->HasTime()) {
    return QDateTime();
  }
  const std::string own = Trimmed(subSeconds);
  const int ms = Milliseconds(own.empty() ? parsed->Fraction() : own);
  return CameraTime(parsed->Value().date(), parsed->Value().time().addMSecs(ms));
}

}  // namespace Zenvora::Strandel
