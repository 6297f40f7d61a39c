#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Threads that turn tasks into results. One thread, which makes the object, hands tasks over and collects
/// results, in whatever order they come. The destructor leaves alone what no thread has begun, and waits for
/// the rest.
template <class Task, class Result>
class TaskThreads {
 public:
  /// Called on several threads at once, each time with a task that is its own; must not throw.
  using Work = std::function<Result(Task&)>;

  /// `threads`: 0 or less means one for each core, at most 8; 64 at most. Fewer when the system has no more
  /// to give; throws `std::system_error` or `std::bad_alloc` when it has none.
  TaskThreads(int threads, Work work) : work_(std::move(work)) {
    constexpr int kMostByItself = 8;
    constexpr int kMost = 64;
    const int cores = static_cast<int>(std::thread::hardware_concurrency());
    const int count = std::clamp(threads > 0 ? threads : std::min(cores, kMostByItself), 1, kMost);
    threads_.reserve(static_cast<std::size_t>(count));
    try {
      for (int i = 0; i < count; ++i) {
        threads_.emplace_back(&TaskThreads::Run, this);
      }
    } catch (const std::exception&) {
      // The system has no more threads or memory to give; fewer threads do as well, and must be joined.
      if (threads_.empty()) {
        throw;
      }
    }
  }
  ~TaskThreads() {
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      stopping_ = true;
    }
    tasksChanged_.notify_all();
    for (std::thread& thread : threads_) {
      thread.join();
    }
  }
  TaskThreads(const TaskThreads&) = delete;
  TaskThreads& operator=(const TaskThreads&) = delete;

  std::size_t Threads() const { return threads_.size(); }
  /// Handed over and not yet collected.
  std::size_t UnderWay() const { return underWay_; }

  void Submit(Task task) {
    ++underWay_;
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      tasks_.push_back(std::move(task));
    }
    tasksChanged_.notify_one();
  }

  /// What was done since the last call; with `wait`, waits a moment when that is nothing.
  std::vector<Result> Collect(bool wait) {
    // Short, so that a request to stop, which wakes nobody, is noticed.
    constexpr auto kMoment = std::chrono::milliseconds(20);
    std::vector<Result> results;
    {
      std::unique_lock<std::mutex> lock(mutex_);
      if (wait && underWay_ > 0) {
        resultsChanged_.wait_for(lock, kMoment, [this] { return !results_.empty(); });
      }
      results.swap(results_);
    }
    underWay_ -= results.size();
    return results;
  }

 private:
  void Run() {
    std::unique_lock<std::mutex> lock(mutex_);
    for (;;) {
      tasksChanged_.wait(lock, [this] { return stopping_ || !tasks_.empty(); });
      if (stopping_) {
        return;
      }
      Task task = std::move(tasks_.front());
      tasks_.pop_front();
      lock.unlock();
      Result result = work_(task);
      lock.lock();
      results_.push_back(std::move(result));
      resultsChanged_.notify_one();
    }
  }

  const Work work_;
  /// The handing thread's own.
  std::size_t underWay_ = 0;

  std::mutex mutex_;
  std::condition_variable tasksChanged_;
  std::condition_variable resultsChanged_;
  std::deque<Task> tasks_;
  std::vector<Result> results_;
  bool stopping_ = false;
  // Last: they use all of the above.
  std::vector<std::thread> threads_;
};

/// Does `work` for the numbers from 0 to `items` - 1 in several threads, as `TaskThreads` takes their number,
/// and hands what it returns to `take` on the calling thread, in the numbers' order: `take(number, result)`,
/// whose exceptions end the work and are passed on. Stops once `isCancelled` says so, which is asked again
/// and again. Returns how many results were handed out. The threads are at most `aheadPerThread` results each
/// ahead of `take`, so that memory does not grow with the number of items.
template <class Work, class IsCancelled, class Take>
std::size_t WorkInOrder(std::size_t items, int threads, std::size_t aheadPerThread, const Work& work,
                        const IsCancelled& isCancelled, const Take& take) {
  if (items == 0) {
    return 0;
  }
  using Result = decltype(work(items));
  using Numbered = std::pair<std::size_t, Result>;
  TaskThreads<std::size_t, Numbered> pool(threads,
                                          [&work](std::size_t& item) { return Numbered(item, work(item)); });
  const std::size_t ahead = pool.Threads() * aheadPerThread;
  std::map<std::size_t, Result> done;
  std::size_t begun = 0;
  std::size_t taken = 0;
  while (taken < items && !isCancelled()) {
    for (; begun < std::min(items, taken + ahead); ++begun) {
      pool.Submit(begun);
    }
    for (Numbered& result : pool.Collect(done.count(taken) == 0)) {
      done.emplace(std::move(result));
    }
    if (auto next = done.extract(taken)) {
      take(taken++, std::move(next.mapped()));
    }
  }
  return taken;
}

}  // namespace Zenvora::Lumidex::Host
