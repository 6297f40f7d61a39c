#include "OrderedThumbnails.h"

#include <host/PhotoFiles.h>

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <new>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr unsigned kMostThreads = 8;
constexpr std::size_t kAheadPerThread = 8;
constexpr int kJpegQuality = 80;

/// Nothing but the pixels: neither transparency, which JPEG would make black, nor texts and profiles of the
/// original.
QImage Flattened(const QImage& image) {
  QImage plain(image.size(), QImage::Format_RGB32);
  plain.fill(Qt::white);
  QPainter painter(&plain);
  painter.drawImage(0, 0, image);
  return plain;
}

ReportThumbnail LoadOne(const ioPath& file, int longerSide) {
  try {
    const QImage image = LoadThumbnail(file, longerSide);
    if (image.isNull()) {
      return {};
    }
    ReportThumbnail result;
    QBuffer buffer(&result.jpeg);
    if (!buffer.open(QIODevice::WriteOnly) || !Flattened(image).save(&buffer, "JPEG", kJpegQuality)) {
      return {};
    }
    result.size = image.size();
    return result;
  } catch (const std::bad_alloc&) {
    return {};
  }
}

}  // namespace

OrderedThumbnails::OrderedThumbnails(const std::vector<const ioPath*>& files, int longerSide,
                                     unsigned threads)
    : files_(files), longerSide_(longerSide) {
  unsigned count = threads > 0 ? threads : std::clamp(std::thread::hardware_concurrency(), 1U, kMostThreads);
  count = static_cast<unsigned>(std::min<std::size_t>(count, files.size()));
  ahead_ = count * kAheadPerThread;
  try {
    for (unsigned i = 0; i < count; ++i) {
      threads_.emplace_back([this] { Work(); });
    }
  } catch (...) {
    Stop();
    throw;
  }
}

OrderedThumbnails::~OrderedThumbnails() {
  Stop();
}

void OrderedThumbnails::Work() {
  std::unique_lock<std::mutex> lock(mutex_);
  for (;;) {
    room_.wait(lock, [this] { return stop_ || next_ == files_.size() || next_ < taken_ + ahead_; });
    if (stop_ || next_ == files_.size()) {
      return;
    }
    const std::size_t index = next_++;
    lock.unlock();
    ReportThumbnail thumbnail = LoadOne(*files_[index], longerSide_);
    lock.lock();
    loaded_.emplace(index, std::move(thumbnail));
    ready_.notify_one();
  }
}

void OrderedThumbnails::Stop() {
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

std::optional<ReportThumbnail> OrderedThumbnails::TakeNext(std::chrono::milliseconds patience) {
  std::unique_lock<std::mutex> lock(mutex_);
  if (!ready_.wait_for(lock, patience, [this] { return loaded_.count(taken_) > 0; })) {
    return std::nullopt;
  }
  ReportThumbnail result = std::move(loaded_.extract(taken_).mapped());
  ++taken_;
  lock.unlock();
  room_.notify_all();
  return result;
}

}  // namespace Zenvora::Lumidex::Host
