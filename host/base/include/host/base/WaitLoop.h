#pragma once

#include <QEventLoop>
#include <QTimer>

#include <atomic>

namespace Zenvora::Lumidex::Host {

/// Waits for an answer in an event loop, with an eye on a flag that a signal handler or another thread may
/// set.
class WaitLoop {
 public:
  /// The answer is there. It may come before `Wait`.
  void Finish() {
    finished_ = true;
    loop_.quit();
  }

  /// True when the answer came; false when `cancel` (may be null) was set or the application quits.
  bool Wait(const std::atomic<bool>* cancel) {
    constexpr int kPollMs = 50;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop_, [this, cancel] {
      if (cancel && *cancel) {
        loop_.quit();
      }
    });
    if (cancel) {
      poll.start(kPollMs);
    }
    if (!finished_) {
      loop_.exec();
    }
    return finished_;
  }

 private:
  QEventLoop loop_;
  bool finished_ = false;
};

}  // namespace Zenvora::Lumidex::Host
