#include "CliFixture.h"

#include <QJsonArray>
#include <QUrl>

namespace Zenvora::Test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr char kExample[] = R"({"events": {"en_US": [
  {"event": "Halloween", "start": "31.10", "end": "31.10"},
  {"event": "New Year", "start": "31.12", "end": "01.01"},
  {"event": "Leap Day", "start": "29.02", "end": "01.03"}]}})";

class CalendarCommand : public CliTest {
 protected:
  void HaveServer() const {
    tree.Write("config/lumidex/lumidex.ini",
               "[Download]\nBaseUrl=" +
                   QUrl::fromLocalFile(tree.Path("server").qstring()).toString().toStdString() + "\n");
  }
  void Serve(const std::string& text) const { tree.Write("server/holidayEvents/HolidayEvents.json", text); }
  ioPath Stored() const { return tree.Path("cache/lumidex/holidayEvents/HolidayEvents.json"); }
};

TEST_F(CalendarCommand, FindsNoMistakesInTheShippedOne) {
  const Ran ran = Run({"calendar", "check"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.out, HasSubstr("no mistakes"));
}

TEST_F(CalendarCommand, ListsMistakes) {
  tree.Write("mine.json", kExample);
  const Ran ran = Run({"calendar", "check", "mine.json"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr("en_US  event 3  The start of the event \"Leap Day\" is 29.02"));
  EXPECT_THAT(ran.out, HasSubstr("de_DE  list     The file has no list"));
  EXPECT_THAT(ran.out, HasSubstr("9 mistakes found"));

  const QJsonObject document = Run({"calendar", "check", "--json", "mine.json"}).Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.calendar.check"));
  EXPECT_EQ(document["version"].toInt(), 1);
  EXPECT_EQ(document["file"].toString(), Text(tree.Path("mine.json")));
  ASSERT_EQ(document["findings"].toArray().size(), 9);
  const QJsonObject finding = document["findings"].toArray()[0].toObject();
  EXPECT_EQ(finding["locale"].toString(), QStringLiteral("en_US"));
  EXPECT_EQ(finding["number"].toInt(), 3);
  EXPECT_FALSE(finding["text"].toString().isEmpty());
}

TEST_F(CalendarCommand, CannotCheckWhatIsNoCalendar) {
  for (const char* const text : {"", "{", "[]", R"({"events": 1})"}) {
    tree.Write("mine.json", text);
    const Ran ran = Run({"calendar", "check", "mine.json"});
    EXPECT_EQ(ran.exitCode, 4) << text;
    EXPECT_THAT(ran.err, HasSubstr("mine.json")) << text;
    EXPECT_THAT(ran.out, IsEmpty()) << text;
  }
  EXPECT_EQ(Run({"calendar", "check", "missing.json"}).exitCode, 4);
  EXPECT_EQ(Run({"calendar", "check", "--json", "missing.json"}).Json()["kind"].toString(),
            QStringLiteral("failed"));
}

TEST_F(CalendarCommand, FindsFilesOfAnyNameInAnyLocale) {
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
  tree.Write("F\xC3\xAAtes.json", kExample);
  EXPECT_EQ(Run({"calendar", "check", QStringLiteral("F\u00EAtes.json")}).exitCode, 1);
}

TEST_F(CalendarCommand, ShowsHolidaysOfAYear) {
  const Ran ran = Run({"calendar", "show", "--year", "2023"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.out, HasSubstr("New Year            2023-12-31  2024-01-01     2\n"));
  EXPECT_THAT(ran.out, HasSubstr("HolidayEvents.json"));

  const QJsonObject document = Run({"calendar", "show", "--year", "2023", "--json"}).Json();
  EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.calendar.show"));
  EXPECT_EQ(document["version"].toInt(), 1);
  EXPECT_EQ(document["source"].toString(), QStringLiteral("shipped"));
  EXPECT_EQ(document["locale"].toString(), QStringLiteral("en_US"));
  EXPECT_EQ(document["year"].toInt(), 2023);
  const QJsonObject first = document["events"].toArray()[0].toObject();
  EXPECT_EQ(first["name"].toString(), QStringLiteral("Epiphany"));
  EXPECT_EQ(first["first"].toString(), QStringLiteral("2023-01-06"));
  EXPECT_EQ(first["last"].toString(), QStringLiteral("2023-01-06"));
}

TEST_F(CalendarCommand, ShowsTheStoredCopyWithItsFaults) {
  tree.Write(Stored(), kExample);
  const Ran ran = Run({"calendar", "show", "--year", "2023"});
  EXPECT_EQ(ran.exitCode, 0);
  EXPECT_THAT(ran.out, HasSubstr("Leap Day   ?           2023-03-01     ?\n"));
  EXPECT_THAT(ran.out, HasSubstr("(from the server)"));
  EXPECT_TRUE(Run({"calendar", "show", "--json"}).Json()["events"].toArray()[2].toObject()["first"].isNull());
  EXPECT_EQ(Run({"calendar", "show", "--locale", "de_DE"}).exitCode, 1);
}

TEST_F(CalendarCommand, RefusesYearsThatAreNone) {
  for (const char* const year : {"0", "9999", "-5", "twenty", "2023x", ""}) {
    EXPECT_EQ(Run({"calendar", "show", "--year", QString::fromUtf8(year)}).exitCode, 2) << year;
  }
}

TEST_F(CalendarCommand, SaysHowToSetAServer) {
  const Ran ran = Run({"calendar", "update"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr(tree.Path("config/lumidex/lumidex.ini").utf8string()));
  EXPECT_THAT(ran.err, HasSubstr("[Download]\n  BaseUrl="));
  EXPECT_EQ(Run({"calendar", "update", "--json"}).Json()["kind"].toString(), QStringLiteral("no-server"));
}

TEST_F(CalendarCommand, UpdatesFromTheServer) {
  HaveServer();
  Serve(kExample);
  const Ran first = Run({"calendar", "update"});
  EXPECT_EQ(first.exitCode, 0) << first.err;
  EXPECT_EQ(first.out, "The calendar was updated: " + Stored().utf8string() + "\n");
  EXPECT_EQ(ReadFile(Stored()), kExample);

  const QJsonObject second = Run({"calendar", "update", "--json"}).Json();
  EXPECT_EQ(second["format"].toString(), QStringLiteral("lumidex.calendar.update"));
  EXPECT_EQ(second["version"].toInt(), 1);
  EXPECT_TRUE(second["ok"].toBool());
  EXPECT_FALSE(second["changed"].toBool(true));
  EXPECT_EQ(second["file"].toString(), Text(Stored()));
  EXPECT_TRUE(second["cause"].isNull());
}

TEST_F(CalendarCommand, KeepsTheCalendarInUseWhenTheServerFails) {
  HaveServer();
  const Ran missing = Run({"calendar", "update", "--json"});
  EXPECT_EQ(missing.exitCode, 3);
  EXPECT_FALSE(missing.Json()["ok"].toBool(true));
  EXPECT_THAT(Slashes(ioPath(missing.Json()["file"].toString())),
              HasSubstr("share/lumidex/HolidayEvents.json"));
  EXPECT_FALSE(missing.Json()["cause"].toString().isEmpty());

  Serve("<html>maintenance</html>");
  const Ran broken = Run({"calendar", "update"});
  EXPECT_EQ(broken.exitCode, 3);
  EXPECT_THAT(broken.out, HasSubstr("Still in use: "));
  EXPECT_FALSE(Stored().exists());
}

TEST_F(CalendarCommand, ExitsWith4WithoutAnyCalendar) {
  HaveServer();
  const Ran ran = RunCopy({"calendar", "update", "--json"});
  EXPECT_EQ(ran.exitCode, 4) << ran.err;
  EXPECT_TRUE(ran.Json()["file"].isNull());
}

}  // namespace
}  // namespace Zenvora::Test
