#pragma once

#include <QDateTime>

#include <chrono>

namespace Zenvora::App {

/// What time it is, as far as rules depend on it, and letting it pass. May be asked on any thread; never
/// fails.
class IClock {
 public:
  virtual ~IClock() = default;

  /// The current moment in local time.
  virtual QDateTime Now() const = 0;
  /// Blocks the calling thread for at least `pause`, whatever is done to the computer's clock meanwhile.
  virtual void SleepFor(std::chrono::milliseconds pause) const = 0;
};

}  // namespace Zenvora::App
