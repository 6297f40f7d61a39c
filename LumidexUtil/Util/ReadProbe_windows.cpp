#include "ReadProbe.h"

#include <cstdio>
#include <share.h>

namespace Zenvora::Lumidex {

bool CanBeRead(const ioPath& path) {
  // Other names stand for devices, some of which would wait for input.
  if (!path.name_fault().empty()) {
    return false;
  }
  std::FILE* const file = _wfsopen(path.for_system().c_str(), L"rt", _SH_DENYNO);
  return file != nullptr && std::fclose(file) == 0;
}

}  // namespace Zenvora::Lumidex
