#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Works on numbered items in several threads and hands the results out in the items' order. It works only
/// a little ahead of the taker, so that memory does not grow with the number of items.
template <typename Result>
class OrderedWork {
 public:
  /// Called in several threads at once; must not throw.
  using Worker = std::function<Result(std::size_t item)>;

  /// 0 threads: one per core, at most 8. Throws `std::system_error` or `std::bad_alloc` when not one can be
  /// had.
  OrderedWork(std::size_t items, unsigned threads, std::size_t aheadPerThread, Worker worker)
      : items_(items), worker_(std::move(worker)) {
    constexpr unsigned kMostThreads = 8;
    const unsigned wanted =
        threads > 0 ? threads : std::clamp(std::thread::hardware_concurrency(), 1U, kMostThreads);
    const std::size_t count = std::min<std::size_t>(wanted, items);
    ahead_ = count * aheadPerThread;
    threads_.reserve(count);
    try {
      for (std::size_t i = 0; i < count; ++i) {
        threads_.emplace_back([this] { Work(); });
      }
    } catch (const std::exception&) {
      // The system has no more threads or memory to give; fewer threads do as well, and must be joined.
      if (threads_.empty()) {
        throw;
      }
    }
  }

  /// Waits for the items that are in work, not for the others.
  ~OrderedWork() {
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      stop_ = true;
    }
    room_.notify_all();
    for (std::thread& thread : threads_) {
      thread.join();
    }
  }

  OrderedWork(const OrderedWork&) = delete;
  OrderedWork& operator=(const OrderedWork&) = delete;

  /// The next result, or nothing when it is not there after `patience`. Results can be taken no more often
  /// than there are items.
  std::optional<Result> TakeNext(std::chrono::milliseconds patience) {
    std::unique_lock<std::mutex> lock(mutex_);
    if (!ready_.wait_for(lock, patience, [this] { return done_.count(taken_) > 0; })) {
      return std::nullopt;
    }
    Result result = std::move(done_.extract(taken_).mapped());
    ++taken_;
    lock.unlock();
    room_.notify_all();
    return result;
  }

  /// The next result, or nothing once `isCancelled` says so, which is asked again and again.
  template <typename IsCancelled>
  std::optional<Result> TakeNextUnless(const IsCancelled& isCancelled) {
    // Short, for a cancel wakes nobody.
    constexpr std::chrono::milliseconds kPatience{20};
    while (!isCancelled()) {
      if (std::optional<Result> result = TakeNext(kPatience)) {
        return result;
      }
    }
    return std::nullopt;
  }

 private:
  void Work() {
    std::unique_lock<std::mutex> lock(mutex_);
    for (;;) {
      room_.wait(lock, [this] { return stop_ || next_ == items_ || next_ < taken_ + ahead_; });
      if (stop_ || next_ == items_) {
        return;
      }
      const std::size_t item = next_++;
      lock.unlock();
      Result result = worker_(item);
      lock.lock();
      done_.emplace(item, std::move(result));
      ready_.notify_one();
    }
  }

  const std::size_t items_;
  const Worker worker_;
  std::size_t ahead_ = 0;
  std::mutex mutex_;
  std::condition_variable ready_;
  std::condition_variable room_;
  std::map<std::size_t, Result> done_;
  std::size_t next_ = 0;   ///< To be worked on.
  std::size_t taken_ = 0;  ///< Handed out so far.
  bool stop_ = false;
  std::vector<std::thread> threads_;
};

}  // namespace Zenvora::Lumidex::Host
