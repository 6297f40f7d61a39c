#pragma once

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// The arguments without the program's name: on Linux the bytes as they came, on Windows UTF-8 from the wide
/// command line.
std::vector<std::string> ProgramArguments(int argc, char** argv);

}  // namespace Zenvora::Lumidex::Cli
