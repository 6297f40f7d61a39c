#pragma once

#include <zenvora/lumidex/ISimilarDataSource.h>
#include <zenvora/lumidex/ITransactionManager.h>

#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Zenvora::Test {

/// What clusters were stored, in their order, and all that happened in one list.
struct SimilarStore {
  struct Write {
    std::string operation;  ///< "add" or "update"
    Lumidex::Cluster cluster;
    std::vector<QString> photoIds;
  };
  std::vector<Lumidex::Cluster> clusters;
  std::int64_t nextId = 1;
  std::vector<Write> writes;
  /// "read", "begin <name>", "add", "update", "commit", "rollback", "end": all in their order.
  std::vector<std::string> events;
  /// Called before each event takes place; may throw.
  std::function<void(const std::string& event)> before;

  void Happen(const std::string& event) {
    if (before) {
      before(event);
    }
    events.push_back(event);
  }
};

/// Keeps nothing but the list of what it was told.
class FakeSimilarSource : public Lumidex::ISimilarDataSource {
 public:
  explicit FakeSimilarSource(SimilarStore& store) : store_(store) {}
  ~FakeSimilarSource() override { store_.events.push_back("source released"); }

  std::vector<Lumidex::Cluster> GetClusters() override {
    store_.Happen("read");
    return store_.clusters;
  }
  int AddCluster(const Lumidex::Cluster& cluster, const std::vector<QString>& photoIds) override {
    store_.Happen("add");
    store_.writes.push_back({"add", cluster, photoIds});
    return static_cast<int>(store_.nextId++);
  }
  void UpdateCluster(const Lumidex::Cluster& cluster, const std::vector<QString>& photoIds) override {
    store_.Happen("update");
    store_.writes.push_back({"update", cluster, photoIds});
  }

 private:
  SimilarStore& store_;
};

class FakeTransactions : public Lumidex::ITransactionManager {
 public:
  explicit FakeTransactions(SimilarStore& store) : store_(store) {}
  ~FakeTransactions() override { store_.events.push_back("transactions released"); }

  std::unique_ptr<Lumidex::ITransaction> BeginTransaction(const std::string& name) override {
    store_.Happen("begin " + name);
    return std::make_unique<Transaction>(store_);
  }

 private:
  class Transaction : public Lumidex::ITransaction {
   public:
    explicit Transaction(SimilarStore& store) : store_(store) {}
    ~Transaction() override { store_.events.push_back("end"); }
    void Rollback() override { store_.Happen("rollback"); }
    void Commit() override { store_.Happen("commit"); }

   private:
    SimilarStore& store_;
  };

  SimilarStore& store_;
};

}  // namespace Zenvora::Test
