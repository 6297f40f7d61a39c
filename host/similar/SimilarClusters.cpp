#include "SimilarClusters.h"

#include "SimilarReplay.h"

#include <LumidexUtil/SimilarDataManager.h>

#include <algorithm>

namespace Zenvora::Lumidex::Host {

namespace {

/// A transaction each: enough for the index to see many at once, and little to do again after a kill.
constexpr std::size_t kBatch = 2000;

/// Of photos `p` with features `f`: they can be compared and are in no cluster.
constexpr char kWaits[] =
    " AND f.vector IS NOT NULL AND p.lost = 0 AND NOT EXISTS (SELECT 1 FROM cluster_photos m JOIN clusters c"
    " ON c.id = m.cluster WHERE m.photo = p.number AND c.analyser = f.analyser)";

}  // namespace

SimilarClusters::SimilarClusters(const CatalogueDatabase& database, qlonglong analyser)
    : database_(database),
      analyser_(analyser),
      transactions_(std::make_shared<CatalogueTransactions>(database)),
      store_(std::make_shared<SimilarStore>(database, *transactions_, analyser)) {}

SimilarClusters::~SimilarClusters() = default;

std::size_t SimilarClusters::Add(const std::atomic<bool>& cancelled,
                                 const SimilarPhotos::Progress& progress) {
  std::vector<QString> waiting;
  {
    QSqlQuery query =
        RunFor(database_,
               "SELECT p.id FROM features f JOIN photos p ON p.number = f.photo WHERE f.analyser = ?" +
                   std::string(kWaits) + kByDate,
               analyser_);
    while (database_.Next(query)) {
      waiting.push_back(query.value(0).toString());
    }
  }
  std::size_t added = 0;
  for (auto first = waiting.begin(); first != waiting.end() && !cancelled;) {
    const auto end = first + std::min<std::ptrdiff_t>(kBatch, waiting.end() - first);
    added += AddBatch({first, end});
    first = end;
    if (progress) {
      progress(static_cast<std::size_t>(first - waiting.begin()), waiting.size());
    }
  }
  return added;
}

std::size_t SimilarClusters::AddBatch(const std::vector<QString>& ids) {
  // As a rule nobody else writes; who does shall not have to wait for the matching.
  if (const std::optional<std::size_t> added = TryBatch(ids)) {
    return *added;
  }
  transactions_->Reserve();
  try {
    const std::optional<std::size_t> added = TryBatch(ids);
    transactions_->Unreserve();
    return added.value();
  } catch (...) {
    transactions_->Unreserve();
    throw;
  }
}

/// Puts those that still wait into clusters. Empty, with nothing done, when others have written meanwhile.
std::optional<std::size_t> SimilarClusters::TryBatch(const std::vector<QString>& ids) {
  const qlonglong state = database_.StateOfOthers();
  if (state != state_) {
    manager_.reset();
    state_ = state;
    transactions_->RequireState(state);
  }
  try {
    if (!manager_) {
      manager_.reset(new SimilarDataManager(store_, transactions_));
    }
    std::vector<Item> items = Waiting(ids);
    std::vector<QString> arriving;
    arriving.reserve(items.size());
    for (const Item& item : items) {
      arriving.push_back(item.first);
    }
    store_->ExpectArrivals(arriving);
    manager_->AddToStorage(items);
    return items.size();
  } catch (const WrittenByOthers&) {
    manager_.reset();
    return std::nullopt;
  } catch (...) {
    manager_.reset();
    throw;
  }
}

std::vector<SimilarClusters::Item> SimilarClusters::Waiting(const std::vector<QString>& ids) const {
  QSqlQuery query = database_.Prepare(
      (std::string(
           "SELECT f.vector FROM features f JOIN photos p ON p.number = f.photo WHERE f.analyser = ?") +
       kWaits + " AND p.id = ?")
          .c_str());
  std::vector<Item> items;
  items.reserve(ids.size());
  for (const QString& id : ids) {
    query.addBindValue(analyser_);
    query.addBindValue(id);
    database_.Run(query);
    if (database_.Next(query)) {
      items.emplace_back(id, VectorOf(query.value(0).toByteArray()));
    }
  }
  return items;
}

std::size_t SimilarClusters::CountPhotos() const {
  QSqlQuery query = RunFor(
      database_,
      "SELECT count(*) FROM cluster_photos m JOIN clusters c ON c.id = m.cluster JOIN photos p ON p.number ="
      " m.photo WHERE c.analyser = ? AND p.lost = 0",
      analyser_);
  database_.Next(query);
  return static_cast<std::size_t>(query.value(0).toULongLong());
}

void SimilarClusters::Delete() const {
  RunFor(database_, "DELETE FROM clusters WHERE analyser = ?", analyser_);
}

std::vector<std::string> SimilarClusters::Check() const {
  SimilarReplay replay;
  const ReadTransaction oneMoment(database_);
  QSqlQuery members =
      RunFor(database_,
             "SELECT m.cluster, m.photo, f.vector FROM cluster_photos m JOIN clusters c ON c.id = m.cluster"
             " LEFT JOIN features f ON f.photo = m.photo AND f.analyser = c.analyser WHERE c.analyser = ?"
             " ORDER BY m.arrival",
             analyser_);
  while (database_.Next(members)) {
    replay.Add(members.value(0).toLongLong(), members.value(1).toString(),
               VectorOf(members.value(2).toByteArray()));
  }
  return replay.Compare(store_->GetClusters());
}

}  // namespace Zenvora::Lumidex::Host
