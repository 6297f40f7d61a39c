#pragma once

#include <host/edit/EditChanges.h>
#include <host/journal/KeptFiles.h>

#include <zenvora/lumidex/IFileAccessLocker.h>

namespace Zenvora::Lumidex::Host {

// Exchanging a photo's versions on a disk without any room: the photo gets the name of its staging file, the
// version to come is written over it in the room that it has, and it gets its own name back. So nobody ever
// reads half a photo under the photo's name, and whatever stops the work, the row of the change, which is on
// the disk before, tells where the photo is and what is to be written. All functions block on the disk and
// throw `Exception`.

/// True for a photo that has the name of its staging file for now.
bool IsSetAside(const ChangeRow& change);

/// `change` is under way (`redo`: again), and the version to come is kept. Throws `NoRoomError` where it is
/// larger and the disk has no more room; then, and for photos with other names that would change along,
/// nothing has changed. After other failures `IsSetAside` tells.
void ReplaceInItsRoom(IFileAccessLocker& locker, const KeptFiles& kept, const ChangeRow& change, bool redo);

/// Gives a photo that is set aside its name back: as it was, if nothing was written over it yet, else with
/// the version to come.
void BringBack(IFileAccessLocker& locker, const KeptFiles& kept, const ChangeRow& change, bool redo);

}  // namespace Zenvora::Lumidex::Host
