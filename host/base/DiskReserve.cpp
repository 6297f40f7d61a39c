#include <host/base/DiskReserve.h>

#include <zenvora/core/FileState.h>

namespace Zenvora::Lumidex::Host {

std::uint64_t DiskReserve::Wanted() const {
  return QueryFile(file_).size;
}

void DiskReserve::Remove() const {
  file_.remove();
}

}  // namespace Zenvora::Lumidex::Host
