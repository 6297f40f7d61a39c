#pragma once

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// The files and folders that the command line names, absolute. Throws `Failure` for one that is not there.
std::vector<ioPath> ExistingSources(const std::vector<std::string>& names);

}  // namespace Zenvora::Lumidex::Cli
