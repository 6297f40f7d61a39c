#include <support/LogCapture.h>
#include <support/TempTree.h>

#include <zenvora/strandel/StatisticsFile.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace Zenvora::Strandel {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

std::string Text(const Zenvora::Test::LogCapture& log) {
  std::string text;
  for (const auto& line : log.Lines()) {
    text += line.text + '\n';
  }
  return text;
}

class StatisticsFiles : public ::testing::Test {
 protected:
  StatisticsFile Handler(std::uint64_t mostBytes = StatisticsFile::kMostBytes) const {
    return {file_, [this] { return today_; }, mostBytes};
  }
  void Note(const std::string& event, IStatisticsEventHandler::Parameters parameters = {}) const {
    Handler().HandleEvent(event, std::move(parameters));
  }

  Zenvora::Test::TempTree tree_;
  ioPath file_ = tree_.Path("data/lumidex/statistics.jsonl");
  QDate today_{2026, 3, 4};
};

TEST_F(StatisticsFiles, NoteEachEventInALineOfItsOwn) {
  Note("scan", {{"b", "2"}, {"a", "1"}});
  today_ = QDate(2026, 3, 5);
  Note("albums");
  EXPECT_EQ(Zenvora::Test::ReadFile(file_),
            "{\"day\":\"2026-03-04\",\"event\":\"scan\",\"parameters\":{\"a\":\"1\",\"b\":\"2\"}}\n"
            "{\"day\":\"2026-03-05\",\"event\":\"albums\",\"parameters\":{}}\n");
}

TEST_F(StatisticsFiles, GiveBackWhatTheyNoted) {
  Note("scan", {{"a \"quoted\" key\n", "Пейзаж"}});
  Note("albums");
  const Statistics statistics = ReadStatistics(file_);
  EXPECT_THAT(statistics.fault, IsEmpty());
  EXPECT_EQ(statistics.damaged, 0U);
  ASSERT_EQ(statistics.events.size(), 2U);
  EXPECT_EQ(statistics.events[0].name, "scan");
  EXPECT_EQ(statistics.events[0].day, QDate(2026, 3, 4));
  EXPECT_THAT(statistics.events[0].parameters, ElementsAre(Pair("a \"quoted\" key\n", "Пейзаж")));
  EXPECT_EQ(statistics.events[1].name, "albums");
}

TEST_F(StatisticsFiles, HoldNothingBeforeTheFirstEvent) {
  const StatisticsFile handler = Handler();
  EXPECT_FALSE(tree_.Path("data").exists());
  const Statistics statistics = ReadStatistics(file_);
  EXPECT_THAT(statistics.events, IsEmpty());
  EXPECT_THAT(statistics.fault, IsEmpty());
  EXPECT_THAT(ClearStatistics(file_), IsEmpty());
}

// NOLINTBEGIN(bugprone-use-after-move): that it is empty is promised.
TEST_F(StatisticsFiles, TakeTheParameters) {
  IStatisticsEventHandler::Parameters parameters = {{"a", "1"}};
  Handler().HandleEvent("scan", std::move(parameters));
  EXPECT_THAT(parameters, IsEmpty());
}
// NOLINTEND(bugprone-use-after-move)

TEST_F(StatisticsFiles, PassOverDamagedLines) {
  Note("scan");
  tree_.Write("data/lumidex/statistics.jsonl",
              Zenvora::Test::ReadFile(file_) + "no json\n{\"day\":\"2026-03-04\"}\n[]\n\n" +
                  "{\"day\":\"32\",\"event\":\"old\",\"parameters\":7}\n" + "{\"event\":\"torn");
  const Statistics statistics = ReadStatistics(file_);
  EXPECT_EQ(statistics.damaged, 4U);
  ASSERT_EQ(statistics.events.size(), 2U);
  EXPECT_EQ(statistics.events[1].name, "old");
  EXPECT_FALSE(statistics.events[1].day.isValid());
  EXPECT_THAT(statistics.events[1].parameters, IsEmpty());
}

TEST_F(StatisticsFiles, NoteBehindALineThatBrokeOff) {
  const std::string torn = "{\"day\":\"2026-03-04\",\"event\":\"sc";
  tree_.Write("data/lumidex/statistics.jsonl", torn);
  Note("albums");
  EXPECT_EQ(Zenvora::Test::ReadFile(file_),
            torn + "\n{\"day\":\"2026-03-04\",\"event\":\"albums\",\"parameters\":{}}\n");
  const Statistics statistics = ReadStatistics(file_);
  EXPECT_EQ(statistics.damaged, 1U);
  EXPECT_EQ(statistics.events.size(), 1U);
}

TEST_F(StatisticsFiles, KeepAnOlderFileWhenOneIsFull) {
  StatisticsFile handler = Handler(100);
  for (int i = 0; i < 8; ++i) {
    handler.HandleEvent("event " + std::to_string(i), {});
  }
  EXPECT_EQ(OlderStatistics(file_), tree_.Path("data/lumidex/statistics-older.jsonl"));
  const Statistics statistics = ReadStatistics(file_);
  // Two lines fill a file.
  ASSERT_EQ(statistics.events.size(), 4U);
  EXPECT_EQ(statistics.events.front().name, "event 4");
  EXPECT_EQ(statistics.events.back().name, "event 7");
}

TEST_F(StatisticsFiles, AreGoneWhenCleared) {
  StatisticsFile handler = Handler(100);
  for (int i = 0; i < 5; ++i) {
    handler.HandleEvent("scan", {});
  }
  ASSERT_TRUE(OlderStatistics(file_).exists());
  EXPECT_THAT(ClearStatistics(file_), IsEmpty());
  EXPECT_FALSE(file_.exists());
  EXPECT_FALSE(OlderStatistics(file_).exists());
}

TEST_F(StatisticsFiles, LogWhatCannotBeNoted) {
  tree_.MakeFolder("data/lumidex/statistics.jsonl");
  const Zenvora::Test::LogCapture log;
  Note("scan");
  EXPECT_THAT(Text(log), HasSubstr("statistics.jsonl is not a regular file"));
  EXPECT_THAT(ReadStatistics(file_).fault, HasSubstr("is not a regular file"));
  EXPECT_THAT(ClearStatistics(file_), HasSubstr("is not a regular file"));
  EXPECT_TRUE(file_.exists());
}

TEST_F(StatisticsFiles, LogAFolderThatCannotBeMade) {
  tree_.Write("data", "a file");
  const Zenvora::Test::LogCapture log;
  Note("scan");
  EXPECT_THAT(Text(log), HasSubstr("cannot be made"));
  EXPECT_EQ(Zenvora::Test::ReadFile(tree_.Path("data")), "a file");
}

}  // namespace
}  // namespace Zenvora::Strandel
