#pragma once

#include <LumidexUtil/Export.h>

#include <QDate>
#include <QDateTime>
#include <QString>

#include <utility>

namespace Zenvora::Lumidex {

/// The date filter of a search as text and as instants. A range is its first and its last day, both within
/// it; nothing puts them in order. No function fails: what is no date is a null one.
///
/// All functions are pure, and safe from any thread; only `GetDatesStrLocalized` asks the host, for its
/// interface language.
class LUMIDEXUTIL_EXPORT SearchHelper {
 public:
  /// " - ", between the two dates of every text.
  static const QString DATES_SEPARATOR;

  SearchHelper& operator=(const SearchHelper&);
  SearchHelper& operator=(SearchHelper&&) noexcept;

  /// The form to be stored: "2015-03-01 - 2015-03-09", and of a single day "2015-03-01". A null date is an
  /// empty text, and so is a date of a year that four digits cannot write.
  static QString GetDatesStr(const std::pair<QDate, QDate>& dates);
  /// The form to be shown: the same with dates in the short form of the interface language. Never read back.
  static QString GetDatesStrLocalized(const std::pair<QDate, QDate>& dates);
  /// Reads what `GetDatesStr` writes: the dates before the first separator and behind the last one; without
  /// one the same date twice. A part that is no ISO date becomes a null date.
  static std::pair<QDate, QDate> StrToDates(const QString& text);
  /// From the start of the first day to the last millisecond of the last one, local time, both included.
  /// Where the clocks skip midnight or the end of a day, its first or last moment that there was; a null date
  /// gives an invalid moment, and so does a day that a time zone left out.
  static std::pair<QDateTime, QDateTime> ToDateTimeInterval(const std::pair<QDate, QDate>& dates);
};

}  // namespace Zenvora::Lumidex
