// Replaces the program's allocation. By itself, so that compilers do not see through it.

#include "ScarceMemory.h"

#include <cstdlib>
#include <new>

namespace {

/// Allocations until one fails; below 0 none does.
thread_local long g_allocationsLeft = -1;

void* Allocate(std::size_t bytes, std::size_t alignment) {
  if (g_allocationsLeft == 0) {
    throw std::bad_alloc();
  }
  if (g_allocationsLeft > 0) {
    --g_allocationsLeft;
  }
  bytes = bytes == 0 ? 1 : bytes;
#ifdef _WIN32
  void* const memory = alignment == 0 ? std::malloc(bytes) : _aligned_malloc(bytes, alignment);
#else
  void* const memory = alignment == 0
                           ? std::malloc(bytes)
                           : std::aligned_alloc(alignment, (bytes + alignment - 1) / alignment * alignment);
#endif
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  return memory;
}

void FreeAligned(void* memory) {
#ifdef _WIN32
  _aligned_free(memory);
#else
  std::free(memory);
#endif
}

}  // namespace

void* operator new(std::size_t bytes) {
  return Allocate(bytes, 0);
}

void* operator new[](std::size_t bytes) {
  return Allocate(bytes, 0);
}

void* operator new(std::size_t bytes, std::align_val_t alignment) {
  return Allocate(bytes, static_cast<std::size_t>(alignment));
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete[](void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::align_val_t) noexcept {
  FreeAligned(memory);
}

namespace Zenvora::Test {

Shortage::Shortage(long allocations) {
  g_allocationsLeft = allocations;
}

Shortage::~Shortage() {
  g_allocationsLeft = -1;
}

}  // namespace Zenvora::Test
