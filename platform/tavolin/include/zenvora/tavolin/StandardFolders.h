#pragma once

#include <zenvora/tavolin/Export.h>

#include <QString>

namespace Zenvora::Tavolin {

/// The user's pictures folder, absolute, with '/' between its parts; their home where the system names none.
/// It may not exist. Any thread.
ZENVORA_TAVOLIN_EXPORT QString DefaultPicturesDirectory();

}  // namespace Zenvora::Tavolin
