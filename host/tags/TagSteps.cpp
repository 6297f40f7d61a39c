#include <host/catalogue/CatalogueRows.h>
#include <host/tags/TagSteps.h>

#include <set>
#include <utility>

namespace Zenvora::Lumidex::Host {

std::optional<qlonglong> TagSteps::FindNumber(const Tag& tag) const {
  QSqlQuery query = database_.Run("SELECT number FROM tags WHERE type = ? AND name = ?",
                                  {static_cast<int>(tag.type), NotNull(tag.name)});
  return database_.Next(query) ? std::optional(query.value(0).toLongLong()) : std::nullopt;
}

qlonglong TagSteps::FindOrMake(const Tag& tag) const {
  if (const std::optional<qlonglong> known = FindNumber(tag)) {
    return *known;
  }
  QSqlQuery query = database_.Run("INSERT INTO tags (type, name) VALUES (?, ?)",
                                  {static_cast<int>(tag.type), NotNull(tag.name)});
  return query.lastInsertId().toLongLong();
}

/// False when it was so already.
bool TagSteps::Set(qlonglong photo, qlonglong tag, bool wanted) const {
  QSqlQuery query = database_.Run(wanted ? "INSERT OR IGNORE INTO photo_tags (photo, tag) VALUES (?, ?)"
                                         : "DELETE FROM photo_tags WHERE photo = ? AND tag = ?",
                                  {photo, tag});
  return query.numRowsAffected() > 0;
}

/// Notes for the step what that changed. Returns how many photos have other tags now.
std::size_t TagSteps::Apply(qlonglong step, const TagWishes& wishes) const {
  std::vector<std::pair<qlonglong, bool>> changes;
  for (const Tag& tag : wishes.add) {
    changes.emplace_back(FindOrMake(tag), true);
  }
  for (const Tag& tag : wishes.remove) {
    if (const std::optional<qlonglong> number = FindNumber(tag)) {
      changes.emplace_back(*number, false);
    }
  }
  QSqlQuery find = database_.Prepare("SELECT number FROM photos WHERE path = ?");
  QSqlQuery note =
      database_.Prepare("INSERT OR REPLACE INTO tag_changes (step, photo, tag, added) VALUES (?, ?, ?, ?)");
  std::set<qlonglong> changed;
  for (const ioPath& path : wishes.photos) {
    find.addBindValue(PathBytes(path));
    database_.Run(find);
    if (!database_.Next(find)) {
      continue;
    }
    const qlonglong photo = find.value(0).toLongLong();
    for (const auto& [tag, wanted] : changes) {
      if (Set(photo, tag, wanted)) {
        changed.insert(photo);
        note.addBindValue(step);
        note.addBindValue(photo);
        note.addBindValue(tag);
        note.addBindValue(wanted ? 1 : 0);
        database_.Run(note);
      }
    }
  }
  return changed.size();
}

/// Returns of how many photos.
std::size_t TagSteps::ReverseRows(qlonglong step, bool redo) const {
  struct Change {
    qlonglong photo;
    qlonglong tag;
    bool added;
  };
  std::vector<Change> changes;
  QSqlQuery query = database_.Run("SELECT photo, tag, added FROM tag_changes WHERE step = ?", {step});
  while (database_.Next(query)) {
    changes.push_back({query.value(0).toLongLong(), query.value(1).toLongLong(), query.value(2).toBool()});
  }
  std::set<qlonglong> photos;
  for (const Change& change : changes) {
    Set(change.photo, change.tag, change.added == redo);
    photos.insert(change.photo);
  }
  return photos.size();
}

UndoResult TagSteps::Run(const QString& name, const TagWishes& wishes) {
  UndoResult result;
  result.name = name;
  journal_.HoldRoom();
  WriteTransaction transaction(journal_.Database());
  const qlonglong step = journal_.Begin(StepType::Tags, name, 0, {});
  result.files = Apply(step, wishes);
  if (result.files == 0) {
    return result;
  }
  journal_.Close(step, result.files);
  transaction.Commit();
  journal_.DropUndone();
  return result;
}

UndoResult TagSteps::Reverse(StepRow& step, bool redo, const std::atomic<bool>& /*cancelled*/,
                             const UndoProgress& /*progress*/) {
  UndoResult result;
  result.name = step.name;
  WriteTransaction transaction(journal_.Database());
  result.files = ReverseRows(step.number, redo);
  journal_.SetState(step.number, redo ? State::Done : State::Undone);
  transaction.Commit();
  return result;
}

}  // namespace Zenvora::Lumidex::Host
