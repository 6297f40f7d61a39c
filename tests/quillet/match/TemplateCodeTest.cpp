#include "Vectors.h"

#include <zenvora/quillet/match/MatchTemplate.h>

#include <gtest/gtest.h>

#include <FirstFit.h>
#include <TemplateCode.h>
#include <algorithm>
#include <cmath>
#include <iostream>

namespace Zenvora::Quillet {
namespace {

using Test::MakeVectors;
using Test::Template;
using Test::VectorKind;

constexpr float kThreshold = 0.91F;

/// Of a query's and a row's first `pairs` pairs, as the kernels are to have it at least.
double Product(const TemplateCode& code, const std::int32_t* query, const std::int16_t* row,
               std::size_t pairs) {
  const std::size_t wide = code.Parts()[0].wideCount;
  const auto low = [](std::int32_t pair) {
    return static_cast<double>(static_cast<std::int16_t>(pair & 0xFFFF));
  };
  const auto high = [](std::int32_t pair) { return static_cast<double>(pair >> 16); };
  double sum = 0;
  for (std::size_t i = 0; i < wide; ++i) {
    sum += low(query[i]) * static_cast<double>(row[2 * i]) +
           high(query[i]) * static_cast<double>(row[2 * i + 1]);
  }
  sum /= static_cast<double>(1 << code.Shift());
  for (std::size_t i = wide; i < pairs; ++i) {
    const std::int16_t both = row[wide + i];
    sum += low(query[i]) * static_cast<double>(static_cast<std::int8_t>(both & 0xFF)) +
           high(query[i]) * static_cast<double>(both >> 8);
  }
  return sum * static_cast<double>(code.Scale());
}

struct Coded {
  std::vector<std::int32_t> pairs;
  std::vector<float> queryRests;
  std::vector<std::int16_t> halves;
  std::vector<float> rowRests;
};

std::vector<TemplateCode::Vector> WithSquares(const std::vector<Template>& vectors,
                                              const MatchKernel& kernel) {
  std::vector<TemplateCode::Vector> result;
  result.reserve(vectors.size());
  for (const Template& vector : vectors) {
    result.push_back({vector.data(), kernel.dot(vector.data(), vector.data(), vector.size())});
  }
  return result;
}

Coded CodeAll(TemplateCode& code, const std::vector<TemplateCode::Vector>& vectors) {
  Coded coded;
  coded.pairs.resize(vectors.size() * code.PairCount());
  coded.queryRests.resize(vectors.size() * code.Parts().size());
  coded.halves.resize(vectors.size() * code.HalfCount());
  coded.rowRests.resize(vectors.size() * code.Parts().size());
  for (std::size_t i = 0; i < vectors.size(); i += TemplateCode::kTogether) {
    const std::size_t count = std::min(TemplateCode::kTogether, vectors.size() - i);
    code.CodeQueries(vectors.data() + i, count, coded.pairs.data() + i * code.PairCount(),
                     coded.queryRests.data() + i * code.Parts().size());
    code.CodeRows(vectors.data() + i, count, coded.halves.data() + i * code.HalfCount(),
                  coded.rowRests.data() + i * code.Parts().size());
  }
  return coded;
}

/// How much of the margin the pair of `vectors` that needs most of it takes, with each segment, of a code
/// learnt from `sample`; above 1 the bound is broken.
double LargestShare(const MatchKernel& kernel, const std::vector<Template>& sample,
                    const std::vector<Template>& vectors) {
  const std::size_t size = vectors[0].size();
  TemplateCode code(kernel, WithSquares(sample, kernel), size, kThreshold, 1);
  EXPECT_TRUE(code.IsSound());
  const Coded coded = CodeAll(code, WithSquares(vectors, kernel));
  const double margin = static_cast<double>(kThreshold) - static_cast<double>(code.Limit());
  EXPECT_GT(margin, 0);
  double most = -1e9;
  for (std::size_t a = 0; a < vectors.size(); ++a) {
    for (std::size_t b = 0; b < vectors.size(); ++b) {
      const auto cosine = static_cast<double>(MatchTemplate(vectors[a], vectors[b]));
      for (std::size_t part = 0; part < code.Parts().size(); ++part) {
        const std::size_t pairs = code.Parts()[part].pairsBegin + code.Parts()[part].pairCount;
        const double bound = Product(code, coded.pairs.data() + a * code.PairCount(),
                                     coded.halves.data() + b * code.HalfCount(), pairs) +
                             static_cast<double>(coded.queryRests[a * code.Parts().size() + part]) *
                                 static_cast<double>(coded.rowRests[b * code.Parts().size() + part]);
        most = std::max(most, (cosine - bound) / margin);
      }
    }
  }
  return most;
}

TEST(TemplateCode, BoundsTheScoreFromAbove) {
  const KernelList list = RunnableKernels();
  double most = -1e9;
  for (std::size_t k = 0; k < list.count; ++k) {
    for (const VectorKind kind : {VectorKind::Random, VectorKind::Histogram, VectorKind::Mixed,
                                  VectorKind::Copies, VectorKind::Parallel}) {
      for (const std::size_t size : {1U, 2U, 5U, 17U, 64U, 97U, 256U, 600U}) {
        if (size > 97 && (kind != VectorKind::Mixed || k + 1 < list.count)) {
          continue;
        }
        const auto vectors = MakeVectors(kind, 60, size, kThreshold, 77);
        const double share = LargestShare(*list.kernels[k], vectors, vectors);
        EXPECT_LE(share, 1.0) << kind << " of " << size;
        most = std::max(most, share);
      }
    }
  }
  // Some of it is needed.
  EXPECT_GT(most, 0.01);
  std::cout << "at most " << most << " of the margin was needed\n";
}

/// Vectors of a few axes, with hardly anything in the others.
std::vector<Template> MakeNearlyFlat(std::size_t count, std::size_t size, unsigned seed) {
  constexpr std::size_t kAxes = 14;
  Test::Chance chance(seed);
  std::vector<Template> vectors(count, Template(size));
  for (Template& vector : vectors) {
    for (std::size_t i = 0; i < size; ++i) {
      vector[i] = chance.Normal() * (i < kAxes ? 1 : 1e-4F);
    }
  }
  return vectors;
}

TEST(TemplateCode, BoundsTheScoreOfWhatItWasNotLearntFrom) {
  const KernelList list = RunnableKernels();
  for (const std::size_t size : {96U, 257U, 600U}) {
    const auto sample = MakeNearlyFlat(80, size, 3);
    const MatchKernel& best = *list.kernels[list.count - 1];
    const TemplateCode code(best, WithSquares(sample, best), size, kThreshold, 1);
    ASSERT_EQ(code.Shift(), 3) << "bytes reach no further than 1016";
    // Where the sample has nothing, numbers are far beyond that.
    auto vectors = MakeVectors(VectorKind::Edge, 40, size, kThreshold, 9);
    for (std::size_t axis = 0; axis < size; axis += 5) {
      vectors.emplace_back(size);
      vectors.back()[axis] = 1e30F;
    }
    for (const VectorKind kind : {VectorKind::Sparse, VectorKind::Copies}) {
      const auto more = MakeVectors(kind, 15, size, kThreshold, 4);
      vectors.insert(vectors.end(), more.begin(), more.end());
    }
    for (std::size_t k = 0; k < list.count; ++k) {
      EXPECT_LE(LargestShare(*list.kernels[k], sample, vectors), 1.0) << size;
    }
  }
}

TEST(TemplateCode, MakesZerosOfWhatHasNoDirection) {
  const auto vectors = MakeVectors(VectorKind::Random, 40, 20, kThreshold, 1);
  const MatchKernel& kernel = BestKernel();
  TemplateCode code(kernel, WithSquares(vectors, kernel), 20, kThreshold, 1);
  const float values[20] = {1e38F, -1e38F, NAN};
  for (const double squares : {0.0, -0.0, static_cast<double>(INFINITY), static_cast<double>(NAN)}) {
    const TemplateCode::Vector vector = {values, squares};
    const Coded coded = CodeAll(code, {vector});
    EXPECT_EQ(coded.pairs, std::vector<std::int32_t>(code.PairCount(), 0));
    EXPECT_EQ(coded.halves, std::vector<std::int16_t>(code.HalfCount(), 0));
  }
}

TEST(TemplateCode, HasSegmentsThatCoverAllCoordinates) {
  const MatchKernel& kernel = BestKernel();
  for (const VectorKind kind : {VectorKind::Histogram, VectorKind::Parallel}) {
    for (const std::size_t size : {1U, 2U, 3U, 30U, 31U, 257U, 600U}) {
      const auto vectors = MakeVectors(kind, 80, size, kThreshold, 5);
      const TemplateCode code(kernel, WithSquares(vectors, kernel), size, kThreshold, 1);
      EXPECT_EQ(code.PairCount(), (std::min(size, TemplateCode::kMostDirections) + 1) / 2);
      std::size_t next = 0;
      std::size_t halves = 0;
      for (const TemplateCode::Part& part : code.Parts()) {
        EXPECT_EQ(part.pairsBegin, next);
        EXPECT_GT(part.pairCount, 0U);
        EXPECT_EQ(part.wideCount, next == 0 ? std::min(TemplateCode::kWidePairs, code.PairCount()) : 0);
        EXPECT_EQ(part.halvesBegin, halves);
        next += part.pairCount;
        halves += 2 * part.wideCount + (part.pairCount - part.wideCount);
      }
      EXPECT_EQ(next, code.PairCount());
      EXPECT_EQ(halves, code.HalfCount());
      EXPECT_LE(code.Parts().size(), TemplateCode::kMostParts);
    }
  }
}

TEST(LearntBasis, IsAtRightAnglesWhateverTheSample) {
  const MatchKernel& kernel = BestKernel();
  for (const std::size_t size : {1U, 7U, 64U, 65U, 300U}) {
    const std::size_t stride = (size + 63) / 64 * 64;
    // All alike: only one direction can be learnt.
    std::vector<float> sample(10 * stride);
    for (std::size_t i = 0; i < 10; ++i) {
      sample[i * stride] = 1;
    }
    const LearntBasis basis = LearnBasis(kernel, sample, 10, size, stride, 512);
    EXPECT_EQ(basis.count, size);
    EXPECT_LT(basis.defect, 1e-4);
    EXPECT_NEAR(std::fabs(basis.matrix[0]), 1, 1e-5) << "the learnt direction comes first";
    for (std::size_t a = 0; a < size; ++a) {
      for (std::size_t b = 0; b <= a; b += 7) {
        double product = 0;
        for (std::size_t i = 0; i < size; ++i) {
          product += static_cast<double>(basis.matrix[i * basis.width + a]) *
                     static_cast<double>(basis.matrix[i * basis.width + b]);
        }
        EXPECT_NEAR(product, a == b ? 1 : 0, basis.defect + 1e-12);
      }
    }
  }
}

}  // namespace
}  // namespace Zenvora::Quillet
