#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/catalogue/CatalogueDatabase.h>

#include <QByteArray>

#include <optional>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A path as the tables hold it: bytes, since a file name on Linux need not be text, with one separator, so
/// that the bytes compare.
QByteArray PathBytes(const ioPath& path);
ioPath PathOf(const QVariant& bytes);

/// The bytes that the paths of everything below a folder begin with, and the first bytes behind all of those.
std::pair<QByteArray, QByteArray> RangeBelow(const ioPath& folder);

/// A date as the tables hold it, NULL when it is invalid. The text of a date sorts as the date does.
QVariant TakenText(const QDateTime& taken);
QDateTime TakenOf(const QString& text);

/// A null text would be NULL, which the tables do not take.
QString NotNull(const QString& text);

/// What a scan takes in of a photo today. To be raised with each thing more: it makes scans read again what
/// they read with a lower number.
constexpr int kReading = 3;

/// NULL when there is none.
QVariant LatitudeOf(const PhotoRecord& photo);
QVariant LongitudeOf(const PhotoRecord& photo);

/// The columns of a photo that `PhotoOf` reads, of the table `photos` as `p`.
constexpr char kPhotoColumns[] =
    "p.id, p.path, p.size, p.modified_ns, p.taken, p.taken_source, p.camera, p.latitude, p.longitude";
constexpr int kPhotoColumnCount = 9;
/// A photo that is not lost, from the current row, whose first columns are those.
PhotoRecord PhotoOf(const QSqlQuery& row);

/// Gives photos new paths, one after the other, within the caller's transaction. What is not in the catalogue
/// is skipped; a folder of which it has nothing, at one look. A lost photo that the catalogue has under a
/// new path gets the path that became free.
class PhotoPathUpdate {
 public:
  explicit PhotoPathUpdate(const CatalogueDatabase& database);
  void Move(const ioPath& from, const ioPath& to);

 private:
  struct Folder {
    QByteArray start;  ///< Of the paths in it.
    bool hasPhotos = false;
  };

  bool MayConcern(const ioPath& from, const QByteArray& source, const QByteArray& target);
  Folder LookAt(const ioPath& folder) const;
  bool Set(const QByteArray& from, const QByteArray& to);

  const CatalogueDatabase& database_;
  QSqlQuery set_;
  /// Of the last move: as a rule they are all in one.
  std::optional<Folder> folder_;
};

/// Adds new photos under new ids and stores of known ones what their files say now, within the caller's
/// transaction.
void StorePhotoRows(const CatalogueDatabase& database, const std::vector<PhotoRecord>& photos);

/// A statement that stores what a photo's file says and clears its lost mark: first to be bound with
/// `BindFacts`, then with what `end` asks for.
QSqlQuery PreparePhotoUpdate(const CatalogueDatabase& database, const char* end);
void BindFacts(QSqlQuery& query, const PhotoRecord& photo);

/// Stores what a photo's file says now, if the catalogue has the photo, within the caller's transaction.
void UpdatePhotoRow(const CatalogueDatabase& database, const PhotoRecord& photo);

}  // namespace Zenvora::Lumidex::Host
