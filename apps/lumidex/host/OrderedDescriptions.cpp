#include "OrderedDescriptions.h"

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr unsigned kMostThreads = 8;
/// A large picture among small ones shall not hold the other threads up.
constexpr std::size_t kAheadPerThread = 64;

}  // namespace

OrderedDescriptions::OrderedDescriptions(const std::vector<ioPath>& files, const PhotoAnalyser& analyser,
                                         const AnalysisOptions& options)
    : files_(files), analyser_(analyser), options_(options) {
  std::size_t count = options.threads > 0 ? static_cast<std::size_t>(options.threads)
                                          : std::clamp(std::thread::hardware_concurrency(), 1U, kMostThreads);
  count = std::min(count, files.size());
  ahead_ = count * kAheadPerThread;
  try {
    for (std::size_t i = 0; i < count; ++i) {
      threads_.emplace_back([this] { Work(); });
    }
  } catch (const std::system_error&) {
    // The system has no more threads to give; fewer do as well.
    if (threads_.empty()) {
      throw;
    }
  }
}

OrderedDescriptions::~OrderedDescriptions() {
  Stop();
}

bool OrderedDescriptions::IsCancelled() const {
  return options_.cancel != nullptr && *options_.cancel;
}

void OrderedDescriptions::Work() {
  std::unique_lock<std::mutex> lock(mutex_);
  for (;;) {
    room_.wait(lock, [this] { return stop_ || next_ == files_.size() || next_ < taken_ + ahead_; });
    if (stop_ || next_ == files_.size() || IsCancelled()) {
      return;
    }
    const std::size_t index = next_++;
    lock.unlock();
    PhotoDescription description = DescribePhoto(files_[index], analyser_, options_);
    lock.lock();
    described_.emplace(index, std::move(description));
    ready_.notify_one();
  }
}

void OrderedDescriptions::Stop() {
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    stop_ = true;
  }
  room_.notify_all();
  for (std::thread& thread : threads_) {
    thread.join();
  }
  threads_.clear();
}

std::optional<PhotoDescription> OrderedDescriptions::TakeNext() {
  std::unique_lock<std::mutex> lock(mutex_);
  // Short, so that a cancel, which wakes nobody, is noticed.
  constexpr std::chrono::milliseconds kPatience{20};
  do {
    if (IsCancelled()) {
      return std::nullopt;
    }
  } while (!ready_.wait_for(lock, kPatience, [this] { return described_.count(taken_) > 0; }));
  PhotoDescription result = std::move(described_.extract(taken_).mapped());
  ++taken_;
  lock.unlock();
  room_.notify_all();
  return result;
}

}  // namespace Zenvora::Lumidex::Host
