#pragma once

#include <QObject>

#include <functional>

namespace Zenvora::Tavolin {

/// Calls back on the creating thread when nothing will come from its event loop any more: when the
/// application quits or, had it never an event loop, when its object is about to go; in a `QThread` also when
/// that thread ends.
///
/// The callback runs at most once and may destroy the watch. Without an application object it never runs. In
/// the last step, the destruction of the application object, exceptions out of the callback are logged: there
/// is no one to catch them. Create and destroy a watch on one thread.
class ShutdownWatch {
 public:
  explicit ShutdownWatch(std::function<void()> finish);
  ~ShutdownWatch();
  ShutdownWatch(const ShutdownWatch&) = delete;
  ShutdownWatch& operator=(const ShutdownWatch&) = delete;

  /// True on the thread that is destroying the application object, or when there is none: events go nowhere.
  static bool IsTooLate();

 private:
  friend void FinishOpenWatches();
  void Finish();

  QObject here_;
  std::function<void()> finish_;
};

}  // namespace Zenvora::Tavolin
