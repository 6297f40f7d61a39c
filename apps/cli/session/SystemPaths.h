#pragma once

#include <zenvora/core/ioPath.h>

// What each system has its own of; `FollowLinks` is another.
namespace Zenvora::Lumidex::Cli {

/// With what leads from the root to it.
ioPath Absolute(const ioPath& path);

}  // namespace Zenvora::Lumidex::Cli
