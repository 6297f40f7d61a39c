#pragma once

#include <LumidexUtil/HolidayAlbums.h>
#include <support/Doubles.h>
#include <support/LogCapture.h>
#include <support/TempTree.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace Zenvora::Test {

struct Event {
  std::string name;
  std::string start;
  std::string end;
};

/// `count` photos of one day, at times that move on by a minute; ids are "<day>#<n>".
std::vector<Lumidex::DataModel> PhotosOf(const QDate& day, int count);
std::vector<Lumidex::DataModel> Join(std::initializer_list<std::vector<Lumidex::DataModel>> parts);

/// A host whose calendar is a file in its resource folder and whose network is out of reach, in English.
class HolidayTest : public ::testing::Test {
 protected:
  HolidayTest();
  ~HolidayTest() override;

  /// The calendar in the resource folder, as a whole text.
  void ShipCalendar(const std::string& json);
  /// The same from events of the current locale.
  void ShipEvents(const std::vector<Event>& events);
  static std::string CalendarJson(const std::string& locale, const std::vector<Event>& events);

  /// Runs one generation to its end and returns what it delivered.
  std::vector<Lumidex::Album> Generate(std::vector<Lumidex::DataModel> photos);
  std::vector<std::string> GenerateNames(std::vector<Lumidex::DataModel> photos);

  TempTree tree;
  LogCapture log;
  std::shared_ptr<FakeSettings> settings = std::make_shared<FakeSettings>();
  std::shared_ptr<FakeLookAndFeel> language = std::make_shared<FakeLookAndFeel>("en_US");

 private:
  App::ServiceScope<App::ISettingsManager> settingsScope_{settings};
  App::ServiceScope<App::ILookAndFeelManager> languageScope_{language};
  App::ServiceScope<App::IHostEnvironment> environmentScope_{
      std::make_shared<FakeEnvironment>(tree.Path("resources"))};
  App::ServiceScope<App::IDownloads> networkScope_{std::make_shared<ForbiddenDownloads>()};
};

}  // namespace Zenvora::Test
