#include "PartialCopy.h"

#include <new>
#include <windows.h>

namespace Zenvora::Strandel {

PartialCopy::Memory PartialCopy::Allocate(std::size_t size) {
  void* const bytes = VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
  if (bytes == nullptr) {
    throw std::bad_alloc();
  }
  return {static_cast<unsigned char*>(bytes), Free{size}};
}

void PartialCopy::Free::operator()(unsigned char* bytes) const {
  VirtualFree(bytes, 0, MEM_RELEASE);
}

}  // namespace Zenvora::Strandel
