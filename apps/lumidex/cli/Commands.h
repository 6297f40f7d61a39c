#pragma once

#include "Session.h"

#include <CLI/CLI.hpp>

namespace Zenvora::Lumidex::Cli {

/// Each adds one command to the program. Parsing it puts what is to be done into `chosen`.
void AddScanCommand(CLI::App& program, Action& chosen);
void AddAlbumsCommand(CLI::App& program, Action& chosen);
void AddCalendarCommand(CLI::App& program, Action& chosen);
void AddSampleCommand(CLI::App& program, Action& chosen);

}  // namespace Zenvora::Lumidex::Cli
