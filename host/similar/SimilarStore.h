#pragma once

#include <host/base/HostError.h>
#include <host/catalogue/CatalogueDatabase.h>

#include <zenvora/lumidex/ISimilarDataSource.h>
#include <zenvora/lumidex/ITransactionManager.h>

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Floats as the tables hold them: 32 bits each, little-endian.
QByteArray VectorBytes(const std::vector<float>& vector);
std::vector<float> VectorOf(const QByteArray& bytes);

/// For photos as `p`: by date taken, then path.
constexpr char kByDate[] = " ORDER BY p.taken IS NULL, p.taken, p.path";

/// Runs `sql`, whose one place is for the analyser's number in the catalogue.
QSqlQuery RunFor(const CatalogueDatabase& database, const std::string& sql, qlonglong analyser);

/// Somebody else has written to the catalogue.
class WrittenByOthers : public HostError {};

/// Named transactions on one connection.
class CatalogueTransactions : public ITransactionManager {
 public:
  /// The database must outlive it.
  explicit CatalogueTransactions(const CatalogueDatabase& database) : database_(database) {}

  /// Throws `HostError` while another one is open: there is one connection, and what a nested one took back
  /// would be taken from the outer one too. Throws `WrittenByOthers` when somebody has written since the
  /// state that is required.
  std::unique_ptr<ITransaction> BeginTransaction(const std::string& name) override;

  /// From now on transactions begin only while the catalogue's `StateOfOthers` is this one.
  void RequireState(qlonglong state) { state_ = state; }
  /// Keeps others from writing; the next transaction takes it over. Blocks while others write.
  void Reserve();
  /// Lets others write again. Nothing happens when a transaction took the reservation over.
  void Unreserve() { reserved_.reset(); }

  /// Throws `HostError` when none is open.
  void RequireOpen(const char* operation) const;

 private:
  class Transaction;

  const CatalogueDatabase& database_;
  std::optional<std::string> open_;
  std::optional<qlonglong> state_;
  std::unique_ptr<WriteTransaction> reserved_;
};

/// The clusters of one analyser in the catalogue. What it writes needs an open transaction.
class SimilarStore : public ISimilarDataSource {
 public:
  /// Both must outlive it. `analyser`: its number in the catalogue.
  SimilarStore(const CatalogueDatabase& database, const CatalogueTransactions& transactions,
               qlonglong analyser);

  /// Arrivals are counted on from what is stored when this is called.
  std::vector<Cluster> GetClusters() override;
  int AddCluster(const Cluster& cluster, const std::vector<QString>& photoIds) override;
  void UpdateCluster(const Cluster& cluster, const std::vector<QString>& photoIds) override;

  /// In which order the photos of the coming batch are matched: it is stored with them. Call `GetClusters`
  /// first.
  void ExpectArrivals(const std::vector<QString>& photoIds);

 private:
  void AddMembers(qlonglong cluster, const std::vector<QString>& photoIds);

  const CatalogueDatabase& database_;
  const CatalogueTransactions& transactions_;
  const qlonglong analyser_;
  std::unordered_map<QString, qlonglong> arrivals_;
  qlonglong nextArrival_ = 0;
};

}  // namespace Zenvora::Lumidex::Host
