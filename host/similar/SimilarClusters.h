#pragma once

#include "SimilarStore.h"

#include <LumidexUtil/ISimilarDataManager.h>
#include <host/similar/SimilarPhotos.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

namespace Zenvora::Lumidex::Host {

/// Puts the photos of a catalogue into the clusters of one analyser. Throws and blocks as `SimilarPhotos`
/// does, whose functions of these names say more.
class SimilarClusters {
 public:
  /// The database must outlive it. `analyser`: its number in the catalogue.
  SimilarClusters(const CatalogueDatabase& database, qlonglong analyser);
  ~SimilarClusters();
  SimilarClusters(const SimilarClusters&) = delete;
  SimilarClusters& operator=(const SimilarClusters&) = delete;

  std::size_t Add(const std::atomic<bool>& cancelled, const SimilarPhotos::Progress& progress);
  std::size_t CountPhotos() const;
  /// To be called within a transaction, and `Forget` once that is committed.
  void Delete() const;
  /// Reads the clusters anew before photos are matched again.
  void Forget() { manager_.reset(); }
  std::vector<std::string> Check() const;

 private:
  using Item = std::pair<QString, std::vector<float>>;

  std::size_t AddBatch(const std::vector<QString>& ids);
  std::optional<std::size_t> TryBatch(const std::vector<QString>& ids);
  std::vector<Item> Waiting(const std::vector<QString>& ids) const;

  const CatalogueDatabase& database_;
  const qlonglong analyser_;
  const std::shared_ptr<CatalogueTransactions> transactions_;
  const std::shared_ptr<SimilarStore> store_;
  /// Made when it is needed; none after a failure, for it then knows what the store does not, and none when
  /// others have written, for the store then knows what it does not.
  boost::intrusive_ptr<ISimilarDataManager> manager_;
  /// Of the others, when the manager read the clusters.
  qlonglong state_ = 0;
};

}  // namespace Zenvora::Lumidex::Host
