#pragma once

#include <glog/logging.h>

namespace Zenvora::Test {

/// Lets verbose log lines up to a level through while it lives.
class Verbosity {
 public:
  explicit Verbosity(int level) : former_(FLAGS_v) { FLAGS_v = level; }
  ~Verbosity() { FLAGS_v = former_; }
  Verbosity(const Verbosity&) = delete;
  Verbosity& operator=(const Verbosity&) = delete;

 private:
  const int former_;
};

}  // namespace Zenvora::Test
