#include "PartialCopy.h"

#include <new>
#include <sys/mman.h>

namespace Zenvora::Strandel {

PartialCopy::Memory PartialCopy::Allocate(std::size_t size) {
  void* const bytes =
      mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (bytes == MAP_FAILED) {
    throw std::bad_alloc();
  }
  return {static_cast<unsigned char*>(bytes), Free{size}};
}

void PartialCopy::Free::operator()(unsigned char* bytes) const {
  munmap(bytes, size);
}

}  // namespace Zenvora::Strandel
