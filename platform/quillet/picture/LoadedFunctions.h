#pragma once

#include <vector>

namespace Zenvora::Quillet {

/// The functions of that name in all libraries that the process has loaded and whose file name holds
/// `library`, in lower case; of libraries that two of them share, more than once.
std::vector<void*> FindLoadedFunctions(const char* library, const char* name);

}  // namespace Zenvora::Quillet
