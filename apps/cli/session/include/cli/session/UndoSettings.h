#pragma once

#include <cli/terminal/Console.h>
#include <host/history/UndoJournal.h>

#include <optional>
#include <string>

namespace Zenvora::Lumidex::Cli {

/// How much is kept for undoing: the settings, and where one is missing the usual limit. One that makes no
/// sense counts as missing, with a warning.
Host::UndoLimits StoredLimits(Console& console);

/// The most days that can be wished for: a hundred years.
constexpr int kMostDays = 36'500;

/// What is to be stored; empty: stays as it is.
struct LimitsWish {
  std::optional<int> days;
  std::string size;  ///< As `ParseSize` takes it.
};

/// The limits that would hold then.
Host::UndoLimits WishedLimits(const LimitsWish& wish, Console& console);

/// Stores it for all later runs. Throws `Failure` when the settings cannot be written.
void StoreLimits(const LimitsWish& wish);

/// "90 days and 5 GiB".
std::string LimitsText(const Host::UndoLimits& limits);

}  // namespace Zenvora::Lumidex::Cli
