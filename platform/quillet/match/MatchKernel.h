#pragma once

#include <cstddef>
#include <cstdint>

/// The inner loops of matching, built once for each instruction set. This header is seen by units that are
/// built for newer processors than the program: nothing here may leave an inline function behind that others
/// share.
namespace Zenvora::Quillet {

/// In rising order.
enum class InstructionSet { Plain, Sse2, Avx2, Avx512, Avx512Vnni };

/// Vectors whose quantised rows lie side by side.
constexpr std::size_t kTile = 32;

/// Whole numbers come in pairs of coordinates. A tile has a row of `kTile` pairs for each: first the wide
/// ones of 16 bits a number, then narrow ones of 8. Products of the wide are shifted right by `shift` to fit
/// to the others, and rounded up.
struct SiftTask {
  const std::int16_t* rows;  ///< of `tiles` tiles one after the other
  const float* rests;        ///< `kTile` of each tile
  std::size_t tiles;
  std::size_t wideCount;
  std::size_t pairCount;  ///< the wide ones among them
  int shift;
  /// One query, or groups of as many as the kernel says: `pairCount` rows of a word of each.
  const std::int32_t* queries;
  const float* queryRests;
  std::size_t queryCount;
  float scale;           ///< of the whole numbers' product
  float limit;           ///< what stays at or below it is out
  std::uint32_t* masks;  ///< out: for each tile and in it each query a bit for each vector that is not out
};

/// A run of coordinates, with what the coordinates behind it can add at most.
struct Segment {
  std::size_t wideCount;  ///< not 0 in the first only
  std::size_t pairCount;
  std::size_t pairsBegin;  ///< words from the query's first
  const std::int16_t* rows;
  const float* rests;
};

struct MatchKernel {
  InstructionSet set;
  std::size_t group;  ///< queries that `sift` takes at a time
  /// The sum of products, in the one order that `MatchTemplate` promises.
  double (*dot)(const float* a, const float* b, std::size_t size);
  /// `sums` = a*b, a*a, b*b, each as `dot` has it.
  void (*dots)(const float* a, const float* b, std::size_t size, double* sums);
  /// out[i][o] = sum over j of matrix[j][o] * inputs[i][j]; `width` is a multiple of `kWidthStep`. No sum is
  /// a chain of more than `kChain` + size / `kChain` + 2 roundings.
  void (*rotate)(const float* matrix, std::size_t width, std::size_t size, const float* const* inputs,
                 std::size_t count, float* out);
  void (*sift)(const SiftTask& task);
  /// Which vectors of `mask` are not out after any of the `count` segments.
  std::uint32_t (*refine)(const Segment* segments, std::size_t count, const std::int32_t* query,
                          const float* queryRests, int shift, float scale, float limit, std::uint32_t mask);
};

constexpr std::size_t kWidthStep = 64;
constexpr std::size_t kChain = 32;

/// The kernels that this processor can run, in rising order; at least one.
struct KernelList {
  const MatchKernel* kernels[5];
  std::size_t count;
};
KernelList RunnableKernels() noexcept;

/// The last of them. Found out once.
const MatchKernel& BestKernel() noexcept;

}  // namespace Zenvora::Quillet
