#pragma once

#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <system_error>

namespace Zenvora::Lumidex::Host {

/// Room on a disk that a file holds until it is needed: nobody else gets it. The file stays when the object
/// goes. Blocks on the disk.
class DiskReserve {
 public:
  explicit DiskReserve(const ioPath& file) : file_(file) {}

  /// The file holds so many bytes from now on, no more and no less. On an error, as a rule for want of room,
  /// it holds none, but has the size: `Wanted` knows it in the next run.
  std::error_code Hold(std::uint64_t bytes) const;
  /// Gives the room back. True when there was any.
  bool Release() const;
  /// How much is held.
  std::uint64_t Held() const;
  /// How much was to be held last, in whichever run; 0: never, or it was given back.
  std::uint64_t Wanted() const;
  void Remove() const;

 private:
  const ioPath file_;
};

}  // namespace Zenvora::Lumidex::Host
