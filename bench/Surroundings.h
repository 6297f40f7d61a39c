#pragma once

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Bench {

struct CalendarEvent {
  std::string name;
  std::string start;  ///< "dd.MM"
  std::string end;
};

/// The events that every benchmark's calendar holds.
const std::vector<CalendarEvent>& Calendar();

void WriteCalendar(const ioPath& folder);

}  // namespace Zenvora::Bench
