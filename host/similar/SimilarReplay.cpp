#include "SimilarReplay.h"

#include <LumidexUtil/SimilarDataManager.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <unordered_map>

namespace Zenvora::Lumidex::Host {

namespace {

/// Keeps what it is told, and begins with nothing.
class ClustersInMemory : public ISimilarDataSource {
 public:
  struct Made {
    Cluster cluster;
    std::vector<QString> photos;
  };

  std::vector<Cluster> GetClusters() override { return {}; }
  int AddCluster(const Cluster& cluster, const std::vector<QString>& photoIds) override {
    made.push_back({cluster, photoIds});
    return static_cast<int>(made.size());
  }
  void UpdateCluster(const Cluster&, const std::vector<QString>&) override {}

  std::vector<Made> made;
};

class NoTransactions : public ITransactionManager {
 public:
  std::unique_ptr<ITransaction> BeginTransaction(const std::string&) override {
    return std::make_unique<None>();
  }

 private:
  class None : public ITransaction {
   public:
    void Rollback() override {}
    void Commit() override {}
  };
};

bool HasSameBits(const std::vector<float>& left, const std::vector<float>& right) {
  return left.size() == right.size() &&
         (left.empty() || std::memcmp(left.data(), right.data(), left.size() * sizeof(float)) == 0);
}

std::string NameOf(std::int64_t cluster) {
  return "Cluster " + std::to_string(cluster);
}

}  // namespace

void SimilarReplay::Add(std::int64_t cluster, const QString& photo, std::vector<float> features) {
  items_.emplace_back(photo, std::move(features));
  clusters_.push_back(cluster);
}

std::vector<std::string> SimilarReplay::Compare(const std::vector<Cluster>& stored) const {
  const auto memory = std::make_shared<ClustersInMemory>();
  // All at once: then each cluster is handed over once, as it is in the end.
  boost::intrusive_ptr<ISimilarDataManager>(
      new SimilarDataManager(memory, std::make_shared<NoTransactions>()))
      ->AddToStorage(items_);

  std::unordered_map<QString, std::int64_t> clusterOf;
  for (std::size_t i = 0; i < items_.size(); ++i) {
    clusterOf.emplace(items_[i].first, clusters_[i]);
  }
  std::map<std::int64_t, const Cluster*> left;
  for (const Cluster& cluster : stored) {
    left.emplace(cluster.id, &cluster);
  }
  std::vector<std::string> differences;
  for (const ClustersInMemory::Made& made : memory->made) {
    const std::int64_t id = clusterOf.at(made.photos.front());
    for (const QString& photo : made.photos) {
      if (clusterOf.at(photo) != id) {
        differences.push_back("Photo " + photo.toStdString() + " is in cluster " +
                              std::to_string(clusterOf.at(photo)) + " and belongs to cluster " +
                              std::to_string(id) + ".");
      }
    }
    const auto place = left.find(id);
    if (place == left.end()) {
      differences.push_back(NameOf(id) + " should be split.");
      continue;
    }
    if (place->second->count != made.cluster.count) {
      differences.push_back(NameOf(id) + " counts " + std::to_string(place->second->count) +
                            " photos instead of " + std::to_string(made.cluster.count) + ".");
    }
    if (!HasSameBits(place->second->centre, made.cluster.centre)) {
      differences.push_back(NameOf(id) + " has another centre than its photos give.");
    }
    left.erase(place);
  }
  for (const auto& [id, cluster] : left) {
    differences.push_back(NameOf(id) + " has no photo that opens it.");
  }
  return differences;
}

}  // namespace Zenvora::Lumidex::Host
