#pragma once

#include "ReportPage.h"

#include <zenvora/core/ioPath.h>

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Loads thumbnails in several threads and hands them out in the order of the files. It works only a little
/// ahead of the taker, so that memory does not grow with the number of files.
class OrderedThumbnails {
 public:
  /// `files` must outlive the object. 0 threads: one per core, at most 8.
  OrderedThumbnails(const std::vector<const ioPath*>& files, int longerSide, unsigned threads = 0);
  /// Waits for the pictures that are being loaded, not for the others.
  ~OrderedThumbnails();
  OrderedThumbnails(const OrderedThumbnails&) = delete;
  OrderedThumbnails& operator=(const OrderedThumbnails&) = delete;

  /// The next one, or nothing when it is not there after `patience`. To be called once more than there are
  /// files never.
  std::optional<ReportThumbnail> TakeNext(std::chrono::milliseconds patience);

 private:
  void Work();
  void Stop();

  const std::vector<const ioPath*>& files_;
  const int longerSide_;
  std::size_t ahead_ = 0;
  std::mutex mutex_;
  std::condition_variable ready_;
  std::condition_variable room_;
  std::map<std::size_t, ReportThumbnail> loaded_;
  std::size_t next_ = 0;   ///< To be loaded.
  std::size_t taken_ = 0;  ///< Handed out so far.
  bool stop_ = false;
  std::vector<std::thread> threads_;
};

}  // namespace Zenvora::Lumidex::Host
