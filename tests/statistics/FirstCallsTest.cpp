#include <LumidexUtil/UpdateStat.h>

#include <zenvora/strandel/IStatisticsEventHandler.h>

#include <gtest/gtest.h>

#include <atomic>
#include <map>
#include <string>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex {
namespace {

using Handler = Strandel::IStatisticsEventHandler;

// The first calls of the process: nothing else here may call it.
TEST(StatisticsInThreads, FindTheirWordsHoweverManyAskFirst) {
  constexpr int kThreads = 8;
  constexpr int kRounds = 200;
  std::atomic<int> ready{0};
  std::atomic<int> wrong{0};
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&ready, &wrong] {
      ++ready;
      while (ready < kThreads) {
        std::this_thread::yield();
      }
      for (int round = 0; round < kRounds; ++round) {
        const std::map<std::string, std::string> parameters =
            UpdateStat(Tavolin::RenameSettingsMode::DateTime,
                       UpdateStat(ItemType::Person, UpdateStat(LaunchMode::TreeItemLabelButton, 1, 2, {})));
        const std::map<std::string, std::string> expected = {
            {Handler::KEY_RENAME_TYPE, Handler::VAL_RENAME_TYPE_DATETIME},
            {Handler::KEY_ITEM_TYPE, Handler::VAL_ITEM_TYPE_PERSON},
            {Handler::KEY_LAUNCH_MODE, Handler::VAL_LAUNCH_MODE_TREE_ITEM_LABEL_BUTTON},
            {Handler::KEY_INPUT_ITEMS_COUNT, "1"},
            {Handler::KEY_OUTPUT_ITEMS_COUNT, "2"}};
        wrong += parameters == expected ? 0 : 1;
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(wrong, 0);
}

}  // namespace
}  // namespace Zenvora::Lumidex
