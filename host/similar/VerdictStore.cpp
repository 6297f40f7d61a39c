#include <host/catalogue/CatalogueDatabase.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/CatalogueSchema.h>
#include <host/similar/VerdictStore.h>

#include <array>

namespace Zenvora::Lumidex::Host {

namespace {

/// In the order of their bits, which are stored.
constexpr std::array kFlags = {
    &PhotoOrigin::raw,        &PhotoOrigin::cameraTags,     &PhotoOrigin::makerNote,
    &PhotoOrigin::sizeAsTold, &PhotoOrigin::edited,         &PhotoOrigin::cameraName,
    &PhotoOrigin::hasJfif,    &PhotoOrigin::standardTables, &PhotoOrigin::enlarged};

int FlagsOf(const PhotoOrigin& origin) {
  int flags = 0;
  for (std::size_t i = 0; i < kFlags.size(); ++i) {
    flags |= origin.*kFlags[i] ? 1 << i : 0;
  }
  return flags;
}

void SetFlags(PhotoOrigin& origin, int flags) {
  for (std::size_t i = 0; i < kFlags.size(); ++i) {
    origin.*kFlags[i] = (flags >> i & 1) != 0;
  }
}

void BindStamp(QSqlQuery& query, const PhotoRecord& photo) {
  query.addBindValue(static_cast<qlonglong>(photo.size));
  query.addBindValue(static_cast<qlonglong>(photo.modifiedNs));
}

QString TextOf(const std::string& text) {
  return NotNull(QString::fromStdString(text));
}

}  // namespace

class VerdictStore::Impl {
 public:
  Impl(const ioPath& catalogue, Catalogue::Mode mode) : database(OpenCatalogue(catalogue, mode)) {}

  const std::unique_ptr<CatalogueDatabase> database;
};

VerdictStore::VerdictStore(const ioPath& catalogue, Catalogue::Mode mode)
    : impl_(std::make_unique<Impl>(catalogue, mode)) {}

VerdictStore::~VerdictStore() = default;

std::optional<PhotoOrigin> VerdictStore::Origin(const PhotoRecord& photo) const {
  const CatalogueDatabase& database = *impl_->database;
  QSqlQuery query = database.Prepare(
      "SELECT o.degradation, o.flags, o.quantisation, o.bytes_per_pixel FROM origins o"
      " JOIN photos p ON p.number = o.photo WHERE p.id = ? AND o.size = ? AND o.modified_ns = ?"
      " AND o.version = ?");
  query.addBindValue(photo.id);
  BindStamp(query, photo);
  query.addBindValue(kOriginVersion);
  database.Run(query);
  if (!database.Next(query)) {
    return std::nullopt;
  }
  PhotoOrigin origin;
  origin.degradation = query.value(0).toString().toStdString();
  SetFlags(origin, query.value(1).toInt());
  origin.quantisation = query.value(2).toDouble();
  origin.bytesPerPixel = query.value(3).toDouble();
  return origin;
}

void VerdictStore::StoreOrigins(const std::vector<std::pair<PhotoRecord, PhotoOrigin>>& origins) {
  const CatalogueDatabase& database = *impl_->database;
  WriteTransaction transaction(database);
  QSqlQuery query = database.Prepare(
      "INSERT OR REPLACE INTO origins (photo, size, modified_ns, version, degradation, flags, quantisation,"
      " bytes_per_pixel) SELECT number, ?, ?, ?, ?, ?, ?, ? FROM photos WHERE id = ?");
  for (const auto& [photo, origin] : origins) {
    BindStamp(query, photo);
    query.addBindValue(kOriginVersion);
    query.addBindValue(TextOf(origin.degradation));
    query.addBindValue(FlagsOf(origin));
    query.addBindValue(origin.quantisation);
    query.addBindValue(origin.bytesPerPixel);
    query.addBindValue(photo.id);
    database.Run(query);
  }
  transaction.Commit();
}

std::optional<PictureVerdict> VerdictStore::Verdict(const PhotoRecord& photo, const PhotoRecord& kept) const {
  const CatalogueDatabase& database = *impl_->database;
  QSqlQuery query = database.Prepare(
      "SELECT v.verdict, v.why, v.worst FROM verdicts v JOIN photos p ON p.number = v.photo"
      " JOIN photos k ON k.number = v.kept WHERE p.id = ? AND v.photo_size = ? AND v.photo_modified_ns = ?"
      " AND k.id = ? AND v.kept_size = ? AND v.kept_modified_ns = ? AND v.version = ?");
  query.addBindValue(photo.id);
  BindStamp(query, photo);
  query.addBindValue(kept.id);
  BindStamp(query, kept);
  query.addBindValue(kVerdictVersion);
  database.Run(query);
  if (!database.Next(query)) {
    return std::nullopt;
  }
  PictureVerdict verdict;
  verdict.verdict = static_cast<enum Verdict>(query.value(0).toInt());
  verdict.why = query.value(1).toString().toStdString();
  verdict.worst = query.value(2).toDouble();
  return verdict;
}

void VerdictStore::StoreVerdicts(const std::vector<JudgedPhoto>& judged) {
  const CatalogueDatabase& database = *impl_->database;
  WriteTransaction transaction(database);
  QSqlQuery former = database.Prepare(
      "DELETE FROM verdicts WHERE photo = (SELECT number FROM photos WHERE id = ?)"
      " AND (photo_size <> ? OR photo_modified_ns <> ? OR version <> ?)");
  QSqlQuery query = database.Prepare(
      "INSERT OR REPLACE INTO verdicts (photo, kept, photo_size, photo_modified_ns, kept_size,"
      " kept_modified_ns, version, verdict, why, worst)"
      " SELECT p.number, k.number, ?, ?, ?, ?, ?, ?, ?, ? FROM photos p, photos k"
      " WHERE p.id = ? AND k.id = ?");
  for (const JudgedPhoto& one : judged) {
    former.addBindValue(one.photo.id);
    BindStamp(former, one.photo);
    former.addBindValue(kVerdictVersion);
    database.Run(former);
    BindStamp(query, one.photo);
    BindStamp(query, one.kept);
    query.addBindValue(kVerdictVersion);
    query.addBindValue(static_cast<int>(one.verdict.verdict));
    query.addBindValue(TextOf(one.verdict.why));
    query.addBindValue(one.verdict.worst);
    query.addBindValue(one.photo.id);
    query.addBindValue(one.kept.id);
    database.Run(query);
  }
  transaction.Commit();
}

}  // namespace Zenvora::Lumidex::Host
