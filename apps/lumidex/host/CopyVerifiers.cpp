#include "CopyVerifiers.h"

#include <chrono>
#include <exception>
#include <utility>

namespace Zenvora::Lumidex::Host {

CopyVerifiers::CopyVerifiers(int threads) {
  for (int i = 0; i < threads; ++i) {
    threads_.emplace_back([this] { Run(); });
  }
}

CopyVerifiers::~CopyVerifiers() {
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    stopping_ = true;
  }
  tasksChanged_.notify_all();
  for (std::thread& thread : threads_) {
    thread.join();
  }
}

void CopyVerifiers::Submit(Task task) {
  ++underWay_;
  bytes_ += task.copied.size;
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    tasks_.push_back(std::move(task));
  }
  tasksChanged_.notify_one();
}

std::vector<CopyVerifiers::Result> CopyVerifiers::Collect(bool wait) {
  constexpr auto kMoment = std::chrono::milliseconds(50);
  std::vector<Result> results;
  {
    std::unique_lock<std::mutex> lock(mutex_);
    if (wait) {
      resultsChanged_.wait_for(lock, kMoment, [this] { return !results_.empty(); });
    }
    results.swap(results_);
  }
  for (const Result& result : results) {
    --underWay_;
    bytes_ -= result.task.copied.size;
  }
  return results;
}

void CopyVerifiers::Run() {
  std::unique_lock<std::mutex> lock(mutex_);
  for (;;) {
    tasksChanged_.wait(lock, [this] { return stopping_ || !tasks_.empty(); });
    if (stopping_) {
      return;
    }
    Task task = std::move(tasks_.front());
    tasks_.pop_front();
    lock.unlock();
    Result result = Verify(std::move(task));
    lock.lock();
    results_.push_back(std::move(result));
    resultsChanged_.notify_one();
  }
}

CopyVerifiers::Result CopyVerifiers::Verify(Task task) {
  Result result;
  result.task = std::move(task);
  try {
    result.verified = VerifyCopy(result.task.copy, result.task.copied);
    if (result.verified.status == CopyOutcome::Status::Copied) {
      result.state = QueryFile(result.task.copy);
      result.isRead = result.task.isPhoto && ReadPhoto(result.task.copy, result.record, result.finding);
    }
  } catch (const std::exception& error) {
    result.verified.status = CopyOutcome::Status::NotWritten;
    result.verified.cause = error.what();
  }
  return result;
}

}  // namespace Zenvora::Lumidex::Host
