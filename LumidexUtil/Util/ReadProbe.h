#pragma once

#include <zenvora/core/ioPath.h>

namespace Zenvora::Lumidex {

/// Whether the file can be opened for reading now, while others have it open.
bool CanBeRead(const ioPath& path);

}  // namespace Zenvora::Lumidex
