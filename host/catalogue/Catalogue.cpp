#include "SystemCatalogue.h"

#include <host/catalogue/AlbumRows.h>
#include <host/catalogue/Catalogue.h>
#include <host/catalogue/CatalogueDatabase.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/CatalogueSchema.h>

#include <zenvora/app/UserFolders.h>
#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/PrivateFiles.h>
#include <zenvora/strandel/PhotoFacts.h>
#include <zenvora/tavolin/Uuid.h>

#include <filesystem>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace fs = std::filesystem;

namespace {

/// Refuses names that SQLite would only stumble over, or wait for.
void RequireUsablePlace(const ioPath& file, Catalogue::Mode mode) {
  if (const std::string fault = file.name_fault(); !fault.empty()) {
    ThrowCatalogueError(file, "its name " + fault);
  }
  const FileState state = QueryFile(file);
  switch (state.kind) {
    case FileState::Kind::File:
      return;
    case FileState::Kind::Missing:
      if (mode == Catalogue::Mode::ReadOnly) {
        ThrowCatalogueError(file, "it does not exist; run a scan to make it");
      }
      return;
    case FileState::Kind::Folder:
      ThrowCatalogueError(file, "it is a folder");
    case FileState::Kind::Other:
      ThrowCatalogueError(file, "it is not a regular file");
    case FileState::Kind::Loop:
    case FileState::Kind::Unknown:
      ThrowCatalogueError(file, ErrorText(state.error));
  }
}

void MakeFolderOf(const ioPath& file) {
  const ioPath folder = file.parent_path();
  if (const std::error_code error = folder.empty() ? std::error_code() : MakePrivateFolders(folder)) {
    ThrowCatalogueError(file, "its folder cannot be created (" + ErrorText(error) + ")");
  }
}

/// Also what a former program made is for nobody else. Whose files it is not cannot close them, which is no
/// reason not to use them.
void CloseToOthers(const ioPath& file) {
  if (file == Catalogue::DefaultFile()) {
    MakePrivate(file.parent_path());
  }
  for (const char* const end : {"", "-wal", "-shm", "-journal"}) {
    MakePrivate(ioPath(file.utf8string() + end));
  }
}

std::unique_ptr<CatalogueDatabase> OpenForWriting(const ioPath& file) {
  MakeFolderOf(file);
  RequireWritable(file);
  if (QueryFile(file).kind == FileState::Kind::Missing) {
    MakeNewCatalogue(file);
  } else if (file.file_size() > 0) {
    RequireOwnFile(file);
  }
  CloseToOthers(file);
  auto database = std::make_unique<CatalogueDatabase>(file, CatalogueDatabase::Access::ReadWrite,
                                                      Catalogue::kBusyTimeoutMs);
  BringUpToDate(*database);
  return database;
}

std::unique_ptr<CatalogueDatabase> OpenForReading(const ioPath& file) {
  using Access = CatalogueDatabase::Access;
  RequireOwnFile(file);
  auto database = std::make_unique<CatalogueDatabase>(file, Access::QueryOnly, Catalogue::kBusyTimeoutMs);
  int code = 0;
  if (!database->TryExecute("SELECT count(*) FROM sqlite_master", code)) {
    // Without the files beside it a catalogue can still be read where nobody can write it. A log with content
    // would be missed then.
    if (ioPath(file.utf8string() + "-wal").file_size() > 0) {
      database->Execute("SELECT count(*) FROM sqlite_master");
    }
    database = std::make_unique<CatalogueDatabase>(file, Access::Frozen, Catalogue::kBusyTimeoutMs);
  }
  return database;
}

}  // namespace

std::unique_ptr<CatalogueDatabase> OpenAsItIs(const ioPath& file) {
  RequireUsablePlace(file, Catalogue::Mode::ReadOnly);
  return OpenForReading(file);
}

std::unique_ptr<CatalogueDatabase> OpenCatalogue(const ioPath& file, Catalogue::Mode mode) {
  if (mode == Catalogue::Mode::ReadWrite) {
    RequireUsablePlace(file, mode);
    return OpenForWriting(file);
  }
  auto database = OpenAsItIs(file);
  RequireCurrentVersion(*database);
  return database;
}

const char* DateSourceName(DateSource source) {
  switch (source) {
    case DateSource::None:
      break;
    case DateSource::Original:
      return "original";
    case DateSource::Digitised:
      return "digitised";
    case DateSource::FileTime:
      return "fileTime";
    case DateSource::Xmp:
      return "xmp";
    case DateSource::Iptc:
      return "iptc";
  }
  return "none";
}

class Catalogue::Impl {
 public:
  Impl(const ioPath& file, Mode mode) : database_(OpenCatalogue(file, mode)) {}

  const CatalogueDatabase& Database() const { return *database_; }

 private:
  std::unique_ptr<CatalogueDatabase> database_;
};

Catalogue::Catalogue(const ioPath& file, Mode mode) : impl_(std::make_unique<Impl>(file, mode)) {}

Catalogue::~Catalogue() = default;

ioPath Catalogue::DefaultFile() {
  return App::FolderOfUser(App::UserFolder::Data) / "lumidex" / "catalogue.sqlite";
}

const ioPath& Catalogue::File() const {
  return impl_->Database().File();
}

const CatalogueDatabase& Catalogue::Database() const {
  return impl_->Database();
}

std::unordered_map<ioPath, FileStamp> Catalogue::Stamps(const ioPath& folder) const {
  const CatalogueDatabase& database = impl_->Database();
  QSqlQuery query = database.Prepare(
      "SELECT path, size, modified_ns, lost, reading FROM photos WHERE path = ? OR (path >= ? AND path < ?)");
  const auto [first, behind] = RangeBelow(folder);
  query.addBindValue(PathBytes(folder));
  query.addBindValue(first);
  query.addBindValue(behind);
  database.Run(query);
  std::unordered_map<ioPath, FileStamp> stamps;
  while (database.Next(query)) {
    stamps[PathOf(query.value(0))] = {query.value(1).toULongLong(), query.value(2).toLongLong(),
                                      query.value(3).toBool(), query.value(4).toInt() < kReading};
  }
  return stamps;
}

void Catalogue::Store(const std::vector<PhotoRecord>& batch) {
  const CatalogueDatabase& database = impl_->Database();
  if (batch.empty()) {
    return;
  }
  WriteTransaction transaction(database);
  StorePhotoRows(database, batch);
  transaction.Commit();
}

int Catalogue::MarkLost(const std::vector<ioPath>& paths) {
  const CatalogueDatabase& database = impl_->Database();
  if (paths.empty()) {
    return 0;
  }
  int marked = 0;
  WriteTransaction transaction(database);
  {
    QSqlQuery query = database.Prepare("UPDATE photos SET lost = 1 WHERE path = ? AND lost = 0");
    for (const ioPath& path : paths) {
      query.addBindValue(PathBytes(path));
      database.Run(query);
      marked += query.numRowsAffected();
    }
  }
  transaction.Commit();
  return marked;
}

std::size_t Catalogue::CountPhotos() const {
  return static_cast<std::size_t>(impl_->Database().Value("SELECT count(*) FROM photos").toULongLong());
}

std::vector<PhotoRecord> Catalogue::Photos() const {
  const CatalogueDatabase& database = impl_->Database();
  QSqlQuery query =
      database.Prepare((std::string("SELECT ") + kPhotoColumns +
                        " FROM photos p WHERE p.lost = 0 ORDER BY p.taken IS NULL, p.taken, p.path")
                           .c_str());
  database.Run(query);
  std::vector<PhotoRecord> photos;
  while (database.Next(query)) {
    photos.push_back(PhotoOf(query));
  }
  return photos;
}

std::vector<TagUse> Catalogue::Tags() const {
  const CatalogueDatabase& database = impl_->Database();
  QSqlQuery query = database.Prepare(
      "SELECT t.type, t.name, count(p.number) FROM tags t LEFT JOIN photo_tags pt ON pt.tag = t.number"
      " LEFT JOIN photos p ON p.number = pt.photo AND p.lost = 0"
      " GROUP BY t.number ORDER BY t.type, t.name");
  database.Run(query);
  std::vector<TagUse> tags;
  while (database.Next(query)) {
    tags.push_back({{static_cast<TagType>(query.value(0).toInt()), query.value(1).toString()},
                    static_cast<std::size_t>(query.value(2).toULongLong())});
  }
  return tags;
}

std::unordered_map<std::string, std::vector<Tag>> Catalogue::PhotoTags() const {
  const CatalogueDatabase& database = impl_->Database();
  QSqlQuery query = database.Prepare(
      "SELECT p.id, t.type, t.name FROM photo_tags pt JOIN photos p ON p.number = pt.photo"
      " JOIN tags t ON t.number = pt.tag WHERE p.lost = 0 ORDER BY p.number, t.type, t.name");
  database.Run(query);
  std::unordered_map<std::string, std::vector<Tag>> tags;
  while (database.Next(query)) {
    tags[query.value(0).toString().toStdString()].push_back(
        {static_cast<TagType>(query.value(1).toInt()), query.value(2).toString()});
  }
  return tags;
}

AcceptResult Catalogue::AcceptAlbum(const Album& proposal) {
  WriteTransaction transaction(impl_->Database());
  const AcceptResult result = AcceptProposal(impl_->Database(), proposal).result;
  if (result.created || result.photosAdded > 0) {
    transaction.Commit();
  }
  return result;
}

std::vector<StoredAlbum> Catalogue::Albums() const {
  const CatalogueDatabase& database = impl_->Database();
  // One statement, so that what another process adds meanwhile is seen whole or not at all.
  QSqlQuery query = database.Prepare(
      "SELECT a.number, a.id, a.name, a.first_day, p.id FROM albums a"
      " LEFT JOIN album_photos m ON m.album = a.number LEFT JOIN photos p ON p.number = m.photo"
      " ORDER BY a.first_day IS NULL, a.first_day, a.name, a.number, m.position");
  database.Run(query);
  std::vector<StoredAlbum> albums;
  qlonglong current = -1;
  while (database.Next(query)) {
    if (albums.empty() || query.value(0).toLongLong() != current) {
      current = query.value(0).toLongLong();
      albums.push_back({query.value(1).toString(),
                        query.value(2).toString(),
                        QDate::fromString(query.value(3).toString(), Qt::ISODate),
                        {}});
    }
    if (!query.value(4).isNull()) {
      albums.back().photoIds.push_back(query.value(4).toString());
    }
  }
  return albums;
}

}  // namespace Zenvora::Lumidex::Host
