#include "MonthWording.h"

#include "UpperFirst.h"

#include <QLocale>

namespace Zenvora::Util {

namespace {

const QString DATES_SEPARATOR = QStringLiteral(" - ");

enum class Year { Without, With };
enum class Day { Without, With };

QString WordDate(const QString& locale, const QDate& date, Year year, Day day) {
  const QLocale language(locale);
  QString text;
  if (day == Day::With) {
    // The form used inside a date: several languages inflect the month there.
    text += date.toString(QStringLiteral("dd ")) + language.monthName(date.month(), QLocale::LongFormat);
  } else {
    text += WithUpperFirst(language.standaloneMonthName(date.month(), QLocale::LongFormat));
  }
  if (year == Year::With) {
    text += date.toString(QStringLiteral(" yyyy"));
  }
  return text;
}

}  // namespace

QString WordDateInterval(const QString& locale, const QDate& from, const QDate& to) {
  if (from.year() != to.year()) {
    return WordDate(locale, from, Year::With, Day::Without) + DATES_SEPARATOR +
           WordDate(locale, to, Year::With, Day::Without);
  }
  if (from.month() == to.month()) {
    return WordDate(locale, from, Year::With, from.day() == to.day() ? Day::With : Day::Without);
  }
  return WordDate(locale, from, Year::Without, Day::Without) + DATES_SEPARATOR +
         WordDate(locale, to, Year::With, Day::Without);
}

}  // namespace Zenvora::Util
