#include "MetadataReaders.h"

#include <chrono>
#include <exception>
#include <utility>

namespace Zenvora::Lumidex::Host {

MetadataReaders::MetadataReaders(int threads) {
  threads_.reserve(static_cast<std::size_t>(threads));
  try {
    for (int i = 0; i < threads; ++i) {
      threads_.emplace_back(&MetadataReaders::Run, this);
    }
  } catch (const std::system_error&) {
    // The system has no more threads to give; fewer do as well.
    if (threads_.empty()) {
      throw;
    }
  }
}

MetadataReaders::~MetadataReaders() {
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    stopping_ = true;
  }
  tasksChanged_.notify_all();
  for (std::thread& thread : threads_) {
    thread.join();
  }
}

void MetadataReaders::Submit(Task task) {
  ++underWay_;
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    tasks_.push_back(std::move(task));
  }
  tasksChanged_.notify_one();
}

std::vector<MetadataReaders::Result> MetadataReaders::Collect(bool wait) {
  std::vector<Result> results;
  {
    std::unique_lock<std::mutex> lock(mutex_);
    if (wait && results_.empty() && underWay_ > 0) {
      // Short, so that a cancelled scan, which wakes nobody, is noticed.
      resultsChanged_.wait_for(lock, std::chrono::milliseconds(20), [this] { return !results_.empty(); });
    }
    results.swap(results_);
  }
  underWay_ -= results.size();
  return results;
}

void MetadataReaders::Run() {
  std::unique_lock<std::mutex> lock(mutex_);
  for (;;) {
    tasksChanged_.wait(lock, [this] { return stopping_ || !tasks_.empty(); });
    if (stopping_) {
      return;
    }
    const Task task = std::move(tasks_.front());
    tasks_.pop_front();
    lock.unlock();
    Result result = Read(task);
    lock.lock();
    results_.push_back(std::move(result));
    resultsChanged_.notify_one();
  }
}

MetadataReaders::Result MetadataReaders::Read(const Task& task) {
  Result result;
  result.known = task.known;
  try {
    result.ok = ReadPhoto(task.path, result.record, result.finding);
  } catch (const std::exception& error) {
    // Memory has run out: this file is passed over, and the scan goes on.
    result.finding = {ScanFinding::Kind::Unreadable, task.path, error.what()};
  }
  return result;
}

}  // namespace Zenvora::Lumidex::Host
