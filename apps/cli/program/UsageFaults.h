#pragma once

#include <CLI/CLI.hpp>

#include <string>

namespace Zenvora::Lumidex::Cli {

/// The innermost command that was given.
const CLI::App& GivenCommand(const CLI::App& command);
/// "calendar show"; empty for the program itself.
std::string NameOf(const CLI::App& command);

// What is wrong with a command line, as people think of it: each throws `UsageError`.

[[noreturn]] void ThrowUsage(const CLI::App& command, const std::string& text);
/// A word is left that begins with a dash.
void CheckLeftOverOption(const CLI::App& program);
/// Any word is left, or a command is missing.
void CheckLeftOvers(const CLI::App& program);
/// Help comes for any line but one that names a command which does not exist.
void CheckHelpTopic(const CLI::App& program);
/// What the parser says of one of its arguments.
[[noreturn]] void ThrowParserFault(const CLI::App& program, const CLI::ParseError& error);

}  // namespace Zenvora::Lumidex::Cli
