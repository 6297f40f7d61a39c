#pragma once

#ifdef _WIN32
#include <chrono>
#include <thread>
#endif

namespace Zenvora {

/// Makes an attempt and returns whether it was a success; on Windows it is repeated for up to a second.
///
/// There whoever reads a file keeps it from being replaced, and whoever replaces it from being read, as do
/// the many programs that look into every new file, but not for long.
template <class Attempt>
bool Patiently(const Attempt& attempt) {
  bool done = attempt();
#ifdef _WIN32
  constexpr int kAttempts = 50;
  for (int count = 1; !done && count < kAttempts; ++count) {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    done = attempt();
  }
#endif
  return done;
}

}  // namespace Zenvora
