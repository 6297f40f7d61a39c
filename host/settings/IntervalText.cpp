#include <host/settings/IntervalText.h>

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace Zenvora::Lumidex::Host {

namespace {

const QLatin1String kSeparator(" - ");

/// "05 6月 2012", "6月 2012" or "6月", the latter of the year that the other end of the interval has.
QString JapaneseDate(const QString& text, const QString& yearOfOther) {
  static const QRegularExpression date(QStringLiteral("^(?:(\\d\\d) )?(\\d{1,2}月)(?: (\\d{4}))?$"));
  const QRegularExpressionMatch match = date.match(text);
  if (!match.hasMatch()) {
    return text;
  }
  const QString year = match.captured(3).isEmpty() ? yearOfOther : match.captured(3);
  const QString day = match.captured(1);
  return (year.isEmpty() ? QString() : year + QStringLiteral("年")) + match.captured(2) +
         (day.isEmpty() ? QString() : QString::number(day.toInt()) + QStringLiteral("日"));
}

QString JapaneseInterval(const QString& interval) {
  const QStringList ends = interval.split(kSeparator);
  if (ends.size() != 2) {
    return JapaneseDate(interval, {});
  }
  const QString last = JapaneseDate(ends[1], {});
  const int year = last.indexOf(QStringLiteral("年"));
  const bool sharesYear = year > 0 && !ends[0].contains(QLatin1Char(' '));
  return JapaneseDate(ends[0], last.left(std::max(year, 0))) + kSeparator +
         (sharesYear ? last.mid(year + 1) : last);
}

/// The month with which the text begins, as the language writes it by itself.
QString WithMonthInItsCase(const QString& text, const QLocale& locale) {
  constexpr int kMonths = 12;
  for (int month = 1; month <= kMonths; ++month) {
    const QString name = locale.standaloneMonthName(month, QLocale::LongFormat);
    if (!name.isEmpty() && text.startsWith(name[0].toUpper() + name.mid(1))) {
      return name + text.mid(name.size());
    }
  }
  return text;
}

}  // namespace

QString IntervalText(const QString& interval, const QLocale& locale) {
  return locale.language() == QLocale::Japanese ? JapaneseInterval(interval) : interval;
}

QString IntervalInSentence(const QString& interval, const QLocale& locale) {
  QStringList ends = IntervalText(interval, locale).split(kSeparator);
  for (QString& end : ends) {
    end = WithMonthInItsCase(end, locale);
  }
  return ends.join(kSeparator);
}

}  // namespace Zenvora::Lumidex::Host
