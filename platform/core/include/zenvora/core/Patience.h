#pragma once

#include <chrono>
#include <thread>

namespace Zenvora {

#ifdef _WIN32
constexpr int kPatientAttempts = 50;
#else
constexpr int kPatientAttempts = 1;
#endif

/// Makes an attempt and returns whether it was a success; on Windows it is repeated for up to a second.
///
/// There whoever reads a file keeps it from being replaced, and whoever replaces it from being read, as do
/// the many programs that look into every new file, but not for long.
template <class Attempt>
bool Patiently(const Attempt& attempt) {
  bool done = attempt();
  for (int count = 1; !done && count < kPatientAttempts; ++count) {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    done = attempt();
  }
  return done;
}

}  // namespace Zenvora
