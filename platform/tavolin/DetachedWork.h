#pragma once

#include <QString>

#include <functional>
#include <memory>

class QObject;

namespace Zenvora::Tavolin {

/// Work on a thread of its own that nobody ever waits for, not even the end of the process: for calls into
/// the system that take as long as they like and cannot be broken off. This library stays loaded once there
/// was one.
///
/// The work must not touch anything that ends before the process does.
class DetachedWork {
 public:
  using Work = std::function<QString()>;
  using Done = std::function<void(const QString&)>;

  /// Starts `work`; what it returns is given to `done` in the event loop of `context`'s thread. `context`
  /// outlives this object.
  DetachedWork(QObject& context, Work work, Done done);
  /// Gives it up: `done` is not called any more. Does not block.
  ~DetachedWork();
  DetachedWork(const DetachedWork&) = delete;
  DetachedWork& operator=(const DetachedWork&) = delete;

 private:
  struct Shared;
  const std::shared_ptr<Shared> shared_;
};

}  // namespace Zenvora::Tavolin
