#include "AlbumGrouping.h"

#include <QDateTime>

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

namespace Zenvora::Util {

using Lumidex::Album;
using Lumidex::DataAttributeId;
using Lumidex::DataModel;
using Lumidex::ItemType;

namespace {

// Fewer pictures make a moment, not an album.
constexpr std::size_t LEAST_PHOTOS = 20;
// The year in which the calendar's days are read. It is no leap year, so 29 February has no key date; an
// invalid date's Julian day is the least number there is, so such a photo lies "before" every day. Kept on
// purpose.
constexpr int REFERENCE_YEAR = 1900;

struct Interval {
  QDate first;
  QDate last;
};

struct Group {
  Interval interval;
  std::vector<QString> photoIds;
};

bool RunsOverNewYear(const HolidayEvent& event) {
  return event.start.toJulianDay() > event.end.toJulianDay();
}

bool Holds(const HolidayEvent& event, const QDate& key) {
  const qint64 day = key.toJulianDay();
  const qint64 start = event.start.toJulianDay();
  const qint64 end = event.end.toJulianDay();
  return start <= end ? start <= day && day <= end : day >= start || day <= end;
}

QDate InYear(const QDate& date, int year) {
  return QDate(year, date.month(), date.day());
}

/// The year in which the occurrence that holds a photo of `year` begins.
int FirstYearOf(const HolidayEvent& event, int year, const QDate& key) {
  const bool isNewYearsPart = RunsOverNewYear(event) && key.toJulianDay() <= event.end.toJulianDay();
  return isNewYearsPart ? year - 1 : year;
}

Interval OccurrenceFrom(const HolidayEvent& event, int firstYear) {
  return {InYear(event.start, firstYear),
          InYear(event.end, RunsOverNewYear(event) ? firstYear + 1 : firstYear)};
}

std::optional<Interval> WeekendOf(const QDate& day) {
  switch (day.dayOfWeek()) {
    case Qt::Saturday:
      return Interval{day, day.addDays(1)};
    case Qt::Sunday:
      return Interval{day.addDays(-1), day};
    default:
      return std::nullopt;
  }
}

/// The group table. Photos of one day share a group, intervals of one name too: both are remembered, so that
/// a collection of any size scans the events once for each day of the year and words an interval once for
/// each group.
class Grouping {
 public:
  Grouping(const std::vector<HolidayEvent>& events, const AlbumTexts& texts)
      : events_(events), texts_(texts) {}

  void Add(const DataModel& photo) {
    const QDate day = photo.GetDateTime().date();
    const auto [known, isNew] = groupOfDay_.try_emplace(day.toJulianDay(), nullptr);
    if (isNew) {
      known->second = FindGroup(day);
    }
    if (known->second) {
      known->second->photoIds.push_back(photo.GetId());
    }
  }

  std::vector<Album> MakeAlbums() const {
    std::vector<Album> albums;
    for (const auto& [name, group] : groups_) {
      if (group.photoIds.size() < LEAST_PHOTOS) {
        continue;
      }
      DataModel model(name, texts_.makeId(), ItemType::Album);
      // What `QDateTime(QDate)` gives: where the clocks skip midnight, the day begins at one o'clock.
      model.SetDateTime(group.interval.first.startOfDay(Qt::LocalTime));
      const Album::Attributes attributes = {{DataAttributeId::CoverPhoto, QString()},
                                            {DataAttributeId::Description, QString()}};
      albums.emplace_back(model, group.photoIds, attributes);
    }
    return albums;
  }

 private:
  // Event index or WEEKEND, then what tells its intervals apart by name.
  using OccurrenceKey = std::pair<std::ptrdiff_t, qint64>;
  static constexpr std::ptrdiff_t NO_EVENT = -1;
  static constexpr std::ptrdiff_t WEEKEND = -1;

  Group* FindGroup(const QDate& day) {
    const QDate key(REFERENCE_YEAR, day.month(), day.day());
    const std::ptrdiff_t event = FindEvent(key, day);
    if (event != NO_EVENT) {
      const HolidayEvent& holiday = events_[static_cast<std::size_t>(event)];
      const int firstYear = FirstYearOf(holiday, day.year(), key);
      return GroupFor({event, firstYear}, holiday.name, OccurrenceFrom(holiday, firstYear));
    }
    if (const auto weekend = WeekendOf(day)) {
      // Weekends of one month are named alike, unless one reaches into the next month.
      const QDate& first = weekend->first;
      const qint64 months = (static_cast<qint64>(first.year()) * 12 + first.month()) * 2;
      return GroupFor({WEEKEND, months + (weekend->last.month() == first.month() ? 0 : 1)},
                      QStringLiteral("Weekend"), *weekend);
    }
    return nullptr;
  }

  Group* GroupFor(const OccurrenceKey& key, const QString& title, const Interval& interval) {
    const auto [known, isNew] = groupOfOccurrence_.try_emplace(key, nullptr);
    if (isNew) {
      // Both placeholders at once: a "%1" inside the title stays as it is.
      const QString name =
          QStringLiteral("%1\n%2").arg(title, texts_.wordInterval(interval.first, interval.last));
      known->second = &groups_.try_emplace(name, Group{interval, {}}).first->second;
    }
    return known->second;
  }

  /// The first event in file order that holds the key; `NO_EVENT` also when that one has no name.
  std::ptrdiff_t FindEvent(const QDate& key, const QDate& day) {
    auto& known = eventOfDay_[static_cast<std::size_t>(day.month()) * DAYS_PER_MONTH +
                              static_cast<std::size_t>(day.day())];
    if (!known) {
      known = NO_EVENT;
      for (std::size_t i = 0; i < events_.size(); ++i) {
        if (Holds(events_[i], key)) {
          known = events_[i].name.isEmpty() ? NO_EVENT : static_cast<std::ptrdiff_t>(i);
          break;
        }
      }
    }
    return *known;
  }

  static constexpr std::size_t DAYS_PER_MONTH = 32;

  const std::vector<HolidayEvent>& events_;
  const AlbumTexts& texts_;
  // By month (0: no date) and day.
  std::array<std::optional<std::ptrdiff_t>, 13 * DAYS_PER_MONTH> eventOfDay_;
  std::map<QString, Group> groups_;
  std::map<OccurrenceKey, Group*> groupOfOccurrence_;
  std::unordered_map<qint64, Group*> groupOfDay_;
};

}  // namespace

std::vector<Album> MakeHolidayAlbums(const std::vector<HolidayEvent>& events,
                                     const std::vector<DataModel>& photos, const AlbumTexts& texts) {
  Grouping grouping(events, texts);
  for (const DataModel& photo : photos) {
    grouping.Add(photo);
  }
  return grouping.MakeAlbums();
}

}  // namespace Zenvora::Util
