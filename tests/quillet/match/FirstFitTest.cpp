#include "Clustering.h"
#include "Vectors.h"

#include <gtest/gtest.h>

#include <FirstFit.h>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <sstream>
#include <string>
#include <tuple>

namespace Zenvora::Quillet {
namespace {

using Test::Chance;
using Test::Clustering;
using Test::MakeVectors;
using Test::Template;
using Test::VectorKind;

constexpr float kThreshold = 0.91F;

/// How many times as long to try as usual.
int Patience() {
  const char* const value = std::getenv("LUMIDEX_MATCHING_ROUNDS");
  return value == nullptr ? 1 : std::max(1, std::atoi(value));
}

std::string NameOf(const MatchKernel& kernel) {
  constexpr const char* kNames[] = {"Plain", "Sse2", "Avx2", "Avx512", "Avx512Vnni"};
  return kNames[static_cast<int>(kernel.set)];
}

std::vector<const MatchKernel*> Kernels() {
  const KernelList list = RunnableKernels();
  return {list.kernels, list.kernels + list.count};
}

/// Quantised rows for as few and as short vectors as there may be.
FirstFitTuning Eager(const MatchKernel& kernel) {
  FirstFitTuning tuning;
  tuning.kernel = &kernel;
  tuning.quantisedFrom = 32;
  tuning.leastSize = 1;
  return tuning;
}

struct Outcome {
  int asked = 0;
  int wrong = 0;
  FirstFitStatistics statistics;
};

/// Clusters `vectors` with the index, in batches that are announced or not, and looks at each answer.
class Trial {
 public:
  Trial(const std::vector<Template>& vectors, float threshold, const FirstFitTuning& tuning, unsigned seed)
      : vectors_(vectors), threshold_(threshold), index_(threshold, tuning), chance_(seed) {}

  Outcome Run(std::size_t batch, std::size_t prepared = 0) {
    std::size_t at = 0;
    for (; at < prepared && at < vectors_.size(); ++at) {
      Open(vectors_[at]);
    }
    while (at < vectors_.size()) {
      const std::size_t end = std::min(vectors_.size(), at + batch);
      std::vector<const Template*> coming;
      for (std::size_t i = at; i < end; ++i) {
        coming.push_back(&vectors_[i]);
      }
      const std::uint64_t announcement = batch > 1 ? index_.Expect(coming) : 0;
      for (; at < end; ++at) {
        Surprise();
        // A copy is as good as what was announced.
        const Template copy = vectors_[at];
        Add(chance_.Below(4) == 0 ? copy : vectors_[at]);
      }
      index_.Forget(announcement);
    }
    outcome_.statistics = index_.Statistics();
    return outcome_;
  }

 private:
  void Open(const Template& vector) {
    clusters_.Open(vector);
    index_.Append(clusters_.Centre(clusters_.Size() - 1));
  }

  std::optional<std::size_t> Ask(const Template& vector) {
    const auto expected = clusters_.Scan(vector, threshold_);
    ++outcome_.asked;
    outcome_.wrong += index_.FindFirst(vector) == expected ? 0 : 1;
    return expected;
  }

  void Add(const Template& vector) {
    if (const auto position = Ask(vector)) {
      clusters_.Join(*position, vector);
      index_.Updated(*position);
    } else {
      Open(vector);
    }
  }

  /// Now and then something that was not announced.
  void Surprise() {
    if (clusters_.Size() == 0 || chance_.Below(16) != 0) {
      return;
    }
    const std::size_t position = chance_.Below(clusters_.Size());
    const Template& vector = vectors_[chance_.Below(vectors_.size())];
    switch (chance_.Below(3)) {
      case 0:
        Ask(vector);
        break;
      case 1:
        clusters_.Exchange(position, vector);
        index_.Updated(position);
        break;
      default:
        // Another object in its place.
        clusters_.Exchange(position, vector);
        index_.Replace(position, clusters_.Centre(position));
    }
  }

  const std::vector<Template>& vectors_;
  float threshold_;
  Clustering clusters_;
  FirstFit index_;
  Chance chance_;
  Outcome outcome_;
};

class FirstFitWith : public testing::TestWithParam<std::tuple<const MatchKernel*, VectorKind>> {
 protected:
  const MatchKernel& Kernel() const { return *std::get<0>(GetParam()); }
  VectorKind Kind() const { return std::get<1>(GetParam()); }
};

TEST_P(FirstFitWith, AnswersLikeThePlainScan) {
  constexpr std::size_t kSizes[] = {1, 2, 3, 5, 8, 16, 31, 33, 64, 65, 100, 127, 200, 257, 1000};
  constexpr std::size_t kBatches[] = {1, 2, 7, 40, 96, 150, 1000};
  const bool thorough = Patience() > 1;
#ifdef __SANITIZE_ADDRESS__
  // Learning long ones takes its time there; once is enough.
  const std::size_t longest = thorough || Kernel().set == BestKernel().set ? 1000 : 127;
#else
  const std::size_t longest = 1000;
#endif
  long asked = 0;
  long trials = 0;
  long compared = 0;
  for (int round = 0; round < Patience(); ++round) {
    for (std::size_t s = 0; s < std::size(kSizes); ++s) {
      const std::size_t size =
          round == 0 ? kSizes[s] : 1 + (kSizes[s] * 7919 + static_cast<std::size_t>(round) * 37) % 1000;
      if (size > longest) {
        continue;
      }
      const auto seed =
          static_cast<unsigned>(1000 * round + 31 * static_cast<int>(s) + static_cast<int>(Kind()));
      const std::size_t count = size > 300 && !thorough ? 110 : 230;
      const auto vectors = MakeVectors(Kind(), count, size, kThreshold, seed);
      FirstFitTuning tuning = Eager(Kernel());
      tuning.block = seed % 3 == 0 ? 5 : 96;
      tuning.quantisedFrom = size <= 100 ? 20 : count / 4;
      const std::size_t prepared = Kind() == VectorKind::Edge || seed % 4 == 0 ? count / 2 : 0;
      const Outcome outcome =
          Trial(vectors, kThreshold, tuning, seed)
              .Run(kBatches[(s + static_cast<std::size_t>(round)) % std::size(kBatches)], prepared);
      EXPECT_EQ(outcome.wrong, 0) << "size " << size << ", seed " << seed;
      asked += outcome.asked;
      compared += static_cast<long>(outcome.statistics.compared);
      ++trials;
    }
  }
  std::cout << trials << " trials, " << asked << " questions, " << compared << " pairs compared exactly\n";
}

INSTANTIATE_TEST_SUITE_P(Kernels, FirstFitWith,
                         testing::Combine(testing::ValuesIn(Kernels()),
                                          testing::ValuesIn(Test::kVectorKinds)),
                         [](const auto& row) {
                           std::ostringstream name;
                           name << NameOf(*std::get<0>(row.param)) << '_' << std::get<1>(row.param);
                           return name.str();
                         });

class FirstFitOn : public testing::TestWithParam<const MatchKernel*> {
 protected:
  const MatchKernel& Kernel() const { return *GetParam(); }
};

INSTANTIATE_TEST_SUITE_P(Kernels, FirstFitOn, testing::ValuesIn(Kernels()),
                         [](const auto& row) { return NameOf(*row.param); });

// A promise that cannot be broken is not tested: without its margin, the bound must be found out.
TEST_P(FirstFitOn, IsWrongWithoutItsMargin) {
  int wrong = 0;
  int wrongWithMargin = 0;
  for (const std::size_t size : {20U, 64U, 256U}) {
    const auto vectors = MakeVectors(VectorKind::Edge, 400, size, kThreshold, static_cast<unsigned>(size));
    FirstFitTuning tuning = Eager(Kernel());
    tuning.quantisedFrom = 200;
    wrongWithMargin += Trial(vectors, kThreshold, tuning, 1).Run(96, 200).wrong;
    tuning.marginScale = 0;
    const int without = Trial(vectors, kThreshold, tuning, 1).Run(96, 200).wrong;
    EXPECT_GT(without, 10) << size;
    wrong += without;
  }
  EXPECT_EQ(wrongWithMargin, 0);
  std::cout << wrong << " answers are wrong without the margin, none with it\n";
}

TEST_P(FirstFitOn, NeverNeedsTheExactScoreOfWhatIsFarOff) {
  const auto vectors = MakeVectors(VectorKind::Mixed, 900, 128, kThreshold, 3);
  FirstFitTuning tuning = Eager(Kernel());
  tuning.quantisedFrom = 100;
  const Outcome outcome = Trial(vectors, kThreshold, tuning, 3).Run(900);
  EXPECT_EQ(outcome.wrong, 0);
  EXPECT_GT(outcome.statistics.blocks, 4U);
  EXPECT_GT(outcome.statistics.learnt, 1U);
  // Most of what was compared are those that came or changed inside a block.
  EXPECT_LT(outcome.statistics.compared, outcome.statistics.sifted / 4);
}

TEST_P(FirstFitOn, AnswersWithAnyThreshold) {
  for (const float threshold :
       {-1.0F, -0.5F, -0.0F, 0.0F, 1e-6F, 0.3F, 0.91F, 0.9999F, 1.0F, 2.0F,
        std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
    for (const VectorKind kind : {VectorKind::Mixed, VectorKind::Broken, VectorKind::Copies}) {
      const auto vectors = MakeVectors(kind, 150, 40, kThreshold, 8);
      EXPECT_EQ(Trial(vectors, threshold, Eager(Kernel()), 8).Run(50).wrong, 0) << threshold << " " << kind;
    }
  }
}

TEST(FirstFit, ContinuesBehindAMatchThatMovedAway) {
  // Each of a block matches the same centre until the first of them is told that it changed.
  FirstFitTuning tuning = Eager(BestKernel());
  tuning.quantisedFrom = 40;
  auto centres = MakeVectors(VectorKind::Random, 60, 64, kThreshold, 1);
  centres[50] = centres[10];
  const std::vector<Template> queries(5, centres[10]);
  std::vector<const Template*> coming;
  coming.reserve(queries.size());
  for (const Template& query : queries) {
    coming.push_back(&query);
  }
  FirstFit index(kThreshold, tuning);
  for (const Template& centre : centres) {
    index.Append(centre);
  }
  index.Expect(coming);
  EXPECT_EQ(index.FindFirst(queries[0]), 10U);
  centres[10] = centres[11];
  index.Updated(10);
  EXPECT_EQ(index.FindFirst(queries[1]), 50U);
  EXPECT_EQ(index.Statistics().repaired, 1U);
  centres[50] = centres[11];
  index.Updated(50);
  EXPECT_EQ(index.FindFirst(queries[2]), std::nullopt);
  centres[3] = queries[0];
  index.Updated(3);
  EXPECT_EQ(index.FindFirst(queries[3]), 3U);
  const Template late = queries[0];
  index.Append(late);
  centres[3] = centres[11];
  index.Updated(3);
  EXPECT_EQ(index.FindFirst(queries[4]), 60U);
  EXPECT_EQ(index.Statistics().blocks, 1U);
}

TEST(FirstFit, KeepsItsPlaceWhenAnnouncedVectorsAreLeftOut) {
  FirstFitTuning tuning = Eager(BestKernel());
  tuning.block = 10;
  const auto centres = MakeVectors(VectorKind::Random, 100, 32, kThreshold, 4);
  FirstFit index(kThreshold, tuning);
  std::vector<const Template*> coming;
  for (const Template& centre : centres) {
    index.Append(centre);
    coming.push_back(&centre);
  }
  index.Expect(coming);
  for (std::size_t i = 0; i < centres.size(); i += 3) {
    EXPECT_EQ(index.FindFirst(centres[i]), i);
  }
  EXPECT_LE(index.Statistics().blocks, 11U);
  // In the wrong order, and what is no longer announced.
  EXPECT_EQ(index.FindFirst(centres[7]), 7U);
  index.Expect({});
  EXPECT_EQ(index.FindFirst(centres[8]), 8U);
}

TEST(FirstFit, ForgetsOnlyTheLastAnnouncement) {
  FirstFitTuning tuning = Eager(BestKernel());
  const auto centres = MakeVectors(VectorKind::Random, 100, 32, kThreshold, 4);
  FirstFit index(kThreshold, tuning);
  for (const Template& centre : centres) {
    index.Append(centre);
  }
  const std::uint64_t first = index.Expect({&centres[0], &centres[1]});
  const std::uint64_t second = index.Expect({&centres[2], &centres[3]});
  index.Forget(first);
  EXPECT_EQ(index.FindFirst(centres[2]), 2U);
  EXPECT_EQ(index.Statistics().blocks, 1U);
  index.Forget(second);
  EXPECT_EQ(index.FindFirst(centres[3]), 3U);
  EXPECT_EQ(index.Statistics().blocks, 1U);
}

TEST(FirstFit, LearnsTheLengthThatMostVectorsHave) {
  FirstFitTuning tuning = Eager(BestKernel());
  const auto odd = MakeVectors(VectorKind::Random, 40, 50, kThreshold, 1);
  const auto usual = MakeVectors(VectorKind::Random, 400, 60, kThreshold, 2);
  FirstFit index(kThreshold, tuning);
  for (std::size_t i = 0; i < usual.size(); ++i) {
    index.Append(usual[i]);
    if (i < odd.size()) {
      index.Append(odd[i]);
    }
  }
  EXPECT_EQ(index.FindFirst(usual[5]), 10U);
  EXPECT_EQ(index.FindFirst(odd[5]), 11U);
  EXPECT_EQ(index.FindFirst(usual[399]), 439U);
  EXPECT_EQ(index.FindFirst(Template(61, 1.0F)), std::nullopt);
  EXPECT_EQ(index.FindFirst({}), std::nullopt);
  EXPECT_GT(index.Statistics().sifted, 0U);
}

TEST(FirstFit, HasNoQuantisedRowsWhereNothingCanBeLearnt) {
  FirstFitTuning tuning = Eager(BestKernel());
  const std::vector<Template> zeros(300, Template(64, 0.0F));
  FirstFit index(kThreshold, tuning);
  for (const Template& zero : zeros) {
    index.Append(zero);
  }
  const Template some(64, 1.0F);
  EXPECT_EQ(index.FindFirst(some), std::nullopt);
  index.Append(some);
  EXPECT_EQ(index.FindFirst(some), 300U);
  EXPECT_EQ(index.Statistics().learnt, 0U);
}

TEST(FirstFit, TakesNoMoreMemoryThanPromised) {
  for (const std::size_t size : {96U, 128U, 256U, 700U}) {
    constexpr std::size_t kCount = 6000;
    Chance chance(1);
    std::vector<Template> vectors(kCount, Template(size));
    for (Template& vector : vectors) {
      std::generate(vector.begin(), vector.end(), [&chance] { return chance.Share(); });
    }
    FirstFit index(kThreshold);
    for (const Template& vector : vectors) {
      index.Append(vector);
    }
    index.FindFirst(Template(size, 1.0F));
    EXPECT_EQ(index.Statistics().learnt, 1U);
    const double bytes = 4.0 * static_cast<double>(size);
    // And what does not grow with the vectors: the basis, and room to work in.
    const double fixed =
        bytes * static_cast<double>(std::min<std::size_t>((size + 63) / 64 * 64, 512)) + 400e3;
    EXPECT_LT(static_cast<double>(index.MemoryBytes()), 0.612 * bytes * kCount + fixed) << size;
  }
}

}  // namespace
}  // namespace Zenvora::Quillet
