#include <LumidexUtil/UpdateStat.h>

#include <zenvora/strandel/IStatisticsEventHandler.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex {
namespace {

using Handler = Strandel::IStatisticsEventHandler;
using Parameters = std::map<std::string, std::string>;
using Tavolin::RenameSettingsMode;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

const std::vector<std::pair<int, const std::string*>>& ItemTypes() {
  static const std::vector<std::pair<int, const std::string*>> table = {{0, &Handler::VAL_ITEM_TYPE_PHOTO},
                                                                        {1, &Handler::VAL_ITEM_TYPE_TAG},
                                                                        {2, &Handler::VAL_ITEM_TYPE_ALBUM},
                                                                        {3, &Handler::VAL_ITEM_TYPE_PLACE},
                                                                        {7, &Handler::VAL_ITEM_TYPE_PERSON}};
  return table;
}

const std::vector<std::pair<int, const std::string*>>& LaunchModes() {
  static const std::vector<std::pair<int, const std::string*>> table = {
      {2, &Handler::VAL_LAUNCH_MODE_MAIN_MENU},
      {3, &Handler::VAL_LAUNCH_MODE_CONTEXT_MENU},
      {4, &Handler::VAL_LAUNCH_MODE_SHORTCUT},
      {5, &Handler::VAL_LAUNCH_MODE_DIALOG},
      {6, &Handler::VAL_LAUNCH_MODE_DRAGNDROP},
      {7, &Handler::VAL_LAUNCH_MODE_EXTERNAL},
      {8, &Handler::VAL_LAUNCH_MODE_TILE_BUTTON},
      {9, &Handler::VAL_LAUNCH_MODE_TILE_DOUBLE_CLICK},
      {10, &Handler::VAL_LAUNCH_MODE_TOP_PANEL_BUTTON},
      {11, &Handler::VAL_LAUNCH_MODE_BOTTOM_PANEL_BUTTON},
      {12, &Handler::VAL_LAUNCH_MODE_SINGLE_PANEL_BUTTON},
      {13, &Handler::VAL_LAUNCH_MODE_MULTIPLE_PANEL_BUTTON},
      {14, &Handler::VAL_LAUNCH_MODE_FIRST_SCREEN_BUTTON},
      {15, &Handler::VAL_LAUNCH_MODE_TREE_ITEM_LABEL_BUTTON},
      {16, &Handler::VAL_LAUNCH_MODE_TREE_ITEM_DOUBLE_CLICK},
      {17, &Handler::VAL_LAUNCH_MODE_CANCELL_ADD_ALBUM},
      {18, &Handler::VAL_LAUNCH_MODE_COMMAND_LINE}};
  return table;
}

const std::vector<std::pair<int, const std::string*>>& RenameModes() {
  static const std::vector<std::pair<int, const std::string*>> table = {
      {0, &Handler::VAL_RENAME_TYPE_TEXT},
      {1, &Handler::VAL_RENAME_TYPE_NUMBER},
      {2, &Handler::VAL_RENAME_TYPE_DATE},
      {3, &Handler::VAL_RENAME_TYPE_DATETIME}};
  return table;
}

TEST(StatisticsWords, AllDiffer) {
  std::set<std::string> words = {Handler::KEY_ITEM_TYPE, Handler::KEY_LAUNCH_MODE,
                                 Handler::KEY_INPUT_ITEMS_COUNT, Handler::KEY_OUTPUT_ITEMS_COUNT,
                                 Handler::KEY_RENAME_TYPE};
  std::size_t count = 5;
  for (const auto& table : {ItemTypes(), LaunchModes(), RenameModes()}) {
    for (const auto& [number, word] : table) {
      EXPECT_FALSE(word->empty()) << number;
      words.insert(*word);
      ++count;
    }
  }
  EXPECT_EQ(words.size(), count);
}

TEST(ItemTypeStatistics, NameEveryKind) {
  for (const auto& [number, word] : ItemTypes()) {
    EXPECT_THAT(UpdateStat(static_cast<ItemType>(number), {}),
                ElementsAre(Pair(Handler::KEY_ITEM_TYPE, *word)));
  }
}

TEST(ItemTypeStatistics, AddNothingForUnknownKinds) {
  for (const int number : {-1, 4, 5, 6, 8, 1000}) {
    EXPECT_THAT(UpdateStat(static_cast<ItemType>(number), {}), IsEmpty()) << number;
    EXPECT_THAT(UpdateStat(static_cast<ItemType>(number), {{"a", "b"}}), ElementsAre(Pair("a", "b")));
  }
}

TEST(LaunchModeStatistics, NameEveryMode) {
  for (const auto& [number, word] : LaunchModes()) {
    EXPECT_THAT(UpdateStat(static_cast<LaunchMode>(number), {}),
                ElementsAre(Pair(Handler::KEY_LAUNCH_MODE, *word)));
  }
}

TEST(LaunchModeStatistics, AddNothingForModesThatSayNothingOrAreUnknown) {
  for (const int number : {-1, 0, 1, -2, 19, 1000}) {
    EXPECT_THAT(UpdateStat(static_cast<LaunchMode>(number), {}), IsEmpty()) << number;
  }
}

TEST(LaunchModeStatistics, CountWhatGoesIn) {
  EXPECT_THAT(UpdateStat(LaunchMode::CommandLine, 3, {}),
              UnorderedElementsAre(Pair(Handler::KEY_INPUT_ITEMS_COUNT, "3"),
                                   Pair(Handler::KEY_LAUNCH_MODE, Handler::VAL_LAUNCH_MODE_COMMAND_LINE)));
  EXPECT_THAT(UpdateStat(LaunchMode::None, 3, {}), ElementsAre(Pair(Handler::KEY_INPUT_ITEMS_COUNT, "3")));
}

TEST(LaunchModeStatistics, CountWhatComesOut) {
  EXPECT_THAT(UpdateStat(LaunchMode::Shortcut, 1234567, 12, {}),
              UnorderedElementsAre(Pair(Handler::KEY_INPUT_ITEMS_COUNT, "1234567"),
                                   Pair(Handler::KEY_OUTPUT_ITEMS_COUNT, "12"),
                                   Pair(Handler::KEY_LAUNCH_MODE, Handler::VAL_LAUNCH_MODE_SHORTCUT)));
  EXPECT_THAT(UpdateStat(LaunchMode::Default, 0, 0, {}),
              UnorderedElementsAre(Pair(Handler::KEY_INPUT_ITEMS_COUNT, "0"),
                                   Pair(Handler::KEY_OUTPUT_ITEMS_COUNT, "0")));
}

TEST(LaunchModeStatistics, WriteTheLargestCountInFull) {
  static_assert(sizeof(std::size_t) == 8);
  constexpr auto kMost = std::numeric_limits<std::size_t>::max();
  const Parameters parameters = UpdateStat(LaunchMode::None, kMost, kMost, {});
  EXPECT_EQ(parameters.at(Handler::KEY_INPUT_ITEMS_COUNT), "18446744073709551615");
  EXPECT_EQ(parameters.at(Handler::KEY_OUTPUT_ITEMS_COUNT), "18446744073709551615");
}

TEST(RenameStatistics, NameEveryScheme) {
  for (const auto& [number, word] : RenameModes()) {
    EXPECT_THAT(UpdateStat(static_cast<RenameSettingsMode>(number), {}),
                ElementsAre(Pair(Handler::KEY_RENAME_TYPE, *word)));
  }
}

TEST(RenameStatistics, AddNothingForUnknownSchemes) {
  for (const int number : {-1, 4, 1000}) {
    EXPECT_THAT(UpdateStat(static_cast<RenameSettingsMode>(number), {}), IsEmpty()) << number;
  }
}

TEST(StatisticsParameters, KeepWhatIsThereAlready) {
  const Parameters former = {{Handler::KEY_ITEM_TYPE, "i"},        {Handler::KEY_LAUNCH_MODE, "l"},
                             {Handler::KEY_INPUT_ITEMS_COUNT, ""}, {Handler::KEY_OUTPUT_ITEMS_COUNT, "o"},
                             {Handler::KEY_RENAME_TYPE, "r"},      {"another", "a"}};
  EXPECT_EQ(UpdateStat(ItemType::Photo, Parameters(former)), former);
  EXPECT_EQ(UpdateStat(LaunchMode::Dialog, Parameters(former)), former);
  EXPECT_EQ(UpdateStat(LaunchMode::Dialog, 1, Parameters(former)), former);
  EXPECT_EQ(UpdateStat(LaunchMode::Dialog, 1, 2, Parameters(former)), former);
  EXPECT_EQ(UpdateStat(RenameSettingsMode::Date, Parameters(former)), former);
}

TEST(StatisticsParameters, AddUpAndTheFirstValueWins) {
  const Parameters parameters = UpdateStat(
      ItemType::Album, UpdateStat(ItemType::Photo, UpdateStat(LaunchMode::Dialog, 5, {{"own", "x"}})));
  EXPECT_THAT(parameters,
              UnorderedElementsAre(Pair("own", "x"), Pair(Handler::KEY_INPUT_ITEMS_COUNT, "5"),
                                   Pair(Handler::KEY_LAUNCH_MODE, Handler::VAL_LAUNCH_MODE_DIALOG),
                                   Pair(Handler::KEY_ITEM_TYPE, Handler::VAL_ITEM_TYPE_PHOTO)));
}

// That an argument is empty afterwards is promised here, unlike elsewhere.
// NOLINTBEGIN(bugprone-use-after-move)
TEST(StatisticsParameters, LeaveTheArgumentEmpty) {
  const Parameters former = {{"own", "x"}, {Handler::KEY_LAUNCH_MODE, "l"}};
  Parameters parameters = former;
  UpdateStat(ItemType::Photo, std::move(parameters));
  EXPECT_THAT(parameters, IsEmpty());
  parameters = former;
  UpdateStat(static_cast<ItemType>(5), std::move(parameters));
  EXPECT_THAT(parameters, IsEmpty());
  parameters = former;
  UpdateStat(LaunchMode::None, std::move(parameters));
  EXPECT_THAT(parameters, IsEmpty());
  parameters = former;
  UpdateStat(LaunchMode::Dialog, 1, std::move(parameters));
  EXPECT_THAT(parameters, IsEmpty());
  parameters = former;
  UpdateStat(LaunchMode::Dialog, 1, 2, std::move(parameters));
  EXPECT_THAT(parameters, IsEmpty());
  parameters = former;
  UpdateStat(RenameSettingsMode::Text, std::move(parameters));
  EXPECT_THAT(parameters, IsEmpty());
}
// NOLINTEND(bugprone-use-after-move)

TEST(StatisticsParameters, OwnTheEntriesOfTheArgument) {
  Parameters parameters = {{"own", "a text that is too long to be kept within a string itself"}};
  const char* const text = parameters.at("own").data();
  const Parameters result = UpdateStat(LaunchMode::Dialog, std::move(parameters));
  EXPECT_EQ(static_cast<const void*>(result.at("own").data()), static_cast<const void*>(text));
}

}  // namespace
}  // namespace Zenvora::Lumidex
