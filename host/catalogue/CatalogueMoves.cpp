#include "JournalPaths.h"

#include <host/catalogue/CatalogueMoves.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/StepState.h>

#include <zenvora/core/FileState.h>
#include <zenvora/tavolin/Uuid.h>

#include <algorithm>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

std::string TracedPhotos(const char* condition) {
  return std::string("SELECT ") + kPhotoColumns +
         ", p.number, p.lost, p.edges, p.tail, p.content, p.camera_id FROM photos p WHERE " + condition;
}

TracedPhoto TracedOf(const QSqlQuery& row) {
  TracedPhoto photo;
  photo.record = PhotoOf(row);
  int column = kPhotoColumnCount;
  photo.number = row.value(column++).toLongLong();
  photo.record.lost = row.value(column++).toBool();
  photo.record.trace.edges = row.value(column++).toByteArray();
  photo.record.trace.tail = row.value(column++).toByteArray();
  photo.record.trace.content = row.value(column++).toByteArray();
  photo.record.trace.cameraId = row.value(column).toString();
  return photo;
}

/// Gives rows new paths, of which others may be old ones.
class PathExchange {
 public:
  explicit PathExchange(const CatalogueDatabase& database)
      : database_(database),
        pathOf_(database.Prepare("SELECT path FROM photos WHERE number = ?")),
        holderOf_(database.Prepare("SELECT number, lost FROM photos WHERE path = ?")),
        set_(database.Prepare("UPDATE photos SET path = ? WHERE number = ?")),
        lose_(database.Prepare("UPDATE photos SET path = ?, lost = 1 WHERE number = ?")) {}

  bool IsAt(qlonglong number, const ioPath& path) {
    pathOf_.addBindValue(number);
    database_.Run(pathOf_);
    const bool is = database_.Next(pathOf_) && pathOf_.value(0).toByteArray() == PathBytes(path);
    pathOf_.finish();
    return is;
  }

  void Set(qlonglong number, const QByteArray& path) {
    set_.addBindValue(path);
    set_.addBindValue(number);
    database_.Run(set_);
  }

  void Lose(qlonglong number, const QByteArray& path) {
    lose_.addBindValue(path);
    lose_.addBindValue(number);
    database_.Run(lose_);
  }

  struct Holder {
    qlonglong number = 0;
    bool lost = false;
  };
  std::optional<Holder> HolderOf(const QByteArray& path) {
    holderOf_.addBindValue(path);
    database_.Run(holderOf_);
    std::optional<Holder> holder;
    if (database_.Next(holderOf_)) {
      holder = Holder{holderOf_.value(0).toLongLong(), holderOf_.value(1).toBool()};
    }
    holderOf_.finish();
    return holder;
  }

 private:
  const CatalogueDatabase& database_;
  QSqlQuery pathOf_;
  QSqlQuery holderOf_;
  QSqlQuery set_;
  QSqlQuery lose_;
};

/// No file has it, so that no other photo is taken for the one that is lost.
QByteArray NameOfLost(const QByteArray& path) {
  return path + ".lost-" + Tavolin::GenerateUuid().left(8).toLatin1();
}

}  // namespace

CatalogueMoves::CatalogueMoves(const CatalogueDatabase& database)
    : database_(database),
      hasTraces_(database.Value("SELECT EXISTS (SELECT 1 FROM photos WHERE edges IS NOT NULL)").toBool()),
      hasFormerTraces_(
          database.Value("SELECT EXISTS (SELECT 1 FROM photos WHERE length(edges) = 16)").toBool()),
      at_(database.Prepare(TracedPhotos("p.path = ?").c_str())),
      withEdges_(database.Prepare(TracedPhotos("p.edges = ? ORDER BY p.path").c_str())),
      withCameraId_(
          database.Prepare(TracedPhotos("p.camera_id = ? AND p.tail = ? ORDER BY p.path").c_str())) {}

std::vector<TracedPhoto> CatalogueMoves::Find(QSqlQuery& query) const {
  database_.Run(query);
  std::vector<TracedPhoto> photos;
  while (database_.Next(query)) {
    photos.push_back(TracedOf(query));
  }
  query.finish();
  return photos;
}

std::optional<TracedPhoto> CatalogueMoves::At(const ioPath& path) {
  at_.addBindValue(PathBytes(path));
  std::vector<TracedPhoto> photos = Find(at_);
  return photos.empty() ? std::nullopt : std::make_optional(std::move(photos.front()));
}

std::vector<TracedPhoto> CatalogueMoves::WithEdges(const ContentTrace& trace) {
  if (trace.edges.isEmpty()) {
    return {};
  }
  withEdges_.addBindValue(trace.edges);
  std::vector<TracedPhoto> photos = Find(withEdges_);
  const auto isOther = [this, &trace](const TracedPhoto& photo) {
    return !IsSameContent(photo.record.trace, trace) || IsInTrash(photo.number);
  };
  photos.erase(std::remove_if(photos.begin(), photos.end(), isOther), photos.end());
  return photos;
}

std::vector<TracedPhoto> CatalogueMoves::WithCameraId(const ContentTrace& trace) {
  if (trace.cameraId.isEmpty() || trace.tail.isEmpty()) {
    return {};
  }
  withCameraId_.addBindValue(trace.cameraId);
  withCameraId_.addBindValue(trace.tail);
  std::vector<TracedPhoto> photos = Find(withCameraId_);
  const auto isOther = [this](const TracedPhoto& photo) { return IsInTrash(photo.number); };
  photos.erase(std::remove_if(photos.begin(), photos.end(), isOther), photos.end());
  return photos;
}

/// Undo brings it back to where it was: it must not be taken for what is elsewhere now.
bool CatalogueMoves::IsInTrash(qlonglong photo) {
  if (!trashed_) {
    QSqlQuery query = database_.Run(
        "SELECT photo, place FROM trashed WHERE photo IS NOT NULL AND state IN (?, ?, ?, ?)",
        {Stored(State::Doing), Stored(State::Done), Stored(State::Undoing), Stored(State::Redoing)});
    trashed_.emplace();
    while (database_.Next(query)) {
      trashed_->emplace(query.value(0).toLongLong(), PathOf(query.value(1)));
    }
  }
  const auto place = trashed_->find(photo);
  // Whoever took it out of the trash by hand has moved it.
  return place != trashed_->end() && QueryFile(place->second).kind != FileState::Kind::Missing;
}

std::unordered_map<std::string, QString> CatalogueMoves::Volumes() const {
  QSqlQuery query = database_.Prepare("SELECT path, id FROM volumes");
  database_.Run(query);
  std::unordered_map<std::string, QString> volumes;
  while (database_.Next(query)) {
    volumes[query.value(0).toByteArray().toStdString()] = query.value(1).toString();
  }
  return volumes;
}

void CatalogueMoves::StoreVolumes(const std::unordered_map<std::string, QString>& volumes) const {
  const auto known = Volumes();
  WriteTransaction transaction(database_);
  {
    QSqlQuery query = database_.Prepare("INSERT OR REPLACE INTO volumes (path, id) VALUES (?, ?)");
    for (const auto& [path, id] : volumes) {
      const auto same = known.find(path);
      if (same == known.end() || same->second != id) {
        query.addBindValue(QByteArray::fromStdString(path));
        query.addBindValue(NotNull(id));
        database_.Run(query);
      }
    }
  }
  transaction.Commit();
}

std::vector<PhotoRecord> CatalogueMoves::SomeBelow(const ioPath& folder, int most) const {
  QSqlQuery query =
      database_.Prepare((std::string("SELECT ") + kPhotoColumns +
                         " FROM photos p WHERE p.path >= ? AND p.path < ? AND p.lost = 0 LIMIT ?")
                            .c_str());
  const auto [first, behind] = RangeBelow(folder);
  query.addBindValue(first);
  query.addBindValue(behind);
  query.addBindValue(most);
  database_.Run(query);
  std::vector<PhotoRecord> photos;
  while (database_.Next(query)) {
    photos.push_back(PhotoOf(query));
  }
  return photos;
}

CatalogueMoves::Outcome CatalogueMoves::Follow(const std::vector<FollowedPhoto>& photos,
                                               const std::vector<MovedName>& shotFiles,
                                               const std::vector<PhotoRecord>& others) const {
  Outcome outcome;
  WriteTransaction transaction(database_);
  {
    PathExchange paths(database_);
    std::vector<const FollowedPhoto*> moving;
    for (const FollowedPhoto& photo : photos) {
      if (paths.IsAt(photo.number, photo.from)) {
        moving.push_back(&photo);
      }
    }
    // First all names become free that others may want, then they are given.
    for (const FollowedPhoto* const photo : moving) {
      paths.Set(photo->number, PathBytes(photo->from) + '\0');
    }
    QSqlQuery facts = PreparePhotoUpdate(database_, ", path = ? WHERE number = ?");
    for (const FollowedPhoto* const photo : moving) {
      const QByteArray to = PathBytes(photo->record.path);
      if (const auto holder = paths.HolderOf(to)) {
        paths.Lose(holder->number, NameOfLost(to));
        outcome.lost += holder->lost ? 0 : 1;
      }
      BindFacts(facts, photo->record);
      facts.addBindValue(to);
      facts.addBindValue(photo->number);
      database_.Run(facts);
    }
    StorePhotoRows(database_, others);
    outcome.moved = moving.size();
    JournalPaths journal;
    for (const FollowedPhoto* const photo : moving) {
      journal.Add(photo->from, photo->record.path);
    }
    for (const auto& [from, to] : shotFiles) {
      journal.Add(from, to);
    }
    journal.Rewrite(database_);
  }
  transaction.Commit();
  return outcome;
}

bool IsSameContent(const ContentTrace& left, const ContentTrace& right) {
  return !left.edges.isEmpty() && left.edges == right.edges && left.content == right.content;
}

bool IsSamePicture(const ContentTrace& left, const ContentTrace& right) {
  return IsSameContent(left, right) || (!left.tail.isEmpty() && left.tail == right.tail &&
                                        !left.cameraId.isEmpty() && left.cameraId == right.cameraId);
}

}  // namespace Zenvora::Lumidex::Host
