#pragma once

namespace Zenvora::Test {

/// For its time, allocations of this thread by `new` in this program fail after the first `allocations`;
/// below 0 none does. One at a time.
class Shortage {
 public:
  explicit Shortage(long allocations);
  ~Shortage();
  Shortage(const Shortage&) = delete;
  Shortage& operator=(const Shortage&) = delete;
};

}  // namespace Zenvora::Test
