#pragma once

#include "FileCopy.h"

#include <host/Scanner.h>

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Threads that bring copies to the disk, read them back and compare them. One thread hands copies over and
/// collects them, in whatever order they come. The destructor leaves alone what no thread has begun, and
/// waits for the rest.
class CopyVerifiers {
 public:
  struct Task {
    std::size_t index = 0;  ///< In the plan.
    ioPath copy;            ///< Where it is until it gets its name.
    bool isPhoto = false;
    CopyOutcome copied;
  };
  struct Result {
    Task task;
    CopyOutcome verified;
    FileState state;      ///< Of the copy.
    bool isRead = false;  ///< `record` is what a scan would store, under the copy's path.
    PhotoRecord record;
    ScanFinding finding;  ///< Of a photo that could not be read.
  };

  explicit CopyVerifiers(int threads);
  ~CopyVerifiers();
  CopyVerifiers(const CopyVerifiers&) = delete;
  CopyVerifiers& operator=(const CopyVerifiers&) = delete;

  /// True when as many bytes or files are under way as may be: that bounds what waits in the system's memory.
  bool IsFull() const { return underWay_ >= kMostFiles || bytes_ >= kMostBytes; }
  bool IsIdle() const { return underWay_ == 0; }
  void Submit(Task task);
  /// What was compared since the last call; with `wait`, waits a moment when that is nothing.
  std::vector<Result> Collect(bool wait);

 private:
  static constexpr std::size_t kMostFiles = 64;
  static constexpr std::uint64_t kMostBytes = std::uint64_t{256} << 20U;

  void Run();
  static Result Verify(Task task);

  // The handing thread's own.
  std::size_t underWay_ = 0;
  std::uint64_t bytes_ = 0;

  std::mutex mutex_;
  std::condition_variable tasksChanged_;
  std::condition_variable resultsChanged_;
  std::deque<Task> tasks_;
  std::vector<Result> results_;
  bool stopping_ = false;
  std::vector<std::thread> threads_;
};

}  // namespace Zenvora::Lumidex::Host
