#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/catalogue/CatalogueDatabase.h>

#include <QByteArray>

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A photo of the catalogue, and by what it is known again.
struct TracedPhoto {
  qlonglong number = 0;
  /// Of its fields those that tell which photo it is; its position is not among them.
  PhotoRecord record;
};

/// A photo whose file has another name than the catalogue has, and what the file says now.
struct FollowedPhoto {
  qlonglong number = 0;
  ioPath from;
  PhotoRecord record;
};

/// A former and a present name.
using MovedName = std::pair<ioPath, ioPath>;

/// The part of the catalogue by which a scan knows photos again under other names. The database must outlive
/// it, and so must the thread that it belongs to.
class CatalogueMoves {
 public:
  explicit CatalogueMoves(const CatalogueDatabase& database);

  /// False when no photo can be known again, as in a catalogue that is empty.
  bool HasTraces() const { return hasTraces_; }
  /// True when some are of the form that catalogues up to format 6 hold, which is shorter.
  bool HasFormerTraces() const { return hasFormerTraces_; }
  std::optional<TracedPhoto> At(const ioPath& path);
  /// Those with the same edges. Photos that are in the trash are not among them.
  std::vector<TracedPhoto> WithEdges(const ContentTrace& trace);
  /// Those that are the same picture by what the camera calls it.
  std::vector<TracedPhoto> WithCameraId(const ContentTrace& trace);

  /// Volumes by the folders where they were when photos were found on them.
  std::unordered_map<std::string, QString> Volumes() const;
  /// Photos at or below a folder that are not lost, some of them.
  std::vector<PhotoRecord> SomeBelow(const ioPath& folder, int most) const;

  struct Outcome {
    std::size_t moved = 0;
    std::size_t lost = 0;  ///< Newly marked, since their names are those of others now.
  };
  /// Gives photos the new names of their files, with all that belongs to them, and stores other photos: all
  /// of it or, when it throws, nothing. A photo that the catalogue has under one of the new names and that is
  /// not given another is lost, under a name that no file has. What another process changed meanwhile is
  /// skipped.
  /// Steps of the journal follow the photos, and `shotFiles`, which moved along with them.
  Outcome Follow(const std::vector<FollowedPhoto>& photos, const std::vector<MovedName>& shotFiles,
                 const std::vector<PhotoRecord>& others) const;

  /// Notes where volumes are.
  void StoreVolumes(const std::unordered_map<std::string, QString>& volumes) const;

 private:
  std::vector<TracedPhoto> Find(QSqlQuery& query) const;
  bool IsInTrash(qlonglong photo);

  const CatalogueDatabase& database_;
  const bool hasTraces_;
  const bool hasFormerTraces_;
  QSqlQuery at_;
  QSqlQuery withEdges_;
  QSqlQuery withCameraId_;
  std::optional<std::unordered_map<qlonglong, ioPath>> trashed_;
};

}  // namespace Zenvora::Lumidex::Host
