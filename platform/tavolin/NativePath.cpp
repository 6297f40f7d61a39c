#include "NativeNames.h"

#include <zenvora/tavolin/NativePath.h>

#include <algorithm>

namespace Zenvora::Tavolin {

ioPath FromNative(const ioPath& path) {
  const ioPath bare(WithoutPrefix(path.native()));
  const std::filesystem::path root = bare.root_path().native();
  const auto rest = bare.native().native().substr(root.native().size());
  ioPath normal(std::filesystem::path(root).make_preferred());
  for (std::size_t begin = 0; begin < rest.size();) {
    const std::size_t end = std::min(rest.find_first_of(Separators(), begin), rest.size());
    const std::filesystem::path element = rest.substr(begin, end - begin);
    if (!element.empty() && element != ".") {
      normal /= ioPath(element);
    }
    begin = end + 1;
  }
  return normal.empty() && !path.empty() ? ioPath(".") : normal;
}

}  // namespace Zenvora::Tavolin
