#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace Zenvora::Lumidex::Cli {

/// The help page of a command: what it is for, usage, arguments, options, the options that every command
/// takes, footer. 80 columns.
std::string HelpPage(const CLI::App& command);

/// "lumidex calendar check [OPTIONS] [FILE]".
std::string UsageLine(const CLI::App& command);

}  // namespace Zenvora::Lumidex::Cli
