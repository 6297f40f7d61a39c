#pragma once

#include <host/base/FileCopy.h>
#include <host/base/TaskThreads.h>
#include <host/shots/PhotoReading.h>

#include <cstddef>
#include <cstdint>
#include <utility>
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

  explicit CopyVerifiers(int threads) : threads_(threads, &CopyVerifiers::Verify) {}

  /// True when as many bytes or files are under way as may be: that bounds what waits in the system's memory.
  bool IsFull() const { return threads_.UnderWay() >= kMostFiles || bytes_ >= kMostBytes; }
  bool IsIdle() const { return threads_.UnderWay() == 0; }
  void Submit(Task task);
  /// What was compared since the last call; with `wait`, waits a moment when that is nothing.
  std::vector<Result> Collect(bool wait);

 private:
  static constexpr std::size_t kMostFiles = 64;
  static constexpr std::uint64_t kMostBytes = std::uint64_t{256} << 20U;

  static Result Verify(Task& task);

  /// Under way.
  std::uint64_t bytes_ = 0;
  TaskThreads<Task, Result> threads_;
};

}  // namespace Zenvora::Lumidex::Host
