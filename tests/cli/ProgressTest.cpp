#include <cli/terminal/LogLines.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/TerminalText.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Zenvora::Lumidex::Cli {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using ::testing::HasSubstr;
using ::testing::Not;

RateMeter::Time At(std::chrono::milliseconds moment) {
  return RateMeter::Time(moment);
}

TEST(RateMeter, KnowsNoRateBeforeSomethingWasDone) {
  RateMeter meter;
  EXPECT_FALSE(meter.PerSecond());
  meter.Add(At(seconds(0)), 0);
  EXPECT_FALSE(meter.PerSecond());
  meter.Add(At(seconds(1)), 0);
  EXPECT_FALSE(meter.PerSecond());
}

TEST(RateMeter, MeasuresTheLastSecondsOnly) {
  RateMeter meter;
  for (int second = 0; second <= 20; ++second) {
    meter.Add(At(seconds(second)), second < 10 ? 0U : static_cast<std::uint64_t>(second - 10) * 100);
  }
  ASSERT_TRUE(meter.PerSecond());
  EXPECT_DOUBLE_EQ(*meter.PerSecond(), 100.0);
}

TEST(RateMeter, BearsAClockThatStandsStill) {
  RateMeter meter;
  meter.Add(At(seconds(1)), 0);
  meter.Add(At(seconds(1)), 10);
  EXPECT_FALSE(meter.PerSecond());
}

TEST(DurationText, GrowsWithTheTime) {
  struct Row {
    double given;
    const char* text;
  };
  for (const Row& row :
       {Row{-1, "0:00"}, Row{0, "0:00"}, Row{0.2, "0:01"}, Row{59, "0:59"}, Row{59.5, "1:00"},
        Row{750, "12:30"}, Row{3599, "59:59"}, Row{3600, "1:00:00"}, Row{90061, "25:01:01"}}) {
    EXPECT_EQ(DurationText(row.given), row.text) << row.given;
  }
}

ProgressState Halfway() {
  ProgressState state;
  state.verb = "Scanning";
  state.noun = "photos";
  state.done = 1000;
  state.total = 2000;
  state.perSecond = 100;
  return state;
}

TEST(ProgressText, TellsShareRateAndTimeLeft) {
  EXPECT_EQ(ProgressText(Halfway(), 120),
            "Scanning  [##########..........]  50%  1,000 of 2,000 photos  100/s  0:10 left");
}

TEST(ProgressText, TellsNoShareBeforeAllIsFound) {
  ProgressState state = Halfway();
  state.totalIsFinal = false;
  EXPECT_EQ(ProgressText(state, 120), "Scanning  1,000 of 2,000 photos found so far  100/s");
}

TEST(ProgressText, TellsNoTimeLeftAtTheEndOrWithoutARate) {
  ProgressState state = Halfway();
  state.done = 2000;
  EXPECT_THAT(ProgressText(state, 120), HasSubstr("100%"));
  EXPECT_THAT(ProgressText(state, 120), Not(HasSubstr("left")));
  state = Halfway();
  state.perSecond.reset();
  EXPECT_THAT(ProgressText(state, 120), Not(HasSubstr("left")));
}

TEST(ProgressText, BearsNothingToDo) {
  ProgressState state = Halfway();
  state.done = 0;
  state.total = 0;
  EXPECT_EQ(ProgressText(state, 120), "Scanning  0 of 0 photos  100/s");
}

TEST(ProgressText, NeverReachesTheLastColumn) {
  ProgressState state = Halfway();
  for (const bool isFinal : {true, false}) {
    state.totalIsFinal = isFinal;
    for (int columns = 1; columns <= 120; ++columns) {
      EXPECT_LT(DisplayWidth(ProgressText(state, columns)), columns);
    }
  }
}

TEST(ProgressText, LeavesOutTheBarFirst) {
  EXPECT_EQ(ProgressText(Halfway(), 79),
            "Scanning  [##########..........]  50%  1,000 of 2,000 photos  100/s  0:10 left");
  EXPECT_EQ(ProgressText(Halfway(), 78), "Scanning  50%  1,000 of 2,000 photos  100/s  0:10 left");
  EXPECT_EQ(ProgressText(Halfway(), 50), "Scanning  50%  1,000 of 2,000 photos  0:10 left");
  EXPECT_EQ(ProgressText(Halfway(), 20), "Scanning  50%");
}

TEST(CondensedLogText, KeepsTheDescriptionOfAnExceptionAlone) {
  EXPECT_EQ(CondensedLogText("a plain line"), "a plain line");
  EXPECT_EQ(CondensedLogText("first\nsecond"), "first");
  EXPECT_EQ(CondensedLogText("a.cpp(3): Throw in function f\nDynamic exception type: X\n"
                             "std::exception::what: The file is no calendar.\n[Tag] = text\n"),
            "The file is no calendar.");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli
