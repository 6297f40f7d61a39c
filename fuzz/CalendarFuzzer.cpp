// A holiday calendar: checked as "lumidex calendar check" does, and made into albums.

#include "Fuzzer.h"
#include "InputFile.h"

#include <LumidexUtil/HolidayAlbums.h>
#include <host/albums/CalendarCheck.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/IDownloads.h>
#include <zenvora/app/IHostEnvironment.h>
#include <zenvora/app/RealServices.h>
#include <zenvora/core/Exception.h>

#include <glog/logging.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTemporaryDir>

#include <fstream>
#include <memory>

using namespace Zenvora;

namespace {

/// The shipped calendar is the input.
class Environment : public App::IHostEnvironment {
 public:
  ioPath ResourceFolder() const override { return ioPath(folder_.path()); }
  QWidget* MainWindow() const override { return nullptr; }

 private:
  const QTemporaryDir folder_;
};

std::shared_ptr<Environment> environment;

std::vector<Lumidex::DataModel> PhotosOfAYear() {
  constexpr int kDays = 365;
  std::vector<Lumidex::DataModel> photos;
  photos.reserve(kDays);
  for (int day = 0; day < kDays; ++day) {
    const QString id = QString::number(day);
    photos.emplace_back(id, id, Lumidex::ItemType::Photo);
    photos.back().SetDateTime(QDateTime(QDate(2023, 1, 1).addDays(day), QTime(12, 0)));
  }
  return photos;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  FLAGS_minloglevel = google::NUM_SEVERITIES;
  static const QTemporaryDir home;
  for (const char* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
    qputenv(folder, home.path().toUtf8());
  }
  static App::ApplicationOf<QCoreApplication> application(*argc, *argv);
  environment = std::make_shared<Environment>();
  application.GetServices().Exchange<App::IHostEnvironment>(environment);
  application.GetServices().Exchange(App::MakeFixedLookAndFeel("en_US"));
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Fuzz::InputFile file;
  static const std::vector<Lumidex::DataModel> photos = PhotosOfAYear();
  const std::string content = Fuzz::TextOf(data, size);
  file.Fill(content);
  try {
    Lumidex::Host::CheckCalendar(file.Path());
    Lumidex::Host::FindHidden(Lumidex::Host::ReadCalendar(file.Path(), "en_US"));
  } catch (const Exception&) {
    // Most inputs are no calendar.
  }

  std::ofstream((environment->ResourceFolder() / "HolidayEvents.json").native(), std::ios::binary) << content;
  std::vector<Lumidex::DataModel> own = photos;
  bool isDone = false;
  Util::GenerateHolidayAlbums(std::move(own), [&isDone](const std::vector<Lumidex::Album>& albums) {
    isDone = true;
    for (const Lumidex::Album& album : albums) {
      Fuzz::Demand(album.GetPhotoIds().size() >= 20, "an album has at least 20 photos");
    }
  });
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  Fuzz::Demand(isDone, "albums are handed over whatever the calendar holds");
  return 0;
}
