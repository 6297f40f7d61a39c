#include "PlainAlbums.h"

#include "Surroundings.h"

#include <LumidexUtil/Wording.h>

#include <zenvora/tavolin/Uuid.h>

#include <QDate>
#include <QDateTime>

#include <map>

namespace Zenvora::Bench {

using Lumidex::Album;
using Lumidex::DataModel;

namespace {

struct Event {
  QString name;
  QDate start;
  QDate end;
};

struct Group {
  QDate first;
  QDate last;
  std::vector<QString> ids;
};

QDate Day(const std::string& text) {
  return QDateTime::fromString(QString::fromStdString(text), QStringLiteral("dd.MM")).date();
}

std::vector<Event> Events() {
  std::vector<Event> events;
  for (const CalendarEvent& event : Calendar()) {
    events.push_back({QString::fromStdString(event.name), Day(event.start), Day(event.end)});
  }
  return events;
}

void Join(std::map<QString, Group>& groups, const QString& title, const QDate& first, const QDate& last,
          const DataModel& photo) {
  const QString name = QStringLiteral("%1\n%2").arg(title, Util::GetDateIntervalString(first, last));
  auto found = groups.find(name);
  if (found == groups.end()) {
    found = groups.emplace(name, Group{first, last, {}}).first;
  }
  found->second.ids.push_back(photo.GetId());
}

}  // namespace

std::vector<Album> MakePlainAlbums(const std::vector<DataModel>& photos) {
  const std::vector<Event> events = Events();
  std::map<QString, Group> groups;
  for (const DataModel& photo : photos) {
    const QDate day = photo.GetDateTime().date();
    const QDate key(1900, day.month(), day.day());
    const Event* match = nullptr;
    for (const Event& event : events) {
      const bool overNewYear = event.end < event.start;
      if (overNewYear ? key >= event.start || key <= event.end : event.start <= key && key <= event.end) {
        match = &event;
        break;
      }
    }
    if (match) {
      const bool overNewYear = match->end < match->start;
      const int year = overNewYear && key <= match->end ? day.year() - 1 : day.year();
      Join(groups, match->name, QDate(year, match->start.month(), match->start.day()),
           QDate(overNewYear ? year + 1 : year, match->end.month(), match->end.day()), photo);
    } else if (day.dayOfWeek() >= Qt::Saturday) {
      const QDate saturday = day.addDays(Qt::Saturday - day.dayOfWeek());
      Join(groups, QStringLiteral("Weekend"), saturday, saturday.addDays(1), photo);
    }
  }
  std::vector<Album> albums;
  for (const auto& [name, group] : groups) {
    if (group.ids.size() >= 20) {
      DataModel model(name, Tavolin::GenerateUuid(), Lumidex::ItemType::Album);
      model.SetDateTime(QDateTime(group.first, QTime(0, 0)));
      albums.emplace_back(model, group.ids,
                          Album::Attributes{{Lumidex::DataAttributeId::CoverPhoto, QString()},
                                            {Lumidex::DataAttributeId::Description, QString()}});
    }
  }
  return albums;
}

}  // namespace Zenvora::Bench
