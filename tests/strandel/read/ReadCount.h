#pragma once

#include <cstdint>
#include <fstream>
#include <optional>
#include <string>

namespace Zenvora::Test {

/// How many bytes this process has read from files so far; nothing where the system does not count them.
inline std::optional<std::uint64_t> BytesRead() {
  std::ifstream counts("/proc/self/io");
  std::string name;
  std::uint64_t count = 0;
  while (counts >> name >> count) {
    if (name == "rchar:") {
      return count;
    }
  }
  return std::nullopt;
}

}  // namespace Zenvora::Test
