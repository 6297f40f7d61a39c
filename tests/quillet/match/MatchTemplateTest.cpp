#include "Vectors.h"

#include <zenvora/quillet/match/MatchTemplate.h>

#include <gtest/gtest.h>

#include <MatchKernel.h>
#include <MatchScore.h>
#include <cmath>
#include <cstring>
#include <limits>

namespace Zenvora::Quillet {
namespace {

using Test::Chance;
using Test::Template;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kTiny = std::numeric_limits<float>::denorm_min();
constexpr float kHuge = std::numeric_limits<float>::max();

std::uint32_t Bits(float value) {
  std::uint32_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

/// Values that any system computes alike, without rounding.
Template Numbers(std::size_t size, std::uint32_t seed) {
  Template numbers(size);
  for (float& number : numbers) {
    seed = seed * 1664525U + 1013904223U;
    number = (static_cast<float>(seed >> 8) - 8388608.0F) / 16777216.0F;
  }
  return numbers;
}

struct Scored {
  Template a;
  Template b;
  float score;
};

TEST(MatchTemplate, IsTheCosine) {
  const Scored table[] = {{{1, 0}, {1, 0}, 1},
                          {{1, 0}, {0, 1}, 0},
                          {{1, 0}, {-1, 0}, -1},
                          {{3, 4}, {4, 3}, 0.96F},
                          {{1}, {5}, 1},
                          {{1}, {-5}, -1},
                          {{2, 0, 0}, {2, 2, 0}, static_cast<float>(std::sqrt(0.5))},
                          {{1, 1, 1, 1}, {1, 1, 1, -1}, 0.5F}};
  for (const Scored& row : table) {
    EXPECT_EQ(MatchTemplate(row.a, row.b), row.score);
    EXPECT_EQ(MatchTemplate(row.b, row.a), row.score);
  }
}

TEST(MatchTemplate, GivesPlusZeroWhereThereIsNoAngle) {
  const Template good = {1, 2, 3};
  EXPECT_EQ(Bits(MatchTemplate(good, {1, 2})), 0U);
  EXPECT_EQ(Bits(MatchTemplate({1, 2, 3, 4}, good)), 0U);
  const Template table[] = {{},
                            {0, 0, 0},
                            {-0.0F, 0, -0.0F},
                            {1, kNaN, 3},
                            {1, kInfinity, 3},
                            {1, 2, -kInfinity},
                            {kInfinity, kNaN, 0}};
  for (const Template& bad : table) {
    EXPECT_EQ(Bits(MatchTemplate(good, bad)), 0U);
    EXPECT_EQ(Bits(MatchTemplate(bad, good)), 0U);
    EXPECT_EQ(Bits(MatchTemplate(bad, bad)), 0U);
  }
}

TEST(MatchTemplate, TakesTheSmallestAndTheLargestValues) {
  for (const float a : {kTiny, 3 * kTiny, std::numeric_limits<float>::min(), 1.0F, kHuge}) {
    for (const float b : {kTiny, 1.0F, kHuge}) {
      for (const std::size_t size : {1U, 15U, 16U, 17U, 1000U}) {
        EXPECT_EQ(MatchTemplate(Template(size, a), Template(size, b)), 1.0F) << a << " " << b << " " << size;
        EXPECT_EQ(MatchTemplate(Template(size, a), Template(size, -b)), -1.0F);
      }
    }
  }
  EXPECT_EQ(MatchTemplate({3 * kTiny, 4 * kTiny}, {kHuge / 4 * 4, kHuge / 4 * 3}), 0.96F);
}

TEST(MatchTemplate, IsTheNearestFloat) {
  Chance chance(5);
  int compared = 0;
  for (std::size_t size = 1; size <= 1000; size += 1 + size / 9) {
    for (int round = 0; round < 20; ++round) {
      const Template a = Numbers(size, static_cast<std::uint32_t>(chance.Below(1U << 31U)));
      Template b = Numbers(size, static_cast<std::uint32_t>(chance.Below(1U << 31U)));
      const float share = chance.Share();
      for (std::size_t i = 0; i < size; ++i) {
        b[i] = share * b[i] + a[i];
      }
      long double ab = 0;
      long double aa = 0;
      long double bb = 0;
      for (std::size_t i = 0; i < size; ++i) {
        ab += static_cast<long double>(a[i]) * static_cast<long double>(b[i]);
        aa += static_cast<long double>(a[i]) * static_cast<long double>(a[i]);
        bb += static_cast<long double>(b[i]) * static_cast<long double>(b[i]);
      }
      const long double cosine = ab / std::sqrt(aa * bb);
      const float score = MatchTemplate(a, b);
      const auto nearest = static_cast<float>(cosine);
      // Another float only where the cosine lies in the middle, as well as one can tell.
      if (score != nearest) {
        const long double middle = (static_cast<long double>(score) + static_cast<long double>(nearest)) / 2;
        EXPECT_LT(std::fabs(cosine - middle), 1e-12L) << size;
      }
      EXPECT_EQ(Bits(MatchTemplate(b, a)), Bits(score));
      ++compared;
    }
  }
  RecordProperty("compared", compared);
}

struct Golden {
  std::size_t size;
  std::uint32_t bits;
  double products;
};

// The bits of scores must outlive compilers and processors: stored clusters rest on them.
TEST(MatchTemplate, KeepsItsBits) {
  const Golden table[] = {
      {1, 0x3F800000U, 0x1.63823373de100p-4},   {2, 0x3F7F96F1U, 0x1.aede379245480p-4},
      {3, 0x3F7999B9U, 0x1.ad973192a1880p-4},   {7, 0x3F76E056U, 0x1.afcadfc649a70p-2},
      {15, 0x3F799E3CU, 0x1.edfb008547748p-1},  {16, 0x3F7AAE02U, 0x1.308c419a3dc24p+0},
      {17, 0x3F7976ECU, 0x1.46aa441c99c64p+0},  {31, 0x3F788830U, 0x1.253aeba66a7d6p+1},
      {32, 0x3F78D24EU, 0x1.344ae16422856p+1},  {33, 0x3F78D119U, 0x1.38e35dcb6ce56p+1},
      {64, 0x3F792482U, 0x1.66cac2c69ac02p+2},  {100, 0x3F78BAACU, 0x1.17b33df5d2962p+3},
      {128, 0x3F796443U, 0x1.69bbbd5046559p+3}, {255, 0x3F788942U, 0x1.4047429618eb6p+4},
      {256, 0x3F788EE1U, 0x1.4140b7d417f65p+4}, {257, 0x3F789838U, 0x1.42e4bdcebe705p+4},
      {512, 0x3F783FEAU, 0x1.4b79a26fc07aep+5}, {1000, 0x3F7838D5U, 0x1.5106762e4b442p+6}};
  for (const Golden& row : table) {
    const Template a = Numbers(row.size, 1);
    Template b = Numbers(row.size, 2);
    for (std::size_t i = 0; i < row.size; ++i) {
      b[i] = b[i] / 4 + a[i];
    }
    EXPECT_EQ(Bits(MatchTemplate(a, b)), row.bits) << row.size;
    const KernelList list = RunnableKernels();
    for (std::size_t k = 0; k < list.count; ++k) {
      double sums[3];
      list.kernels[k]->dots(a.data(), b.data(), row.size, sums);
      EXPECT_EQ(sums[0], row.products) << row.size << " on " << static_cast<int>(list.kernels[k]->set);
      EXPECT_EQ(list.kernels[k]->dot(a.data(), b.data(), row.size), row.products);
      EXPECT_EQ(list.kernels[k]->dot(a.data(), a.data(), row.size), sums[1]);
      EXPECT_EQ(list.kernels[k]->dot(b.data(), b.data(), row.size), sums[2]);
      EXPECT_EQ(Bits(ScoreOf(sums[0], sums[1], sums[2])), row.bits);
    }
  }
}

TEST(FindFirstByScan, StopsAtTheFirstAboveTheThreshold) {
  const std::vector<Template> vectors = {{0, 1}, {3, 4}, {1, 0}, {5, 0}};
  const auto itself = [](const Template& vector) -> const Template& { return vector; };
  EXPECT_EQ(FindFirstByScan(vectors, {1, 0}, 0.91F, itself), 2U);
  EXPECT_EQ(FindFirstByScan(vectors, {4, 3}, 0.91F, itself), 1U);
  EXPECT_EQ(FindFirstByScan(vectors, {-1, 0}, 0.91F, itself), std::nullopt);
  EXPECT_EQ(FindFirstByScan(vectors, {4, 3}, 0.96F, itself), std::nullopt) << "as much is not above";
  EXPECT_EQ(FindFirstByScan(std::vector<Template>(), {1, 0}, 0.91F, itself), std::nullopt);
  EXPECT_EQ(FindFirstByScan(vectors, {0, 0}, 0, itself), std::nullopt);
  EXPECT_EQ(FindFirstByScan(vectors, {0, 0}, -0.5F, itself), 0U);
  EXPECT_EQ(FindFirstByScan(vectors, {1, 0}, kNaN, itself), std::nullopt);
}

TEST(FindFirstByScan, AsksAMatcherInOrderAndNoMoreThanNeeded) {
  const std::vector<Template> vectors = {{1}, {2}, {3}, {4}};
  std::vector<float> asked;
  const auto found = FindFirstByScan(
      vectors, {9}, 2.5F, [](const Template& vector) -> const Template& { return vector; },
      [&asked](const Template& query, const Template& vector) {
        EXPECT_EQ(query, Template{9});
        asked.push_back(vector[0]);
        return vector[0];
      });
  EXPECT_EQ(found, 2U);
  EXPECT_EQ(asked, (std::vector<float>{1, 2, 3}));
}

}  // namespace
}  // namespace Zenvora::Quillet
