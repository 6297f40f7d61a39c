#pragma once

#include <host/catalogue/MoveRows.h>

#include <zenvora/core/FileState.h>
#include <zenvora/lumidex/IFileAccessLocker.h>

#include <cstddef>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Looks at the files of a plan. Throws `HostError` when one of them is gone.
std::vector<FileMove> IdentifyMoves(const std::vector<RenameMove>& steps);

/// Looks at them again, before all moves are undone (`standing`) or done again: others may have changed
/// or replaced them since, and `CountDone` would not know them any more. Those that are gone stay as they
/// were.
void IdentifyAgain(std::vector<FileMove>& moves, bool standing);

/// What becomes of each file when all moves are done, or undone (`backwards`).
std::vector<RenameMove> NetRenames(const std::vector<FileMove>& moves, bool backwards);

/// How many of the moves, from the first on, stand after the work on them was interrupted: the number that
/// agrees best with what is on the disk. `backwards`: they were being undone.
std::size_t CountDone(const std::vector<FileMove>& moves, bool backwards);

/// A folder that is missing or empty although photos of the moves must be there: its volume is not mounted.
std::optional<ioPath> FindFolderOutOfReach(const std::vector<FileMove>& moves);

/// Gives a file a name that nothing has, trying for a while where another program keeps it open. Throws
/// `HostError` with both names and the cause; then nothing has changed.
void MoveFile(IFileAccessLocker& locker, const ioPath& from, const ioPath& to);

/// Why a file could not get a name, for a person.
std::string CauseOfMove(const std::error_code& error);

/// Waits until the names in the folders of the moves are on the disk.
void SyncFoldersOf(const std::vector<FileMove>& moves);

}  // namespace Zenvora::Lumidex::Host
