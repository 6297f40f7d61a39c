#pragma once

#include <host/base/TaskThreads.h>
#include <host/shots/PhotoReading.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Threads that read photos' metadata. One thread hands out files and collects what was read, in whatever
/// order it comes. The destructor leaves unread what no thread has begun, and waits for the rest.
class MetadataReaders {
 public:
  struct Task {
    ioPath path;
    bool known = false;  ///< The catalogue has the photo already.
  };
  struct Result {
    bool ok = false;
    bool known = false;
    PhotoRecord record;   ///< When ok.
    ScanFinding finding;  ///< When not.
  };

  explicit MetadataReaders(int threads) : threads_(threads, &MetadataReaders::Read) {}

  /// True when as many files are under way as may be: that bounds the memory.
  bool IsFull() const { return threads_.UnderWay() >= kMaxUnderWay; }
  bool IsIdle() const { return threads_.UnderWay() == 0; }
  void Submit(Task task) { threads_.Submit(std::move(task)); }
  /// What was read since the last call; with `wait`, waits a moment when that is nothing.
  std::vector<Result> Collect(bool wait) { return threads_.Collect(wait); }

 private:
  static constexpr std::size_t kMaxUnderWay = 1024;

  static Result Read(Task& task);

  TaskThreads<Task, Result> threads_;
};

}  // namespace Zenvora::Lumidex::Host
