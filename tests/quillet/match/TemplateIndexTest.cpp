#include "Clustering.h"
#include "Vectors.h"

#include <zenvora/quillet/match/TemplateIndex.h>

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <utility>

namespace Zenvora::Quillet {
namespace {

using Test::Clustering;
using Test::MakeVectors;
using Test::Template;
using Test::VectorKind;

constexpr float kThreshold = 0.91F;

std::vector<const Template*> PointersTo(const std::vector<Template>& vectors) {
  std::vector<const Template*> pointers;
  pointers.reserve(vectors.size());
  for (const Template& vector : vectors) {
    pointers.push_back(&vector);
  }
  return pointers;
}

TEST(TemplateIndex, IsEmptyAtFirst) {
  TemplateIndex index(kThreshold);
  EXPECT_EQ(index.Size(), 0U);
  EXPECT_EQ(index.Threshold(), kThreshold);
  EXPECT_EQ(index.FindFirst({1, 2}), std::nullopt);
  EXPECT_EQ(index.FindFirst({}), std::nullopt);
}

TEST(TemplateIndex, FindsTheFirstNotTheBest) {
  const std::vector<Template> vectors = {{0, 1}, {1, 0.3F}, {1, 0}};
  TemplateIndex index(kThreshold);
  for (const Template& vector : vectors) {
    index.Append(vector);
  }
  EXPECT_EQ(index.FindFirst({1, 0}), 1U);
  EXPECT_EQ(index.FindFirst({0, 2}), 0U);
  EXPECT_EQ(index.FindFirst({-1, 0}), std::nullopt);
}

TEST(TemplateIndex, DoesNotMatchAtTheThreshold) {
  const Template vector = {3, 4};
  TemplateIndex index(MatchTemplate({4, 3}, vector));
  index.Append(vector);
  EXPECT_EQ(index.FindFirst({4, 3}), std::nullopt);
  TemplateIndex lower(std::nextafter(index.Threshold(), 0.0F));
  lower.Append(vector);
  EXPECT_EQ(lower.FindFirst({4, 3}), 0U);
}

TEST(TemplateIndex, SeesWhatIsSaidToHaveChanged) {
  Template first = {1, 0};
  const Template second = {0, 1};
  TemplateIndex index(kThreshold);
  index.Append(first);
  index.Append(second);
  first = {0, 1};
  index.Updated(0);
  EXPECT_EQ(index.FindFirst({0, 1}), 0U);
  const Template other = {5, 0};
  index.Replace(0, other);
  EXPECT_EQ(index.FindFirst({0, 1}), 1U);
  EXPECT_EQ(index.FindFirst({1, 0}), 0U);
  EXPECT_EQ(index.Size(), 2U);
}

/// Clusters `vectors` through the exported interface, at the sizes at which quantised rows come in by
/// themselves.
void ExpectPlainAnswers(const std::vector<Template>& vectors, std::size_t opened, std::size_t batch) {
  Clustering clusters;
  TemplateIndex index(kThreshold);
  const auto open = [&](const Template& vector) {
    clusters.Open(vector);
    index.Append(clusters.Centre(clusters.Size() - 1));
  };
  for (std::size_t i = 0; i < opened; ++i) {
    open(vectors[i]);
  }
  const auto pointers = PointersTo(vectors);
  int wrong = 0;
  for (std::size_t begin = opened; begin < vectors.size(); begin += batch) {
    const std::size_t end = std::min(vectors.size(), begin + batch);
    const auto announced = index.Expect({pointers.data() + begin, pointers.data() + end});
    for (std::size_t i = begin; i < end; ++i) {
      const auto expected = clusters.Scan(vectors[i], kThreshold);
      wrong += index.FindFirst(vectors[i]) == expected ? 0 : 1;
      if (expected) {
        clusters.Join(*expected, vectors[i]);
        index.Updated(*expected);
      } else {
        open(vectors[i]);
      }
    }
  }
  EXPECT_EQ(wrong, 0);
}

TEST(TemplateIndex, AnswersLikeThePlainScanWhereQuantisedRowsServe) {
  ExpectPlainAnswers(MakeVectors(VectorKind::Mixed, 2600, 128, kThreshold, 1), 1500, 500);
  ExpectPlainAnswers(MakeVectors(VectorKind::Edge, 2400, 256, kThreshold, 2), 1200, 300);
  ExpectPlainAnswers(MakeVectors(VectorKind::Broken, 2300, 100, kThreshold, 3), 1500, 1);
}

TEST(TemplateIndex, TakesAnnouncementsThatEndInAnyOrder) {
  const auto vectors = MakeVectors(VectorKind::Random, 1100, 96, kThreshold, 6);
  TemplateIndex index(kThreshold);
  for (const Template& vector : vectors) {
    index.Append(vector);
  }
  std::optional<TemplateIndex::Announcement> announced;
  announced.emplace(index.Expect(PointersTo(vectors)));
  EXPECT_EQ(index.FindFirst(vectors[0]), 0U);
  announced.reset();
  {
    const std::vector<Template> gone = {vectors[3], vectors[4]};
    auto first = index.Expect(PointersTo(gone));
    const TemplateIndex::Announcement moved = std::move(first);
    EXPECT_EQ(index.FindFirst(gone[0]), 3U);
  }
  // Nothing of what is gone is looked at any more.
  for (std::size_t i = 0; i < vectors.size(); i += 50) {
    EXPECT_EQ(index.FindFirst(vectors[i]), i);
  }
}

TEST(TemplateIndex, TellsWhatItHolds) {
  const auto vectors = MakeVectors(VectorKind::Random, 1000, 128, kThreshold, 6);
  TemplateIndex index(kThreshold);
  const std::size_t empty = index.MemoryBytes();
  for (const Template& vector : vectors) {
    index.Append(vector);
  }
  const std::size_t appended = index.MemoryBytes();
  EXPECT_GE(appended, empty + 1000 * sizeof(void*));
  EXPECT_LT(appended, empty + 1000 * 40);
  EXPECT_EQ(index.FindFirst(vectors[7]), 7U);
  EXPECT_GT(index.MemoryBytes(), appended + 1000 * 128 * 2) << "with the quantised rows";
}

}  // namespace
}  // namespace Zenvora::Quillet
