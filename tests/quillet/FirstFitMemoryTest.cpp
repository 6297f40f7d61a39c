#include "Clustering.h"
#include "Vectors.h"

#include <gtest/gtest.h>

#include <FirstFit.h>
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

namespace Zenvora::Quillet {
namespace {

using Test::Chance;
using Test::Clustering;
using Test::MakeVectors;
using Test::Template;
using Test::VectorKind;

/// For its time, every allocation after the first `allocations` fails.
class Shortage {
 public:
  explicit Shortage(long allocations) { g_allocationsLeft = allocations; }
  ~Shortage() { g_allocationsLeft = -1; }
  Shortage(const Shortage&) = delete;
  Shortage& operator=(const Shortage&) = delete;
};

TEST(FirstFit, AnswersRightlyWithoutMemory) {
  constexpr float kThreshold = 0.91F;
  const auto vectors = MakeVectors(VectorKind::Mixed, 320, 24, kThreshold, 9);
  std::vector<const Template*> coming;
  for (const Template& vector : vectors) {
    coming.push_back(&vector);
  }
  int refusals = 0;
  for (long allocations = 0; allocations < 60; ++allocations) {
    FirstFitTuning tuning;
    tuning.mirrorFrom = 32;
    tuning.leastSize = 1;
    tuning.block = 20;
    Clustering clusters;
    FirstFit index(kThreshold, tuning);
    index.Expect(coming);
    Chance chance(static_cast<unsigned>(allocations));
    int wrong = 0;
    for (std::size_t i = 0; i < vectors.size(); ++i) {
      const auto expected = clusters.Scan(vectors[i], kThreshold);
      const bool isShort = chance.Below(2) == 1;
      std::optional<std::size_t> found;
      {
        const Shortage shortage(isShort ? allocations : -1);
        found = index.FindFirst(vectors[i]);
      }
      wrong += found == expected ? 0 : 1;
      if (expected) {
        clusters.Join(*expected, vectors[i]);
        const Shortage shortage(isShort ? 0 : -1);
        index.Updated(*expected);
        continue;
      }
      clusters.Open(vectors[i]);
      const Template& centre = clusters.Centre(clusters.Size() - 1);
      try {
        const Shortage shortage(isShort ? 0 : -1);
        index.Append(centre);
      } catch (const std::bad_alloc&) {
        ++refusals;
        EXPECT_EQ(index.Size() + 1, clusters.Size());
        index.Append(centre);
      }
    }
    EXPECT_EQ(wrong, 0) << allocations << " allocations";
    EXPECT_EQ(index.Size(), clusters.Size());
  }
  EXPECT_GT(refusals, 0);
}

}  // namespace
}  // namespace Zenvora::Quillet
