#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/tavolin/Export.h>

namespace Zenvora::Tavolin {

/// A path as the system or a dialog of it gave it, in the one spelling that this program keeps: one separator
/// between elements (on Windows '\\'), none at the end but a root's, no "." elements; on Windows without the
/// prefix for long paths. What it names stays the same: ".." and links are left as they are, and so is the
/// case. Empty stays empty; "." alone stays. Pure.
ZENVORA_TAVOLIN_EXPORT ioPath FromNative(const ioPath& path);

}  // namespace Zenvora::Tavolin
