#pragma once

namespace Zenvora {

/// How the system calls a file that is open: a `HANDLE` on Windows, else a descriptor.
#ifdef _WIN32
using FileHandle = void*;
constexpr FileHandle kNoFileHandle = nullptr;
#else
using FileHandle = int;
constexpr FileHandle kNoFileHandle = -1;
#endif

}  // namespace Zenvora
