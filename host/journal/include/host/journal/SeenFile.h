#pragma once

#include <zenvora/core/ioPath.h>

#include <cstdint>

namespace Zenvora::Lumidex::Host {

/// A file, and what it must still be when its turn comes.
struct SeenFile {
  ioPath path;
  std::uint64_t size = 0;
  std::int64_t modifiedNs = 0;
};

}  // namespace Zenvora::Lumidex::Host
