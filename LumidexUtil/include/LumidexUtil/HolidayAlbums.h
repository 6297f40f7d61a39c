#pragma once

#include <LumidexUtil/Export.h>

#include <zenvora/lumidex/Album.h>
#include <zenvora/lumidex/DataModel.h>

#include <functional>
#include <vector>

namespace Zenvora::Util {

/// Proposes one album for each holiday occurrence and for the weekends of each month that hold at least 20
/// photos.
///
/// `photos`: the whole collection, moved in. Only id and date-time are read; every item is taken for a photo.
/// A photo belongs to the first event of the calendar that holds its day, else, on a Saturday or Sunday, to
/// its weekend. `done`: called exactly once with the albums in the order of their names (UTF-16 units). An
/// album's name is the event's name or "Weekend", a line feed and the interval text of
/// `GetDateIntervalString`; its members are in the order of `photos`; its date-time is the first moment, in
/// local time, of the first day of the interval of the photo that came first: 00:00, or later where the
/// clocks skip midnight.
///
/// The calendar is the resource "HolidayEvents" (docs/formats/calendar.md) in the interface language at the
/// time of reading. Without a server's copy the one in the host's resource folder serves; without any, or
/// with a broken one (which is logged as an error), only weekends are found.
///
/// What may surprise, and is meant:
/// - The calendar's first event that holds a day takes it, even if that event has no name: then the day
/// counts as none
///   and later events of that day are hidden.
/// - The word "Weekend" is not translated. All weekends of one month that lie in no event make one album.
/// - Days are looked up in the year 1900. A photo of 29 February, or without a valid date, has no day there
/// and joins only
///   the first event that runs over New Year; an undated one then dates its album to the year -1.
///
/// Call it on the GUI thread, since the texts are worded in the interface language there. Returns at once.
/// `done` runs on the same thread, inside this call or later from its event loop, which is needed in either
/// case to clean up. An empty `done` makes that call throw `std::bad_function_call` at completion. Time and
/// memory grow linearly with the photos.
LUMIDEXUTIL_EXPORT void GenerateHolidayAlbums(std::vector<Lumidex::DataModel>&& photos,
                                              std::function<void(const std::vector<Lumidex::Album>&)> done);

}  // namespace Zenvora::Util
