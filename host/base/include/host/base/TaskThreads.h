#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <system_error>
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
  /// Called on those threads with a task that is its own; must not throw.
  using Work = Result (*)(Task&);

  /// Fewer than `threads` when the system has no more to give; throws `std::system_error` when it has none.
  TaskThreads(int threads, Work work) : work_(work) {
    threads_.reserve(static_cast<std::size_t>(threads));
    try {
      for (int i = 0; i < threads; ++i) {
        threads_.emplace_back(&TaskThreads::Run, this);
      }
    } catch (const std::system_error&) {
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

}  // namespace Zenvora::Lumidex::Host
