// Surroundings of the benchmarks: a host without network, with private folders and a calendar of fourteen
// events.

#include "Surroundings.h"

#include <zenvora/app/Application.h>
#include <zenvora/app/IHostEnvironment.h>
#include <zenvora/app/RealServices.h>

#include <benchmark/benchmark.h>
#include <glog/logging.h>

#include <QApplication>
#include <QTemporaryDir>

#include <fstream>
#include <thread>

namespace Zenvora::Bench {

namespace {

class PrivateEnvironment : public App::IHostEnvironment {
 public:
  explicit PrivateEnvironment(const ioPath& folder) : folder_(folder) {}
  ioPath ResourceFolder() const override { return folder_; }
  QWidget* MainWindow() const override { return nullptr; }

 private:
  const ioPath folder_;
};

}  // namespace

void WriteCalendar(const ioPath& folder) {
  std::ofstream file((folder / "HolidayEvents.json").native());
  file << R"({"events": {"en_US": [)";
  const char* separator = "";
  for (const CalendarEvent& event : Calendar()) {
    file << separator << R"({"event": ")" << event.name << R"(", "start": ")" << event.start
         << R"(", "end": ")" << event.end << R"("})";
    separator = ", ";
  }
  file << "]}}";
}

const std::vector<CalendarEvent>& Calendar() {
  static const std::vector<CalendarEvent> events = {
      {"New Year", "31.12", "01.01"},    {"Winter Fair", "06.01", "07.01"},
      {"Sweethearts", "14.02", "14.02"}, {"Women's Day", "08.03", "08.03"},
      {"Spring Fair", "17.03", "18.03"}, {"April Fools", "01.04", "01.04"},
      {"Labour Day", "01.05", "02.05"},  {"Children's Day", "01.06", "01.06"},
      {"Midsummer", "23.06", "25.06"},   {"Independence", "04.07", "04.07"},
      {"Harvest", "15.08", "16.08"},     {"Unity", "03.10", "03.10"},
      {"Halloween", "30.10", "01.11"},   {"Christmas", "24.12", "26.12"}};
  return events;
}

}  // namespace Zenvora::Bench

int main(int argc, char** argv) {
  using namespace Zenvora;
  benchmark::Initialize(&argc, argv);
  const QTemporaryDir home;
  for (const char* folder : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
    qputenv(folder, home.path().toUtf8());
  }
  qputenv("TZ", "UTC");
  qputenv("QT_QPA_PLATFORM", "offscreen");
  FLAGS_logtostderr = true;
  google::InitGoogleLogging(argv[0]);
  App::ApplicationOf<QApplication> application(argc, argv);
  const ioPath folder(home.path());
  Bench::WriteCalendar(folder);
  auto& services = application.GetServices();
  services.Exchange<App::IHostEnvironment>(std::make_shared<Bench::PrivateEnvironment>(folder));
  services.Exchange(App::MakeFixedLookAndFeel("en_US"));
  // Opening a file and taking a lock are cheaper until a process has made its first thread: all rows alike.
  std::thread([] {}).join();
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
