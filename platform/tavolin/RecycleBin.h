#pragma once

#include <zenvora/tavolin/Trash.h>

#include <string>

namespace Zenvora::Tavolin {

/// One user's part of the recycle bin of a volume, in whatever folder. Places in it are pairs of `$I…`, the
/// note, and `$R…`, the file.
ZENVORA_TAVOLIN_EXPORT TrashPlace ChooseInBin(const ioPath& bin, const ioPath& file);

/// The folder of this user in the recycle bin of the volume that the file is on; made when it is missing, so
/// that only this user and the system can look into it. Throws `TrashException` where a volume has none.
ZENVORA_TAVOLIN_EXPORT ioPath BinOf(const ioPath& file);

}  // namespace Zenvora::Tavolin
