#pragma once

namespace Zenvora::Lumidex::Cli {

/// What the program tells its caller. The numbers are documented: they never change.
enum class ExitCode : int {
  Done = 0,
  Findings = 1,       ///< Done, and there is something to look at.
  Usage = 2,          ///< The command line makes no sense; nothing was done.
  Partly = 3,         ///< Some of it could not be done.
  Failed = 4,         ///< Could not be done.
  Interrupted = 130,  ///< Stopped by a signal; what was finished stays.
};

/// The worse of two outcomes.
constexpr ExitCode Worse(ExitCode left, ExitCode right) {
  return static_cast<int>(left) < static_cast<int>(right) ? right : left;
}

}  // namespace Zenvora::Lumidex::Cli
