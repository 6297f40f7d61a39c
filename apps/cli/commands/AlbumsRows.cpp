#include "AlbumsRows.h"

#include <algorithm>
#include <unordered_set>

namespace Zenvora::Lumidex::Cli {

namespace {

QDate LastDayOf(const std::vector<const Host::PhotoRecord*>& photos) {
  QDate last;
  for (const Host::PhotoRecord* const photo : photos) {
    last = std::max(last, photo->taken.date());
  }
  return last;
}

std::size_t CountMissing(const std::vector<QString>& ids, const std::vector<QString>& stored) {
  std::unordered_set<std::string> known;
  for (const QString& id : stored) {
    known.insert(id.toStdString());
  }
  return static_cast<std::size_t>(std::count_if(
      ids.begin(), ids.end(), [&known](const QString& id) { return known.count(id.toStdString()) == 0; }));
}

void MarkAccepted(AlbumRow& row, const std::vector<QString>& ids,
                  const std::vector<Host::StoredAlbum>& stored) {
  const auto match = std::find_if(stored.begin(), stored.end(),
                                  [&row](const auto& album) { return album.name == row.name; });
  row.accepted = match != stored.end();
  row.notAccepted = row.accepted ? CountMissing(ids, match->photoIds) : 0;
}

}  // namespace

std::vector<AlbumRow> RowsOf(const std::vector<Album>& proposals,
                             const std::vector<Host::StoredAlbum>& stored, const PhotoIndex& photos) {
  std::vector<AlbumRow> rows;
  for (const Album& proposal : proposals) {
    AlbumRow row;
    row.name = proposal.GetModel().GetName();
    row.firstDay = proposal.GetModel().GetDateTime().date();
    row.photos = photos.Find(proposal.GetPhotoIds());
    row.lastDay = LastDayOf(row.photos);
    MarkAccepted(row, proposal.GetPhotoIds(), stored);
    rows.push_back(std::move(row));
  }
  return rows;
}

std::vector<AlbumRow> RowsOf(const std::vector<Host::StoredAlbum>& stored, const PhotoIndex& photos) {
  std::vector<AlbumRow> rows;
  for (const Host::StoredAlbum& album : stored) {
    AlbumRow row;
    row.name = album.name;
    row.firstDay = album.firstDay;
    row.photos = photos.Find(album.photoIds);
    row.lastDay = LastDayOf(row.photos);
    row.accepted = true;
    rows.push_back(std::move(row));
  }
  return rows;
}

}  // namespace Zenvora::Lumidex::Cli
