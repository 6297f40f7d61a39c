#pragma once

#include <atomic>
#include <optional>
#include <string>

// What each system has its own of; `ProgramArguments`, `CanAsk` and `WatchInterrupts` are others.
namespace Zenvora::Lumidex::Cli {

/// Set in a signal handler.
extern std::atomic<bool> interruptedFlag;

/// The next character of the input, in UTF-8. False at the end of the input, and on an interruption.
bool ReadPiece(std::string& piece, const std::atomic<bool>& interrupted);

/// True when a line there can be written over.
bool StderrIsTerminal();

/// None where there is no terminal.
std::optional<int> TerminalColumns();

}  // namespace Zenvora::Lumidex::Cli
