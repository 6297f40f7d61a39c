#include <host/albums/CalendarCheck.h>
#include <host/base/HostError.h>
#include <support/Doubles.h>
#include <support/LogCapture.h>
#include <support/TempTree.h>

#include <zenvora/app/RealServices.h>
#include <zenvora/app/UserFolders.h>
#include <zenvora/core/Exception.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QTimer>

#include <memory>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::FakeEnvironment;
using Test::FakeSettings;
using Test::LogCapture;
using Test::ReadFile;
using Test::ScriptedDownloads;
using Test::TempTree;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

struct Written {
  std::string name;
  std::string start;
  std::string end;
};

std::string ListOf(const std::vector<Written>& events) {
  std::string text;
  for (const Written& event : events) {
    text += (text.empty() ? "" : ",") + (R"({"event": ")" + event.name) + R"(", "start": ")" + event.start +
            R"(", "end": ")" + event.end + "\"}";
  }
  return "[" + text + "]";
}

/// A calendar in which `events` are those of en_US and the other locales have a sound list.
std::string CalendarOf(const std::vector<Written>& events) {
  std::string text;
  for (const std::string& locale : App::InterfaceLanguages()) {
    text += (text.empty() ? "" : ",") + ("\"" + locale + "\": ") +
            ListOf(locale == "en_US" ? events : std::vector<Written>{{"A", "01.01", "01.01"}});
  }
  return R"({"events": {)" + text + "}}";
}

class CheckingACalendar : public ::testing::Test {
 protected:
  std::vector<std::string> Findings(const std::vector<Written>& events) {
    std::vector<std::string> texts;
    for (const CalendarFinding& finding : CheckCalendar(tree.Write("calendar.json", CalendarOf(events)))) {
      EXPECT_EQ(finding.locale, "en_US");
      texts.push_back(std::to_string(finding.number) + ": " + finding.text);
    }
    return texts;
  }

  TempTree tree;
};

TEST_F(CheckingACalendar, FindsNothingInASoundOne) {
  EXPECT_THAT(
      Findings({{"Eve", "31.12", "31.12"}, {"Holidays", "20.12", "06.01"}, {"May", "01.05", "31.05"}}),
      IsEmpty());
}

TEST_F(CheckingACalendar, FindsDaysThatAreNone) {
  struct Row {
    const char* day;
    const char* complaint;
  };
  for (const Row& row :
       {Row{"1.5", "not in the form"}, Row{"01-05", "not in the form"}, Row{"01.05.", "not in the form"},
        Row{"May 1", "not in the form"}, Row{"31.04", "not a day of the year"},
        Row{"32.01", "not a day of the year"}, Row{"00.01", "not a day of the year"},
        Row{"01.13", "not a day of the year"}, Row{"", "is missing"}, Row{"29.02", "29.02"}}) {
    EXPECT_THAT(Findings({{"A", row.day, "31.12"}}), ElementsAre(HasSubstr(row.complaint))) << row.day;
    EXPECT_THAT(Findings({{"A", "01.01", row.day}}), ElementsAre(HasSubstr(row.complaint))) << row.day;
  }
  for (const char* const day : {"01.01", "31.12", "28.02", "01.03", "30.04"}) {
    EXPECT_THAT(Findings({{"A", day, day}}), IsEmpty()) << day;
  }
}

TEST_F(CheckingACalendar, NamesTheEventAndTheEndThatIsWrong) {
  EXPECT_THAT(Findings({{"A", "01.01", "01.01"}, {"Leap Day", "28.02", "29.02"}}),
              ElementsAre("2: The end of the event \"Leap Day\" is 29.02, which not every year has."));
}

TEST_F(CheckingACalendar, FindsMissingMembers) {
  const ioPath file = tree.Write("calendar.json", R"({"events": {"en_US": [{}]}})");
  const auto findings = CheckCalendar(file);
  ASSERT_GE(findings.size(), 3U);
  EXPECT_THAT(findings[0].text, HasSubstr("no name"));
  EXPECT_THAT(findings[1].text, HasSubstr("start"));
  EXPECT_THAT(findings[2].text, HasSubstr("end"));
}

TEST_F(CheckingACalendar, FindsEmptyAndRepeatedNames) {
  EXPECT_THAT(
      Findings({{"A", "01.01", "01.01"}, {"", "02.01", "02.01"}, {"A", "03.01", "03.01"}}),
      ElementsAre(HasSubstr("2: The event has no name"), "3: The name \"A\" is already that of event 1."));
}

TEST_F(CheckingACalendar, FindsMissingLocales) {
  const ioPath file = tree.Write("calendar.json", R"({"events": {"de_DE": []}})");
  std::vector<std::string> missing;
  for (const CalendarFinding& finding : CheckCalendar(file)) {
    EXPECT_EQ(finding.number, 0);
    missing.push_back(finding.locale);
  }
  EXPECT_THAT(missing, ElementsAre("en_US", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pt_BR", "ru_RU"));
}

TEST_F(CheckingACalendar, FindsLocalesOfNoInterfaceLanguage) {
  std::string text = CalendarOf({{"A", "01.01", "01.01"}});
  text.insert(text.rfind("}}"),
              R"(, "xx": 7, "en_us": [{"event": "", "start": "01.01", "end": "01.01"}], "pt_PT": [])");
  std::vector<std::string> texts;
  for (const CalendarFinding& finding : CheckCalendar(tree.Write("calendar.json", text))) {
    texts.push_back(finding.locale + ' ' + std::to_string(finding.number) + ": " + finding.text);
  }
  EXPECT_THAT(texts, ElementsAre("en_us 0: No interface language has this name; did you mean en_US?",
                                 HasSubstr("en_us 1: The event has no name"),
                                 "pt_PT 0: No interface language has this name; did you mean pt_BR?",
                                 "xx 0: No interface language has this name.",
                                 "xx 0: This is not a list of events."));
}

TEST_F(CheckingACalendar, FindsEventsThatOthersHide) {
  struct Row {
    const char* what;
    std::vector<Written> events;
    bool isHidden;
  };
  const std::vector<Row> rows = {
      {"the same days", {{"A", "01.05", "03.05"}, {"B", "01.05", "03.05"}}, true},
      {"inside", {{"A", "01.05", "03.05"}, {"B", "02.05", "02.05"}}, true},
      {"one day longer", {{"A", "01.05", "03.05"}, {"B", "01.05", "04.05"}}, false},
      {"wider behind narrower", {{"A", "02.05", "02.05"}, {"B", "01.05", "03.05"}}, false},
      {"two together", {{"A", "01.05", "02.05"}, {"C", "03.05", "04.05"}, {"B", "01.05", "04.05"}}, true},
      {"two with a gap", {{"A", "01.05", "02.05"}, {"C", "04.05", "05.05"}, {"B", "01.05", "05.05"}}, false},
      {"over New Year, by two halves",
       {{"A", "20.12", "31.12"}, {"C", "01.01", "06.01"}, {"B", "24.12", "02.01"}},
       true},
      {"over New Year, by one", {{"A", "18.12", "02.01"}, {"B", "31.12", "01.01"}}, true},
      {"over New Year, reaching out", {{"A", "31.12", "01.01"}, {"B", "18.12", "02.01"}}, false},
      {"in January, behind one over New Year", {{"A", "18.12", "06.01"}, {"B", "06.01", "06.01"}}, true},
      {"the whole year", {{"A", "01.01", "31.12"}, {"B", "28.02", "01.03"}}, true},
      {"a year that ends in its middle", {{"A", "02.07", "01.07"}, {"B", "01.07", "02.07"}}, true},
  };
  for (const Row& row : rows) {
    const auto findings = Findings(row.events);
    EXPECT_EQ(findings.size(), row.isHidden ? 1U : 0U) << row.what;
    if (row.isHidden && !findings.empty()) {
      EXPECT_THAT(findings.front(), HasSubstr("\"B\" is never found")) << row.what;
    }
  }
}

TEST_F(CheckingACalendar, TellsWhichEventsHideOne) {
  EXPECT_THAT(
      Findings({{"A", "01.05", "02.05"},
                {"C", "03.05", "04.05"},
                {"D", "09.09", "09.09"},
                {"B", "01.05", "04.05"}}),
      ElementsAre(
          "4: The event \"B\" is never found: its days belong to event 1 \"A\" and event 2 \"C\", which the "
          "list has before it."));
}

TEST_F(CheckingACalendar, LetsEventsWithoutNameHideButNotThoseWithoutDays) {
  EXPECT_THAT(Findings({{"", "01.05", "03.05"}, {"B", "02.05", "02.05"}}),
              ElementsAre(HasSubstr("no name"), HasSubstr("event 1 without a name")));
  EXPECT_THAT(Findings({{"A", "01.05", "31.04"}, {"B", "02.05", "02.05"}}), ElementsAre(HasSubstr("31.04")));
}

TEST_F(CheckingACalendar, RefusesWhatIsNoCalendar) {
  for (const char* const text : {"", "{", "[]", "{}", R"({"events": []})", R"({"events": {"en_US": {}}})",
                                 R"({"events": {"en_US": [1]}})", R"({"events": {"en_US": [{"event": 1}]}})",
                                 R"({"events": {"en_US": [{"event": "A", "start": 101}]}})"}) {
    const ioPath file = tree.Write("calendar.json", text);
    EXPECT_THROW(CheckCalendar(file), Core::JsonException) << text;
    EXPECT_THROW(ReadCalendar(file, "en_US"), Core::JsonException) << text;
  }
  EXPECT_THROW(CheckCalendar(tree.Path("missing.json")), Core::JsonException);
  EXPECT_THROW(CheckCalendar(tree.Path()), Core::JsonException);
}

TEST_F(CheckingACalendar, AgreesWithTheExampleOfTheFormat) {
  const ioPath file = tree.Write("calendar.json", R"({"events": {"en_US": [
      {"event": "Halloween", "start": "31.10", "end": "31.10"},
      {"event": "New Year", "start": "31.12", "end": "01.01"},
      {"event": "Holiday Season", "start": "18.12", "end": "02.01"}]}})");
  const auto findings = CheckCalendar(file);
  EXPECT_EQ(findings.size(), 8U);
  for (const CalendarFinding& finding : findings) {
    EXPECT_EQ(finding.number, 0);
  }
}

TEST_F(CheckingACalendar, ReadsEventsAsWrittenAndNoneOfAnUnknownLocale) {
  const ioPath file = tree.Write("calendar.json", CalendarOf({{"B", "31.12", "01.01"}, {"A", "x", "02.01"}}));
  const auto events = ReadCalendar(file, "en_US");
  ASSERT_EQ(events.size(), 2U);
  EXPECT_EQ(events[0].name, QStringLiteral("B"));
  EXPECT_EQ(events[0].start, QDate(1900, 12, 31));
  EXPECT_EQ(events[0].end, QDate(1900, 1, 1));
  EXPECT_FALSE(events[1].start.isValid());
  EXPECT_EQ(events[1].end, QDate(1900, 1, 2));
  EXPECT_TRUE(ReadCalendar(file, "en").empty());
}

class CalendarInUse : public ::testing::Test {
 protected:
  CalendarInUse() { Forget(); }
  ~CalendarInUse() override { Forget(); }

  static QString Cache() { return (App::FolderOfUser(App::UserFolder::Cache) / "lumidex").qstring(); }
  static void Forget() { QDir(Cache()).removeRecursively(); }

  void Ship() { tree.Write("resources/HolidayEvents.json", CalendarOf({{"Shipped", "01.05", "01.05"}})); }
  ioPath Shipped() { return tree.Path("resources/HolidayEvents.json"); }
  static ioPath Stored() { return ioPath(Cache()) / "holidayEvents" / "HolidayEvents.json"; }
  void Store(const std::string& text) { tree.Write(Stored(), text); }

  void Serve(App::DownloadReply::Outcome outcome, const std::string& body) {
    settings->SetString(App::SettingsKey::kDownloadBaseUrl, "http://localhost:9/");
    network->answerAtOnce = true;
    network->reply.outcome = outcome;
    network->reply.body = QByteArray::fromStdString(body);
    network->reply.error = QStringLiteral("nobody there");
  }

  TempTree tree;
  LogCapture log;
  std::shared_ptr<FakeSettings> settings = std::make_shared<FakeSettings>();
  std::shared_ptr<ScriptedDownloads> network = std::make_shared<ScriptedDownloads>();

 private:
  App::ServiceScope<App::ISettingsManager> settingsScope_{settings};
  App::ServiceScope<App::IHostEnvironment> environmentScope_{
      std::make_shared<FakeEnvironment>(tree.Path("resources"))};
  App::ServiceScope<App::IDownloads> networkScope_{network};
};

using Outcome = App::DownloadReply::Outcome;

TEST_F(CalendarInUse, IsTheShippedOneWithoutAStoredCopy) {
  EXPECT_EQ(CurrentCalendar(), Shipped());
  EXPECT_EQ(FindCurrentCalendar().source, CalendarSource::Shipped);
}

TEST_F(CalendarInUse, IsTheStoredCopyWhenThatCanBeRead) {
  Ship();
  Store(CalendarOf({{"Stored", "01.05", "01.05"}}));
  EXPECT_EQ(CurrentCalendar(), Stored());
  EXPECT_EQ(FindCurrentCalendar().source, CalendarSource::Stored);
}

TEST_F(CalendarInUse, IsTheShippedOneWhenTheStoredCopyIsBroken) {
  Ship();
  for (const char* const text : {"", "{", "[]", "{}", R"({"events": 1})"}) {
    Store(text);
    EXPECT_EQ(CurrentCalendar(), Shipped()) << text;
  }
}

TEST_F(CalendarInUse, AsksNoServer) {
  Serve(Outcome::Fetched, CalendarOf({}));
  CurrentCalendar();
  EXPECT_TRUE(network->requests.empty());
}

TEST_F(CalendarInUse, IsNotUpdatedWithoutAServer) {
  Ship();
  const CalendarUpdate update = UpdateCalendar();
  EXPECT_FALSE(update.ok);
  EXPECT_EQ(update.cause, "No server is set.");
  EXPECT_EQ(update.file, Shipped());
}

TEST_F(CalendarInUse, IsReplacedByTheServers) {
  Ship();
  const std::string body = CalendarOf({{"Served", "01.05", "01.05"}});
  Serve(Outcome::Fetched, body);
  const CalendarUpdate update = UpdateCalendar();
  EXPECT_TRUE(update.ok) << update.cause;
  EXPECT_TRUE(update.changed);
  EXPECT_EQ(update.file, Stored());
  EXPECT_EQ(ReadFile(Stored()), body);
}

TEST_F(CalendarInUse, IsAskedForEvenWhenTheCopyIsYoung) {
  const std::string body = CalendarOf({{"Served", "01.05", "01.05"}});
  Store(body);
  Serve(Outcome::Fetched, body);
  const CalendarUpdate update = UpdateCalendar();
  EXPECT_EQ(network->requests.size(), 1U);
  EXPECT_TRUE(update.ok);
  EXPECT_FALSE(update.changed);
}

TEST_F(CalendarInUse, StaysWhenTheServerFails) {
  Ship();
  const std::string body = CalendarOf({{"Stored", "01.05", "01.05"}});
  Store(body);
  Serve(Outcome::Failed, "");
  const CalendarUpdate update = UpdateCalendar();
  EXPECT_FALSE(update.ok);
  EXPECT_EQ(update.cause, "nobody there");
  EXPECT_EQ(update.file, Stored());
  EXPECT_EQ(ReadFile(Stored()), body);
}

TEST_F(CalendarInUse, StaysWhenTheServersIsNone) {
  Ship();
  for (const char* const body : {"", "{", "[]", R"({"events": []})"}) {
    Serve(Outcome::Fetched, body);
    const CalendarUpdate update = UpdateCalendar();
    EXPECT_FALSE(update.ok) << body;
    EXPECT_THAT(update.cause, HasSubstr("not a calendar")) << body;
    EXPECT_EQ(update.file, Shipped()) << body;
  }
}

TEST_F(CalendarInUse, IsNoneWhenNothingCanBeRead) {
  Serve(Outcome::Failed, "");
  EXPECT_TRUE(UpdateCalendar().file.empty());
}

TEST_F(CalendarInUse, GivesUpWaitingWhenAsked) {
  Serve(Outcome::Fetched, CalendarOf({}));
  network->answerAtOnce = false;
  std::atomic<bool> cancel{false};
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&cancel] { cancel = true; });
  user.start(1);
  EXPECT_THROW(UpdateCalendar(&cancel), HostError);
  EXPECT_EQ(network->OpenRequests(), 0U);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
