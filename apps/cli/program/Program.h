#pragma once

namespace Zenvora::Lumidex::Cli {

/// The whole command, from its arguments to its exit code.
int RunProgram(int argc, char** argv);

}  // namespace Zenvora::Lumidex::Cli
