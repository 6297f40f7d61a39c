#include "ChangeFixture.h"

#include <QJsonArray>

#include <string>

namespace Zenvora::Test {
namespace {

class StatsCommand : public ChangeTest {
 protected:
  ioPath File() const { return tree.Path("data/lumidex/statistics.jsonl"); }
  QJsonArray Events() const { return Run({"stats", "show", "--json"}).Json()["events"].toArray(); }
};

TEST_F(StatsCommand, KeepsNothingUntilItIsTurnedOn) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"scan", "photos"}).exitCode, 0);
  EXPECT_FALSE(File().exists());
  const Ran show = Run({"stats", "show"});
  EXPECT_EQ(show.exitCode, 0);
  EXPECT_EQ(show.out, "Statistics are off; 0 lines.\nFile: " + File().utf8string() + '\n');
}

TEST_F(StatsCommand, ShowsAllThatWasKept) {
  Photo("a.jpg");
  EXPECT_THAT(Run({"stats", "on"}).out, HasSubstr("Statistics are on.\n"));
  ASSERT_EQ(Run({"scan", "photos"}).exitCode, 0);
  ASSERT_EQ(Rename("{date}_{number}").exitCode, 0);
  ASSERT_EQ(Run({"calendar", "show"}).exitCode, 0);
  const QJsonArray events = Events();
  ASSERT_EQ(events.size(), 3);
  EXPECT_EQ(events[0].toObject()["event"].toString(), QStringLiteral("scan"));
  const QJsonObject scan = events[0].toObject()["parameters"].toObject();
  EXPECT_EQ(scan["item type"].toString(), QStringLiteral("photo"));
  EXPECT_EQ(scan["launch mode"].toString(), QStringLiteral("command line"));
  EXPECT_EQ(scan["items in"].toString(), QStringLiteral("1"));
  EXPECT_EQ(scan["items out"].toString(), QStringLiteral("1"));
  EXPECT_EQ(events[1].toObject()["parameters"].toObject()["rename type"].toString(), QStringLiteral("date"));
  EXPECT_EQ(events[2].toObject()["event"].toString(), QStringLiteral("calendar show"));
  const Ran text = Run({"stats", "show"});
  EXPECT_THAT(text.out, HasSubstr("  scan           item type: photo, items in: 1, items out: 1, "
                                  "launch mode: command line\n"));
  EXPECT_THAT(text.out, HasSubstr("Statistics are on; 3 lines.\n"));
}

TEST_F(StatsCommand, KeepsNoNames) {
  Photo("secret.jpg");
  ASSERT_EQ(Run({"stats", "on"}).exitCode, 0);
  ASSERT_EQ(Run({"scan", "photos"}).exitCode, 0);
  ASSERT_EQ(Run({"tag", "photos/secret.jpg", "+Affair"}).exitCode, 0);
  ASSERT_EQ(Run({"find", "--tag", "Affair", "--text", "secret"}).exitCode, 0);
  ASSERT_EQ(Rename("mystery_{number}").exitCode, 0);
  const std::string kept = ReadFile(File());
  for (const char* const word : {"secret", "Affair", "mystery", "photos", ".jpg", "sqlite"}) {
    EXPECT_THAT(kept, Not(HasSubstr(word)));
  }
  EXPECT_THAT(kept, Not(HasSubstr(tree.Path().utf8string())));
}

TEST_F(StatsCommand, StopsWhenItIsTurnedOffAndKeepsWhatIsThere) {
  ASSERT_EQ(Run({"stats", "on"}).exitCode, 0);
  ASSERT_EQ(Run({"calendar", "show"}).exitCode, 0);
  EXPECT_EQ(Run({"stats", "off"}).out, "Statistics are off.\n");
  ASSERT_EQ(Run({"calendar", "show"}).exitCode, 0);
  EXPECT_EQ(Events().size(), 1);
}

TEST_F(StatsCommand, DeletesThemAndStaysOn) {
  ASSERT_EQ(Run({"stats", "on"}).exitCode, 0);
  ASSERT_EQ(Run({"calendar", "show"}).exitCode, 0);
  ASSERT_TRUE(File().exists());
  EXPECT_EQ(Run({"stats", "clear"}).out, "The statistics are deleted. Statistics are on.\n");
  EXPECT_FALSE(File().exists());
  EXPECT_EQ(Run({"stats", "clear"}).exitCode, 0);
  EXPECT_TRUE(Events().isEmpty());
}

TEST_F(StatsCommand, DoesNotCountHelpNorLinesThatMakeNoSense) {
  ASSERT_EQ(Run({"stats", "on"}).exitCode, 0);
  Run({"help", "scan"});
  Run({"--version"});
  Run({"scan"});
  EXPECT_TRUE(Events().isEmpty());
}

TEST_F(StatsCommand, SaysThatLinesAreDamaged) {
  tree.Write("data/lumidex/statistics.jsonl", "{\"day\":\"2026-03-04\",\"event\":\"scan\"}\nnoise\n");
  const Ran ran = Run({"stats", "show"});
  EXPECT_EQ(ran.exitCode, 1);
  EXPECT_THAT(ran.out, HasSubstr("2026-03-04  scan"));
  EXPECT_THAT(ran.err, HasSubstr("1 line of the statistics cannot be read."));
  EXPECT_EQ(Run({"stats", "show", "--json"}).Json()["damaged"].toInt(), 1);
}

TEST_F(StatsCommand, SaysThatTheFileIsNone) {
  tree.MakeFolder("data/lumidex/statistics.jsonl");
  for (const char* const command : {"show", "clear"}) {
    const Ran ran = Run({"stats", command});
    EXPECT_EQ(ran.exitCode, 4);
    EXPECT_THAT(ran.err, HasSubstr("is not a regular file"));
  }
  // What cannot be kept is no reason for a command to fail.
  ASSERT_EQ(Run({"stats", "on", "-q"}).exitCode, 0);
  EXPECT_EQ(Run({"calendar", "show"}).exitCode, 0);
}

TEST_F(StatsCommand, SaysThatTheSettingsCannotBeWritten) {
  tree.Write("config/lumidex", "a file where the folder should be");
  const Ran ran = Run({"stats", "on"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.err, HasSubstr("cannot be written"));
}

TEST_F(StatsCommand, WritesOneDocumentWithAllItsMembers) {
  for (const char* const command : {"on", "show", "off", "clear"}) {
    const QJsonObject document = Run({"stats", command, "--json"}).Json();
    EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.stats"));
    EXPECT_EQ(document["version"].toInt(), 1);
    EXPECT_EQ(document["file"].toString(), Text(File()));
    EXPECT_EQ(document["on"].toBool(), std::string(command) == "on" || std::string(command) == "show");
    EXPECT_TRUE(document["events"].isArray());
    EXPECT_EQ(document["damaged"].toInt(-1), 0);
  }
}

}  // namespace
}  // namespace Zenvora::Test
