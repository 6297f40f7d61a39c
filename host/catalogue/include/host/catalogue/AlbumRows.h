#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/catalogue/CatalogueDatabase.h>

#include <zenvora/lumidex/Album.h>

#include <QDate>
#include <QString>
#include <QVariant>

#include <optional>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// The number of the album that `sql`, which binds one text, selects; none: there is no such album.
std::optional<qlonglong> FindAlbum(const CatalogueDatabase& database, const char* sql, const QString& text);
std::optional<qlonglong> FindAlbumById(const CatalogueDatabase& database, const QString& id);

/// A day as the tables hold it, NULL when it is invalid.
QVariant DayText(const QDate& day);

/// Returns the number of the new album.
qlonglong InsertAlbum(const CatalogueDatabase& database, const QString& id, const QString& name,
                      const QVariant& firstDay);
void StoreAttribute(const CatalogueDatabase& database, qlonglong album, int attribute, const QString& value);

/// Behind all photos of the album; 0: it has none.
qlonglong NextPosition(const CatalogueDatabase& database, qlonglong album);
/// False when the photo is in the album, or the position is taken.
bool AddMember(const CatalogueDatabase& database, qlonglong album, qlonglong position, qlonglong photo);

/// What accepting one album changed in the tables.
struct AcceptedAlbum {
  AcceptResult result;
  /// The photos that it gained: their positions and their numbers.
  std::vector<std::pair<qlonglong, qlonglong>> gained;
};

/// Stores a proposal under its name, as `Catalogue::AcceptAlbum` says, within the caller's transaction.
AcceptedAlbum AcceptProposal(const CatalogueDatabase& database, const Album& proposal);

}  // namespace Zenvora::Lumidex::Host
