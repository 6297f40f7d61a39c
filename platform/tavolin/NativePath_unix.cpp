#include "NativeNames.h"

#include <zenvora/tavolin/NativePath.h>

namespace Zenvora::Tavolin {

const NativeName& Separators() {
  static const NativeName separators = "/";
  return separators;
}

std::filesystem::path WithoutPrefix(const std::filesystem::path& path) {
  return path;
}

std::string GetPlatformFileName(const std::string& path) {
  return path;
}

}  // namespace Zenvora::Tavolin
