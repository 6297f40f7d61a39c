#pragma once

#include <zenvora/core/Export.h>
#include <zenvora/core/ioPath.h>

#include <system_error>

namespace Zenvora {

/// Takes from everybody but the owner what the system lets them do with a file or folder: on Linux the mode
/// bits of group and others; on Windows it gets an access list with this user and the system alone, which
/// what lies in a folder does not inherit. Nothing happens where nobody else may do anything. The error when
/// the file is not this user's, or the file system knows no rights. Blocks on the disk; safe from any thread.
ZENVORA_CORE_EXPORT std::error_code MakePrivate(const ioPath& place);

/// As `MakeFolders`, but the folders that it makes are private from their first moment on; those that are
/// there stay as they are.
ZENVORA_CORE_EXPORT std::error_code MakePrivateFolders(const ioPath& folder);

}  // namespace Zenvora
