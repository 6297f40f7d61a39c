#include "HolidayFixture.h"

#include <zenvora/app/UserFolders.h>

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <iterator>

namespace Zenvora::Test {

using Lumidex::Album;
using Lumidex::DataModel;

std::vector<DataModel> PhotosOf(const QDate& day, int count) {
  std::vector<DataModel> photos;
  for (int i = 0; i < count; ++i) {
    DataModel photo(QStringLiteral("IMG"), day.toString(Qt::ISODate) + QLatin1Char('#') + QString::number(i),
                    Lumidex::ItemType::Photo);
    photo.SetDateTime(QDateTime(day, QTime(9, 0).addSecs(i * 60)));
    photos.push_back(photo);
  }
  return photos;
}

std::vector<DataModel> Join(std::initializer_list<std::vector<DataModel>> parts) {
  std::vector<DataModel> all;
  for (const auto& part : parts) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

namespace {

void ForgetStoredCalendar() {
  QDir((App::FolderOfUser(App::UserFolder::Cache) / "lumidex").qstring()).removeRecursively();
}

}  // namespace

HolidayTest::HolidayTest() {
  ForgetStoredCalendar();
}

HolidayTest::~HolidayTest() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ForgetStoredCalendar();
}

void HolidayTest::ShipCalendar(const std::string& json) {
  tree.Write("resources/HolidayEvents.json", json);
}

void HolidayTest::ShipEvents(const std::vector<Event>& events) {
  ShipCalendar(CalendarJson(language->locale, events));
}

std::string HolidayTest::CalendarJson(const std::string& locale, const std::vector<Event>& events) {
  QJsonArray list;
  for (const Event& event : events) {
    list.append(QJsonObject{{"event", QString::fromStdString(event.name)},
                            {"start", QString::fromStdString(event.start)},
                            {"end", QString::fromStdString(event.end)}});
  }
  const QJsonObject root{{"events", QJsonObject{{QString::fromStdString(locale), list}}}};
  return QJsonDocument(root).toJson().toStdString();
}

std::vector<Album> HolidayTest::Generate(std::vector<DataModel> photos) {
  std::vector<Album> delivered;
  int calls = 0;
  Util::GenerateHolidayAlbums(std::move(photos), [&](const std::vector<Album>& albums) {
    delivered = albums;
    ++calls;
  });
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(calls, 1) << "the callback runs exactly once";
  return delivered;
}

std::vector<std::string> HolidayTest::GenerateNames(std::vector<DataModel> photos) {
  const std::vector<Album> albums = Generate(std::move(photos));
  std::vector<std::string> names;
  std::transform(albums.begin(), albums.end(), std::back_inserter(names),
                 [](const Album& album) { return album.GetModel().GetName().toStdString(); });
  return names;
}

}  // namespace Zenvora::Test
