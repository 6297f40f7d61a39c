#pragma once

#include <zenvora/core/Export.h>
#include <zenvora/core/ioPath.h>

#include <system_error>

namespace Zenvora {

/// One attempt to give a file or folder the name `to` on its volume, which nothing may have: unlike
/// `ioPath::rename` it never replaces anything. `file_exists` when the name is taken, were it by a link that
/// leads nowhere; `cross_device_link` for another volume. On any error nothing has changed. On the few file
/// systems that cannot do it in one step it looks first. Blocks on the disk; safe from any thread.
ZENVORA_CORE_EXPORT std::error_code MoveToFreeName(const ioPath& from, const ioPath& to);

/// Gives a file a second name on its volume, which nothing may have: both are the file from now on. Not every
/// file system can do it. Blocks on the disk; safe from any thread.
ZENVORA_CORE_EXPORT std::error_code AddName(const ioPath& file, const ioPath& second);

/// True for failures that may be over in a moment, because another program has the file open. Never on Linux.
ZENVORA_CORE_EXPORT bool MayPass(const std::error_code& error);

}  // namespace Zenvora
