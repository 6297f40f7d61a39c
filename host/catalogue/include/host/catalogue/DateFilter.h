#pragma once

#include <QDate>
#include <QString>

#include <optional>
#include <string>
#include <utility>

namespace Zenvora::Lumidex::Host {

/// Reads the date filter of a search as people write it: one time, or two with " - " between them, of which
/// one may be left out. A time is
/// - a year, a month or a day: 2015, 2015-03, 2015-03-01 (a day and a range of days are the form in which
///   `SearchHelper` stores a filter),
/// - or a day in the short form of the language `locale`: 01.03.2015, 3/1/15. Years of two digits are the
///   latest ones up to that of `today`.
///
/// Gives the first day of the first time and the last one of the last, both included; a null date is open.
/// None, with the fault in English to be put behind "needs", when the text is something else, or begins after
/// its end. Pure.
std::optional<std::pair<QDate, QDate>> ReadDates(const QString& text, const std::string& locale,
                                                 const QDate& today, std::string& fault);

}  // namespace Zenvora::Lumidex::Host
