#include <host/settings/UsageStatistics.h>
#include <support/Doubles.h>

#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/RealServices.h>
#include <zenvora/strandel/StatisticsFile.h>

#include <gtest/gtest.h>

#include <memory>

namespace Zenvora::Lumidex::Host {
namespace {

class UsageStatistics : public ::testing::Test {
 protected:
  ~UsageStatistics() override {
    Strandel::ClearStatistics(StatisticsFileOfUser());
    TurnStatistics(false);
  }
};

TEST_F(UsageStatistics, AreOffUntilTheyAreTurnedOn) {
  EXPECT_FALSE(AreStatisticsOn());
  EXPECT_EQ(MakeStatisticsHandler(), nullptr);
  ASSERT_TRUE(TurnStatistics(true));
  EXPECT_TRUE(AreStatisticsOn());
  EXPECT_NE(MakeStatisticsHandler(), nullptr);
  ASSERT_TRUE(TurnStatistics(false));
  EXPECT_FALSE(AreStatisticsOn());
  EXPECT_EQ(MakeStatisticsHandler(), nullptr);
}

TEST_F(UsageStatistics, AreOffForEveryOtherWord) {
  const auto settings = std::make_shared<Zenvora::Test::FakeSettings>();
  const App::ServiceScope<App::ISettingsManager> scope(settings);
  for (const char* const word : {"", "1", "yes", "TRUE", "true ", "false"}) {
    settings->SetString(App::SettingsKey::kStatistics, word);
    EXPECT_FALSE(AreStatisticsOn()) << word;
  }
  settings->SetString(App::SettingsKey::kStatistics, "true");
  EXPECT_TRUE(AreStatisticsOn());
}

TEST_F(UsageStatistics, KeepTheDayOfAnEventInTheUsersFile) {
  const auto clock = std::make_shared<Zenvora::Test::FakeClock>(QDateTime(QDate(2026, 3, 4), QTime(5, 6)));
  const App::ServiceScope<App::IClock> scope(clock);
  ASSERT_TRUE(TurnStatistics(true));
  MakeStatisticsHandler()->HandleEvent("scan", {{"a", "1"}});
  EXPECT_EQ(StatisticsFileOfUser().filename(), ioPath("statistics.jsonl"));
  const Strandel::Statistics statistics = Strandel::ReadStatistics(StatisticsFileOfUser());
  ASSERT_EQ(statistics.events.size(), 1U);
  EXPECT_EQ(statistics.events[0].name, "scan");
  EXPECT_EQ(statistics.events[0].day, QDate(2026, 3, 4));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
