#pragma once

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// The words of a command line as the parser takes them: `help COMMAND` is `COMMAND --help`, +TAG and -TAG
/// are options, and words behind "--" are none, whatever they begin with.
std::vector<std::string> RewriteForParser(std::vector<std::string> words);

}  // namespace Zenvora::Lumidex::Cli
