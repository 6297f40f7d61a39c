#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/tavolin/Export.h>

#include <string>

namespace Zenvora::Tavolin {

/// A path as the system or a dialog of it gave it, in the one spelling that this program keeps: one separator
/// between elements (on Windows '\\'), none at the end but a root's, no "." elements; on Windows without the
/// prefix for long paths. What it names stays the same: ".." and links are left as they are, and so is the
/// case. Empty stays empty; "." alone stays. Pure.
ZENVORA_TAVOLIN_EXPORT ioPath FromNative(const ioPath& path);

/// A path in the form in which the system writes it, UTF-8 both: on Windows with '\\' between elements, the
/// drive's letter in upper case and without the prefix for long paths, so that one volume has one root. On
/// Linux the very bytes. Pure.
ZENVORA_TAVOLIN_EXPORT std::string GetPlatformFileName(const std::string& path);

}  // namespace Zenvora::Tavolin
