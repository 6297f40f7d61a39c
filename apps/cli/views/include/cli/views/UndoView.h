#pragma once

#include <cli/terminal/JsonWriter.h>
#include <host/history/UndoJournal.h>

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// All that one run of `undo` or `redo` shows.
struct UndoView {
  ioPath catalogue;
  bool redo = false;
  bool interrupted = false;
  std::vector<Host::UndoResult> done;  ///< In the order in which it was done.
  /// With `--skip`: the step, if there was one.
  std::optional<std::vector<Host::SkippedStep>> skipped;
  /// With `--list`: all steps, the latest first.
  std::optional<std::vector<Host::UndoStep>> steps;
  /// With `--keep-days` and `--keep-size`: what holds now, and how many steps were forgotten for it.
  std::optional<Host::UndoLimits> limits;
  std::size_t forgotten = 0;
  bool declined = false;  ///< The person did not want steps forgotten: nothing was stored.
  std::vector<std::string> recovered;
};

/// When the step was begun, in local time.
std::string WhenText(const Host::UndoStep& step);
/// That so many older steps cannot be undone any more, as a line; empty for none.
std::string ForgottenLine(std::size_t steps);
/// What older steps will leave as it is for a later one; empty for none.
std::string BlockedText(const std::vector<Host::BlockedStep>& blocked);
/// The array "blocked".
void WriteBlocked(JsonWriter& json, const std::vector<Host::BlockedStep>& blocked);
/// An array with all that is known of steps.
void WriteSteps(JsonWriter& json, const char* name, const std::vector<Host::UndoStep>& steps);

/// docs/formats/json-output.md, lumidex.undo.
std::string UndoDocument(const UndoView& view);
std::string UndoText(const UndoView& view);

}  // namespace Zenvora::Lumidex::Cli
