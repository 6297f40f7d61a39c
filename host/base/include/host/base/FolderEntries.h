#pragma once

#include <zenvora/core/ioPath.h>

#include <system_error>
#include <vector>

namespace Zenvora::Lumidex::Host {

struct FolderEntry {
  enum class Kind {
    File,
    Folder,
    Link,   ///< A symbolic link, on Windows also a junction, to whatever.
    Other,  ///< A device, a pipe.
  };
  ioPath name;
  /// File where the system does not tell.
  Kind kind = Kind::File;
  /// Its name begins with a dot or, on Windows, it has the attribute.
  bool hidden = false;
};

enum class EntryChoice {
  All,
  NotHidden,
};

/// What is in the folder, in no order, links not followed. What could be read before an error stays.
std::vector<FolderEntry> ReadFolderEntries(const ioPath& folder, EntryChoice choice, std::error_code& error);

/// True when there is a symbolic link, on Windows also a junction, of that name, wherever it leads.
bool LeadsElsewhere(const ioPath& path);

}  // namespace Zenvora::Lumidex::Host
