#pragma once

#include <cli/session/Session.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// What a command line asks for.
struct ParsedCommandLine {
  Globals globals;
  /// Empty: there is nothing to run, only `text` to print.
  Action action;
  std::string command;  ///< Its name: "scan", "calendar show".
  std::string text;
};

/// Reads the arguments (without the program's name). Throws `UsageError`.
ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments);

/// True when the arguments ask for JSON, even if they make no sense otherwise.
bool AsksForJson(const std::vector<std::string>& arguments);

/// The usage, for somebody who gave no command.
std::string ShortHelp();

}  // namespace Zenvora::Lumidex::Cli
