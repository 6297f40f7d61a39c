#pragma once

#include <QDateTime>

namespace Zenvora::App {

/// What time it is, as far as rules depend on it. May be asked on any thread; never fails.
class IClock {
 public:
  virtual ~IClock() = default;

  /// The current moment in local time.
  virtual QDateTime Now() const = 0;
};

}  // namespace Zenvora::App
