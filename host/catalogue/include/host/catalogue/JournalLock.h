#pragma once

#include <host/base/ProcessLock.h>

#include <zenvora/core/ioPath.h>

namespace Zenvora::Lumidex::Host {

/// Keeps others from working with the undo journal of a catalogue while it lives. Waits a moment for them,
/// then throws `HostError`. Of a catalogue that has no journal yet there is nothing to keep.
class JournalLock {
 public:
  explicit JournalLock(const ioPath& catalogue);

 private:
  ProcessLock lock_;
};

}  // namespace Zenvora::Lumidex::Host
