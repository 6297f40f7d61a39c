#include "JournalPaths.h"

#include <host/base/PathText.h>
#include <host/base/SymbolicLinks.h>
#include <host/catalogue/CatalogueRows.h>
#include <host/catalogue/LinkRows.h>
#include <host/catalogue/MoveRows.h>
#include <host/catalogue/StepState.h>

#include <map>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

/// By the bytes of the names.
using Names = std::unordered_map<std::string, std::string>;

ioPath PathOfBytes(const std::string& bytes) {
  return ioPath(bytes);
}

std::string BytesOf(const ioPath& path) {
  return PathBytes(path).toStdString();
}

/// One walk over steps, away from the present.
class Walk {
 public:
  Walk(const CatalogueDatabase& database, Names moved, bool backwards)
      : database_(database), moved_(std::move(moved)), backwards_(backwards) {}

  void Run() {
    // What was given up stands all the same.
    QSqlQuery query =
        backwards_ ? database_.Run(
                         "SELECT number, kind, moves FROM steps WHERE state IN (?, ?) ORDER BY number DESC",
                         {Stored(State::Done), Stored(State::GivenUp)})
                   : database_.Run("SELECT number, kind, moves FROM steps WHERE state = ? ORDER BY number",
                                   {Stored(State::Undone)});
    std::vector<Step> steps;
    while (database_.Next(query)) {
      steps.push_back({query.value(0).toLongLong(), static_cast<StepType>(query.value(1).toInt()),
                       query.value(2).toByteArray()});
    }
    query.finish();
    for (const Step& step : steps) {
      switch (step.kind) {
        case StepType::Rename:
          RewriteMoves(step);
          break;
        case StepType::Edit:
          RewriteChanges(step.number);
          break;
        case StepType::Trash:
          RewriteColumn("SELECT number, kept FROM trashed WHERE step = ?",
                        "UPDATE trashed SET kept = ? WHERE number = ?", step.number);
          break;
        case StepType::Import:
          RewriteColumn("SELECT number, path FROM imported WHERE step = ?",
                        "UPDATE imported SET path = ? WHERE number = ?", step.number);
          break;
        default:
          break;
      }
    }
  }

 private:
  struct Step {
    qlonglong number = 0;
    StepType kind = StepType::Unknown;
    QByteArray moves;
  };

  /// Follows a photo through a move from `near`, its name on the side of the present, to `far`. True when
  /// they changed.
  bool Pass(ioPath& near, ioPath& far) {
    const auto moved = moved_.find(BytesOf(near));
    if (moved == moved_.end()) {
      return false;
    }
    const ioPath now = PathOfBytes(moved->second);
    folders_.emplace(near.parent_path(), now.parent_path());
    const std::string before = BytesOf(far);
    const bool isSameFolder = near.parent_path() == far.parent_path();
    moved_.erase(moved);
    near = now;
    if (isSameFolder) {
      far = now.parent_path() / far.filename();
    }
    moved_[before] = BytesOf(far);
    return true;
  }

  void RewriteMoves(const Step& step) {
    std::vector<FileMove> moves = UnpackMoves(step.moves);
    bool changed = false;
    folders_.clear();
    for (std::size_t i = 0; i < moves.size(); ++i) {
      FileMove& move = moves[backwards_ ? moves.size() - 1 - i : i];
      changed = (backwards_ ? Pass(move.to, move.from) : Pass(move.from, move.to)) || changed;
    }
    if (changed) {
      database_.Run("UPDATE steps SET moves = ? WHERE number = ?", {PackMoves(moves), step.number});
      RewriteLinks(step.number);
    }
  }

  /// Links that moved along with the folder of the photos.
  void RewriteLinks(qlonglong step) {
    for (const LinkChange& change : LinkRows(database_).Links(step)) {
      if (ReadSymbolicLink(change.link)) {
        continue;
      }
      for (const auto& [former, now] : folders_) {
        if (!IsAtOrBelow(change.link, former)) {
          continue;
        }
        const ioPath link = now / ioPath(change.link.native().lexically_relative(former.native()));
        const auto text = ReadSymbolicLink(link);
        if (text == change.before || text == change.after) {
          LinkRows(database_).Follow(step, change, link);
          break;
        }
      }
    }
  }

  void RewriteChanges(qlonglong step) {
    struct Change {
      qlonglong number;
      ioPath path;
      ioPath staging;
      bool adopted;
    };
    QSqlQuery query = database_.Run("SELECT number, path, side, adopted FROM changes WHERE step = ?", {step});
    std::vector<Change> changes;
    while (database_.Next(query)) {
      changes.push_back({query.value(0).toLongLong(), PathOf(query.value(1)), PathOf(query.value(2)),
                         query.value(3).toBool()});
    }
    query.finish();
    QSqlQuery store = database_.Prepare(
        "UPDATE changes SET path = ?, side = ?, kept_ending = coalesce(kept_ending, ?) WHERE number = ?");
    for (Change& change : changes) {
      bool changed = false;
      // What is kept was named by it, and stays where it is.
      const QString ending = QString::fromStdString(change.path.extension().utf8string());
      if (change.adopted) {
        changed = backwards_ ? Pass(change.staging, change.path) : Pass(change.path, change.staging);
      } else if (const auto moved = moved_.find(BytesOf(change.path)); moved != moved_.end()) {
        change.path = PathOfBytes(moved->second);
        changed = true;
      }
      if (changed) {
        store.addBindValue(PathBytes(change.path));
        store.addBindValue(PathBytes(change.staging));
        store.addBindValue(NotNull(ending));
        store.addBindValue(change.number);
        database_.Run(store);
      }
    }
  }

  void RewriteColumn(const char* select, const char* update, qlonglong step) {
    QSqlQuery query = database_.Run(select, {step});
    std::vector<std::pair<qlonglong, std::string>> found;
    while (database_.Next(query)) {
      const auto moved = moved_.find(query.value(1).toByteArray().toStdString());
      if (moved != moved_.end()) {
        found.emplace_back(query.value(0).toLongLong(), moved->second);
      }
    }
    query.finish();
    QSqlQuery store = database_.Prepare(update);
    for (const auto& [number, path] : found) {
      store.addBindValue(QByteArray::fromStdString(path));
      store.addBindValue(number);
      database_.Run(store);
    }
  }

  const CatalogueDatabase& database_;
  Names moved_;
  const bool backwards_;
  /// Of the photos of a step: where they were, and where they are.
  std::map<ioPath, ioPath> folders_;
};

}  // namespace

void JournalPaths::Add(const ioPath& from, const ioPath& to) {
  moved_[BytesOf(from)] = BytesOf(to);
}

void JournalPaths::Rewrite(const CatalogueDatabase& database) const {
  if (!moved_.empty()) {
    Walk(database, moved_, true).Run();
    Walk(database, moved_, false).Run();
  }
}

}  // namespace Zenvora::Lumidex::Host
