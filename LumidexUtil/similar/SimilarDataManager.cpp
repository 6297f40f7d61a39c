#include "RunningMean.h"

#include <LumidexUtil/SimilarDataManager.h>

#include <zenvora/quillet/match/TemplateIndex.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>

namespace Zenvora::Lumidex {

namespace {

using Item = std::pair<QString, std::vector<float>>;

constexpr float SAME_PICTURE_SCORE = 0.91F;
const char* const TRANSACTION_NAME = "Update similar photo data";

/// What is to be written of a cluster.
struct Pending {
  enum class Kind : std::int32_t { Created = 0, Existing = 1 };
  std::size_t position;
  Kind kind;
  std::vector<QString> ids;
};

/// The clusters that a batch touches, first touched first.
class PendingClusters {
 public:
  void Add(std::size_t position, Pending::Kind kindIfNew, const QString& id) {
    const auto [place, isNew] = places_.try_emplace(position, pending_.size());
    if (isNew) {
      pending_.push_back({position, kindIfNew, {}});
    }
    pending_[place->second].ids.push_back(id);
  }
  const std::vector<Pending>& InOrder() const { return pending_; }

 private:
  std::vector<Pending> pending_;
  std::unordered_map<std::size_t, std::size_t> places_;
};

}  // namespace

ISimilarDataManager::~ISimilarDataManager() = default;

class SimilarDataManager::Impl {
 public:
  Impl(const std::shared_ptr<ISimilarDataSource>& source,
       const std::shared_ptr<ITransactionManager>& transactions)
      : source_(source), transactions_(transactions) {}

  void Fill();
  /// Returns what is to be written.
  PendingClusters Match(const std::vector<Item>& items);
  void Write(const PendingClusters& pending);

 private:
  void Append(std::unique_ptr<Cluster> cluster);

  /// Each for itself: the index refers to their centres.
  std::vector<std::unique_ptr<Cluster>> cache_;
  std::shared_ptr<ISimilarDataSource> source_;
  std::shared_ptr<ITransactionManager> transactions_;
  /// Of the centres, at the positions of the cache.
  Quillet::TemplateIndex index_{SAME_PICTURE_SCORE};
};

void SimilarDataManager::Impl::Fill() {
  const std::vector<Cluster> clusters = source_->GetClusters();
  if (clusters.size() > cache_.capacity()) {
    cache_.reserve(clusters.size());
  }
  for (const Cluster& cluster : clusters) {
    Append(std::make_unique<Cluster>(cluster));
  }
}

void SimilarDataManager::Impl::Append(std::unique_ptr<Cluster> cluster) {
  cache_.push_back(std::move(cluster));
  try {
    index_.Append(cache_.back()->centre);
  } catch (...) {
    // The positions of both stay the same.
    cache_.pop_back();
    throw;
  }
}

PendingClusters SimilarDataManager::Impl::Match(const std::vector<Item>& items) {
  PendingClusters pending;
  std::vector<const std::vector<float>*> coming;
  coming.reserve(items.size());
  for (const Item& item : items) {
    coming.push_back(&item.second);
  }
  const auto announcement = index_.Expect(std::move(coming));
  for (const auto& [id, features] : items) {
    if (const auto found = index_.FindFirst(features)) {
      Cluster& cluster = *cache_[*found];
      AddToMean(cluster.centre, cluster.count, features);
      index_.Updated(*found);
      pending.Add(*found, Pending::Kind::Existing, id);
    } else {
      Append(std::make_unique<Cluster>(features, 1));
      pending.Add(cache_.size() - 1, Pending::Kind::Created, id);
    }
  }
  return pending;
}

void SimilarDataManager::Impl::Write(const PendingClusters& pending) {
  const std::string name = TRANSACTION_NAME;
  const std::unique_ptr<ITransaction> transaction = transactions_->BeginTransaction(name);
  for (const Pending& entry : pending.InOrder()) {
    Cluster& cluster = *cache_[entry.position];
    if (entry.kind == Pending::Kind::Existing) {
      source_->UpdateCluster(cluster, entry.ids);
    } else {
      cluster.id = std::int64_t{source_->AddCluster(cluster, entry.ids)};
    }
  }
  transaction->Commit();
}

SimilarDataManager::SimilarDataManager(const std::shared_ptr<ISimilarDataSource>& source,
                                       const std::shared_ptr<ITransactionManager>& transactions)
    : impl_(std::make_unique<Impl>(source, transactions)) {
  UpdateCash();
}

SimilarDataManager::~SimilarDataManager() = default;

unsigned int SimilarDataManager::AddRef() const {
  return refCount_.AddRefImpl();
}

unsigned int SimilarDataManager::GetRefCount() const {
  return refCount_.GetRefCountImpl();
}

unsigned int SimilarDataManager::Release() const {
  const unsigned int left = refCount_.ReleaseImpl();
  if (left == 0) {
    delete this;
  }
  return left;
}

void SimilarDataManager::UpdateCash() {
  impl_->Fill();
}

void SimilarDataManager::AddToStorage(const std::vector<Item>& items) {
  impl_->Write(impl_->Match(items));
}

}  // namespace Zenvora::Lumidex
