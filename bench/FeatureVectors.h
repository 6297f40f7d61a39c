#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Zenvora::Bench {

using Template = std::vector<float>;

/// Feature vectors as a folder of photos gives them: 30 % of the pictures have directions of chance, 70 %
/// look like histograms (all values positive, cosine of about 0.7 between any two). 45 % of the photos are
/// alone, the others come in bursts of 2 to 8, which lie at cosines of 0.93 to 0.99 from their first. The
/// same for the same seed.
class FeatureVectors {
 public:
  static constexpr std::size_t kSize = 256;

  explicit FeatureVectors(std::uint64_t seed) : state_(seed) {}

  /// The next `count` photos.
  std::vector<Template> Next(std::size_t count);
  /// `count` vectors with a cosine of about 0.88 between any two, which no bound of few coordinates tells
  /// apart from a match.
  std::vector<Template> NextParallel(std::size_t count);

 private:
  double Share();
  double Normal();
  Template Picture();
  Template Neighbour(const Template& picture, double cosine);

  std::uint64_t state_;
  std::size_t left_ = 0;  ///< of the burst
  Template first_;
  Template axis_;
};

}  // namespace Zenvora::Bench
