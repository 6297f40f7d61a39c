#pragma once

#include <host/Scanner.h>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
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

  explicit MetadataReaders(int threads);
  ~MetadataReaders();
  MetadataReaders(const MetadataReaders&) = delete;
  MetadataReaders& operator=(const MetadataReaders&) = delete;

  /// True when as many files are under way as may be: that bounds the memory.
  bool IsFull() const { return underWay_ >= kMaxUnderWay; }
  bool IsIdle() const { return underWay_ == 0; }
  void Submit(Task task);
  /// What was read since the last call; with `wait`, waits a moment when that is nothing.
  std::vector<Result> Collect(bool wait);

 private:
  static constexpr std::size_t kMaxUnderWay = 1024;

  void Run();
  static Result Read(const Task& task);

  /// Handed out and not yet collected; the handing thread's own.
  std::size_t underWay_ = 0;

  std::mutex mutex_;
  std::condition_variable tasksChanged_;
  std::condition_variable resultsChanged_;
  std::deque<Task> tasks_;
  std::vector<Result> results_;
  bool stopping_ = false;
  std::vector<std::thread> threads_;
};

}  // namespace Zenvora::Lumidex::Host
