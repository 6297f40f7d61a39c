#pragma once

#include <string>

namespace Zenvora::Lumidex::Cli {

/// A cause or a note of the host in the interface language. The host words them in English, as documents in
/// JSON have them; one that is none of ours, such as a text of the system, stays as it is. The names of files
/// in it are copied byte by byte.
std::string CauseText(const std::string& english);

}  // namespace Zenvora::Lumidex::Cli
