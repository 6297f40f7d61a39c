#pragma once

#include <cli/session/Session.h>

#include <string>

namespace Zenvora::Lumidex::Cli {

/// Tells the usage statistics, if the user wants any, that a command was run. Those about the statistics
/// themselves are not told.
void NoteUse(const std::string& command, Session& session);

}  // namespace Zenvora::Lumidex::Cli
