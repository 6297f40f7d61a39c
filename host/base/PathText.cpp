#include <host/base/PathText.h>

#include <algorithm>

namespace Zenvora::Lumidex::Host {

bool IsAtOrBelow(const ioPath& path, const ioPath& folder) {
  const auto& whole = path.native();
  const auto& start = folder.native();
  return std::mismatch(start.begin(), start.end(), whole.begin(), whole.end()).first == start.end();
}

}  // namespace Zenvora::Lumidex::Host
