#include "Clustering.h"
#include "ScarceMemory.h"
#include "Vectors.h"

#include <gtest/gtest.h>

#include <FirstFit.h>
#include <new>

namespace Zenvora::Quillet {
namespace {

using Test::Chance;
using Test::Clustering;
using Test::MakeVectors;
using Test::Shortage;
using Test::Template;
using Test::VectorKind;

TEST(FirstFit, AnswersRightlyWithoutMemory) {
  constexpr float kThreshold = 0.91F;
  const auto vectors = MakeVectors(VectorKind::Mixed, 320, 24, kThreshold, 9);
  std::vector<const Template*> coming;
  coming.reserve(vectors.size());
  for (const Template& vector : vectors) {
    coming.push_back(&vector);
  }
  int refusals = 0;
  for (long allocations = 0; allocations < 60; ++allocations) {
    FirstFitTuning tuning;
    tuning.quantisedFrom = 32;
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
