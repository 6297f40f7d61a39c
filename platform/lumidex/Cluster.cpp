#include <zenvora/lumidex/Cluster.h>

namespace Zenvora::Lumidex {

Cluster::Cluster(const std::vector<float>& clusterCentre, int clusterCount)
    : centre(clusterCentre), count(clusterCount) {}

}  // namespace Zenvora::Lumidex
