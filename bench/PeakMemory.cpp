#include "PeakMemory.h"

#include <fstream>
#include <string>

namespace Zenvora::Bench {

namespace {

double StatusMiB(const std::string& key) {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word == key + ":") {
      double kib = 0;
      status >> kib;
      return kib / 1024;
    }
  }
  return 0;
}

}  // namespace

void ResetPeakMemory() {
  std::ofstream("/proc/self/clear_refs") << 5;
}

double PeakMemoryMiB() {
  return StatusMiB("VmHWM");
}

}  // namespace Zenvora::Bench
