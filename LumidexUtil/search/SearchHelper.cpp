#include <LumidexUtil/SearchHelper.h>

#include <zenvora/app/Application.h>

#include <QLocale>
#include <QStringList>

namespace Zenvora::Lumidex {

namespace {

template <class DateText>
QString RangeText(const std::pair<QDate, QDate>& dates, const DateText& dateText) {
  const QString first = dateText(dates.first);
  return dates.first == dates.second ? first : first + SearchHelper::DATES_SEPARATOR + dateText(dates.second);
}

QDateTime EndOfDay(const QDate& day) {
  constexpr int kHour = 23;
  constexpr int kSixtieth = 59;
  constexpr int kMillisecond = 999;
  const QDateTime end(day, QTime(kHour, kSixtieth, kSixtieth, kMillisecond), Qt::LocalTime);
  return end.isValid() ? end : day.endOfDay(Qt::LocalTime);
}

}  // namespace

const QString SearchHelper::DATES_SEPARATOR = QStringLiteral(" - ");

SearchHelper& SearchHelper::operator=(const SearchHelper&) = default;
SearchHelper& SearchHelper::operator=(SearchHelper&&) noexcept = default;

QString SearchHelper::GetDatesStr(const std::pair<QDate, QDate>& dates) {
  return RangeText(dates, [](const QDate& date) { return date.toString(Qt::ISODate); });
}

QString SearchHelper::GetDatesStrLocalized(const std::pair<QDate, QDate>& dates) {
  return RangeText(dates, [](const QDate& date) {
    const QLocale locale(QString::fromStdString(App::GetCurrentLocale()));
    return locale.toString(date, QLocale::ShortFormat);
  });
}

std::pair<QDate, QDate> SearchHelper::StrToDates(const QString& text) {
  const QStringList parts = text.split(DATES_SEPARATOR, Qt::KeepEmptyParts, Qt::CaseSensitive);
  return {QDate::fromString(parts.first(), Qt::ISODate), QDate::fromString(parts.last(), Qt::ISODate)};
}

std::pair<QDateTime, QDateTime> SearchHelper::ToDateTimeInterval(const std::pair<QDate, QDate>& dates) {
  return {dates.first.startOfDay(Qt::LocalTime), EndOfDay(dates.second)};
}

}  // namespace Zenvora::Lumidex
