#pragma once

#include <zenvora/core/ioPath.h>

namespace Zenvora::Lumidex::Host {

/// True when the file begins like a picture or a video, whatever its name, and when it is there and cannot be
/// read, so that nobody knows. Right about what a file is for, not about whether it is whole. Blocks on the
/// disk for the first bytes; never waits for a pipe.
bool MayHoldAPicture(const ioPath& file);

}  // namespace Zenvora::Lumidex::Host
