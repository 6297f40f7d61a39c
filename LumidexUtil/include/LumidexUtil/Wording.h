#pragma once

#include <LumidexUtil/Export.h>

#include <QDate>
#include <QString>

#include <string>

namespace Zenvora::Util {

/// The noun in the grammatical number for `count`, without the number itself.
///
/// The form follows the three-form rule of the Slavic languages: "One" for 1; else by the last digits
/// "Nominative" (21, 31, 101), "Genetive" (2 to 4, 22 to 24) or "Plural" (0, 5 to 20, every negative count).
/// The text is the translation of
/// "<form> <noun>"; without a catalogue entry the translation of `noun` for a count of 1 and of
/// `pluralFallback` for all others (when the fallback is empty, the key itself). Languages with other plural
/// rules must make do with three forms. GUI thread, as all that translates.
LUMIDEXUTIL_EXPORT QString GetCountString(const std::string& noun, const std::string& pluralFallback,
                                          int count);

/// "5 days" in the interface language; the text for "Expired" when `days` is 0 or less. GUI thread.
LUMIDEXUTIL_EXPORT QString GetLocalizedNumberOfDays(int days);

/// Days from the date of `dateTime` ("yyyy-MM-dd hh:mm:ss", local) to today: positive for past days. The time
/// of day is ignored. 0 for a text of another form.
LUMIDEXUTIL_EXPORT int DaysToCurrent(const QString& dateTime);

/// Names an interval by its months in the interface language: "March 2015", "March - May 2015", "December
/// 2014 - January 2015", and by its day when first and last are the same day of one month, "05 March 2015".
/// The order of the dates is not tested, and both must be valid; GUI thread.
LUMIDEXUTIL_EXPORT QString GetDateIntervalString(const QDate& from, const QDate& to);

}  // namespace Zenvora::Util
