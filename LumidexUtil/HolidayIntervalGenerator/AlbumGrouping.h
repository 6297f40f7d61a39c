#pragma once

#include <zenvora/lumidex/Album.h>
#include <zenvora/lumidex/DataModel.h>

#include <QDate>
#include <QString>

#include <functional>
#include <vector>

namespace Zenvora::Util {

/// A holiday of the calendar: a span of days without a year.
struct HolidayEvent {
  QString name;
  QDate start;  ///< First day, in the year 1900; invalid when the calendar's text was no day of that year.
  QDate end;    ///< Last day, likewise. Before `start`: the event runs over New Year.
};

/// What grouping needs from outside.
struct AlbumTexts {
  std::function<QString(const QDate& from, const QDate& to)> wordInterval;
  std::function<QString()> makeId;
};

/// Groups photos by holiday occurrence and weekend and makes an album of each group that is large enough, in
/// the order of the albums' names. Pure but for the two texts; `wordInterval` is called once for each
/// occurrence met, not per photo.
std::vector<Lumidex::Album> MakeHolidayAlbums(const std::vector<HolidayEvent>& events,
                                              const std::vector<Lumidex::DataModel>& photos,
                                              const AlbumTexts& texts);

}  // namespace Zenvora::Util
