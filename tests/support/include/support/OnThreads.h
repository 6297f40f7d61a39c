#pragma once

#include <functional>
#include <thread>
#include <vector>

namespace Zenvora::Test {

/// Runs `work` with 0 to `count` - 1, each in a thread of its own and all at once, and waits for their end.
inline void OnThreads(int count, const std::function<void(int)>& work) {
  std::vector<std::thread> threads;
  threads.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    threads.emplace_back(work, i);
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
}

}  // namespace Zenvora::Test
