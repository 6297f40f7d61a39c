// Runs under the thread sanitizer too.

#include <host/base/TaskThreads.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <numeric>
#include <stdexcept>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using testing::ElementsAreArray;
using testing::UnorderedElementsAreArray;

constexpr auto kNever = [] { return false; };

std::vector<std::size_t> NumbersUpTo(std::size_t count) {
  std::vector<std::size_t> numbers(count);
  std::iota(numbers.begin(), numbers.end(), 0U);
  return numbers;
}

TEST(TaskThreads, ReturnEveryResultOnce) {
  TaskThreads<std::size_t, std::size_t> threads(4, [](std::size_t& task) { return task; });
  std::vector<std::size_t> results;
  for (const std::size_t task : NumbersUpTo(1'000)) {
    threads.Submit(task);
  }
  while (threads.UnderWay() > 0) {
    const std::vector<std::size_t> some = threads.Collect(true);
    results.insert(results.end(), some.begin(), some.end());
  }
  EXPECT_THAT(results, UnorderedElementsAreArray(NumbersUpTo(1'000)));
}

TEST(TaskThreads, LeaveWhatNoneHasBegun) {
  std::promise<void> begun;
  std::promise<void> given;
  std::atomic<int> done{0};
  {
    TaskThreads<int, int> threads(1, [&](int& task) {
      if (++done == 1) {
        begun.set_value();
        // The one thread is busy until its owner is about to end it.
        given.get_future().wait();
      }
      return task;
    });
    for (int task = 0; task < 200'000; ++task) {
      threads.Submit(task);
    }
    begun.get_future().wait();
    given.set_value();
  }
  EXPECT_GE(done, 1);
  EXPECT_LT(done, 200'000);
}

TEST(TaskThreads, AreAtLeastOneAndNoMoreThanAskedFor) {
  const auto count = [](int wanted) {
    return (TaskThreads<int, int>(wanted, [](int& task) { return task; }).Threads());
  };
  EXPECT_EQ(count(3), 3U);
  EXPECT_EQ(count(1'000), 64U);
  for (const int automatic : {0, -1}) {
    EXPECT_GE(count(automatic), 1U);
    EXPECT_LE(count(automatic), 8U);
  }
}

TEST(WorkInOrder, HandsOutInOrderWhateverTheThreads) {
  for (const int threads : {1, 2, 5}) {
    std::vector<std::size_t> taken;
    const std::size_t count = WorkInOrder(
        500, threads, 3, [](std::size_t item) { return 2 * item; }, kNever,
        [&taken](std::size_t item, std::size_t result) {
          EXPECT_EQ(result, 2 * item);
          taken.push_back(item);
        });
    EXPECT_EQ(count, 500U);
    EXPECT_THAT(taken, ElementsAreArray(NumbersUpTo(500)));
  }
}

TEST(WorkInOrder, WorksOnlyALittleAhead) {
  constexpr std::size_t kThreads = 2;
  constexpr std::size_t kAhead = 4;
  std::atomic<std::size_t> taken{0};
  std::atomic<std::size_t> farthest{0};
  WorkInOrder(
      200, static_cast<int>(kThreads), kAhead,
      [&](std::size_t item) {
        const std::size_t lead = item - std::min(item, taken.load());
        std::size_t known = farthest;
        while (lead > known && !farthest.compare_exchange_weak(known, lead)) {
        }
        return item;
      },
      kNever, [&](std::size_t, std::size_t) { ++taken; });
  EXPECT_LT(farthest, kThreads * kAhead + 1);
  EXPECT_GT(farthest, 0U);
}

TEST(WorkInOrder, EndsWithACancel) {
  std::size_t taken = 0;
  const std::size_t count = WorkInOrder(
      500, 3, 2, [](std::size_t item) { return item; }, [&taken] { return taken == 40; },
      [&taken](std::size_t, std::size_t) { ++taken; });
  EXPECT_EQ(count, 40U);
  EXPECT_EQ(taken, 40U);
}

TEST(WorkInOrder, PassesOnWhatIsThrownWhileTaking) {
  EXPECT_THROW(WorkInOrder(
                   500, 3, 2, [](std::size_t item) { return item; }, kNever,
                   [](std::size_t item, std::size_t) {
                     if (item == 7) {
                       throw std::runtime_error("enough");
                     }
                   }),
               std::runtime_error);
}

TEST(WorkInOrder, HasNothingToDoWithoutItems) {
  EXPECT_EQ(
      WorkInOrder(
          0, 2, 2, [](std::size_t item) { return item; }, kNever, [](std::size_t, std::size_t) { FAIL(); }),
      0U);
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
