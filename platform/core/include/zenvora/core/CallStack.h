#pragma once

#include <zenvora/core/Export.h>

#include <string>

namespace Zenvora {

/// The calling thread's call stack as text, one frame a line, innermost first and beginning with the caller
/// of this function: its number, the symbol's demangled name where the binary exports one (else the address),
/// and the binary. At most 64 frames. Never throws: when the stack cannot be read the text is empty. Costs up
/// to a few milliseconds: it is for exceptions, not for loops. Safe from any thread.
ZENVORA_CORE_EXPORT std::string GetCallStack() noexcept;

}  // namespace Zenvora
