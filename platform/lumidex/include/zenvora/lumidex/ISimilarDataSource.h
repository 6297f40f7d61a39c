#pragma once

#include <zenvora/lumidex/Cluster.h>
#include <zenvora/lumidex/Export.h>

#include <QString>

#include <vector>

namespace Zenvora::Lumidex {

/// Where clusters of similar photos are kept.
///
/// An object serves one thread at a time. All operations may block on the disk and may throw what derives
/// from `Exception`. What is written within a transaction of the same owner's `ITransactionManager` stands
/// when that is committed. The order of the virtual operations is part of the binary interface: the
/// destructor, then as declared.
class ZENVORA_LUMIDEX_EXPORT ISimilarDataSource {
 public:
  // Declared first: slots follow the order of declaration.
  virtual ~ISimilarDataSource();

  /// All clusters, in the order in which photos are compared with them: the same at every call, new ones
  /// last.
  virtual std::vector<Cluster> GetClusters() = 0;
  /// Stores a new cluster and its members. `cluster.id` is not read. Returns the id that it got.
  virtual int AddCluster(const Cluster& cluster, const std::vector<QString>& photoIds) = 0;
  /// Stores the centre and the count of the cluster with `cluster.id` and adds members to those it has.
  virtual void UpdateCluster(const Cluster& cluster, const std::vector<QString>& photoIds) = 0;

 protected:
  ISimilarDataSource() = default;
  ISimilarDataSource(const ISimilarDataSource&) = default;
  ISimilarDataSource& operator=(const ISimilarDataSource&) = default;
};

}  // namespace Zenvora::Lumidex
