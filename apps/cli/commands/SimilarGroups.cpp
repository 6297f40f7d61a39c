#include "SimilarJobs.h"

#include <cli/session/Options.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/Words.h>
#include <host/similar/SimilarJudging.h>

#include <algorithm>
#include <optional>
#include <system_error>
#include <unordered_set>
#include <utility>

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

bool HasOneOf(const Host::SimilarGroup& group, const std::vector<ioPath>& photos) {
  return std::any_of(group.members.begin(), group.members.end(),
                     [&photos](const Host::SimilarMember& member) {
                       return std::find(photos.begin(), photos.end(), member.photo.path) != photos.end();
                     });
}

/// The groups that are asked for, and what cannot be compared.
void Gather(const SimilarStores& stores, const Host::SimilarUpdateResult& update,
            const SimilarArguments& arguments, SimilarView& view) {
  view.analysed = update.analysed;
  view.photos = stores.similar.CountClustered();
  for (const auto& [photo, cause] : update.unreadable) {
    view.problems.push_back({photo, cause, true});
  }
  const std::unordered_set<ioPath> found(update.notComparable.begin(), update.notComparable.end());
  for (const auto& [photo, cause] : stores.similar.Problems()) {
    view.problems.push_back({photo.path, cause, arguments.notCompared || found.count(photo.path) > 0});
  }
  std::vector<ioPath> only;
  for (const std::string& photo : arguments.only) {
    only.push_back(KnownName(stores.similar, AbsolutePath(photo)));
  }
  for (Host::SuggestedGroup& group :
       Host::SuggestGroups(stores.similar, stores.verdicts, static_cast<std::size_t>(arguments.least))) {
    if (only.empty() || HasOneOf(group.group, only)) {
      view.groups.push_back(std::move(group));
    }
  }
}

ExitCode Judge(const SimilarView& view, Session& session) {
  if (view.photos == 0 && view.problems.empty()) {
    session.console.Note(Say(Words::tr("The catalogue holds no photos yet. Run: lumidex scan DIR")));
    return ExitCode::Findings;
  }
  return view.problems.empty() && view.missingPictures == 0 ? ExitCode::Done : ExitCode::Partly;
}

}  // namespace

SimilarStores::SimilarStores(const Session& session, const Host::PhotoAnalyser& by,
                             Host::Catalogue::Mode mode)
    : analyser(by),
      similar(session.ExistingCatalogue(), Host::NameOf(by), mode),
      verdicts(session.CatalogueFile(), mode) {}

Host::SimilarUpdateResult UpdateGroups(SimilarStores& stores, int threads, Session& session) {
  Host::AnalysisOptions options;
  options.threads = threads;
  options.cancel = &session.interrupted;
  std::optional<Progress> progress;
  Host::SimilarProgress last;
  const Host::SimilarProgressHandler show = [&](const Host::SimilarProgress& now) {
    if (!progress || now.step != last.step) {
      progress.emplace(session.console, VerbOf(now.step), Say(Words::tr("photos", "of so many")));
    }
    last = now;
    progress->Update(now.done, now.total);
  };
  Host::SimilarUpdateResult result = Host::UpdateSimilar(stores.similar, stores.analyser, options, show);
  if (!result.cancelled) {
    result.cancelled = Host::JudgeSimilar(stores.similar, stores.verdicts, options, show).cancelled;
  }
  return result;
}

ioPath KnownName(const Host::SimilarPhotos& similar, const ioPath& photo) {
  std::error_code ignored;
  const ioPath folder = photo.parent_path().canonical(ignored);
  for (const ioPath& name :
       {photo, folder.empty() ? photo : folder / photo.filename(), photo.canonical(ignored)}) {
    if (!name.empty() && similar.Explain(name, name)) {
      return name;
    }
  }
  ThrowNotCompared(photo);
}

void ThrowNotCompared(const ioPath& photo) {
  throw Failure("unknown-photo",
                photo.utf8string() +
                    " is not among the photos that are compared. \"lumidex scan\" adds photos to the "
                    "catalogue, and \"lumidex similar --not-compared\" lists those that cannot be compared.");
}

ExitCode ShowGroups(const SimilarStores& stores, const Host::SimilarUpdateResult& update,
                    const SimilarArguments& arguments, Session& session) {
  SimilarView view;
  view.catalogue = session.CatalogueFile();
  view.analyser = stores.analyser.Name();
  view.cancelled = update.cancelled;
  Gather(stores, update, arguments, view);
  if (!arguments.report.empty() && !view.cancelled) {
    view.report = AbsolutePath(arguments.report);
    view.missingPictures = WriteSimilarReport(*view.report, view, session);
  }
  if (arguments.trash && !view.cancelled) {
    TrashCopies(arguments, session, view);
  }
  view.recovered = session.recovered;
  session.Count(ItemType::Photo, view.photos, view.groups.size());
  session.output.Print(session.globals.json ? SimilarDocument(view) : SimilarText(view));
  if (view.cancelled) {
    session.console.Note(Say(view.trash ? Words::tr("Interrupted. What was moved is in the trash.")
                                        : Words::tr("Interrupted. Run the same command to continue.")));
    return ExitCode::Interrupted;
  }
  const ExitCode code = Judge(view, session);
  return view.trash ? Worse(code, JudgeTrash(*view.trash)) : code;
}

ExitCode CheckGroups(const SimilarStores& stores, Session& session) {
  const std::vector<std::string> differences = stores.similar.Check();
  session.output.Print(session.globals.json ? CheckDocument(session.CatalogueFile(), differences)
                                            : CheckText(differences));
  return differences.empty() ? ExitCode::Done : ExitCode::Findings;
}

}  // namespace Zenvora::Lumidex::Cli
