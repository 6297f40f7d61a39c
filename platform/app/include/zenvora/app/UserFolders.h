#pragma once

#include <zenvora/app/Export.h>
#include <zenvora/core/ioPath.h>

namespace Zenvora::App {

/// What a program keeps for its user, and where that belongs: the XDG base directory on Linux, the known
/// folder on Windows.
enum class UserFolder {
  Settings,  ///< $XDG_CONFIG_HOME, else ~/.config; on Windows else the roaming application data.
  Data,      ///< $XDG_DATA_HOME, else ~/.local/share; on Windows else the local application data.
  Cache,     ///< $XDG_CACHE_HOME, else ~/.cache; on Windows else `cache` in the local application data.
};

/// The folder that all programs share; each makes one of its own name in it. It need not exist yet. The XDG
/// variables hold on Windows as well when somebody sets them; relative and empty ones are passed over, as the
/// XDG rules for base directories ask. The home folder is $HOME, else what the user database says. Kept
/// byte for byte on Linux. Empty when the system names none. Safe from any thread that does not change the
/// environment meanwhile.
ZENVORA_APP_EXPORT ioPath FolderOfUser(UserFolder folder);

}  // namespace Zenvora::App
