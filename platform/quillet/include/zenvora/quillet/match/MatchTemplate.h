#pragma once

#include <zenvora/quillet/Export.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace Zenvora::Quillet {

/// Cosine similarity of two feature vectors, from -1 to 1; higher is more similar.
///
/// The same two vectors give the same bits on every processor and from every build, in either order: products
/// and sums are made in double precision, in one fixed order, and the quotient is rounded to `float` once. So
/// the score is the nearest `float` to the true cosine, save where that lies within 1e-12 of the middle
/// between two. No finite values are too large or too small: squares of floats neither overflow nor vanish in
/// a double.
///
/// Returns +0, which matches under no threshold from 0 up, when the vectors are empty, differ in length, or
/// either is all zeros or holds a NaN or an infinity. Assumes the default floating-point environment
/// (rounding to nearest, denormals kept). Throws nothing, keeps no state: any thread may call it.
ZENVORA_QUILLET_EXPORT float MatchTemplate(const std::vector<float>& a, const std::vector<float>& b);

/// The plain scan: position of the first of `clusters` whose vector, `vectorOf(cluster)`, scores above
/// `threshold` against `query`. `match` is called as `match(query, vector)`, in order, and not again after
/// the first match. What `TemplateIndex` answers is defined by it.
template <typename Clusters, typename VectorOf, typename Match>
std::optional<std::size_t> FindFirstByScan(const Clusters& clusters, const std::vector<float>& query,
                                           float threshold, VectorOf&& vectorOf, Match&& match) {
  std::size_t position = 0;
  for (const auto& cluster : clusters) {
    if (match(query, vectorOf(cluster)) > threshold) {
      return position;
    }
    ++position;
  }
  return std::nullopt;
}

/// The same with `MatchTemplate`.
template <typename Clusters, typename VectorOf>
std::optional<std::size_t> FindFirstByScan(const Clusters& clusters, const std::vector<float>& query,
                                           float threshold, VectorOf&& vectorOf) {
  return FindFirstByScan(clusters, query, threshold, vectorOf, MatchTemplate);
}

}  // namespace Zenvora::Quillet
