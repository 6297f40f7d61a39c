#pragma once

#include <zenvora/core/ioPath.h>

#include <cstdint>

namespace Zenvora::App {

/// How much room there is. May be asked on any thread; blocks on the disk; never fails.
class IDiskSpace {
 public:
  virtual ~IDiskSpace() = default;

  /// The bytes that this user may still write on the volume of `place`, which need not exist (then its
  /// nearest folder that does counts); empty: the current folder. Negative: unknown.
  virtual std::int64_t FreeBytes(const ioPath& place) const = 0;
};

}  // namespace Zenvora::App
