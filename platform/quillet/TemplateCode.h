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
/// the length of what lies behind it.
class TemplateCode {
 public:
  /// Whole numbers of a pair of vectors: |sum of products| stays below 2^31.
  static constexpr double kScale = 32000;
  /// More directions than that are not kept.
  static constexpr std::size_t kMostDirections = 512;

  /// Never reached: segments grow.
  static constexpr std::size_t kMostParts = 12;

  struct Part {
    std::size_t pairsBegin;  ///< in words of two coordinates
    std::size_t pairCount;
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
  const std::vector<Part>& Parts() const noexcept { return parts_; }
  /// For `SiftTask`: vectors match only if scaled product + product of rests is above `Limit()`.
  float Scale() const noexcept { return scale_; }
  float Limit() const noexcept { return limit_; }
  std::size_t MemoryBytes() const noexcept;

  /// Vectors coded at a time.
  static constexpr std::size_t kTogether = 32;

  /// Codes up to `kTogether` vectors: `PairCount()` words and `Parts().size()` rests each. One without
  /// direction becomes zeros.
  void Code(const Vector* vectors, std::size_t count, std::int32_t* pairs, float* rests);

 private:
  void Normalise(const Vector& vector, float* out) const;
  void Round(const float* coordinates, std::int32_t* pairs) const;
  double RestBehind(double squaresBehind, double squares) const;
  void Rests(const std::int32_t* pairs, float* rests) const;
  void SetMargin(float threshold, double marginScale);
  void SetParts(std::size_t firstPairs);
  void ChooseParts(const std::vector<Vector>& sample);
  double CostOf(std::size_t firstPairs, const std::vector<std::int32_t>& pairs, std::size_t count);

  const MatchKernel& kernel_;
  LearntBasis basis_;
  std::size_t pairCount_ = 0;
  std::vector<Part> parts_;
  double error_ = 0;
  float scale_ = 0;
  float limit_ = 0;
  bool sound_ = false;
  std::vector<float> normal_;
  std::vector<const float*> normalRows_;
  std::vector<float> turned_;
};

}  // namespace Zenvora::Quillet
