#include <zenvora/tavolin/NativePath.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace Zenvora::Tavolin {

namespace {

#ifdef _WIN32
constexpr wchar_t kSeparators[] = L"/\\";

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
#else
constexpr char kSeparators[] = "/";

const std::filesystem::path& WithoutPrefix(const std::filesystem::path& path) {
  return path;
}
#endif

}  // namespace

ioPath FromNative(const ioPath& path) {
  const ioPath bare(WithoutPrefix(path.native()));
  const std::filesystem::path root = bare.root_path().native();
  const auto rest = bare.native().native().substr(root.native().size());
  ioPath normal(std::filesystem::path(root).make_preferred());
  for (std::size_t begin = 0; begin < rest.size();) {
    const std::size_t end = std::min(rest.find_first_of(kSeparators, begin), rest.size());
    const std::filesystem::path element = rest.substr(begin, end - begin);
    if (!element.empty() && element != ".") {
      normal /= ioPath(element);
    }
    begin = end + 1;
  }
  return normal.empty() && !path.empty() ? ioPath(".") : normal;
}

std::string GetPlatformFileName(const std::string& path) {
#ifdef _WIN32
  const std::filesystem::path bare = WithoutPrefix(ioPath(path).native());
  std::string text = ioPath(std::filesystem::path(bare).make_preferred()).utf8string();
  if (text.size() > 1 && text[1] == ':' && text[0] >= 'a' && text[0] <= 'z') {
    text[0] = static_cast<char>(text[0] - 'a' + 'A');
  }
  return text;
#else
  return path;
#endif
}

}  // namespace Zenvora::Tavolin
