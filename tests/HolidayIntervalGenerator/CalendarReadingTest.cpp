#include "HolidayFixture.h"

#include <gmock/gmock.h>

namespace Zenvora::Test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const QDate kSaturday(2015, 3, 7);
const QDate kMonday(2015, 3, 2);

class CalendarReading : public HolidayTest {
 protected:
  // Twenty photos of a weekend, which are found whatever becomes of the calendar, and of a working day.
  std::vector<std::string> Names() {
    return GenerateNames(Join({PhotosOf(kSaturday, 20), PhotosOf(kMonday, 20)}));
  }
};

TEST_F(CalendarReading, ReadsTheShippedCalendarWhenNothingIsDownloaded) {
  ShipEvents({{"Spring", "02.03", "02.03"}});
  EXPECT_THAT(Names(), ElementsAre("Spring\n02 March 2015", "Weekend\nMarch 2015"));
  EXPECT_THAT(log.Lines(google::GLOG_ERROR), IsEmpty());
}

TEST_F(CalendarReading, LogsAMissingCalendarAndFindsWeekendsOnly) {
  EXPECT_THAT(Names(), ElementsAre("Weekend\nMarch 2015"));
  const auto errors = log.Lines(google::GLOG_ERROR);
  ASSERT_THAT(errors, SizeIs(1));
  EXPECT_EQ(errors[0].source, "HolidayIntervalGenerator/HolidayIntervalGenerator.cpp");
  EXPECT_THAT(errors[0].text, AllOf(HasSubstr(tree.Path("resources/HolidayEvents.json").utf8string()),
                                    HasSubstr("JsonException"), HasSubstr("TagParseError")));
}

TEST_F(CalendarReading, LogsACalendarThatIsNotJson) {
  ShipCalendar("{ \"events\": ");
  EXPECT_THAT(Names(), ElementsAre("Weekend\nMarch 2015"));
  ASSERT_THAT(log.Lines(google::GLOG_ERROR), SizeIs(1));
  EXPECT_THAT(log.Lines(google::GLOG_ERROR)[0].text, HasSubstr("is not JSON"));
}

TEST_F(CalendarReading, LogsAMissingEventsMemberWithItsThrowSite) {
  ShipCalendar(R"({"holidays": {}})");
  EXPECT_THAT(Names(), ElementsAre("Weekend\nMarch 2015"));
  const auto errors = log.Lines(google::GLOG_ERROR);
  ASSERT_THAT(errors, SizeIs(1));
  EXPECT_THAT(
      errors[0].text,
      AllOf(HasSubstr("HolidayIntervalGenerator/HolidayIntervalGenerator.cpp(160): Throw in function"),
            HasSubstr("Deserialize("), HasSubstr("ISerializer"), HasSubstr("JsonException"),
            HasSubstr("Not all required nodes are found in config")));
}

TEST_F(CalendarReading, FindsWeekendsOnlyWithoutEventsOfTheLanguageAndLogsNothing) {
  ShipEvents({{"Spring", "02.03", "02.03"}});
  language->locale = "ru_RU";
  EXPECT_THAT(Names(), ElementsAre("Weekend\n\xD0\x9C\xD0\xB0\xD1\x80\xD1\x82 2015"));
  EXPECT_THAT(log.Lines(google::GLOG_ERROR), IsEmpty());
}

TEST_F(CalendarReading, ComparesTheLanguageExactly) {
  for (const char* near : {"en", "en_us", "EN_US", "en-US", "en_GB", "en_US.UTF-8", "/events"}) {
    ShipCalendar(CalendarJson(near, {{"Spring", "02.03", "02.03"}}));
    EXPECT_THAT(Names(), ElementsAre("Weekend\nMarch 2015")) << near;
  }
}

TEST_F(CalendarReading, ReadsTheLanguageWhenItParsesNotWhenItIsCalled) {
  ShipCalendar(R"({"events": {
    "en_US": [{"event": "Spring", "start": "02.03", "end": "02.03"}],
    "de_DE": [{"event": "Frühling", "start": "02.03", "end": "02.03"}]}})");
  // A store exists: the answer of the server is awaited.
  settings->SetString(App::SettingsKey::kDownloadBaseUrl, "http://calendar.test");
  auto network = std::make_shared<ScriptedDownloads>();
  const App::ServiceScope<App::IDownloads> scope(network);
  std::vector<std::string> names;
  Util::GenerateHolidayAlbums(PhotosOf(kMonday, 20), [&](const std::vector<Lumidex::Album>& albums) {
    for (const auto& album : albums) {
      names.push_back(album.GetModel().GetName().toStdString());
    }
  });
  ASSERT_EQ(network->OpenRequests(), 1U);
  language->locale = "de_DE";
  App::DownloadReply failure;
  failure.error = "gone";
  ASSERT_TRUE(network->Answer(failure));
  EXPECT_THAT(names, ElementsAre("Fr\xC3\xBChling\n02 M\xC3\xA4rz 2015"));
}

TEST_F(CalendarReading, IgnoresOtherMembers) {
  ShipCalendar(R"({"version": 3, "events": {"xx_XX": 7, "en_US": [
      {"event": "Spring", "start": "02.03", "end": "02.03", "colour": [1, {"a": null}]}]}, "more": {}})");
  EXPECT_THAT(Names(), ElementsAre("Spring\n02 March 2015", "Weekend\nMarch 2015"));
}

TEST_F(CalendarReading, TreatsAMissingNameAsNoEvent) {
  ShipCalendar(R"({"events": {"en_US": [{"start": "02.03", "end": "02.03"}]}})");
  EXPECT_THAT(Names(), ElementsAre("Weekend\nMarch 2015"));
  EXPECT_THAT(log.Lines(google::GLOG_ERROR), IsEmpty());
}

TEST_F(CalendarReading, KeepsEventsWithMalformedDates) {
  // None of these is a day of 1900, so none makes an event of 2 March; the sound one behind them is still
  // read.
  for (const char* text :
       {"", "2.3", "02-03", "02.03.2015", "32.01", "00.00", "29.02", "31.04", "second of March"}) {
    ShipEvents({{"Broken", text, text}, {"Spring", "02.03", "02.03"}});
    EXPECT_THAT(Names(), ElementsAre("Spring\n02 March 2015", "Weekend\nMarch 2015")) << text;
    EXPECT_THAT(log.Lines(google::GLOG_ERROR), IsEmpty()) << text;
  }
}

TEST_F(CalendarReading, TakesAMissingStartForTheBeginningOfTime) {
  // An invalid day lies before every valid one: the event holds every day up to its end.
  ShipCalendar(R"({"events": {"en_US": [{"event": "Early", "end": "02.03"}]}})");
  const auto albums = Generate(PhotosOf(kMonday, 20));
  ASSERT_THAT(albums, SizeIs(1));
  EXPECT_EQ(albums[0].GetModel().GetName().section('\n', 0, 0), QStringLiteral("Early"));
  EXPECT_FALSE(albums[0].GetModel().GetDateTime().isValid());
}

TEST_F(CalendarReading, TakesAMissingEndForAnEventOverNewYear) {
  ShipCalendar(R"({"events": {"en_US": [{"event": "Late", "start": "02.03"}]}})");
  const auto albums = Generate(PhotosOf(kMonday, 20));
  ASSERT_THAT(albums, SizeIs(1));
  EXPECT_EQ(albums[0].GetModel().GetName().section('\n', 0, 0), QStringLiteral("Late"));
  EXPECT_EQ(albums[0].GetModel().GetDateTime().date(), kMonday);
  EXPECT_THAT(Generate(PhotosOf(kMonday.addDays(-3), 20)), IsEmpty());
}

TEST_F(CalendarReading, KeepsWhatWasReadBeforeAnElementOfTheWrongKind) {
  ShipCalendar(R"({"events": {"en_US": [
      {"event": "Spring", "start": "02.03", "end": "02.03"},
      {"event": "Bad", "start": 5, "end": "03.03"},
      {"event": "Weekend's rival", "start": "07.03", "end": "07.03"}]}})");
  EXPECT_THAT(Names(), ElementsAre("Spring\n02 March 2015", "Weekend\nMarch 2015"));
  ASSERT_THAT(log.Lines(google::GLOG_ERROR), SizeIs(1));
  EXPECT_THAT(log.Lines(google::GLOG_ERROR)[0].text, HasSubstr("/events/en_US/1/start"));
}

TEST_F(CalendarReading, LogsWrongKindsOfNodes) {
  for (const char* json : {"[]", R"({"events": []})", R"({"events": null})", R"({"events": {"en_US": {}}})",
                           R"({"events": {"en_US": ["a"]}})", R"({"events": {"en_US": "01.01"}})"}) {
    LogCapture lines;
    ShipCalendar(json);
    EXPECT_THAT(Names(), ElementsAre("Weekend\nMarch 2015")) << json;
    EXPECT_THAT(lines.Lines(google::GLOG_ERROR), SizeIs(1)) << json;
  }
}

TEST_F(CalendarReading, ReadsNamesAsUtf8) {
  ShipEvents({{"\xD0\x9F\xD0\xB0\xD1\x81\xD1\x85\xD0\xB0 \xF0\x9F\x90\xA3", "02.03", "02.03"}});
  EXPECT_THAT(Names(), ::testing::Contains(
                           "\xD0\x9F\xD0\xB0\xD1\x81\xD1\x85\xD0\xB0 \xF0\x9F\x90\xA3\n02 March 2015"));
}

}  // namespace
}  // namespace Zenvora::Test
