#pragma once

#include <zenvora/core/ioPath.h>

#include <QDate>
#include <QString>

#include <atomic>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// One event of a holiday calendar as written (docs/formats/calendar.md); dates lie in the year 1900 or are
/// invalid.
struct CalendarEvent {
  QString name;
  QDate start;
  QDate end;
};

/// The events of one locale in file order; none when the file has no list for it. Throws
/// `Core::JsonException` for a file that is no calendar.
std::vector<CalendarEvent> ReadCalendar(const ioPath& file, const std::string& locale);

/// A mistake in a calendar file.
struct CalendarFinding {
  std::string locale;
  /// Position in the locale's list, from 1; 0: the list as a whole.
  int number = 0;
  /// One English sentence.
  std::string text;
};

/// All mistakes: missing locales, locales that are no interface language, invalid days, 29 February, empty or
/// repeated names, events wholly hidden behind earlier ones. Ordered by locale (as `App::InterfaceLanguages`,
/// then the others by name), then number. Empty: the calendar is sound. Throws `Core::JsonException` for a
/// file that is no calendar.
std::vector<CalendarFinding> CheckCalendar(const ioPath& file);

/// For each event: the numbers (from 1) of the earlier events that together cover all its days; empty where
/// one of its days is its own. Pure. An event without valid days neither hides nor is hidden.
std::vector<std::vector<int>> FindHidden(const std::vector<CalendarEvent>& events);

/// Where a calendar comes from.
enum class CalendarSource { Stored, Shipped };

struct CalendarFile {
  CalendarSource source = CalendarSource::Shipped;
  ioPath file;
};

/// The calendar that album proposals would read now, without asking a server: the stored copy if it can be
/// read, else the shipped one (which may be missing). Blocks on the disk.
CalendarFile FindCurrentCalendar();
ioPath CurrentCalendar();

/// What asking the server for the calendar gave.
struct CalendarUpdate {
  bool ok = false;       ///< The server's calendar is in place.
  bool changed = false;  ///< It differs from the copy before.
  ioPath file;           ///< The calendar that serves now; empty: none can be read.
  std::string cause;     ///< Why not ok, for a person.
};

/// Asks the server for a newer calendar, whatever the age of the stored copy, and waits for the answer in an
/// event loop of its own. Needs an application object. Not ok when no server is set. `cancel` (may be null):
/// when set while waiting, throws `HostError`.
CalendarUpdate UpdateCalendar(const std::atomic<bool>* cancel = nullptr);

}  // namespace Zenvora::Lumidex::Host
