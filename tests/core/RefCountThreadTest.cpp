#include "Counted.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace Zenvora {
namespace {

using Zenvora::Test::Counted;

constexpr int kThreads = 4;

TEST(RefCountOnManyThreads, LosesNoCount) {
  constexpr int kRounds = 20000;
  std::atomic<int> deleted{0};
  boost::intrusive_ptr<Counted> object(new Counted(deleted));
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([object] {
      for (int round = 0; round < kRounds; ++round) {
        const boost::intrusive_ptr<const Counted> copy(object);
        EXPECT_GE(copy->GetRefCount(), 2U);
      }
    });
  }
  for (auto& thread : threads) {
    thread.join();
  }
  threads.clear();
  EXPECT_EQ(object->GetRefCount(), 1U);
  EXPECT_EQ(deleted, 0);
  object.reset();
  EXPECT_EQ(deleted, 1);
}

TEST(RefCountOnManyThreads, DeletesOnceAfterEveryWrite) {
  constexpr int kRounds = 500;
  for (int round = 0; round < kRounds; ++round) {
    std::atomic<int> deleted{0};
    boost::intrusive_ptr<Counted> object(new Counted(deleted));
    std::thread writer([mine = object]() mutable {
      mine->payload = 1;
      mine.reset();
    });
    object.reset();
    writer.join();
    ASSERT_EQ(deleted, 1);
  }
}

}  // namespace
}  // namespace Zenvora
