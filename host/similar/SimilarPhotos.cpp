#include "SimilarClusters.h"

#include <host/catalogue/CatalogueDatabase.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/CatalogueSchema.h>
#include <host/similar/SimilarPhotos.h>

#include <zenvora/quillet/match/MatchTemplate.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

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

/// Of no analyser.
constexpr qlonglong kNothingYet = 0;

std::optional<qlonglong> FindAnalyser(const CatalogueDatabase& database, const AnalyserName& analyser) {
  QSqlQuery query =
      database.Prepare("SELECT number FROM analysers WHERE name = ? AND version = ? AND length = ?");
  query.addBindValue(NotNull(analyser.name));
  query.addBindValue(analyser.version);
  query.addBindValue(static_cast<qlonglong>(analyser.length));
  database.Run(query);
  return database.Next(query) ? std::optional(query.value(0).toLongLong()) : std::nullopt;
}

qlonglong FindOrAddAnalyser(const CatalogueDatabase& database, const AnalyserName& analyser) {
  if (const auto known = FindAnalyser(database, analyser)) {
    return *known;
  }
  WriteTransaction transaction(database);
  if (const auto known = FindAnalyser(database, analyser)) {
    // Another process was faster.
    return *known;
  }
  QSqlQuery former = database.Prepare("DELETE FROM analysers WHERE name = ?");
  former.addBindValue(NotNull(analyser.name));
  database.Run(former);
  QSqlQuery query = database.Prepare("INSERT INTO analysers (name, version, length) VALUES (?, ?, ?)");
  query.addBindValue(NotNull(analyser.name));
  query.addBindValue(analyser.version);
  query.addBindValue(static_cast<qlonglong>(analyser.length));
  database.Run(query);
  const qlonglong number = query.lastInsertId().toLongLong();
  transaction.Commit();
  return number;
}

/// A photo in a cluster, as `Explain` needs it.
struct Place {
  std::int64_t cluster = 0;
  std::vector<float> vector;
  std::vector<float> centre;
};

std::optional<Place> FindPlace(const CatalogueDatabase& database, qlonglong analyser, const ioPath& photo) {
  QSqlQuery query = database.Prepare(
      "SELECT c.id, c.centre, f.vector FROM photos p JOIN cluster_photos m ON m.photo = p.number"
      " JOIN clusters c ON c.id = m.cluster JOIN features f ON f.photo = p.number AND f.analyser = c.analyser"
      " WHERE c.analyser = ? AND p.path = ?");
  query.addBindValue(analyser);
  query.addBindValue(PathBytes(photo));
  database.Run(query);
  if (!database.Next(query)) {
    return std::nullopt;
  }
  return Place{query.value(0).toLongLong(), VectorOf(query.value(2).toByteArray()),
               VectorOf(query.value(1).toByteArray())};
}

}  // namespace

SimilarPhotos::SimilarPhotos(const ioPath& catalogue, const AnalyserName& analyser, Catalogue::Mode mode)
    : opened_(OpenCatalogue(catalogue, mode)),
      database_(*opened_),
      length_(analyser.length),
      analyser_(mode == Catalogue::Mode::ReadOnly ? FindAnalyser(database_, analyser).value_or(kNothingYet)
                                                  : FindOrAddAnalyser(database_, analyser)),
      clusters_(std::make_unique<SimilarClusters>(database_, analyser_)) {}

SimilarPhotos::~SimilarPhotos() = default;

std::vector<PhotoRecord> SimilarPhotos::Pending() const {
  QSqlQuery query =
      RunFor(database_,
             std::string("SELECT ") + kPhotoColumns +
                 " FROM photos p WHERE p.lost = 0 AND NOT EXISTS (SELECT 1 FROM features f WHERE f.photo ="
                 " p.number AND f.analyser = ? AND f.size = p.size AND f.modified_ns = p.modified_ns)" +
                 kByDate,
             analyser_);
  std::vector<PhotoRecord> photos;
  while (database_.Next(query)) {
    photos.push_back(PhotoOf(query));
  }
  return photos;
}

/// True when the photo is in a cluster with another vector.
bool SimilarPhotos::ChangesACluster(const AnalysedPhoto& photo) const {
  QSqlQuery query = database_.Prepare(
      "SELECT f.vector FROM features f JOIN photos p ON p.number = f.photo WHERE f.analyser = ? AND p.id = ?"
      " AND EXISTS (SELECT 1 FROM cluster_photos m JOIN clusters c ON c.id = m.cluster"
      " WHERE m.photo = p.number AND c.analyser = f.analyser)");
  query.addBindValue(analyser_);
  query.addBindValue(photo.id);
  database_.Run(query);
  return database_.Next(query) && query.value(0).toByteArray() != VectorBytes(photo.features.vector);
}

void SimilarPhotos::Store(const std::vector<AnalysedPhoto>& photos) {
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
    clusters_->Delete();
  }
  transaction.Commit();
  if (!clustersStand) {
    clusters_->Forget();
  }
}

void SimilarPhotos::StoreSharpness(const std::vector<std::pair<QString, double>>& photos) {
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

std::vector<std::pair<PhotoRecord, std::string>> SimilarPhotos::Problems() const {
  QSqlQuery query =
      RunFor(database_,
             std::string("SELECT ") + kPhotoColumns +
                 ", f.problem FROM features f JOIN photos p ON p.number = f.photo WHERE f.analyser = ?"
                 " AND f.vector IS NULL AND p.lost = 0 ORDER BY p.path",
             analyser_);
  std::vector<std::pair<PhotoRecord, std::string>> problems;
  while (database_.Next(query)) {
    problems.emplace_back(PhotoOf(query), query.value(kPhotoColumnCount).toString().toStdString());
  }
  return problems;
}

std::vector<SimilarGroup> SimilarPhotos::Groups(std::size_t least) const {
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

std::optional<SimilarityFacts> SimilarPhotos::Explain(const ioPath& first, const ioPath& second) const {
  const ReadTransaction oneMoment(database_);
  const std::optional<Place> a = FindPlace(database_, analyser_, first);
  const std::optional<Place> b = FindPlace(database_, analyser_, second);
  if (!a || !b) {
    return std::nullopt;
  }
  using Quillet::MatchTemplate;
  return SimilarityFacts{MatchTemplate(a->vector, b->vector),
                         a->cluster,
                         b->cluster,
                         MatchTemplate(a->vector, a->centre),
                         MatchTemplate(a->vector, b->centre),
                         MatchTemplate(b->vector, a->centre),
                         MatchTemplate(b->vector, b->centre)};
}

std::size_t SimilarPhotos::AddToClusters(const std::atomic<bool>& cancelled, const Progress& progress) {
  return clusters_->Add(cancelled, progress);
}

std::size_t SimilarPhotos::CountClustered() const {
  return clusters_->CountPhotos();
}

void SimilarPhotos::ClearClusters() {
  clusters_->Forget();
  WriteTransaction transaction(database_);
  clusters_->Delete();
  transaction.Commit();
}

std::vector<std::string> SimilarPhotos::Check() const {
  return clusters_->Check();
}

}  // namespace Zenvora::Lumidex::Host
