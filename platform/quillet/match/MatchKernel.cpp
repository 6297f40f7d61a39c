// Built once for each instruction set, under the name that LUMIDEX_KERNEL gives.

#include "MatchKernel.h"

#if LUMIDEX_KERNEL_LEVEL > 0
#include <immintrin.h>
#endif

namespace Zenvora::Quillet {

namespace {

// Inlined without exception: a copy left behind could be taken by units for older processors.
#define LUMIDEX_INLINE inline __attribute__((always_inline))

/// Lanes of `MatchTemplate`'s sums. Part of what it promises.
constexpr std::size_t kLanes = 16;

#if LUMIDEX_KERNEL_LEVEL == 0

using Ints = std::int32_t;
using Floats = float;
using Doubles = double;
constexpr std::size_t kInts = 1;
constexpr std::size_t kDoubles = 1;
constexpr std::size_t kQueries = 4;

LUMIDEX_INLINE Ints NoInts() {
  return 0;
}
LUMIDEX_INLINE Ints LoadWide(const std::int16_t* from) {
  return (from[1] * (1 << 16)) | (from[0] & 0xFFFF);
}
LUMIDEX_INLINE Ints LoadNarrow(const std::int16_t* from) {
  const std::int32_t low = static_cast<std::int8_t>(*from & 0xFF);
  return ((*from >> 8) * (1 << 16)) | (low & 0xFFFF);
}
LUMIDEX_INLINE Ints ShiftRight(Ints value, int by) {
  return value >> by;
}
LUMIDEX_INLINE Ints AddInts(Ints a, Ints b) {
  return a + b;
}
LUMIDEX_INLINE Ints SpreadInt(std::int32_t value) {
  return value;
}
LUMIDEX_INLINE Ints AddProducts(Ints sum, Ints a, Ints b) {
  const auto low = [](std::int32_t pair) -> std::int32_t { return static_cast<std::int16_t>(pair & 0xFFFF); };
  return sum + low(a) * low(b) + (a >> 16) * (b >> 16);
}
LUMIDEX_INLINE Floats LoadFloats(const float* from) {
  return *from;
}
LUMIDEX_INLINE void StoreFloats(float* to, Floats value) {
  *to = value;
}
LUMIDEX_INLINE Floats SpreadFloat(float value) {
  return value;
}
LUMIDEX_INLINE Floats Add(Floats a, Floats b) {
  return a + b;
}
LUMIDEX_INLINE Floats MulAdd(Floats a, Floats b, Floats c) {
  return a * b + c;
}
LUMIDEX_INLINE Floats ToFloats(Ints value) {
  return static_cast<float>(value);
}
LUMIDEX_INLINE Floats Mul(Floats a, Floats b) {
  return a * b;
}
LUMIDEX_INLINE std::uint32_t Above(Floats a, Floats b) {
  return a > b ? 1U : 0U;
}
LUMIDEX_INLINE Doubles NoDoubles() {
  return 0;
}
LUMIDEX_INLINE Doubles Widen(const float* from) {
  return static_cast<double>(*from);
}
LUMIDEX_INLINE Doubles AddProduct(Doubles sum, Doubles a, Doubles b) {
  return sum + a * b;
}
LUMIDEX_INLINE void StoreDoubles(double* to, Doubles value) {
  *to = value;
}

#elif LUMIDEX_KERNEL_LEVEL == 1

using Ints = __m128i;
using Floats = __m128;
using Doubles = __m128d;
constexpr std::size_t kInts = 4;
constexpr std::size_t kDoubles = 2;
constexpr std::size_t kQueries = 4;

LUMIDEX_INLINE Ints NoInts() {
  return _mm_setzero_si128();
}
LUMIDEX_INLINE Ints LoadWide(const std::int16_t* from) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
}
LUMIDEX_INLINE Ints LoadNarrow(const std::int16_t* from) {
  const __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(from));
  return _mm_srai_epi16(_mm_unpacklo_epi8(bytes, bytes), 8);
}
LUMIDEX_INLINE Ints ShiftRight(Ints value, int by) {
  return _mm_sra_epi32(value, _mm_cvtsi32_si128(by));
}
LUMIDEX_INLINE Ints AddInts(Ints a, Ints b) {
  return _mm_add_epi32(a, b);
}
LUMIDEX_INLINE Ints SpreadInt(std::int32_t value) {
  return _mm_set1_epi32(value);
}
LUMIDEX_INLINE Ints AddProducts(Ints sum, Ints a, Ints b) {
  return _mm_add_epi32(sum, _mm_madd_epi16(a, b));
}
LUMIDEX_INLINE Floats LoadFloats(const float* from) {
  return _mm_loadu_ps(from);
}
LUMIDEX_INLINE void StoreFloats(float* to, Floats value) {
  _mm_storeu_ps(to, value);
}
LUMIDEX_INLINE Floats SpreadFloat(float value) {
  return _mm_set1_ps(value);
}
LUMIDEX_INLINE Floats Add(Floats a, Floats b) {
  return _mm_add_ps(a, b);
}
LUMIDEX_INLINE Floats Mul(Floats a, Floats b) {
  return _mm_mul_ps(a, b);
}
LUMIDEX_INLINE Floats MulAdd(Floats a, Floats b, Floats c) {
  return _mm_add_ps(_mm_mul_ps(a, b), c);
}
LUMIDEX_INLINE Floats ToFloats(Ints value) {
  return _mm_cvtepi32_ps(value);
}
LUMIDEX_INLINE std::uint32_t Above(Floats a, Floats b) {
  return static_cast<std::uint32_t>(_mm_movemask_ps(_mm_cmpgt_ps(a, b)));
}
LUMIDEX_INLINE Doubles NoDoubles() {
  return _mm_setzero_pd();
}
LUMIDEX_INLINE Doubles Widen(const float* from) {
  return _mm_cvtps_pd(_mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double*>(from))));
}
LUMIDEX_INLINE Doubles AddProduct(Doubles sum, Doubles a, Doubles b) {
  return _mm_add_pd(sum, _mm_mul_pd(a, b));
}
LUMIDEX_INLINE void StoreDoubles(double* to, Doubles value) {
  _mm_storeu_pd(to, value);
}

#elif LUMIDEX_KERNEL_LEVEL == 2

using Ints = __m256i;
using Floats = __m256;
using Doubles = __m256d;
constexpr std::size_t kInts = 8;
constexpr std::size_t kDoubles = 4;
constexpr std::size_t kQueries = 4;

LUMIDEX_INLINE Ints NoInts() {
  return _mm256_setzero_si256();
}
LUMIDEX_INLINE Ints LoadWide(const std::int16_t* from) {
  return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from));
}
LUMIDEX_INLINE Ints LoadNarrow(const std::int16_t* from) {
  return _mm256_cvtepi8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(from)));
}
LUMIDEX_INLINE Ints ShiftRight(Ints value, int by) {
  return _mm256_sra_epi32(value, _mm_cvtsi32_si128(by));
}
LUMIDEX_INLINE Ints AddInts(Ints a, Ints b) {
  return _mm256_add_epi32(a, b);
}
LUMIDEX_INLINE Ints SpreadInt(std::int32_t value) {
  return _mm256_set1_epi32(value);
}
LUMIDEX_INLINE Ints AddProducts(Ints sum, Ints a, Ints b) {
  return _mm256_add_epi32(sum, _mm256_madd_epi16(a, b));
}
LUMIDEX_INLINE Floats LoadFloats(const float* from) {
  return _mm256_loadu_ps(from);
}
LUMIDEX_INLINE void StoreFloats(float* to, Floats value) {
  _mm256_storeu_ps(to, value);
}
LUMIDEX_INLINE Floats SpreadFloat(float value) {
  return _mm256_set1_ps(value);
}
LUMIDEX_INLINE Floats Add(Floats a, Floats b) {
  return _mm256_add_ps(a, b);
}
LUMIDEX_INLINE Floats Mul(Floats a, Floats b) {
  return _mm256_mul_ps(a, b);
}
LUMIDEX_INLINE Floats MulAdd(Floats a, Floats b, Floats c) {
  return _mm256_fmadd_ps(a, b, c);
}
LUMIDEX_INLINE Floats ToFloats(Ints value) {
  return _mm256_cvtepi32_ps(value);
}
LUMIDEX_INLINE std::uint32_t Above(Floats a, Floats b) {
  return static_cast<std::uint32_t>(_mm256_movemask_ps(_mm256_cmp_ps(a, b, _CMP_GT_OQ)));
}
LUMIDEX_INLINE Doubles NoDoubles() {
  return _mm256_setzero_pd();
}
LUMIDEX_INLINE Doubles Widen(const float* from) {
  return _mm256_cvtps_pd(_mm_loadu_ps(from));
}
LUMIDEX_INLINE Doubles AddProduct(Doubles sum, Doubles a, Doubles b) {
  return _mm256_add_pd(sum, _mm256_mul_pd(a, b));
}
LUMIDEX_INLINE void StoreDoubles(double* to, Doubles value) {
  _mm256_storeu_pd(to, value);
}

#else

using Ints = __m512i;
using Floats = __m512;
using Doubles = __m512d;
constexpr std::size_t kInts = 16;
constexpr std::size_t kDoubles = 8;
constexpr std::size_t kQueries = 8;

// For the compiler's own shifts and conversions: the header's forms warn of values that are not there.
using Words = std::int32_t __attribute__((vector_size(64)));
LUMIDEX_INLINE Ints NoInts() {
  return _mm512_setzero_si512();
}
LUMIDEX_INLINE Ints LoadWide(const std::int16_t* from) {
  return _mm512_loadu_si512(from);
}
LUMIDEX_INLINE Ints LoadNarrow(const std::int16_t* from) {
  return _mm512_cvtepi8_epi16(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(from)));
}
LUMIDEX_INLINE Ints ShiftRight(Ints value, int by) {
  return reinterpret_cast<Ints>(reinterpret_cast<Words>(value) >> by);
}
LUMIDEX_INLINE Ints AddInts(Ints a, Ints b) {
  return _mm512_add_epi32(a, b);
}
LUMIDEX_INLINE Ints SpreadInt(std::int32_t value) {
  return _mm512_set1_epi32(value);
}
LUMIDEX_INLINE Ints AddProducts(Ints sum, Ints a, Ints b) {
#if LUMIDEX_KERNEL_LEVEL == 4
  // Compilers copy every sum to and fro around the intrinsic.
  asm("vpdpwssd %2, %1, %0" : "+v"(sum) : "v"(a), "v"(b));
  return sum;
#else
  return _mm512_add_epi32(sum, _mm512_madd_epi16(a, b));
#endif
}
LUMIDEX_INLINE Floats LoadFloats(const float* from) {
  return _mm512_loadu_ps(from);
}
LUMIDEX_INLINE void StoreFloats(float* to, Floats value) {
  _mm512_storeu_ps(to, value);
}
LUMIDEX_INLINE Floats SpreadFloat(float value) {
  return _mm512_set1_ps(value);
}
LUMIDEX_INLINE Floats Add(Floats a, Floats b) {
  return _mm512_add_ps(a, b);
}
LUMIDEX_INLINE Floats Mul(Floats a, Floats b) {
  return _mm512_mul_ps(a, b);
}
LUMIDEX_INLINE Floats MulAdd(Floats a, Floats b, Floats c) {
  return _mm512_fmadd_ps(a, b, c);
}
LUMIDEX_INLINE Floats ToFloats(Ints value) {
  return __builtin_convertvector(reinterpret_cast<Words>(value), Floats);
}
LUMIDEX_INLINE std::uint32_t Above(Floats a, Floats b) {
  return _mm512_cmp_ps_mask(a, b, _CMP_GT_OQ);
}
LUMIDEX_INLINE Doubles NoDoubles() {
  return _mm512_setzero_pd();
}
LUMIDEX_INLINE Doubles Widen(const float* from) {
  return __builtin_convertvector(_mm256_loadu_ps(from), Doubles);
}
LUMIDEX_INLINE Doubles AddProduct(Doubles sum, Doubles a, Doubles b) {
  return _mm512_add_pd(sum, _mm512_mul_pd(a, b));
}
LUMIDEX_INLINE void StoreDoubles(double* to, Doubles value) {
  _mm512_storeu_pd(to, value);
}

#endif

// Unrolled whole, so that what is indexed stays in registers.
#define LUMIDEX_UNROLL _Pragma("GCC unroll 16")

constexpr std::size_t kSums = kLanes / kDoubles;

/// The values behind the last full round go to the first lanes; then halves are added upon halves.
LUMIDEX_INLINE double Finish(const Doubles* sums, const float* a, const float* b, std::size_t from,
                             std::size_t size) {
  double lanes[kLanes];
  LUMIDEX_UNROLL
  for (std::size_t i = 0; i < kSums; ++i) {
    StoreDoubles(lanes + i * kDoubles, sums[i]);
  }
  for (std::size_t i = from; i < size; ++i) {
    lanes[i - from] += static_cast<double>(a[i]) * static_cast<double>(b[i]);
  }
  for (std::size_t half = kLanes / 2; half > 0; half /= 2) {
    for (std::size_t i = 0; i < half; ++i) {
      lanes[i] += lanes[i + half];
    }
  }
  return lanes[0];
}

double Dot(const float* a, const float* b, std::size_t size) {
  Doubles sums[kSums];
  LUMIDEX_UNROLL
  for (std::size_t i = 0; i < kSums; ++i) {
    sums[i] = NoDoubles();
  }
  const std::size_t rounds = size / kLanes * kLanes;
  for (std::size_t at = 0; at < rounds; at += kLanes) {
    LUMIDEX_UNROLL
    for (std::size_t i = 0; i < kSums; ++i) {
      sums[i] = AddProduct(sums[i], Widen(a + at + i * kDoubles), Widen(b + at + i * kDoubles));
    }
  }
  return Finish(sums, a, b, rounds, size);
}

void Dots(const float* a, const float* b, std::size_t size, double* out) {
#if LUMIDEX_KERNEL_LEVEL < 2
  // Three sums at once would not fit in the registers.
  out[0] = Dot(a, b, size);
  out[1] = Dot(a, a, size);
  out[2] = Dot(b, b, size);
#else
  Doubles ab[kSums];
  Doubles aa[kSums];
  Doubles bb[kSums];
  LUMIDEX_UNROLL
  for (std::size_t i = 0; i < kSums; ++i) {
    ab[i] = aa[i] = bb[i] = NoDoubles();
  }
  const std::size_t rounds = size / kLanes * kLanes;
  for (std::size_t at = 0; at < rounds; at += kLanes) {
    LUMIDEX_UNROLL
    for (std::size_t i = 0; i < kSums; ++i) {
      const Doubles left = Widen(a + at + i * kDoubles);
      const Doubles right = Widen(b + at + i * kDoubles);
      ab[i] = AddProduct(ab[i], left, right);
      aa[i] = AddProduct(aa[i], left, left);
      bb[i] = AddProduct(bb[i], right, right);
    }
  }
  out[0] = Finish(ab, a, b, rounds, size);
  out[1] = Finish(aa, a, a, rounds, size);
  out[2] = Finish(bb, b, b, rounds, size);
#endif
}

constexpr std::size_t kFloats = kInts;

/// `Vectors` vectors of outputs of `Inputs` inputs at a time.
template <std::size_t Inputs, std::size_t Vectors>
LUMIDEX_INLINE void RotateBlock(const float* matrix, std::size_t width, std::size_t size,
                                const float* const* inputs, float* out) {
  Floats totals[Inputs][Vectors];
  LUMIDEX_UNROLL
  for (std::size_t i = 0; i < Inputs; ++i) {
    LUMIDEX_UNROLL
    for (std::size_t v = 0; v < Vectors; ++v) {
      totals[i][v] = SpreadFloat(0);
    }
  }
  for (std::size_t begin = 0; begin < size; begin += kChain) {
    const std::size_t end = size - begin < kChain ? size : begin + kChain;
    Floats sums[Inputs][Vectors];
    LUMIDEX_UNROLL
    for (std::size_t i = 0; i < Inputs; ++i) {
      LUMIDEX_UNROLL
      for (std::size_t v = 0; v < Vectors; ++v) {
        sums[i][v] = SpreadFloat(0);
      }
    }
    for (std::size_t j = begin; j < end; ++j) {
      Floats row[Vectors];
      LUMIDEX_UNROLL
      for (std::size_t v = 0; v < Vectors; ++v) {
        row[v] = LoadFloats(matrix + j * width + v * kFloats);
      }
      LUMIDEX_UNROLL
      for (std::size_t i = 0; i < Inputs; ++i) {
        const Floats value = SpreadFloat(inputs[i][j]);
        LUMIDEX_UNROLL
        for (std::size_t v = 0; v < Vectors; ++v) {
          sums[i][v] = MulAdd(row[v], value, sums[i][v]);
        }
      }
    }
    LUMIDEX_UNROLL
    for (std::size_t i = 0; i < Inputs; ++i) {
      LUMIDEX_UNROLL
      for (std::size_t v = 0; v < Vectors; ++v) {
        totals[i][v] = Add(totals[i][v], sums[i][v]);
      }
    }
  }
  LUMIDEX_UNROLL
  for (std::size_t i = 0; i < Inputs; ++i) {
    LUMIDEX_UNROLL
    for (std::size_t v = 0; v < Vectors; ++v) {
      StoreFloats(out + i * width + v * kFloats, totals[i][v]);
    }
  }
}

template <std::size_t Inputs, std::size_t Vectors>
void RotateSome(const float* matrix, std::size_t width, std::size_t size, const float* const* inputs,
                float* out) {
  static_assert(kWidthStep % (Vectors * kFloats) == 0);
  for (std::size_t at = 0; at < width; at += Vectors * kFloats) {
    RotateBlock<Inputs, Vectors>(matrix + at, width, size, inputs, out + at);
  }
}

void Rotate(const float* matrix, std::size_t width, std::size_t size, const float* const* inputs,
            std::size_t count, float* out) {
  constexpr std::size_t kTogether = 4;
  std::size_t done = 0;
  for (; done + kTogether <= count; done += kTogether) {
    RotateSome<kTogether, 2>(matrix, width, size, inputs + done, out + done * width);
  }
  for (; done < count; ++done) {
    RotateSome<1, 4>(matrix, width, size, inputs + done, out + done * width);
  }
}

/// Vectors of a tile that are worked on at a time.
constexpr std::size_t kSide = 2;
static_assert(kTile % (kSide * kInts) == 0);

/// Adds the products of `count` rows of pairs with the queries' words.
template <std::size_t Queries, bool Wide>
LUMIDEX_INLINE void AddRows(Ints (&sums)[Queries][kSide], const std::int16_t* row, const std::int32_t* values,
                            std::size_t count) {
  constexpr std::size_t kHalves = Wide ? 2 : 1;
  for (std::size_t j = 0; j < count; ++j, row += kHalves * kTile, values += Queries) {
    const Ints left = Wide ? LoadWide(row) : LoadNarrow(row);
    const Ints right = Wide ? LoadWide(row + 2 * kInts) : LoadNarrow(row + kInts);
    LUMIDEX_UNROLL
    for (std::size_t i = 0; i < Queries; ++i) {
      const Ints value = SpreadInt(values[i]);
      sums[i][0] = AddProducts(sums[i][0], left, value);
      sums[i][1] = AddProducts(sums[i][1], right, value);
    }
  }
}

template <std::size_t Queries>
LUMIDEX_INLINE void SiftBlock(const SiftTask& task, const std::int16_t* rows, const float* rests,
                              const std::int32_t* queries, const float* queryRests, std::uint32_t* masks) {
  for (std::size_t i = 0; i < Queries; ++i) {
    masks[i] = 0;
  }
  const std::int16_t* const narrow = rows + task.wideCount * 2 * kTile;
  for (std::size_t at = 0; at < kTile; at += kSide * kInts) {
    Ints sums[Queries][kSide];
    LUMIDEX_UNROLL
    for (std::size_t i = 0; i < Queries; ++i) {
      LUMIDEX_UNROLL
      for (std::size_t v = 0; v < kSide; ++v) {
        sums[i][v] = NoInts();
      }
    }
    AddRows<Queries, true>(sums, rows + 2 * at, queries, task.wideCount);
    LUMIDEX_UNROLL
    for (std::size_t i = 0; i < Queries; ++i) {
      LUMIDEX_UNROLL
      for (std::size_t v = 0; v < kSide; ++v) {
        sums[i][v] = AddInts(ShiftRight(sums[i][v], task.shift), SpreadInt(1));
      }
    }
    AddRows<Queries, false>(sums, narrow + at, queries + task.wideCount * Queries,
                            task.pairCount - task.wideCount);
    LUMIDEX_UNROLL
    for (std::size_t v = 0; v < kSide; ++v) {
      const Floats rest = LoadFloats(rests + at + v * kInts);
      LUMIDEX_UNROLL
      for (std::size_t i = 0; i < Queries; ++i) {
        const Floats bound =
            MulAdd(ToFloats(sums[i][v]), SpreadFloat(task.scale), Mul(rest, SpreadFloat(queryRests[i])));
        masks[i] |= Above(bound, SpreadFloat(task.limit)) << (at + v * kInts);
      }
    }
  }
}

constexpr std::size_t kVectors = kTile / kInts;
// Where a tile has few vectors a single sum of each would wait for itself.
constexpr std::size_t kChains = kVectors < 4 ? 4 : 1;

/// As `AddRows`, of one query and all of the tile.
template <bool Wide>
LUMIDEX_INLINE void AddTile(Ints (&sums)[kChains][kVectors], const std::int16_t* rows,
                            const std::int32_t* values, std::size_t count) {
  constexpr std::size_t kHalves = Wide ? 2 : 1;
  const auto load = [rows](std::size_t j, std::size_t v) {
    const std::int16_t* const from = rows + kHalves * (j * kTile + v * kInts);
    return Wide ? LoadWide(from) : LoadNarrow(from);
  };
  std::size_t j = 0;
  for (; j + kChains <= count; j += kChains) {
    LUMIDEX_UNROLL
    for (std::size_t c = 0; c < kChains; ++c) {
      const Ints value = SpreadInt(values[j + c]);
      LUMIDEX_UNROLL
      for (std::size_t v = 0; v < kVectors; ++v) {
        sums[c][v] = AddProducts(sums[c][v], load(j + c, v), value);
      }
    }
  }
  for (; j < count; ++j) {
    LUMIDEX_UNROLL
    for (std::size_t v = 0; v < kVectors; ++v) {
      sums[0][v] = AddProducts(sums[0][v], load(j, v), SpreadInt(values[j]));
    }
  }
}

std::uint32_t Refine(const Segment* segments, std::size_t count, const std::int32_t* query,
                     const float* queryRests, int shift, float scale, float limit, std::uint32_t mask) {
  Ints sums[kChains][kVectors];
  LUMIDEX_UNROLL
  for (std::size_t c = 0; c < kChains; ++c) {
    LUMIDEX_UNROLL
    for (std::size_t v = 0; v < kVectors; ++v) {
      sums[c][v] = NoInts();
    }
  }
  for (std::size_t s = 0; s < count; ++s) {
    const Segment& segment = segments[s];
    const std::int32_t* const values = query + segment.pairsBegin;
    if (segment.wideCount > 0) {
      AddTile<true>(sums, segment.rows, values, segment.wideCount);
      LUMIDEX_UNROLL
      for (std::size_t c = 0; c < kChains; ++c) {
        LUMIDEX_UNROLL
        for (std::size_t v = 0; v < kVectors; ++v) {
          sums[c][v] = AddInts(ShiftRight(sums[c][v], shift), SpreadInt(1));
        }
      }
    }
    AddTile<false>(sums, segment.rows + segment.wideCount * 2 * kTile, values + segment.wideCount,
                   segment.pairCount - segment.wideCount);
    std::uint32_t above = 0;
    LUMIDEX_UNROLL
    for (std::size_t v = 0; v < kVectors; ++v) {
      Ints sum = sums[0][v];
      LUMIDEX_UNROLL
      for (std::size_t c = 1; c < kChains; ++c) {
        sum = AddInts(sum, sums[c][v]);
      }
      const Floats tail = Mul(LoadFloats(segment.rests + v * kInts), SpreadFloat(queryRests[s]));
      above |= Above(MulAdd(ToFloats(sum), SpreadFloat(scale), tail), SpreadFloat(limit)) << (v * kInts);
    }
    mask &= above;
    if (mask == 0) {
      return 0;
    }
  }
  return mask;
}

void Sift(const SiftTask& task) {
  const std::size_t halves = (task.pairCount + task.wideCount) * kTile;
  for (std::size_t tile = 0; tile < task.tiles; ++tile) {
    const std::int16_t* const rows = task.rows + tile * halves;
    const float* const rests = task.rests + tile * kTile;
    std::uint32_t* const masks = task.masks + tile * task.queryCount;
    if (task.queryCount == 1) {
      const Segment segment = {task.wideCount, task.pairCount, 0, rows, rests};
      masks[0] = Refine(&segment, 1, task.queries, task.queryRests, task.shift, task.scale, task.limit,
                        ~std::uint32_t{0});
      continue;
    }
    for (std::size_t done = 0; done < task.queryCount; done += kQueries) {
      SiftBlock<kQueries>(task, rows, rests, task.queries + done * task.pairCount, task.queryRests + done,
                          masks + done);
    }
  }
}

}  // namespace

extern const MatchKernel LUMIDEX_KERNEL;
const MatchKernel LUMIDEX_KERNEL = {
    static_cast<InstructionSet>(LUMIDEX_KERNEL_LEVEL), kQueries, Dot, Dots, Rotate, Sift, Refine};

}  // namespace Zenvora::Quillet
