#include <host/albums/AlbumSteps.h>
#include <host/catalogue/CatalogueRows.h>

#include <optional>

namespace Zenvora::Lumidex::Host {

namespace {

std::string ShownName(const QString& name) {
  return '"' + QString(name).replace(QLatin1Char('\n'), QLatin1String(", ")).toStdString() + '"';
}

}  // namespace

struct AlbumSteps::Change {
  QString id;
  QString name;
  QVariant firstDay;
  bool created = false;
  std::vector<std::pair<int, QString>> attributes;
  std::vector<std::pair<qlonglong, qlonglong>> photos;
};

/// Notes for the step what that changed.
std::vector<AcceptResult> AlbumSteps::Accept(qlonglong step, const std::vector<Album>& proposals) const {
  std::vector<AcceptResult> results;
  for (const Album& proposal : proposals) {
    const AcceptedAlbum accepted = AcceptProposal(database_, proposal);
    if (accepted.result.created || !accepted.gained.empty()) {
      Note(step, proposal, accepted);
    }
    results.push_back(accepted.result);
  }
  return results;
}

void AlbumSteps::Note(qlonglong step, const Album& proposal, const AcceptedAlbum& accepted) const {
  const QString& id = accepted.result.albumId;
  database_.Run(
      "INSERT OR IGNORE INTO album_changes (step, album_id, name, first_day, created) VALUES (?, ?, ?, ?, "
      "?)",
      {step, id, NotNull(proposal.GetModel().GetName()), DayText(proposal.GetModel().GetDateTime().date()),
       accepted.result.created ? 1 : 0});
  QSqlQuery photo = database_.Prepare(
      "INSERT INTO album_change_photos (step, album_id, position, photo) VALUES (?, ?, ?, ?)");
  for (const auto& [position, number] : accepted.gained) {
    photo.addBindValue(step);
    photo.addBindValue(id);
    photo.addBindValue(position);
    photo.addBindValue(number);
    database_.Run(photo);
  }
  if (!accepted.result.created) {
    return;
  }
  QSqlQuery attribute = database_.Prepare(
      "INSERT INTO album_change_attributes (step, album_id, attribute, value) VALUES (?, ?, ?, ?)");
  for (const auto& [key, value] : proposal.GetAttributes()) {
    attribute.addBindValue(step);
    attribute.addBindValue(id);
    attribute.addBindValue(static_cast<int>(key));
    attribute.addBindValue(NotNull(value));
    database_.Run(attribute);
  }
}

std::vector<AlbumSteps::Change> AlbumSteps::ReadChanges(qlonglong step) const {
  std::vector<Change> changes;
  QSqlQuery albums = database_.Run(
      "SELECT album_id, name, first_day, created FROM album_changes WHERE step = ? ORDER BY name", {step});
  while (database_.Next(albums)) {
    changes.push_back({albums.value(0).toString(),
                       albums.value(1).toString(),
                       albums.value(2),
                       albums.value(3).toBool(),
                       {},
                       {}});
  }
  for (Change& change : changes) {
    QSqlQuery photos = database_.Run(
        "SELECT position, photo FROM album_change_photos WHERE step = ? AND album_id = ? ORDER BY position",
        {step, change.id});
    while (database_.Next(photos)) {
      change.photos.emplace_back(photos.value(0).toLongLong(), photos.value(1).toLongLong());
    }
    QSqlQuery attributes =
        database_.Run("SELECT attribute, value FROM album_change_attributes WHERE step = ? AND album_id = ?",
                      {step, change.id});
    while (database_.Next(attributes)) {
      change.attributes.emplace_back(attributes.value(0).toInt(), attributes.value(1).toString());
    }
  }
  return changes;
}

std::size_t AlbumSteps::TakeOut(const Change& change, std::vector<FileFinding>& findings) const {
  const std::optional<qlonglong> album = FindAlbumById(database_, change.id);
  if (!album) {
    return 0;
  }
  std::size_t photos = 0;
  QSqlQuery query = database_.Prepare("DELETE FROM album_photos WHERE album = ? AND photo = ?");
  for (const auto& [position, photo] : change.photos) {
    query.addBindValue(*album);
    query.addBindValue(photo);
    database_.Run(query);
    photos += query.numRowsAffected() > 0 ? 1 : 0;
  }
  if (!change.created) {
    return photos;
  }
  if (NextPosition(database_, *album) > 0) {
    findings.push_back({database_.File(), "The album " + ShownName(change.name) +
                                              " is kept, because photos were added to it later"});
    return photos;
  }
  for (const char* const sql :
       {"DELETE FROM album_attributes WHERE album = ?", "DELETE FROM albums WHERE number = ?"}) {
    database_.Run(sql, {*album});
  }
  return photos;
}

/// With the id and the attributes that it had.
qlonglong AlbumSteps::Make(const Change& change) const {
  const qlonglong album = InsertAlbum(database_, change.id, change.name, change.firstDay);
  for (const auto& [attribute, value] : change.attributes) {
    StoreAttribute(database_, album, attribute, value);
  }
  return album;
}

std::size_t AlbumSteps::BringIn(const Change& change, std::vector<FileFinding>& findings) const {
  std::optional<qlonglong> album = FindAlbumById(database_, change.id);
  if (!album && !change.created) {
    findings.push_back({database_.File(), "The album " + ShownName(change.name) + " no longer exists"});
    return 0;
  }
  if (!album && FindAlbum(database_, "SELECT number FROM albums WHERE name = ?", change.name)) {
    findings.push_back({database_.File(), "Another album has the name " + ShownName(change.name) + " now"});
    return 0;
  }
  if (!album) {
    album = Make(change);
  }
  std::size_t photos = 0;
  for (const auto& [position, photo] : change.photos) {
    // Its place may be another photo's now; it may be in the album itself.
    photos += AddMember(database_, *album, position, photo) ||
                      AddMember(database_, *album, NextPosition(database_, *album), photo)
                  ? 1
                  : 0;
  }
  return photos;
}

/// An album that others filled since stays, with a finding. Returns how many photos went out or came in.
std::size_t AlbumSteps::ReverseRows(qlonglong step, bool redo, std::vector<FileFinding>& findings) const {
  std::size_t photos = 0;
  for (const Change& change : ReadChanges(step)) {
    photos += redo ? BringIn(change, findings) : TakeOut(change, findings);
  }
  return photos;
}

std::vector<AcceptResult> AlbumSteps::Run(const QString& name, const std::vector<Album>& proposals) {
  journal_.HoldRoom();
  WriteTransaction transaction(journal_.Database());
  const qlonglong step = journal_.Begin(StepType::Albums, name, 0, {});
  std::vector<AcceptResult> results = Accept(step, proposals);
  bool anyChange = false;
  qlonglong photos = 0;
  for (const AcceptResult& result : results) {
    anyChange = anyChange || result.created || result.photosAdded > 0;
    photos += result.photosAdded;
  }
  if (anyChange) {
    journal_.Close(step, static_cast<std::size_t>(photos));
    transaction.Commit();
    journal_.DropUndone();
  }
  return results;
}

UndoResult AlbumSteps::Reverse(StepRow& step, bool redo, const std::atomic<bool>& /*cancelled*/,
                               const UndoProgress& /*progress*/) {
  UndoResult result;
  result.name = step.name;
  WriteTransaction transaction(journal_.Database());
  result.files = ReverseRows(step.number, redo, result.findings);
  journal_.SetState(step.number, redo ? State::Done : State::Undone);
  transaction.Commit();
  return result;
}

}  // namespace Zenvora::Lumidex::Host
