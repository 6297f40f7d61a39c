#pragma once

#include <zenvora/tavolin/Export.h>

#include <QString>

namespace Zenvora::Tavolin {

/// A new random identifier (UUID version 4, RFC 9562): 36 characters, lower-case hexadecimal, no braces.
/// Safe from any thread.
ZENVORA_TAVOLIN_EXPORT QString GenerateUuid();

}  // namespace Zenvora::Tavolin
