#include "SimilarStore.h"

#include <glog/logging.h>

#include <QtEndian>

#include <cstring>
#include <limits>
#include <utility>

namespace Zenvora::Lumidex::Host {

QByteArray VectorBytes(const std::vector<float>& vector) {
  QByteArray bytes(static_cast<int>(vector.size() * sizeof(float)), Qt::Uninitialized);
  qToLittleEndian<float>(vector.data(), static_cast<qsizetype>(vector.size()), bytes.data());
  return bytes;
}

std::vector<float> VectorOf(const QByteArray& bytes) {
  std::vector<float> vector(static_cast<std::size_t>(bytes.size()) / sizeof(float));
  qFromLittleEndian<float>(bytes.constData(), static_cast<qsizetype>(vector.size()), vector.data());
  return vector;
}

QSqlQuery RunFor(const CatalogueDatabase& database, const std::string& sql, qlonglong analyser) {
  QSqlQuery query = database.Prepare(sql.c_str());
  query.addBindValue(analyser);
  database.Run(query);
  return query;
}

// --- Transactions

class CatalogueTransactions::Transaction : public ITransaction {
 public:
  Transaction(CatalogueTransactions& owner, const std::string& name)
      : owner_(owner),
        writes_(owner.reserved_ ? std::move(owner.reserved_)
                                : std::make_unique<WriteTransaction>(owner.database_)) {
    if (owner.state_ && owner.database_.StateOfOthers() != *owner.state_) {
      BOOST_THROW_EXCEPTION(WrittenByOthers()
                            << TagDescription("The clusters in memory are not those of the catalogue " +
                                              owner.database_.File().utf8string() + " any more."));
    }
    owner.open_ = name;
  }
  ~Transaction() override { Transaction::Rollback(); }

  void Rollback() override {
    if (writes_) {
      VLOG(1) << "\"" << *owner_.open_ << "\" is taken back";
      writes_.reset();
      owner_.open_.reset();
    }
  }
  void Commit() override {
    if (!writes_) {
      owner_.database_.Fail("a transaction was to be committed that has ended already");
    }
    writes_->Commit();
    writes_.reset();
    owner_.open_.reset();
  }

 private:
  CatalogueTransactions& owner_;
  std::unique_ptr<WriteTransaction> writes_;
};

std::unique_ptr<ITransaction> CatalogueTransactions::BeginTransaction(const std::string& name) {
  if (open_) {
    database_.Fail("\"" + name + "\" cannot begin while \"" + *open_ + "\" is under way");
  }
  return std::make_unique<Transaction>(*this, name);
}

void CatalogueTransactions::Reserve() {
  reserved_ = std::make_unique<WriteTransaction>(database_);
}

void CatalogueTransactions::RequireOpen(const char* operation) const {
  if (!open_) {
    database_.Fail(std::string(operation) + " needs a transaction, and none is open");
  }
}

// --- Clusters

SimilarStore::SimilarStore(const CatalogueDatabase& database, const CatalogueTransactions& transactions,
                           qlonglong analyser)
    : database_(database), transactions_(transactions), analyser_(analyser) {}

std::vector<Cluster> SimilarStore::GetClusters() {
  QSqlQuery query =
      RunFor(database_, "SELECT id, count, centre FROM clusters WHERE analyser = ? ORDER BY id", analyser_);
  std::vector<Cluster> clusters;
  while (database_.Next(query)) {
    Cluster& cluster = clusters.emplace_back(VectorOf(query.value(2).toByteArray()), query.value(1).toInt());
    cluster.id = query.value(0).toLongLong();
  }
  QSqlQuery last = RunFor(
      database_,
      "SELECT max(m.arrival) FROM cluster_photos m JOIN clusters c ON c.id = m.cluster WHERE c.analyser = ?",
      analyser_);
  database_.Next(last);
  nextArrival_ = last.value(0).toLongLong() + 1;
  return clusters;
}

int SimilarStore::AddCluster(const Cluster& cluster, const std::vector<QString>& photoIds) {
  transactions_.RequireOpen("adding a cluster");
  QSqlQuery query = database_.Prepare("INSERT INTO clusters (analyser, count, centre) VALUES (?, ?, ?)");
  query.addBindValue(analyser_);
  query.addBindValue(cluster.count);
  query.addBindValue(VectorBytes(cluster.centre));
  database_.Run(query);
  const qlonglong id = query.lastInsertId().toLongLong();
  if (id > std::numeric_limits<int>::max()) {
    database_.Fail("it has no number left for a new cluster of similar photos");
  }
  AddMembers(id, photoIds);
  return static_cast<int>(id);
}

void SimilarStore::UpdateCluster(const Cluster& cluster, const std::vector<QString>& photoIds) {
  transactions_.RequireOpen("changing a cluster");
  QSqlQuery query =
      database_.Prepare("UPDATE clusters SET count = ?, centre = ? WHERE id = ? AND analyser = ?");
  query.addBindValue(cluster.count);
  query.addBindValue(VectorBytes(cluster.centre));
  query.addBindValue(static_cast<qlonglong>(cluster.id));
  query.addBindValue(analyser_);
  database_.Run(query);
  if (query.numRowsAffected() != 1) {
    database_.Fail("it has no cluster of similar photos with the number " + std::to_string(cluster.id));
  }
  AddMembers(cluster.id, photoIds);
}

void SimilarStore::ExpectArrivals(const std::vector<QString>& photoIds) {
  arrivals_.clear();
  for (const QString& id : photoIds) {
    arrivals_.emplace(id, nextArrival_++);
  }
}

void SimilarStore::AddMembers(qlonglong cluster, const std::vector<QString>& photoIds) {
  QSqlQuery query = database_.Prepare(
      "INSERT INTO cluster_photos (cluster, photo, arrival) SELECT ?, number, ? FROM photos WHERE id = ?");
  for (const QString& id : photoIds) {
    const auto arrival = arrivals_.find(id);
    query.addBindValue(cluster);
    query.addBindValue(arrival != arrivals_.end() ? arrival->second : nextArrival_++);
    query.addBindValue(id);
    database_.Run(query);
    if (query.numRowsAffected() != 1) {
      database_.Fail("it knows no photo with the id \"" + id.toStdString() + "\"");
    }
  }
}

}  // namespace Zenvora::Lumidex::Host
