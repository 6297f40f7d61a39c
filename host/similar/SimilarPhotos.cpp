#include "SimilarReplay.h"
#include "SimilarStore.h"

#include <LumidexUtil/SimilarDataManager.h>
#include <host/catalogue/CatalogueDatabase.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/CatalogueSchema.h>
#include <host/similar/SimilarPhotos.h>

#include <zenvora/quillet/MatchTemplate.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// A transaction each: enough for the index to see many at once, and little to do again after a kill.
constexpr std::size_t kBatch = 2000;

constexpr char kByDate[] = " ORDER BY p.taken IS NULL, p.taken, p.path";

std::string PhotosWhere(const std::string& condition) {
  return std::string("SELECT ") + kPhotoColumns + " FROM photos p WHERE " + condition + kByDate;
}

/// The columns of `features` as `f` that `FeaturesOf` reads.
constexpr char kFeatureColumns[] = "f.vector, f.problem, f.width, f.height, f.sharpness, f.checked";
constexpr int kFeatureColumnCount = 6;

PhotoFeatures FeaturesOf(const QSqlQuery& row, int first) {
  PhotoFeatures features;
  features.vector = VectorOf(row.value(first).toByteArray());
  features.problem = row.value(first + 1).toString().toStdString();
  features.width = row.value(first + 2).toInt();
  features.height = row.value(first + 3).toInt();
  features.sharpness = row.value(first + 4).toDouble();
  features.checked = row.value(first + 5).toBool();
  return features;
}

/// Of photos `p` with features `f`: they can be compared and are in no cluster.
constexpr char kWaits[] =
    " AND f.vector IS NOT NULL AND p.lost = 0 AND NOT EXISTS (SELECT 1 FROM cluster_photos m JOIN clusters c"
    " ON c.id = m.cluster WHERE m.photo = p.number AND c.analyser = f.analyser)";

/// A photo in a cluster, as `Explain` needs it.
struct Place {
  std::int64_t cluster = 0;
  std::vector<float> vector;
  std::vector<float> centre;
};

}  // namespace

class SimilarPhotos::Impl {
 public:
  Impl(const ioPath& catalogue, const AnalyserName& analyser, Catalogue::Mode mode);

  std::vector<PhotoRecord> Pending() const;
  void Store(const std::vector<AnalysedPhoto>& photos);
  void StoreSharpness(const std::vector<std::pair<QString, double>>& photos);
  std::vector<std::pair<PhotoRecord, std::string>> Problems() const;
  std::size_t AddToClusters(const std::atomic<bool>& cancelled, const Progress& progress);
  std::size_t CountClustered() const;
  void ClearClusters();
  std::vector<SimilarGroup> Groups(std::size_t least) const;
  std::optional<std::pair<Place, Place>> Find(const ioPath& first, const ioPath& second) const;
  std::vector<std::string> Check() const;

 private:
  using Item = std::pair<QString, std::vector<float>>;

  std::optional<qlonglong> FindAnalyser(const AnalyserName& analyser) const;
  qlonglong TakeAnalyser(const AnalyserName& analyser) const;
  /// `sql` has one place for the analyser's number.
  QSqlQuery RunFor(const std::string& sql) const;
  bool ChangesACluster(const AnalysedPhoto& photo) const;
  void DeleteClusters() const;
  std::optional<Place> Find(const ioPath& photo) const;
  std::size_t AddBatch(const std::vector<QString>& ids);
  std::optional<std::size_t> TryBatch(const std::vector<QString>& ids);
  std::vector<Item> Waiting(const std::vector<QString>& ids) const;

  const std::unique_ptr<CatalogueDatabase> opened_;
  const CatalogueDatabase& database_;
  const std::size_t length_;
  const qlonglong analyser_;
  const std::shared_ptr<CatalogueTransactions> transactions_;
  const std::shared_ptr<SimilarStore> store_;
  /// Made when it is needed; none after a failure, for it then knows what the store does not, and none when
  /// others have written, for the store then knows what it does not.
  boost::intrusive_ptr<ISimilarDataManager> manager_;
  /// Of the others, when the manager read the clusters.
  qlonglong state_ = 0;
};

/// Of no analyser.
constexpr qlonglong kNothingYet = 0;

SimilarPhotos::Impl::Impl(const ioPath& catalogue, const AnalyserName& analyser, Catalogue::Mode mode)
    : opened_(OpenCatalogue(catalogue, mode)),
      database_(*opened_),
      length_(analyser.length),
      analyser_(mode == Catalogue::Mode::ReadOnly ? FindAnalyser(analyser).value_or(kNothingYet)
                                                  : TakeAnalyser(analyser)),
      transactions_(std::make_shared<CatalogueTransactions>(database_)),
      store_(std::make_shared<SimilarStore>(database_, *transactions_, analyser_)) {}

std::optional<qlonglong> SimilarPhotos::Impl::FindAnalyser(const AnalyserName& analyser) const {
  QSqlQuery query =
      database_.Prepare("SELECT number FROM analysers WHERE name = ? AND version = ? AND length = ?");
  query.addBindValue(NotNull(analyser.name));
  query.addBindValue(analyser.version);
  query.addBindValue(static_cast<qlonglong>(analyser.length));
  database_.Run(query);
  return database_.Next(query) ? std::optional(query.value(0).toLongLong()) : std::nullopt;
}

qlonglong SimilarPhotos::Impl::TakeAnalyser(const AnalyserName& analyser) const {
  if (const auto known = FindAnalyser(analyser)) {
    return *known;
  }
  WriteTransaction transaction(database_);
  if (const auto known = FindAnalyser(analyser)) {
    // Another process was faster.
    return *known;
  }
  QSqlQuery former = database_.Prepare("DELETE FROM analysers WHERE name = ?");
  former.addBindValue(NotNull(analyser.name));
  database_.Run(former);
  QSqlQuery query = database_.Prepare("INSERT INTO analysers (name, version, length) VALUES (?, ?, ?)");
  query.addBindValue(NotNull(analyser.name));
  query.addBindValue(analyser.version);
  query.addBindValue(static_cast<qlonglong>(analyser.length));
  database_.Run(query);
  const qlonglong number = query.lastInsertId().toLongLong();
  transaction.Commit();
  return number;
}

QSqlQuery SimilarPhotos::Impl::RunFor(const std::string& sql) const {
  QSqlQuery query = database_.Prepare(sql.c_str());
  query.addBindValue(analyser_);
  database_.Run(query);
  return query;
}

std::vector<PhotoRecord> SimilarPhotos::Impl::Pending() const {
  QSqlQuery query = RunFor(PhotosWhere(
      "p.lost = 0 AND NOT EXISTS (SELECT 1 FROM features f WHERE f.photo = p.number AND f.analyser"
      " = ? AND f.size = p.size AND f.modified_ns = p.modified_ns)"));
  std::vector<PhotoRecord> photos;
  while (database_.Next(query)) {
    photos.push_back(PhotoOf(query));
  }
  return photos;
}

/// True when the photo is in a cluster with another vector.
bool SimilarPhotos::Impl::ChangesACluster(const AnalysedPhoto& photo) const {
  QSqlQuery query = database_.Prepare(
      "SELECT f.vector FROM features f JOIN photos p ON p.number = f.photo WHERE f.analyser = ? AND p.id = ?"
      " AND EXISTS (SELECT 1 FROM cluster_photos m JOIN clusters c ON c.id = m.cluster"
      " WHERE m.photo = p.number AND c.analyser = f.analyser)");
  query.addBindValue(analyser_);
  query.addBindValue(photo.id);
  database_.Run(query);
  return database_.Next(query) && query.value(0).toByteArray() != VectorBytes(photo.features.vector);
}

void SimilarPhotos::Impl::Store(const std::vector<AnalysedPhoto>& photos) {
  WriteTransaction transaction(database_);
  bool clustersStand = true;
  QSqlQuery query = database_.Prepare(
      "INSERT OR REPLACE INTO features (photo, analyser, size, modified_ns, vector, problem, width, height,"
      " sharpness, checked) SELECT number, ?, ?, ?, ?, ?, ?, ?, ?, ? FROM photos WHERE id = ?");
  for (const AnalysedPhoto& photo : photos) {
    const PhotoFeatures& features = photo.features;
    if (!features.vector.empty() && features.vector.size() != length_) {
      database_.Fail("a feature vector of " + std::to_string(features.vector.size()) +
                     " numbers is none of " + std::to_string(length_));
    }
    clustersStand = clustersStand && !ChangesACluster(photo);
    query.addBindValue(analyser_);
    query.addBindValue(static_cast<qlonglong>(photo.stamp.size));
    query.addBindValue(static_cast<qlonglong>(photo.stamp.modifiedNs));
    query.addBindValue(features.vector.empty() ? QVariant(QVariant::ByteArray)
                                               : QVariant(VectorBytes(features.vector)));
    query.addBindValue(NotNull(QString::fromStdString(features.problem)));
    query.addBindValue(features.width);
    query.addBindValue(features.height);
    query.addBindValue(features.sharpness);
    query.addBindValue(features.checked);
    query.addBindValue(photo.id);
    database_.Run(query);
    if (query.numRowsAffected() != 1) {
      database_.Fail("it knows no photo with the id \"" + photo.id.toStdString() + "\"");
    }
  }
  if (!clustersStand) {
    DeleteClusters();
  }
  transaction.Commit();
  if (!clustersStand) {
    manager_.reset();
  }
}

void SimilarPhotos::Impl::StoreSharpness(const std::vector<std::pair<QString, double>>& photos) {
  WriteTransaction transaction(database_);
  QSqlQuery query = database_.Prepare(
      "UPDATE features SET sharpness = ? WHERE analyser = ? AND photo = (SELECT number FROM photos WHERE id "
      "= ?)");
  for (const auto& [id, sharpness] : photos) {
    query.addBindValue(sharpness);
    query.addBindValue(analyser_);
    query.addBindValue(id);
    database_.Run(query);
  }
  transaction.Commit();
}

std::vector<std::pair<PhotoRecord, std::string>> SimilarPhotos::Impl::Problems() const {
  QSqlQuery query =
      RunFor(std::string("SELECT ") + kPhotoColumns +
             ", f.problem FROM features f JOIN photos p ON p.number = f.photo WHERE f.analyser = ?"
             " AND f.vector IS NULL AND p.lost = 0 ORDER BY p.path");
  std::vector<std::pair<PhotoRecord, std::string>> problems;
  while (database_.Next(query)) {
    problems.emplace_back(PhotoOf(query), query.value(kPhotoColumnCount).toString().toStdString());
  }
  return problems;
}

std::size_t SimilarPhotos::Impl::AddToClusters(const std::atomic<bool>& cancelled, const Progress& progress) {
  std::vector<QString> waiting;
  {
    QSqlQuery query =
        RunFor("SELECT p.id FROM features f JOIN photos p ON p.number = f.photo WHERE f.analyser = ?" +
               std::string(kWaits) + kByDate);
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

std::size_t SimilarPhotos::Impl::AddBatch(const std::vector<QString>& ids) {
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
std::optional<std::size_t> SimilarPhotos::Impl::TryBatch(const std::vector<QString>& ids) {
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

std::vector<SimilarPhotos::Impl::Item> SimilarPhotos::Impl::Waiting(const std::vector<QString>& ids) const {
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

std::size_t SimilarPhotos::Impl::CountClustered() const {
  QSqlQuery query = RunFor(
      "SELECT count(*) FROM cluster_photos m JOIN clusters c ON c.id = m.cluster JOIN photos p ON p.number ="
      " m.photo WHERE c.analyser = ? AND p.lost = 0");
  database_.Next(query);
  return static_cast<std::size_t>(query.value(0).toULongLong());
}

void SimilarPhotos::Impl::DeleteClusters() const {
  RunFor("DELETE FROM clusters WHERE analyser = ?");
}

void SimilarPhotos::Impl::ClearClusters() {
  manager_.reset();
  WriteTransaction transaction(database_);
  DeleteClusters();
  transaction.Commit();
}

std::vector<SimilarGroup> SimilarPhotos::Impl::Groups(std::size_t least) const {
  QSqlQuery query = database_.Prepare(
      (std::string("SELECT ") + kPhotoColumns + ", " + kFeatureColumns +
       ", c.id, c.centre FROM clusters c JOIN cluster_photos m ON m.cluster = c.id"
       " JOIN photos p ON p.number = m.photo JOIN features f ON f.photo = p.number AND f.analyser = "
       "c.analyser AND f.size = p.size AND f.modified_ns = p.modified_ns"
       " WHERE c.analyser = ? AND p.lost = 0 AND (SELECT count(*) FROM cluster_photos n JOIN photos q ON"
       " q.number = n.photo WHERE n.cluster = c.id AND q.lost = 0) >= ?"
       " ORDER BY c.id, p.taken IS NULL, p.taken, p.path")
          .c_str());
  query.addBindValue(analyser_);
  query.addBindValue(static_cast<qlonglong>(least));
  database_.Run(query);
  std::vector<SimilarGroup> groups;
  while (database_.Next(query)) {
    const std::int64_t id = query.value(kPhotoColumnCount + kFeatureColumnCount).toLongLong();
    if (groups.empty() || groups.back().cluster != id) {
      groups.push_back(
          {id, 0, VectorOf(query.value(kPhotoColumnCount + kFeatureColumnCount + 1).toByteArray()), {}});
    }
    SimilarGroup& group = groups.back();
    SimilarMember member{PhotoOf(query), FeaturesOf(query, kPhotoColumnCount), 0, {}};
    member.score = Quillet::MatchTemplate(member.features.vector, group.centre);
    group.members.push_back(std::move(member));
  }
  // Without those that changed and could not be looked at again, or were just now.
  groups.erase(std::remove_if(groups.begin(), groups.end(),
                              [least](const SimilarGroup& group) { return group.members.size() < least; }),
               groups.end());
  std::stable_sort(groups.begin(), groups.end(), [](const SimilarGroup& left, const SimilarGroup& right) {
    return left.members.size() > right.members.size();
  });
  for (std::size_t i = 0; i < groups.size(); ++i) {
    groups[i].number = i + 1;
  }
  return groups;
}

std::optional<Place> SimilarPhotos::Impl::Find(const ioPath& photo) const {
  QSqlQuery query = database_.Prepare(
      "SELECT c.id, c.centre, f.vector FROM photos p JOIN cluster_photos m ON m.photo = p.number"
      " JOIN clusters c ON c.id = m.cluster JOIN features f ON f.photo = p.number AND f.analyser = c.analyser"
      " WHERE c.analyser = ? AND p.path = ?");
  query.addBindValue(analyser_);
  query.addBindValue(PathBytes(photo));
  database_.Run(query);
  if (!database_.Next(query)) {
    return std::nullopt;
  }
  return Place{query.value(0).toLongLong(), VectorOf(query.value(2).toByteArray()),
               VectorOf(query.value(1).toByteArray())};
}

std::optional<std::pair<Place, Place>> SimilarPhotos::Impl::Find(const ioPath& first,
                                                                 const ioPath& second) const {
  const ReadTransaction oneMoment(database_);
  const std::optional<Place> a = Find(first);
  const std::optional<Place> b = Find(second);
  return a && b ? std::make_optional(std::make_pair(*a, *b)) : std::nullopt;
}

std::vector<std::string> SimilarPhotos::Impl::Check() const {
  SimilarReplay replay;
  const ReadTransaction oneMoment(database_);
  QSqlQuery members = RunFor(
      "SELECT m.cluster, m.photo, f.vector FROM cluster_photos m JOIN clusters c ON c.id = m.cluster"
      " LEFT JOIN features f ON f.photo = m.photo AND f.analyser = c.analyser WHERE c.analyser = ?"
      " ORDER BY m.arrival");
  while (database_.Next(members)) {
    replay.Add(members.value(0).toLongLong(), members.value(1).toString(),
               VectorOf(members.value(2).toByteArray()));
  }
  return replay.Compare(store_->GetClusters());
}

// --- The class

SimilarPhotos::SimilarPhotos(const ioPath& catalogue, const AnalyserName& analyser, Catalogue::Mode mode)
    : impl_(std::make_unique<Impl>(catalogue, analyser, mode)) {}

SimilarPhotos::~SimilarPhotos() = default;

std::vector<PhotoRecord> SimilarPhotos::Pending() const {
  return impl_->Pending();
}

void SimilarPhotos::Store(const std::vector<AnalysedPhoto>& photos) {
  impl_->Store(photos);
}

void SimilarPhotos::StoreSharpness(const std::vector<std::pair<QString, double>>& photos) {
  impl_->StoreSharpness(photos);
}

std::vector<std::pair<PhotoRecord, std::string>> SimilarPhotos::Problems() const {
  return impl_->Problems();
}

std::size_t SimilarPhotos::AddToClusters(const std::atomic<bool>& cancelled, const Progress& progress) {
  return impl_->AddToClusters(cancelled, progress);
}

std::size_t SimilarPhotos::CountClustered() const {
  return impl_->CountClustered();
}

void SimilarPhotos::ClearClusters() {
  impl_->ClearClusters();
}

std::vector<SimilarGroup> SimilarPhotos::Groups(std::size_t least) const {
  return impl_->Groups(least);
}

std::optional<SimilarityFacts> SimilarPhotos::Explain(const ioPath& first, const ioPath& second) const {
  const auto places = impl_->Find(first, second);
  if (!places) {
    return std::nullopt;
  }
  const auto& [a, b] = *places;
  using Quillet::MatchTemplate;
  return SimilarityFacts{MatchTemplate(a.vector, b.vector),
                         a.cluster,
                         b.cluster,
                         MatchTemplate(a.vector, a.centre),
                         MatchTemplate(a.vector, b.centre),
                         MatchTemplate(b.vector, a.centre),
                         MatchTemplate(b.vector, b.centre)};
}

std::vector<std::string> SimilarPhotos::Check() const {
  return impl_->Check();
}

}  // namespace Zenvora::Lumidex::Host
