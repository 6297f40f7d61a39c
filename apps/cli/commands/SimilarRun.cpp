#include "SimilarRun.h"

#include "SimilarReport.h"

#include <cli/session/OpenJournal.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/Question.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>
#include <cli/views/SimilarView.h>
#include <host/catalogue/Catalogue.h>
#include <host/similar/SimilarJudging.h>

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <unordered_map>
#include <unordered_set>

namespace Zenvora::Lumidex::Cli {

namespace {

std::string VerbOf(Host::SimilarProgress::Step step) {
  switch (step) {
    case Host::SimilarProgress::Step::Analysing:
      return Say(Words::tr("Analysing"));
    case Host::SimilarProgress::Step::Grouping:
      return Say(Words::tr("Grouping"));
    case Host::SimilarProgress::Step::Checking:
      return Say(Words::tr("Checking"));
    case Host::SimilarProgress::Step::Measuring:
      return Say(Words::tr("Measuring"));
    case Host::SimilarProgress::Step::Reading:
      return Say(Words::tr("Reading"));
    case Host::SimilarProgress::Step::Comparing:
      return Say(Words::tr("Comparing"));
  }
  return "";
}

ioPath ExistingCatalogue(const Session& session) {
  const ioPath file = session.CatalogueFile();
  if (!file.exists()) {
    throw Failure("no-catalogue",
                  "There is no catalogue " + file.utf8string() + " yet. Run: lumidex scan DIR");
  }
  return file;
}

bool HasOneOf(const Host::SimilarGroup& group, const std::vector<ioPath>& photos) {
  return std::any_of(group.members.begin(), group.members.end(),
                     [&photos](const Host::SimilarMember& member) {
                       return std::find(photos.begin(), photos.end(), member.photo.path) != photos.end();
                     });
}

[[noreturn]] void ThrowNotCompared(const ioPath& photo) {
  throw Failure("unknown-photo",
                photo.utf8string() +
                    " is not among the photos that are compared. \"lumidex scan\" adds photos to the "
                    "catalogue, and \"lumidex similar --not-compared\" lists those that cannot be compared.");
}

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

/// One run of the command.
class SimilarRun {
 public:
  SimilarRun(const SimilarArguments& arguments, const Host::PhotoAnalyser& analyser, Session& session)
      : arguments_(arguments),
        session_(session),
        analyser_(analyser),
        mode_(arguments.check ? Host::Catalogue::Mode::ReadOnly : Host::Catalogue::Mode::ReadWrite),
        similar_(ExistingCatalogue(session), Host::NameOf(analyser_), mode_),
        verdicts_(session.CatalogueFile(), mode_) {
    view_.catalogue = session.CatalogueFile();
    view_.recovered = session.recovered;
    view_.analyser = analyser.Name();
  }

  ExitCode Run() {
    if (arguments_.check) {
      return Check();
    }
    if (arguments_.anew) {
      similar_.ClearClusters();
    }
    Update();
    if (!arguments_.explain.empty()) {
      return Explain();
    }
    Gather();
    Report();
    if (arguments_.trash && !view_.cancelled) {
      Trash();
      view_.recovered = session_.recovered;
    }
    session_.Count(ItemType::Photo, view_.photos, view_.groups.size());
    session_.output.Print(session_.globals.json ? SimilarDocument(view_) : SimilarText(view_));
    if (view_.cancelled) {
      session_.console.Note(Say(view_.trash ? Words::tr("Interrupted. What was moved is in the trash.")
                                            : Words::tr("Interrupted. Run the same command to continue.")));
      return ExitCode::Interrupted;
    }
    return Graver(Judge(), JudgeTrash());
  }

 private:
  void Update() {
    Host::AnalysisOptions options;
    options.threads = arguments_.threads;
    options.cancel = &session_.interrupted;
    std::optional<Progress> progress;
    Host::SimilarProgress last;
    const Host::SimilarProgressHandler show = [&](const Host::SimilarProgress& now) {
      if (!progress || now.step != last.step) {
        progress.emplace(session_.console, VerbOf(now.step), Say(Words::tr("photos", "of so many")));
      }
      last = now;
      progress->Update(now.done, now.total);
    };
    const Host::SimilarUpdateResult result = Host::UpdateSimilar(similar_, analyser_, options, show);
    view_.analysed = result.analysed;
    view_.cancelled = result.cancelled;
    for (const auto& [photo, cause] : result.unreadable) {
      view_.problems.push_back({photo, cause, true});
    }
    found_.insert(result.notComparable.begin(), result.notComparable.end());
    if (!view_.cancelled) {
      view_.cancelled = Host::JudgeSimilar(similar_, verdicts_, options, show).cancelled;
    }
  }

  void Gather() {
    view_.photos = similar_.CountClustered();
    for (const auto& [photo, cause] : similar_.Problems()) {
      view_.problems.push_back({photo.path, cause, arguments_.notCompared || found_.count(photo.path) > 0});
    }
    std::vector<ioPath> only;
    for (const std::string& photo : arguments_.only) {
      only.push_back(KnownName(AbsolutePath(photo)));
    }
    for (Host::SuggestedGroup& group :
         Host::SuggestGroups(similar_, verdicts_, static_cast<std::size_t>(arguments_.least))) {
      if (only.empty() || HasOneOf(group.group, only)) {
        view_.groups.push_back(std::move(group));
      }
    }
  }

  void Report() {
    if (!arguments_.report.empty() && !view_.cancelled) {
      const ioPath report = AbsolutePath(arguments_.report);
      view_.missingPictures = WriteSimilarReport(report, view_, session_);
      view_.report = report;
    }
  }

  void Trash() {
    const auto choice = arguments_.alike ? Host::TrashChoice::SameOrAlike : Host::TrashChoice::Same;
    const PhotoNotes notes(Host::Catalogue(view_.catalogue, Host::Catalogue::Mode::ReadOnly));
    const auto hasMore = [&notes](const Host::PhotoRecord& photo, const Host::PhotoRecord& kept) {
      return notes.HasMore(photo, kept);
    };
    TrashView& trash =
        view_.trash.emplace(MakeTrashView(Host::PlanTrash(view_.groups, choice, hasMore), arguments_.dryRun));
    trash.alike = arguments_.alike;
    if (trash.dryRun || trash.plan.photos.empty()) {
      return;
    }
    if (!arguments_.yes) {
      trash.asked = true;
      trash.declined = !Confirm(trash);
      ThrowIfInterrupted(Say(Words::tr("Interrupted. Nothing was moved.")).c_str());
    }
    if (!trash.declined) {
      MoveToTrash(trash);
    }
  }

  bool Confirm(const TrashView& trash) {
    std::string facts;
    for (const Host::SuggestedGroup& group : view_.groups) {
      facts += GroupText(group, &trash);
    }
    return Ask(session_.console, facts + AlikeText(trash) + StaysText(trash), TrashQuestionText(trash),
               session_.interrupted);
  }

  void MoveToTrash(TrashView& trash) {
    OpenJournal journal(session_);
    {
      Progress progress(session_.console, Say(Words::tr("Moving")), Say(Words::tr("photos", "of so many")));
      trash.result = journal.Get().Trash().Run(
          QStringLiteral("move similar photos to the trash"), trash.plan.photos, session_.interrupted,
          [&progress](std::size_t done, std::size_t total) { progress.Update(done, total); });
    }
    view_.cancelled = trash.result.cancelled;
    if (trash.result.files > 0) {
      journal.Prune();
      trash.canBeUndone = journal.CanUndoLast();
    }
  }

  /// The name by which the catalogue knows the photo: scans follow links to folders, edits also to files.
  ioPath KnownName(const ioPath& photo) const {
    std::error_code ignored;
    const ioPath folder = photo.parent_path().canonical(ignored);
    for (const ioPath& name :
         {photo, folder.empty() ? photo : folder / photo.filename(), photo.canonical(ignored)}) {
      if (!name.empty() && similar_.Explain(name, name)) {
        return name;
      }
    }
    ThrowNotCompared(photo);
  }

  ExitCode Explain() {
    if (view_.cancelled) {
      ThrowIfInterrupted(Say(Words::tr("Interrupted. Run the same command to continue.")).c_str());
    }
    ExplainView view;
    view.first.path = KnownName(AbsolutePath(arguments_.explain[0]));
    view.second.path = KnownName(AbsolutePath(arguments_.explain[1]));
    const std::optional<Host::SimilarityFacts> facts = similar_.Explain(view.first.path, view.second.path);
    if (!facts) {
      // Somebody began anew just now.
      ThrowNotCompared(view.first.path);
    }
    view.facts = *facts;
    const std::vector<Host::SuggestedGroup> groups = Host::SuggestGroups(similar_, verdicts_, 2);
    const std::optional<Host::PhotoRecord> first = FindPlace(groups, view.first);
    const std::optional<Host::PhotoRecord> second = FindPlace(groups, view.second);
    // As the list has it, where the list compares the two.
    view.secondIsKept = !view.first.isKept;
    if (first && second) {
      view.verdict = view.secondIsKept ? Host::JudgePair(verdicts_, *first, *second)
                                       : Host::JudgePair(verdicts_, *second, *first);
    }
    session_.output.Print(session_.globals.json ? ExplainDocument(view) : ExplainText(view));
    return ExitCode::Done;
  }

  /// The photo, with its place in the list; none when it is lost or has changed since it was looked at.
  std::optional<Host::PhotoRecord> FindPlace(const std::vector<Host::SuggestedGroup>& groups,
                                             ExplainedPhoto& place) const {
    const auto isIt = [&place](const Host::SimilarMember& member) { return member.photo.path == place.path; };
    for (const Host::SuggestedGroup& shown : groups) {
      const std::vector<Host::SimilarMember>& members = shown.group.members;
      const auto found = std::find_if(members.begin(), members.end(), isIt);
      if (found != members.end()) {
        const auto index = static_cast<std::size_t>(found - members.begin());
        place.group = shown.group.number;
        place.isKept = index == shown.keeper.index;
        place.verdict = shown.verdicts[index].verdict;
        return found->photo;
      }
    }
    for (const Host::SimilarGroup& alone : similar_.Groups(1)) {
      if (isIt(alone.members.front())) {
        return alone.members.front().photo;
      }
    }
    return std::nullopt;
  }

  ExitCode Check() {
    const std::vector<std::string> differences = similar_.Check();
    session_.output.Print(session_.globals.json ? CheckDocument(view_.catalogue, differences)
                                                : CheckText(differences));
    return differences.empty() ? ExitCode::Done : ExitCode::Findings;
  }

  ExitCode Judge() const {
    if (view_.photos == 0 && view_.problems.empty()) {
      session_.console.Note(Say(Words::tr("The catalogue holds no photos yet. Run: lumidex scan DIR")));
      return ExitCode::Findings;
    }
    return view_.problems.empty() && view_.missingPictures == 0 ? ExitCode::Done : ExitCode::Partly;
  }

  ExitCode JudgeTrash() const {
    if (!view_.trash) {
      return ExitCode::Done;
    }
    const TrashView& trash = *view_.trash;
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

  const SimilarArguments& arguments_;
  Session& session_;
  const Host::PhotoAnalyser& analyser_;
  const Host::Catalogue::Mode mode_;
  Host::SimilarPhotos similar_;
  Host::VerdictStore verdicts_;
  SimilarView view_;
  /// Not comparable, as this run found out.
  std::unordered_set<ioPath> found_;
};

}  // namespace

ExitCode ShowSimilar(const SimilarArguments& arguments, const Host::PhotoAnalyser& analyser,
                     Session& session) {
  return SimilarRun(arguments, analyser, session).Run();
}

}  // namespace Zenvora::Lumidex::Cli
