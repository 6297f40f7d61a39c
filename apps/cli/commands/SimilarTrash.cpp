#include "SimilarJobs.h"

#include <cli/session/OpenJournal.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/Question.h>
#include <cli/terminal/Words.h>

#include <algorithm>
#include <set>
#include <unordered_map>

namespace Zenvora::Lumidex::Cli {

namespace {

/// What a catalogue knows of photos beside their files: tags and albums, which would be lost with a copy.
class PhotoNotes {
 public:
  explicit PhotoNotes(const Host::Catalogue& catalogue) {
    for (const auto& [photo, tags] : catalogue.PhotoTags()) {
      for (const Host::Tag& tag : tags) {
        notes_[photo].insert("tag " + std::to_string(static_cast<int>(tag.type)) + tag.name.toStdString());
      }
    }
    for (const Host::StoredAlbum& album : catalogue.Albums()) {
      for (const QString& photo : album.photoIds) {
        notes_[photo.toStdString()].insert("album " + album.id.toStdString());
      }
    }
  }

  bool HasMore(const Host::PhotoRecord& photo, const Host::PhotoRecord& kept) const {
    const auto ours = notes_.find(photo.id.toStdString());
    if (ours == notes_.end()) {
      return false;
    }
    const auto theirs = notes_.find(kept.id.toStdString());
    return std::any_of(ours->second.begin(), ours->second.end(), [&](const std::string& note) {
      return theirs == notes_.end() || theirs->second.count(note) == 0;
    });
  }

 private:
  std::unordered_map<std::string, std::set<std::string>> notes_;
};

TrashView Plan(const SimilarView& view, const SimilarArguments& arguments) {
  const auto choice = arguments.alike ? Host::TrashChoice::SameOrAlike : Host::TrashChoice::Same;
  const Host::Catalogue catalogue(view.catalogue, Host::Catalogue::Mode::ReadOnly);
  const PhotoNotes notes(catalogue);
  std::set<ioPath> folders;
  for (const Host::PhotoRecord& photo : catalogue.Photos()) {
    folders.insert(photo.path.parent_path());
  }
  const auto hasMore = [&notes](const Host::PhotoRecord& photo, const Host::PhotoRecord& kept) {
    return notes.HasMore(photo, kept);
  };
  TrashView trash = MakeTrashView(Host::PlanTrash(view.groups, choice, hasMore, folders), arguments.dryRun);
  trash.alike = arguments.alike;
  return trash;
}

bool Confirm(const SimilarView& view, const TrashView& trash, Session& session) {
  std::string facts;
  for (const Host::SuggestedGroup& group : view.groups) {
    facts += GroupText(group, &trash);
  }
  return Ask(session.console, facts + AlikeText(trash) + StaysText(trash), TrashQuestionText(trash),
             session.interrupted);
}

void Move(TrashView& trash, Session& session) {
  OpenJournal journal(session);
  {
    Progress progress(session.console, Say(Words::tr("Moving")), Say(Words::tr("photos", "of so many")));
    trash.result = journal.Get().Trash().Run(
        QStringLiteral("move similar photos to the trash"), trash.plan.photos, session.interrupted,
        [&progress](std::size_t done, std::size_t total) { progress.Update(done, total); });
  }
  if (trash.result.files > 0) {
    journal.Prune();
    trash.canBeUndone = journal.CanUndoLast();
  }
}

}  // namespace

void TrashCopies(const SimilarArguments& arguments, Session& session, SimilarView& view) {
  TrashView& trash = view.trash.emplace(Plan(view, arguments));
  if (trash.dryRun || trash.plan.photos.empty()) {
    return;
  }
  if (!arguments.yes) {
    trash.asked = true;
    trash.declined = !Confirm(view, trash, session);
    ThrowIfInterrupted(Say(Words::tr("Interrupted. Nothing was moved.")).c_str());
  }
  if (!trash.declined) {
    Move(trash, session);
    view.cancelled = trash.result.cancelled;
  }
}

ExitCode JudgeTrash(const TrashView& trash) {
  if (trash.declined) {
    return ExitCode::Findings;
  }
  const bool allStay = std::all_of(trash.plan.stays.begin(), trash.plan.stays.end(),
                                   [](const Host::TrashStay& stay) { return stay.isRule; });
  if (allStay && trash.result.findings.empty()) {
    return ExitCode::Done;
  }
  const bool anyMoves = trash.dryRun ? !trash.plan.photos.empty() : trash.result.files > 0;
  return anyMoves ? ExitCode::Partly : ExitCode::Failed;
}

}  // namespace Zenvora::Lumidex::Cli
