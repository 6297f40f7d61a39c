#pragma once

#include "LearntBasis.h"
#include "MatchKernel.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Zenvora::Quillet {

/// How unit vectors become whole numbers, so that what cannot match is seen without looking at the vectors;
/// docs/decisions/matching.md has the argument. A vector is turned into a learnt basis, scaled by `kScale`
/// and rounded; its coordinates form segments, and for each segment the code holds the `rest`: no less than
/// the length of what lies behind it. What is kept of a vector in the index, a row, has its first coordinates
/// so and the others in steps of 2^`Shift()`, in a byte each; a query has all of them so.
class TemplateCode {
 public:
  /// Whole numbers of a pair of vectors: |sum of products| stays below 2^31.
  static constexpr double kScale = 32000;
  /// More directions than that are not kept.
  static constexpr std::size_t kMostDirections = 512;

  /// Never reached: segments grow.
  static constexpr std::size_t kMostParts = 12;

  /// Pairs of coordinates of a row that have 16 bits a number.
  static constexpr std::size_t kWidePairs = 8;

  struct Part {
    std::size_t pairsBegin;  ///< in pairs of coordinates
    std::size_t pairCount;
    std::size_t wideCount;    ///< of those; none behind the first part
    std::size_t halvesBegin;  ///< of a row, in units of 16 bits: two for a wide pair, one for a narrow one
    std::size_t HalfCount() const noexcept { return pairCount + wideCount; }
  };

  struct Vector {
    const float* values = nullptr;  ///< `Size()` of them
    double squares = 0;             ///< their sum
  };

  /// Learns from `sample`, which has vectors with a direction only. `marginScale` is 1, except to show that
  /// the margin is needed. Throws `std::bad_alloc`.
  TemplateCode(const MatchKernel& kernel, const std::vector<Vector>& sample, std::size_t size,
               float threshold, double marginScale);

  /// False when rounding may hide too much: vectors are too long to be coded.
  bool IsSound() const noexcept { return sound_; }
  std::size_t Size() const noexcept { return basis_.size; }
  std::size_t PairCount() const noexcept { return pairCount_; }
  /// Of a row: units of 16 bits.
  std::size_t HalfCount() const noexcept { return parts_.back().halvesBegin + parts_.back().HalfCount(); }
  int Shift() const noexcept { return shift_; }
  const std::vector<Part>& Parts() const noexcept { return parts_; }
  /// For `SiftTask`: vectors match only if scaled product + product of rests is above `Limit()`.
  float Scale() const noexcept { return scale_; }
  float Limit() const noexcept { return limit_; }
  std::size_t MemoryBytes() const noexcept;

  /// Vectors coded at a time.
  static constexpr std::size_t kTogether = 32;

  /// Codes up to `kTogether` vectors: `PairCount()` words of a pair and `Parts().size()` rests each. One
  /// without direction becomes zeros.
  void CodeQueries(const Vector* vectors, std::size_t count, std::int32_t* pairs, float* rests);
  /// The same, as rows of `HalfCount()`.
  void CodeRows(const Vector* vectors, std::size_t count, std::int16_t* halves, float* rests);

 private:
  /// What a side of a comparison adds to its rests.
  enum class Side { Neither, Query, Row };

  void Normalise(const Vector& vector, float* out) const;
  void Turn(const Vector* vectors, std::size_t count, std::int32_t* pairs);
  void Round(const float* coordinates, std::int32_t* pairs) const;
  std::int64_t Narrow(std::int64_t number) const;
  void Pack(const std::int32_t* pairs, std::int16_t* halves) const;
  double RestBehind(double squaresBehind, double squares) const;
  double Blur(const std::int32_t* pairs, const Part& part, Side side) const;
  void Rests(const std::int32_t* pairs, Side side, float* rests) const;
  void SetMargin(float threshold, double marginScale);
  void SetParts(std::size_t firstPairs);
  void ChooseParts(const std::vector<Vector>& sample);
  void ChooseShift(const std::vector<std::int32_t>& pairs);
  double CostOf(std::size_t firstPairs, const std::vector<std::int32_t>& pairs, std::size_t count);

  const MatchKernel& kernel_;
  LearntBasis basis_;
  std::size_t pairCount_ = 0;
  std::vector<Part> parts_;
  double error_ = 0;
  double marginScale_ = 1;
  int shift_ = 8;
  float scale_ = 0;
  float limit_ = 0;
  bool sound_ = false;
  std::vector<float> normal_;
  std::vector<const float*> normalRows_;
  std::vector<float> turned_;
  std::vector<std::int32_t> turnedPairs_;
};

}  // namespace Zenvora::Quillet
