#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/qtutility/Export.h>

#include <QString>

#include <cstdint>

namespace Zenvora::Util {

/// Whether a new file can be made in the folder: access lists, volumes mounted for reading and immutable
/// folders count, not only permission bits. Nothing stays behind, even if the process is killed meanwhile.
/// Where a file system can make no nameless file (Linux: FAT and network file systems), the system's opinion
/// counts, which a server may not share. Empty: the current folder. Any thread; blocks on the disk.
ZENVORA_QTUTILITY_EXPORT bool CanCreateFileIn(const QString& folder);

/// The same for every folder, also one whose name is no text (see `ioPath`). Under a name of its own, so that
/// a literal fits only one of them.
ZENVORA_QTUTILITY_EXPORT bool CanCreateFileAt(const ioPath& folder);

/// Whether files in the folder can be reached for reading; each may still refuse for itself. Listing the
/// folder is another thing and not asked for on Linux. Empty: the current folder. Any thread; blocks on the
/// disk.
ZENVORA_QTUTILITY_EXPORT bool CanReadFileIn(const QString& folder);

/// Makes the folder with its parents; true when it is there then. Any thread; blocks on the disk.
ZENVORA_QTUTILITY_EXPORT bool MakeFolder(const QString& folder);

/// The bytes that this user may still write on the volume of `place`; of a place that does not exist its
/// nearest folder that does counts, of an empty one the current folder. Zero or less: unknown. A volume that
/// is full to the last byte gives zero as well. Any thread; blocks on the disk.
ZENVORA_QTUTILITY_EXPORT std::int64_t GetAvailableDiskSpace(const ioPath& place);

}  // namespace Zenvora::Util
