#pragma once

#include <zenvora/lumidex/Cluster.h>

#include <QHash>
#include <QString>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Matches photos again, in memory, and says where that leads elsewhere than to the clusters that are stored.
class SimilarReplay {
 public:
  /// The next photo in the order of arrival, and in which cluster it is.
  void Add(std::int64_t cluster, const QString& photo, std::vector<float> features);

  /// A sentence for each difference.
  std::vector<std::string> Compare(const std::vector<Cluster>& stored) const;

 private:
  std::vector<std::pair<QString, std::vector<float>>> items_;
  std::vector<std::int64_t> clusters_;
};

}  // namespace Zenvora::Lumidex::Host
