#include <host/base/PathText.h>
#include <host/catalogue/CatalogueRows.h>

#include <zenvora/strandel/PhotoFacts.h>
#include <zenvora/tavolin/Uuid.h>

#include <string>

namespace Zenvora::Lumidex::Host {

namespace {

/// `start`: with the separator behind the folder.
bool IsDirectlyIn(const QByteArray& start, const QByteArray& path) {
  return path.startsWith(start) && path.indexOf(kSeparator, start.size()) < 0;
}

}  // namespace

ioPath PathOf(const QVariant& bytes) {
  return ioPath(bytes.toByteArray().toStdString());
}

std::pair<QByteArray, QByteArray> RangeBelow(const ioPath& folder) {
  QByteArray first = PathBytes(folder);
  if (!first.endsWith(kSeparator)) {
    first += kSeparator;
  }
  QByteArray behind = first;
  behind[behind.size() - 1] = kSeparator + 1;
  return {first, behind};
}

QVariant TakenText(const QDateTime& taken) {
  const QString day = taken.date().toString(Qt::ISODate);
  if (!taken.isValid() || day.isEmpty()) {
    return QVariant(QVariant::String);
  }
  return day + taken.time().toString(QStringLiteral("'T'HH:mm:ss.zzz"));
}

QDateTime TakenOf(const QString& text) {
  constexpr int kDayLength = 10;
  return Strandel::CameraTime(QDate::fromString(text.left(kDayLength), Qt::ISODate),
                              QTime::fromString(text.mid(kDayLength + 1), QStringLiteral("HH:mm:ss.zzz")));
}

QString NotNull(const QString& text) {
  return text.isNull() ? QStringLiteral("") : text;
}

QVariant LatitudeOf(const PhotoRecord& photo) {
  return photo.position ? QVariant(photo.position->latitude) : QVariant(QVariant::Double);
}

QVariant LongitudeOf(const PhotoRecord& photo) {
  return photo.position ? QVariant(photo.position->longitude) : QVariant(QVariant::Double);
}

PhotoRecord PhotoOf(const QSqlQuery& row) {
  PhotoRecord photo;
  photo.id = row.value(0).toString();
  photo.path = PathOf(row.value(1));
  photo.size = row.value(2).toULongLong();
  photo.modifiedNs = row.value(3).toLongLong();
  photo.taken = TakenOf(row.value(4).toString());
  photo.takenSource = static_cast<DateSource>(row.value(5).toInt());
  photo.camera = row.value(6).toString();
  if (!row.value(7).isNull() && !row.value(8).isNull()) {
    photo.position = PhotoPosition{row.value(7).toDouble(), row.value(8).toDouble()};
  }
  return photo;
}

PhotoPathUpdate::PhotoPathUpdate(const CatalogueDatabase& database)
    : database_(database), set_(database.Prepare("UPDATE OR IGNORE photos SET path = ? WHERE path = ?")) {}

void PhotoPathUpdate::Move(const ioPath& from, const ioPath& to) {
  const QByteArray source = PathBytes(from);
  const QByteArray target = PathBytes(to);
  if (!MayConcern(from, source, target) || Set(source, target)) {
    return;
  }
  // No file had that name when the photo got it, so a record there is of a photo that is gone.
  const QByteArray aside = target + '\0';
  if (Set(target, aside)) {
    Set(source, target);
    Set(aside, source);
  }
}

bool PhotoPathUpdate::MayConcern(const ioPath& from, const QByteArray& source, const QByteArray& target) {
  if (!folder_ || !IsDirectlyIn(folder_->start, source)) {
    folder_ = LookAt(from.parent_path());
  }
  if (!IsDirectlyIn(folder_->start, target)) {
    // It may bring a photo to a folder that had none.
    folder_.reset();
    return true;
  }
  return folder_->hasPhotos;
}

PhotoPathUpdate::Folder PhotoPathUpdate::LookAt(const ioPath& folder) const {
  const auto [first, behind] = RangeBelow(folder);
  QSqlQuery query =
      database_.Run("SELECT EXISTS (SELECT 1 FROM photos WHERE path >= ? AND path < ?)", {first, behind});
  return {first, database_.Next(query) && query.value(0).toBool()};
}

bool PhotoPathUpdate::Set(const QByteArray& from, const QByteArray& to) {
  set_.addBindValue(to);
  set_.addBindValue(from);
  database_.Run(set_);
  return set_.numRowsAffected() > 0;
}

void BindFacts(QSqlQuery& query, const PhotoRecord& photo) {
  query.addBindValue(static_cast<qlonglong>(photo.size));
  query.addBindValue(static_cast<qlonglong>(photo.modifiedNs));
  query.addBindValue(TakenText(photo.taken));
  query.addBindValue(static_cast<int>(photo.takenSource));
  query.addBindValue(NotNull(photo.camera));
  query.addBindValue(LatitudeOf(photo));
  query.addBindValue(LongitudeOf(photo));
  query.addBindValue(kReading);
  for (const QByteArray* const digest : {&photo.trace.edges, &photo.trace.tail, &photo.trace.content}) {
    query.addBindValue(digest->isEmpty() ? QVariant(QVariant::ByteArray) : QVariant(*digest));
  }
  query.addBindValue(photo.trace.cameraId.isEmpty() ? QVariant(QVariant::String)
                                                    : QVariant(photo.trace.cameraId));
}

void StorePhotoRows(const CatalogueDatabase& database, const std::vector<PhotoRecord>& photos) {
  QSqlQuery query = database.Prepare(
      "INSERT INTO photos (id, path, size, modified_ns, taken, taken_source, camera, latitude, longitude,"
      " reading, edges, tail, content, camera_id) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"
      " ON CONFLICT (path) DO UPDATE SET size = excluded.size, modified_ns = excluded.modified_ns,"
      " taken = excluded.taken, taken_source = excluded.taken_source, camera = excluded.camera,"
      " latitude = excluded.latitude, longitude = excluded.longitude, reading = excluded.reading,"
      " edges = excluded.edges, tail = excluded.tail, content = excluded.content,"
      " camera_id = excluded.camera_id, lost = 0");
  for (const PhotoRecord& photo : photos) {
    query.addBindValue(Tavolin::GenerateUuid());
    query.addBindValue(PathBytes(photo.path));
    BindFacts(query, photo);
    database.Run(query);
  }
}

QSqlQuery PreparePhotoUpdate(const CatalogueDatabase& database, const char* end) {
  return database.Prepare((std::string("UPDATE photos SET size = ?, modified_ns = ?, taken = ?,"
                                       " taken_source = ?, camera = ?, latitude = ?, longitude = ?,"
                                       " reading = ?, edges = ?, tail = ?, content = ?, camera_id = ?,"
                                       " lost = 0") +
                           end)
                              .c_str());
}

void UpdatePhotoRow(const CatalogueDatabase& database, const PhotoRecord& photo) {
  QSqlQuery query = PreparePhotoUpdate(database, " WHERE path = ?");
  BindFacts(query, photo);
  query.addBindValue(PathBytes(photo.path));
  database.Run(query);
}

const char* TagTypeName(TagType type) {
  switch (type) {
    case TagType::Own:
      break;
    case TagType::System:
      return "system";
    case TagType::Icon:
      return "icon";
    case TagType::Automatic:
      return "automatic";
  }
  return "own";
}
}  // namespace Zenvora::Lumidex::Host
