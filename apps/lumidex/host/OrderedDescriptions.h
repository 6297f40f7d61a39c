#pragma once

#include <host/PhotoAnalysis.h>

#include <condition_variable>
#include <cstddef>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Describes photos in several threads and hands the descriptions out in the order of the files. It works
/// only a little ahead of the taker, so that memory does not grow with the number of files.
class OrderedDescriptions {
 public:
  /// All arguments must outlive the object.
  OrderedDescriptions(const std::vector<ioPath>& files, const PhotoAnalyser& analyser,
                      const AnalysisOptions& options);
  /// Waits for the photos that are in work, not for the others.
  ~OrderedDescriptions();
  OrderedDescriptions(const OrderedDescriptions&) = delete;
  OrderedDescriptions& operator=(const OrderedDescriptions&) = delete;

  /// The next one, or nothing after a cancel. To be called no more often than there are files.
  std::optional<PhotoDescription> TakeNext();

 private:
  void Work();
  void Stop();
  bool IsCancelled() const;

  const std::vector<ioPath>& files_;
  const PhotoAnalyser& analyser_;
  const AnalysisOptions& options_;
  std::size_t ahead_ = 0;
  std::mutex mutex_;
  std::condition_variable ready_;
  std::condition_variable room_;
  std::map<std::size_t, PhotoDescription> described_;
  std::size_t next_ = 0;   ///< To be described.
  std::size_t taken_ = 0;  ///< Handed out so far.
  bool stop_ = false;
  std::vector<std::thread> threads_;
};

}  // namespace Zenvora::Lumidex::Host
