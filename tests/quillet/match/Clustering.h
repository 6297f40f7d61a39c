#pragma once

#include "Vectors.h"

#include <zenvora/quillet/match/MatchTemplate.h>

#include <FirstFit.h>
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <optional>
#include <vector>

namespace Zenvora::Test {

/// What owns an index does: vectors go to the first cluster that they match, whose centre becomes the mean,
/// or to a new one.
class Clustering {
 public:
  struct Cluster {
    Template centre;
    int count;
  };

  std::size_t Size() const { return clusters_.size(); }
  const Template& Centre(std::size_t position) const { return clusters_[position]->centre; }

  std::optional<std::size_t> Scan(const Template& vector, float threshold) const {
    return Quillet::FindFirstByScan(clusters_, vector, threshold,
                                    [](const auto& cluster) -> const Template& { return cluster->centre; });
  }

  void Open(const Template& vector) { clusters_.push_back(std::make_unique<Cluster>(Cluster{vector, 1})); }

  void Join(std::size_t position, const Template& vector) {
    Cluster& cluster = *clusters_[position];
    // What is shorter than the centre would be read past its end.
    const std::size_t size = std::min(vector.size(), cluster.centre.size());
    const auto before = static_cast<float>(cluster.count);
    const auto after = static_cast<float>(++cluster.count);
    for (std::size_t i = 0; i < size; ++i) {
      cluster.centre[i] = (cluster.centre[i] * before + vector[i]) / after;
    }
  }

  void Exchange(std::size_t position, const Template& vector) { clusters_[position]->centre = vector; }

 private:
  std::vector<std::unique_ptr<Cluster>> clusters_;
};

}  // namespace Zenvora::Test
