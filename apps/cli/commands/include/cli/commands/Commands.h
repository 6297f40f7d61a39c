#pragma once

#include <CLI/CLI.hpp>
#include <cli/session/Session.h>

namespace Zenvora::Lumidex::Cli {

/// Each adds one command, or some of a kind, to the program. Parsing one puts what is to be done into
/// `chosen`.
void AddScanCommand(CLI::App& program, Action& chosen);
void AddImportCommand(CLI::App& program, Action& chosen);
void AddCheckCommand(CLI::App& program, Action& chosen);
void AddAlbumsCommand(CLI::App& program, Action& chosen);
void AddSimilarCommand(CLI::App& program, Action& chosen);
void AddInfoCommand(CLI::App& program, Action& chosen);
void AddRenameCommand(CLI::App& program, Action& chosen);
/// `rotate`, `shift-date` and `set-date`.
void AddEditCommands(CLI::App& program, Action& chosen);
/// `undo` and `redo`.
void AddUndoCommands(CLI::App& program, Action& chosen);
void AddCalendarCommand(CLI::App& program, Action& chosen);
void AddSampleCommand(CLI::App& program, Action& chosen);
void AddFindCommand(CLI::App& program, Action& chosen);
void AddTagCommand(CLI::App& program, Action& chosen);
void AddStatsCommand(CLI::App& program, Action& chosen);

}  // namespace Zenvora::Lumidex::Cli
