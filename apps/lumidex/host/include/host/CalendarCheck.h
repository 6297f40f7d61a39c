#pragma once

#include <zenvora/core/ioPath.h>

#include <QDate>
#include <QString>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// One event of a holiday calendar as written (docs/formats/calendar.md); dates lie in the year 1900 or are invalid.
struct CalendarEvent {
  QString name;
  QDate start;
  QDate end;
};

/// The events of one locale in file order. Throws `Core::JsonException` for a file that is no calendar.
std::vector<CalendarEvent> ReadCalendar(const ioPath& file, const std::string& locale);

/// A mistake in a calendar file.
struct CalendarFinding {
  std::string locale;
  /// Position in the locale's list, from 1; 0: the list as a whole.
  int number = 0;
  /// One English sentence.
  std::string text;
};

/// All mistakes: missing locales, invalid days, 29 February, empty or repeated names, events wholly hidden behind earlier
/// ones. Empty: the calendar is sound. Throws `Core::JsonException` for a file that is no calendar.
std::vector<CalendarFinding> CheckCalendar(const ioPath& file);

/// The calendar that album proposals would read now, without asking a server: the stored copy, else the shipped one.
ioPath CurrentCalendar();

/// What asking the server for the calendar gave.
struct CalendarUpdate {
  bool ok = false;
  ioPath file;        ///< The copy that serves now.
  std::string cause;  ///< Why not ok, for a person.
};

/// Asks the server for a newer calendar, whatever the age of the stored copy, and waits for the answer in an event loop.
CalendarUpdate UpdateCalendar();

}  // namespace Zenvora::Lumidex::Host
