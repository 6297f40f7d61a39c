#include "SystemTerminal.h"

#include <cli/terminal/Interrupt.h>

namespace Zenvora::Lumidex::Cli {

std::atomic<bool> interruptedFlag{false};
static_assert(std::atomic<bool>::is_always_lock_free, "the flag is set in a signal handler");

const std::atomic<bool>& Interrupted() {
  return interruptedFlag;
}

void ThrowIfInterrupted(const char* whatIsKept) {
  if (interruptedFlag) {
    InterruptedError error;
    error << TagDescription(whatIsKept);
    BOOST_THROW_EXCEPTION(error);
  }
}

}  // namespace Zenvora::Lumidex::Cli
