#pragma once

#include <cli/views/AlbumsView.h>
#include <host/catalogue/Catalogue.h>

#include <zenvora/lumidex/Album.h>

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// The photos of the catalogue, found by id.
class PhotoIndex {
 public:
  explicit PhotoIndex(std::vector<Host::PhotoRecord> photos) : photos_(std::move(photos)) {
    for (const Host::PhotoRecord& photo : photos_) {
      byId_.emplace(photo.id.toStdString(), &photo);
    }
  }
  PhotoIndex(const PhotoIndex&) = delete;
  PhotoIndex& operator=(const PhotoIndex&) = delete;

  const std::vector<Host::PhotoRecord>& All() const { return photos_; }

  std::vector<const Host::PhotoRecord*> Find(const std::vector<QString>& ids) const {
    std::vector<const Host::PhotoRecord*> found;
    for (const QString& id : ids) {
      const auto photo = byId_.find(id.toStdString());
      // A member that is lost now is not among the photos.
      if (photo != byId_.end()) {
        found.push_back(photo->second);
      }
    }
    return found;
  }

 private:
  const std::vector<Host::PhotoRecord> photos_;
  std::unordered_map<std::string, const Host::PhotoRecord*> byId_;
};

/// The rows of the table, in the order of the proposals; which of them are accepted, and how far, tell the
/// stored albums.
std::vector<AlbumRow> RowsOf(const std::vector<Album>& proposals,
                             const std::vector<Host::StoredAlbum>& stored, const PhotoIndex& photos);
std::vector<AlbumRow> RowsOf(const std::vector<Host::StoredAlbum>& stored, const PhotoIndex& photos);

}  // namespace Zenvora::Lumidex::Cli
