#pragma once

#include <zenvora/core/Export.h>

#include <string>
#include <system_error>

namespace Zenvora {

/// The system's words for an error, in UTF-8 and without a full stop at the end. The standard library gives
/// those of Windows in the code page of the machine.
ZENVORA_CORE_EXPORT std::string ErrorText(const std::error_code& error);

/// The same for a number of the system: `errno` on Linux, `GetLastError()` on Windows.
ZENVORA_CORE_EXPORT std::string SystemErrorText(int error);

/// What the calling thread's last failed system call left: `errno` on Linux, `GetLastError()` on Windows.
ZENVORA_CORE_EXPORT std::error_code LastSystemError();

}  // namespace Zenvora
