#pragma once

#include <cstddef>
#include <iosfwd>

namespace Zenvora {

/// Deep enough for any call chain here; keeps a runaway recursion's trace readable.
constexpr std::size_t kMostFrames = 64;

/// Writes the frames of this thread's stack, without this function and its caller.
void WriteFrames(std::ostream& text);

}  // namespace Zenvora
