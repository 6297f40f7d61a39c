#include <host/catalogue/AlbumRows.h>
#include <host/catalogue/CatalogueRows.h>

#include <zenvora/tavolin/Uuid.h>

#include <unordered_set>

namespace Zenvora::Lumidex::Host {

namespace {

/// The photos' numbers, each once. Throws for ids that are not in the catalogue.
std::vector<qlonglong> NumbersOf(const CatalogueDatabase& database, const Album& proposal) {
  QSqlQuery query = database.Prepare("SELECT number FROM photos WHERE id = ?");
  std::vector<qlonglong> numbers;
  std::unordered_set<qlonglong> taken;
  for (const QString& id : proposal.GetPhotoIds()) {
    query.addBindValue(id);
    database.Run(query);
    if (!database.Next(query)) {
      database.Fail("it knows no photo with the id \"" + id.toStdString() + "\", which the album \"" +
                    proposal.GetModel().GetName().toStdString() + "\" holds");
    }
    const qlonglong number = query.value(0).toLongLong();
    if (taken.insert(number).second) {
      numbers.push_back(number);
    }
  }
  return numbers;
}

}  // namespace

std::optional<qlonglong> FindAlbum(const CatalogueDatabase& database, const char* sql, const QString& text) {
  QSqlQuery query = database.Run(sql, {text});
  return database.Next(query) ? std::optional(query.value(0).toLongLong()) : std::nullopt;
}

std::optional<qlonglong> FindAlbumById(const CatalogueDatabase& database, const QString& id) {
  return FindAlbum(database, "SELECT number FROM albums WHERE id = ?", id);
}

QVariant DayText(const QDate& day) {
  return day.isValid() ? QVariant(day.toString(Qt::ISODate)) : QVariant(QVariant::String);
}

qlonglong InsertAlbum(const CatalogueDatabase& database, const QString& id, const QString& name,
                      const QVariant& firstDay) {
  QSqlQuery query = database.Run("INSERT INTO albums (id, name, first_day) VALUES (?, ?, ?)",
                                 {id, NotNull(name), firstDay});
  return query.lastInsertId().toLongLong();
}

void StoreAttribute(const CatalogueDatabase& database, qlonglong album, int attribute, const QString& value) {
  database.Run("INSERT OR REPLACE INTO album_attributes (album, attribute, value) VALUES (?, ?, ?)",
               {album, attribute, NotNull(value)});
}

qlonglong NextPosition(const CatalogueDatabase& database, qlonglong album) {
  QSqlQuery query =
      database.Run("SELECT coalesce(max(position) + 1, 0) FROM album_photos WHERE album = ?", {album});
  database.Next(query);
  return query.value(0).toLongLong();
}

bool AddMember(const CatalogueDatabase& database, qlonglong album, qlonglong position, qlonglong photo) {
  QSqlQuery query =
      database.Run("INSERT OR IGNORE INTO album_photos (album, position, photo) VALUES (?, ?, ?)",
                   {album, position, photo});
  return query.numRowsAffected() > 0;
}

AcceptedAlbum AcceptProposal(const CatalogueDatabase& database, const Album& proposal) {
  AcceptedAlbum accepted;
  const std::vector<qlonglong> photos = NumbersOf(database, proposal);
  const QString name = NotNull(proposal.GetModel().GetName());
  qlonglong album = 0;
  QSqlQuery known = database.Run("SELECT number, id FROM albums WHERE name = ?", {name});
  if (database.Next(known)) {
    album = known.value(0).toLongLong();
    accepted.result.albumId = known.value(1).toString();
  } else {
    accepted.result.albumId = Tavolin::GenerateUuid();
    accepted.result.created = true;
    album = InsertAlbum(database, accepted.result.albumId, name,
                        DayText(proposal.GetModel().GetDateTime().date()));
    for (const auto& [attribute, value] : proposal.GetAttributes()) {
      StoreAttribute(database, album, static_cast<int>(attribute), value);
    }
  }
  known.finish();
  qlonglong position = NextPosition(database, album);
  for (const qlonglong photo : photos) {
    if (AddMember(database, album, position, photo)) {
      accepted.gained.emplace_back(position++, photo);
    }
  }
  accepted.result.photosAdded = static_cast<int>(accepted.gained.size());
  return accepted;
}

}  // namespace Zenvora::Lumidex::Host
