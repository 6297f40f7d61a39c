#pragma once

#include <LumidexUtil/Export.h>
#include <LumidexUtil/ISimilarDataManager.h>

#include <zenvora/core/RefCountImpl.h>
#include <zenvora/lumidex/ISimilarDataSource.h>
#include <zenvora/lumidex/ITransactionManager.h>

#include <memory>

namespace Zenvora::Lumidex {

/// Groups photos by first fit: a photo joins the first cluster whose centre `MatchTemplate` scores above 0.91
/// against it, in the order of the source and then of making, even if a later one scored higher; else it
/// opens a cluster. A centre is the running mean of the members' vectors. It is meant for photos that arrive
/// over years, a few at a time: nothing is ever sorted anew, and so the order of arrival shapes the groups.
///
/// All clusters are in memory, read once, when the manager is made. Nobody else may change them in the source
/// meanwhile. Thread-safety: references are counted from any thread; everything else is for one thread at a
/// time, and runs on the caller's.
class LUMIDEXUTIL_EXPORT SimilarDataManager : public virtual IRefCountable,
                                              public virtual ISimilarDataManager {
 public:
  /// Shares both, neither null, and reads all clusters. Throws what the source throws.
  SimilarDataManager(const std::shared_ptr<ISimilarDataSource>& source,
                     const std::shared_ptr<ITransactionManager>& transactions);
  /// For a manager that is held by its class. One that references were taken to ends with the last `Release`.
  ~SimilarDataManager() override;

  unsigned int AddRef() const override;
  unsigned int GetRefCount() const override;
  unsigned int Release() const override;

  /// Puts the items into clusters, one after the other, then stores every cluster that was touched, first
  /// touched first, in one transaction named "Update similar photo data"; an empty batch has one as well. A
  /// vector that scores nothing (empty, of another length, with a NaN) makes a cluster of its own.
  ///
  /// Blocks: for the matching (some microseconds an item with tens of thousands of clusters), then for the
  /// source. Throws what the source or the transaction throws. The store is as before then, but the manager
  /// is not: what it matched stays in memory. Discard it and make a new one.
  void AddToStorage(const std::vector<std::pair<QString, std::vector<float>>>& items) override;

 private:
  class LUMIDEXUTIL_NO_EXPORT Impl;

  void UpdateCash();

  RefCountImpl refCount_;
  std::unique_ptr<Impl> impl_;
};

}  // namespace Zenvora::Lumidex
