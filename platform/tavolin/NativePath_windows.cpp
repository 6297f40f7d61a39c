#include "NativeNames.h"

#include <zenvora/tavolin/NativePath.h>

namespace Zenvora::Tavolin {

const NativeName& Separators() {
  static const NativeName separators = L"/\\";
  return separators;
}

std::filesystem::path WithoutPrefix(const std::filesystem::path& path) {
  const std::wstring text = path.native();
  if (text.rfind(LR"(\\?\UNC\)", 0) == 0) {
    return LR"(\\)" + text.substr(8);
  }
  // Other names with the prefix, such as those of volumes, mean nothing without it.
  const bool isDrive =
      text.rfind(LR"(\\?\)", 0) == 0 && text.size() > 6 && text[5] == L':' && text[6] == L'\\';
  return isDrive ? std::filesystem::path(text.substr(4)) : path;
}

std::string GetPlatformFileName(const std::string& path) {
  const std::filesystem::path bare = WithoutPrefix(ioPath(path).native());
  std::string text = ioPath(std::filesystem::path(bare).make_preferred()).utf8string();
  if (text.size() > 1 && text[1] == ':' && text[0] >= 'a' && text[0] <= 'z') {
    text[0] = static_cast<char>(text[0] - 'a' + 'A');
  }
  return text;
}

}  // namespace Zenvora::Tavolin
