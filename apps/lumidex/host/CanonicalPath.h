#pragma once

#include <zenvora/core/ioPath.h>

#include <system_error>

namespace Zenvora::Lumidex::Host {

/// The one absolute name of an existing file or folder, without links, "." and ".."; on Windows in the
/// spelling that the disk has. Empty, with the cause, when the system cannot tell.
ioPath CanonicalPath(const ioPath& path, std::error_code& error);

}  // namespace Zenvora::Lumidex::Host
