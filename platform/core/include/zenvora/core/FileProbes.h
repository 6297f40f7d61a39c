#pragma once

#include <zenvora/core/Export.h>
#include <zenvora/core/ioPath.h>

namespace Zenvora {

/// What a file lets this process do. Each opens the file for a moment at the most: nothing is read, written
/// or made, no time of the file changes. A pipe or a device is opened without waiting for whoever is at its
/// other end. False also for what is no name (`ioPath::name_fault`). All block on the disk, on any thread.

/// True when the file can be opened for reading. On Linux so can a folder.
ZENVORA_CORE_EXPORT bool OpensForReading(const ioPath& file) noexcept;

/// True when the file exists and can be opened for writing at its end. Not so a pipe that nobody reads.
ZENVORA_CORE_EXPORT bool OpensForAppending(const ioPath& file) noexcept;

/// True when the file's permissions let this user write to it, whatever else may be in the way: the answer
/// of `QFileInfo` to `QFileDevice::WriteUser`, for every name. The superuser may write to any file; on
/// Windows it is the read-only attribute alone that forbids.
ZENVORA_CORE_EXPORT bool HasWritePermission(const ioPath& file) noexcept;

/// True when the file's own permissions say that this user is not to write to it. The superuser, who could
/// all the same, is told what they say to everybody: true when nobody may write. False for what is not there.
ZENVORA_CORE_EXPORT bool IsWriteProtected(const ioPath& file) noexcept;

/// True when the system lets nobody rename, replace or remove the file, whatever its folder allows: on Linux
/// the attributes "immutable" and "append only" of file systems that have them. False elsewhere, and for what
/// is not there.
ZENVORA_CORE_EXPORT bool IsImmutable(const ioPath& file) noexcept;

/// False where the folder lets only owners rename, replace or remove what is in it, as the folder for
/// temporary files does, and this user is not the owner. Says nothing of the folder's other permissions.
ZENVORA_CORE_EXPORT bool IsOursToMove(const ioPath& file) noexcept;

}  // namespace Zenvora
