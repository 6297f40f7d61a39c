#include "AlbumGrouping.h"

#include <LumidexUtil/HolidayAlbums.h>
#include <LumidexUtil/Wording.h>

#include <zenvora/app/Application.h>
#include <zenvora/core/Exception.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/quillet/config/Config.h>
#include <zenvora/tavolin/DownloadableResource.h>
#include <zenvora/tavolin/Uuid.h>

#include <boost/exception/diagnostic_information.hpp>
#include <glog/logging.h>

#include <QObject>

#include <string>
#include <utility>

namespace Zenvora::Util {

using Lumidex::Album;
using Lumidex::DataModel;
using Quillet::ISerializer;

namespace {

const std::string RESOURCE_NAME = "HolidayEvents";
const std::string KEY_EVENTS = "events";
const std::string KEY_EVENT = "event";
const std::string KEY_START = "start";
const std::string KEY_END = "end";

// Readers of logs know the missing-node report by its file and line: the number stays when the source around
// it moves.
constexpr int MISSING_NODE_LINE = 160;

// No year in the text: Qt puts every date into 1900.
QDate ReadDay(const ISerializer& event, const std::string& key) {
  return QDateTime::fromString(QString::fromStdString(event.GetText(key, std::string())),
                               QStringLiteral("dd.MM"))
      .date();
}

/// One generation: gets the calendar, reads it, makes the albums, hands them over and deletes itself.
class Impl : public QObject, public Quillet::Config::IParserConfigBase, public Tavolin::DownloadableResource {
 public:
  Impl(std::vector<DataModel>&& photos, std::function<void(const std::vector<Album>&)> done) {
    Init(QString::fromStdString(RESOURCE_NAME), QStringLiteral("json"), QStringLiteral("holidayEvents"));
    SetDownloadHandler(
        [this, done = std::move(done), photos = std::move(photos)](
            bool ok, const Tavolin::IDownloadableResourceInfo& info) { Finish(ok, info, photos, done); });
    StartDownload(false);
  }

  ~Impl() override = default;

  void Deserialize(const boost::intrusive_ptr<const ISerializer>& root) override {
    if (!root->HasChild(KEY_EVENTS)) {
      Core::JsonException missing;
      missing << TagParseError("Not all required nodes are found in config");
      boost::throw_exception(missing,
                             boost::source_location(__FILE__, MISSING_NODE_LINE, BOOST_CURRENT_FUNCTION));
    }
    const std::string locale = App::GetCurrentLocale();
    const auto locales = root->GetChild(KEY_EVENTS);
    events_.clear();
    if (!locales->HasChild(locale)) {
      return;
    }
    const auto list = locales->GetArray(locale);
    const std::size_t length = list->GetLength();
    events_.reserve(length);
    for (std::size_t i = 0; i < length; ++i) {
      const auto event = list->GetElement(i);
      const QDate end = ReadDay(*event, KEY_END);
      const QDate start = ReadDay(*event, KEY_START);
      events_.push_back({QString::fromStdString(event->GetText(KEY_EVENT, std::string())), start, end});
    }
  }

 private:
  void Finish(bool ok, const Tavolin::IDownloadableResourceInfo& info, const std::vector<DataModel>& photos,
              const std::function<void(const std::vector<Album>&)>& done) {
    calendarPath_ = ok ? info.GetFilePath().toStdString() : ShippedCalendar();
    ReadCalendar();
    done(MakeHolidayAlbums(events_, photos, {GetDateIntervalString, Tavolin::GenerateUuid}));
    deleteLater();
  }

  static std::string ShippedCalendar() {
    ioPath file = App::GetPathToResources();
    file /= RESOURCE_NAME + ".json";
    return file.utf8string();
  }

  void ReadCalendar() {
    try {
      Quillet::Config::BaseConfig().Parse(*this, std::string(), calendarPath_, false);
    } catch (const boost::exception& failure) {
      // Weekend albums need no calendar.
      LOG(ERROR) << boost::diagnostic_information(failure);
    }
  }

  std::string calendarPath_;
  std::vector<HolidayEvent> events_;
};

}  // namespace

void GenerateHolidayAlbums(std::vector<DataModel>&& photos,
                           std::function<void(const std::vector<Album>&)> done) {
  // It owns itself: see Impl.
  new Impl(std::move(photos), std::move(done));
}

}  // namespace Zenvora::Util
