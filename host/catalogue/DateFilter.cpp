#include <LumidexUtil/SearchHelper.h>
#include <host/catalogue/DateFilter.h>

#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace Zenvora::Lumidex::Host {

namespace {

/// The first and the last day of a time; null dates for what is none.
using Days = std::pair<QDate, QDate>;

bool AreDigits(const QString& text) {
  return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar letter) {
    return letter >= QLatin1Char('0') && letter <= QLatin1Char('9');
  });
}

/// The latest year up to that of `today` that ends in these two digits.
int FullYear(int shortYear, const QDate& today) {
  constexpr int kCentury = 100;
  const int year = today.year() - today.year() % kCentury + shortYear;
  return year <= today.year() ? year : year - kCentury;
}

/// Reads dates in the short form of a language: its order and its separator, days and months of one or two
/// digits, the year of two or four.
class ShortDates {
 public:
  ShortDates(const std::string& locale, const QDate& today) : today_(today) {
    const QString format = QLocale(QString::fromStdString(locale)).dateFormat(QLocale::ShortFormat);
    for (const QChar letter : format) {
      if (!letter.isLetter()) {
        separator_ = letter;
      } else if (!order_.contains(letter)) {
        order_ += letter;
      }
    }
  }

  QDate Read(const QString& text) const {
    const QStringList parts = text.split(separator_);
    if (parts.size() != 3 || order_.size() != 3) {
      return {};
    }
    int year = 0;
    int month = 0;
    int day = 0;
    for (int i = 0; i < parts.size(); ++i) {
      const QString& part = parts[i];
      const bool isYear = order_[i] == QLatin1Char('y');
      if (!AreDigits(part) || (isYear ? part.size() != 2 && part.size() != 4 : part.size() > 2)) {
        return {};
      }
      if (isYear) {
        year = part.size() == 2 ? FullYear(part.toInt(), today_) : part.toInt();
      } else {
        (order_[i] == QLatin1Char('M') ? month : day) = part.toInt();
      }
    }
    return {year, month, day};
  }

 private:
  const QDate today_;
  QString order_;
  QChar separator_;
};

/// 2015, 2015-03 or 2015-03-01 and nothing besides: the library would take "2015-03-01..2015-03-09" for its
/// first day.
Days ReadIso(const QString& text) {
  const QStringList parts = text.split(QLatin1Char('-'));
  const bool areDigits = std::all_of(parts.begin(), parts.end(), AreDigits);
  const bool areSound =
      areDigits && parts.size() <= 3 && parts[0].size() == 4 &&
      std::all_of(parts.begin() + 1, parts.end(), [](const QString& part) { return part.size() == 2; });
  if (!areSound) {
    return {};
  }
  if (parts.size() == 3) {
    return SearchHelper::StrToDates(text);
  }
  const int year = parts[0].toInt();
  const bool isYear = parts.size() == 1;
  const QDate last(year, isYear ? 12 : parts[1].toInt(), 1);
  return {isYear ? QDate(year, 1, 1) : last, last.addDays(last.daysInMonth() - 1)};
}

Days ReadTime(const QString& text, const ShortDates& shown) {
  const Days days = ReadIso(text);
  if (days.first.isValid()) {
    return days;
  }
  const QDate day = shown.Read(text);
  return {day, day};
}

}  // namespace

std::optional<std::pair<QDate, QDate>> ReadDates(const QString& text, const std::string& locale,
                                                 const QDate& today, std::string& fault) {
  // Blanks at the ends of a word are easily lost: "2015 -" is "2015 - ".
  const QString padded = QLatin1Char(' ') + text.trimmed() + QLatin1Char(' ');
  const QStringList parts = padded.split(SearchHelper::DATES_SEPARATOR);
  const QString first = parts.first().trimmed();
  const QString last = parts.last().trimmed();
  const ShortDates shown(locale, today);
  const Days days(ReadTime(first, shown).first, ReadTime(last, shown).second);
  const bool areSound =
      (first.isEmpty() || days.first.isValid()) && (last.isEmpty() || days.second.isValid());
  // A filter has two dates at most: what stands between them is not to be skipped.
  if (parts.size() > 2 || !areSound || (first.isEmpty() && last.isEmpty())) {
    const QString example =
        QLocale(QString::fromStdString(locale)).toString(QDate(2015, 3, 1), QLocale::ShortFormat);
    fault = "dates such as 2015, 2015-03, 2015-03-01, \"2015-03-01 - 2015-03-09\", \"2015-03-01 -\" or " +
            example.toStdString() + ", not \"" + text.toStdString() + '"';
    return std::nullopt;
  }
  if (days.first.isValid() && days.second.isValid() && days.first > days.second) {
    fault = "the first day before the last one, not \"" + text.toStdString() + '"';
    return std::nullopt;
  }
  return days;
}

}  // namespace Zenvora::Lumidex::Host
