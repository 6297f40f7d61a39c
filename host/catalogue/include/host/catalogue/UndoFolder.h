#pragma once

#include <zenvora/core/ioPath.h>

namespace Zenvora::Lumidex::Host {

/// Where the journal of a catalogue keeps originals: beside it, its name with ".undo".
ioPath UndoFolderOf(const ioPath& catalogue);

/// True for the undo folder of any catalogue. What lies in it is named like photos, and is nobody's to scan
/// or move: undo needs it. Asks the disk only about folders with such a name; any thread.
bool IsUndoFolder(const ioPath& folder);

}  // namespace Zenvora::Lumidex::Host
