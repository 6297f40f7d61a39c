#pragma once

#include <filesystem>

// What each system has its own of.
namespace Zenvora::Tavolin {

using NativeName = std::filesystem::path::string_type;

/// All characters that part elements of a path.
const NativeName& Separators();
/// Without what Windows puts before long names.
std::filesystem::path WithoutPrefix(const std::filesystem::path& path);

}  // namespace Zenvora::Tavolin
