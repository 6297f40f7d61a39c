#pragma once

#include <zenvora/core/Exception.h>

#include <atomic>

namespace Zenvora::Lumidex::Cli {

/// Makes Ctrl-C (SIGINT, SIGTERM and SIGHUP; on Windows the console's events) ask the program to stop at the
/// next good moment. A second one ends it at once. A signal that the caller had ignored stays ignored.
void WatchInterrupts();

/// Set once the program was asked to stop.
const std::atomic<bool>& Interrupted();

/// Thrown when work was given up on request. `what()` says what is kept.
class InterruptedError : public Exception {};

/// Throws an `InterruptedError` when the program was asked to stop.
void ThrowIfInterrupted(const char* whatIsKept);

}  // namespace Zenvora::Lumidex::Cli
