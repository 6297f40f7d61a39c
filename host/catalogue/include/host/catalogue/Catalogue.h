#pragma once

#include <host/base/HostError.h>
#include <host/catalogue/Tags.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/Album.h>

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Where a photo's date came from. The numbers are stored.
enum class DateSource : int { None = 0, Original = 1, Digitised = 2, FileTime = 3, Xmp = 4, Iptc = 5 };
constexpr int kDateSourceCount = 6;

/// "original", "digitised", "xmp", "iptc", "fileTime" or "none": what JSON says.
const char* DateSourceName(DateSource source);

/// Where a photo was taken, in degrees: -90..90, positive to the north, and -180..180, positive to the east.
struct PhotoPosition {
  double latitude = 0;
  double longitude = 0;
};

/// By what a photo is known again under another name, as it was when its file was read. Digests are 16 bytes.
struct ContentTrace {
  QByteArray edges;    ///< Of the size, the first and the last 16 KiB; empty: not read.
  QByteArray tail;     ///< Of the last 16 KiB; empty where these may hold no picture, or say little.
  QByteArray content;  ///< Of all bytes; empty unless the edges say little.
  QString cameraId;    ///< What the camera calls the picture; empty: nothing.
};

/// True when both are of files of the same bytes, as far as anybody can tell without reading them all.
bool IsSameContent(const ContentTrace& left, const ContentTrace& right);
/// True when the picture is the same, and what is said of it may have been changed.
bool IsSamePicture(const ContentTrace& left, const ContentTrace& right);

/// One photo as the catalogue knows it.
struct PhotoRecord {
  QString id;                   ///< Empty in a record that is not stored yet.
  ioPath path;                  ///< Absolute.
  std::uint64_t size = 0;       ///< Bytes.
  std::int64_t modifiedNs = 0;  ///< Modification time, nanoseconds since 1970-01-01 UTC.
  QDateTime taken;              ///< Local time of the camera; invalid: unknown.
  DateSource takenSource = DateSource::None;
  QString camera;  ///< Its model; empty: unknown.
  std::optional<PhotoPosition> position;
  ContentTrace trace;  ///< Only in records that were just read from a file.
  bool lost = false;   ///< The file was missing at the last scan of its folder.
};

/// What a scan compares to see whether a file is unchanged.
struct FileStamp {
  std::uint64_t size = 0;
  std::int64_t modifiedNs = 0;
  bool lost = false;
  bool isOutdated = false;  ///< A former version of the program read the file, and less of it.
};

/// A tag, and how many photos that are not lost have it.
struct TagUse {
  Tag tag;
  std::size_t photos = 0;
};

/// What accepting an album changed.
struct AcceptResult {
  QString albumId;
  bool created = false;
  int photosAdded = 0;
};

/// An album that the user accepted.
struct StoredAlbum {
  QString id;
  QString name;
  QDate firstDay;
  std::vector<QString> photoIds;
};

class CatalogueDatabase;

/// The embedded catalogue: one SQLite file (with its -wal and -shm while open) that holds what is known of
/// the photos and the accepted albums. docs/formats/catalogue.md has its tables.
///
/// Every call is one transaction: a kill at any moment leaves the last finished call. Several processes may
/// use one catalogue at a time; a call waits up to `kBusyTimeoutMs` for another's write, then fails. It never
/// deletes a photo's row: a vanished file is marked lost.
///
/// All functions throw `HostError` naming the catalogue and the cause (read-only, no database, damaged, newer
/// than this program, disk full, busy). They block on the disk. Thread-safety: an object belongs to the
/// thread that opened it (Qt's SQL connections do).
class Catalogue {
 public:
  enum class Mode {
    ReadWrite,  ///< Made with its folders when missing, brought up to date when older.
    ReadOnly,   ///< Must exist. Nothing is written; an older schema is refused with a hint to run a scan.
  };
  static constexpr int kSchemaVersion = 7;
  static constexpr int kBusyTimeoutMs = 10'000;

  Catalogue(const ioPath& file, Mode mode);
  ~Catalogue();
  Catalogue(const Catalogue&) = delete;
  Catalogue& operator=(const Catalogue&) = delete;

  /// lumidex/catalogue.sqlite in the user's data folder (XDG_DATA_HOME on Linux).
  static ioPath DefaultFile();

  const ioPath& File() const;
  /// For the parts of the host that have tables of their own in it.
  const CatalogueDatabase& Database() const;

  /// Stamps of all photos at or below `folder` (absolute, clean), by path.
  std::unordered_map<ioPath, FileStamp> Stamps(const ioPath& folder) const;
  /// Adds new photos under new ids and updates known ones (same path), keeping theirs; the records' own ids
  /// are not read. Clears their lost mark. One transaction.
  void Store(const std::vector<PhotoRecord>& batch);
  /// Marks photos lost. One transaction. Returns how many were not marked before.
  int MarkLost(const std::vector<ioPath>& paths);

  /// Photos in all, lost ones too.
  std::size_t CountPhotos() const;
  /// All photos that are not lost, by date taken, then path.
  std::vector<PhotoRecord> Photos() const;

  /// Stores the album under its name. An album of that name that was accepted before keeps its id and gains
  /// the missing members, at its end; nothing is ever taken out. One transaction. Throws, having stored
  /// nothing, when a member is not in the catalogue.
  AcceptResult AcceptAlbum(const Album& proposal);
  /// Tags that were ever given, by type, then name.
  std::vector<TagUse> Tags() const;
  /// The tags of all photos that are not lost, by photo id; each photo's by type, then name. Photos without
  /// tags are not among them.
  std::unordered_map<std::string, std::vector<Tag>> PhotoTags() const;

  /// Accepted albums by first day, then name.
  std::vector<StoredAlbum> Albums() const;

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace Zenvora::Lumidex::Host
