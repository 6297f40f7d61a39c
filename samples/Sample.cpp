#include "SampleExif.h"
#include "SamplePlan.h"
#include "SampleScenes.h"

#include <host/base/FolderEntries.h>
#include <host/base/WholeFile.h>
#include <samples/Sample.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <QBuffer>
#include <QImage>
#include <QTransform>

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <filesystem>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace fs = std::filesystem;

namespace {

constexpr int kJpegQuality = 85;
constexpr unsigned kMostThreads = 8;

/// Turns the upright picture to how the sensor saw it.
QImage Stored(const QImage& upright, int orientation) {
  const int turn = orientation == 3 ? 180 : orientation == 6 ? 270 : orientation == 8 ? 90 : 0;
  return turn == 0 ? upright : upright.transformed(QTransform().rotate(turn));
}

QByteArray MakePhoto(const SampleShot& shot) {
  const QImage picture = Stored(DrawScene(shot.look), shot.orientation);
  QByteArray jpeg;
  QBuffer buffer(&jpeg);
  if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "JPEG", kJpegQuality)) {
    return {};
  }
  return WithSampleExif(jpeg, shot);
}

void WritePhoto(const ioPath& folder, const SampleShot& shot) {
  const ioPath file = folder / ioPath(shot.path);
  const QByteArray bytes = MakePhoto(shot);
  if (bytes.isEmpty()) {
    ThrowCannotWrite(file, "the JPEG plug-in of Qt is missing");
  }
  if (const std::error_code error = MakeFolders(file.parent_path())) {
    ThrowCannotWrite(file, ErrorText(error));
  }
  WholeFile output(file);
  output.Write(bytes);
  output.CommitWithTime(shot.taken.toMSecsSinceEpoch());
}

void PrepareFolder(const ioPath& folder) {
  const auto refuse = [&folder](const std::string& cause) {
    ThrowHostError(folder.utf8string(), "Cannot make a collection in " + folder.utf8string() + ": " + cause);
  };
  std::error_code error = MakeFolders(folder);
  const bool isEmpty = error || ReadFolderEntries(folder, EntryChoice::All, error).empty();
  if (error) {
    refuse(ErrorText(error));
  }
  if (!isEmpty) {
    refuse("the folder is not empty");
  }
}

/// Draws and writes the shots in several threads. Each file depends on its shot alone, so their order is
/// free.
class Studio {
 public:
  Studio(const ioPath& folder, const std::vector<SampleShot>& shots, const std::atomic<bool>* cancel)
      : folder_(folder), shots_(shots), cancel_(cancel) {
    const unsigned threads = std::clamp(std::thread::hardware_concurrency(), 1U, kMostThreads);
    running_ = threads;
    try {
      for (unsigned i = 0; i < threads; ++i) {
        threads_.emplace_back([this] { Work(); });
      }
    } catch (...) {
      Stop();
      throw;
    }
  }
  ~Studio() { Stop(); }
  Studio(const Studio&) = delete;
  Studio& operator=(const Studio&) = delete;

  /// Reports until all is done or given up. Returns how many files were written.
  int Wait(const std::function<void(int, int)>& progress) {
    int reported = 0;
    std::unique_lock<std::mutex> lock(mutex_);
    while (running_ > 0 || reported < done_) {
      changed_.wait(lock, [&] { return running_ == 0 || reported < done_; });
      if (reported == done_) {
        break;
      }
      reported = done_;
      if (progress) {
        lock.unlock();
        progress(reported, static_cast<int>(shots_.size()));
        lock.lock();
      }
    }
    if (failure_) {
      std::rethrow_exception(failure_);
    }
    return done_;
  }

 private:
  bool Cancelled() const { return cancel_ != nullptr && cancel_->load(); }

  void Work() {
    std::unique_lock<std::mutex> lock(mutex_);
    while (next_ < shots_.size() && !stop_ && !Cancelled()) {
      const std::size_t index = next_++;
      lock.unlock();
      std::exception_ptr failure;
      try {
        WritePhoto(folder_, shots_[index]);
      } catch (...) {
        failure = std::current_exception();
      }
      lock.lock();
      if (failure) {
        failure_ = failure_ ? failure_ : failure;
        stop_ = true;
      } else {
        ++done_;
      }
      changed_.notify_one();
    }
    --running_;
    changed_.notify_one();
  }

  void Stop() {
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      stop_ = true;
    }
    for (std::thread& thread : threads_) {
      thread.join();
    }
    threads_.clear();
  }

  const ioPath& folder_;
  const std::vector<SampleShot>& shots_;
  const std::atomic<bool>* const cancel_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::size_t next_ = 0;
  int done_ = 0;
  unsigned running_ = 0;
  bool stop_ = false;
  std::exception_ptr failure_;
  std::vector<std::thread> threads_;
};

}  // namespace

SampleResult MakeSample(const ioPath& folder, const SampleOptions& options,
                        const std::function<void(int, int)>& progress) {
  if (options.photos < kLeastSamplePhotos || options.photos > kMostSamplePhotos) {
    ThrowHostError(folder.utf8string(), "Cannot make a collection of " + std::to_string(options.photos) +
                                            " photos in " + folder.utf8string() + ": only of " +
                                            std::to_string(kLeastSamplePhotos) + " to " +
                                            std::to_string(kMostSamplePhotos));
  }
  PrepareFolder(folder);
  const std::vector<SampleShot> shots = PlanSample(options.seed, options.photos);
  SampleResult result;
  Studio studio(folder, shots, options.cancel);
  result.photos = studio.Wait(progress);
  result.cancelled = result.photos < static_cast<int>(shots.size());
  return result;
}

}  // namespace Zenvora::Lumidex::Host
