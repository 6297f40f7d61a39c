#include "Commands.h"
#include "Failure.h"
#include "Interrupt.h"
#include "OpenJournal.h"
#include "Options.h"
#include "Progress.h"
#include "Question.h"
#include "ReportTarget.h"
#include "SimilarView.h"
#include "TerminalText.h"
#include "ValueTexts.h"
#include "Words.h"

#include <host/Catalogue.h>
#include <host/InterfaceTexts.h>
#include <host/ModelAnalyser.h>
#include <host/PhotoAnalysis.h>
#include <host/Report.h>
#include <host/SimilarUpdate.h>

#include <zenvora/app/Application.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <system_error>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr char kDescription[] =
    "Show groups of similar photos: the same picture, or the same moment.\n"
    "\n"
    "Looks at the photos of the catalogue that are new or changed, puts each into\n"
    "the first group that it is like, and tells which photo of a group to keep. A\n"
    "run that is interrupted goes on where it stopped when repeated. Your files are\n"
    "only read, unless --trash asks for more: it shows what would go, and asks.";

constexpr char kFooter[] =
    R"(The numbers before a photo are its score against the middle of its group (1 is
the most; above 0.91 is similar), its pixels and its bytes. Suggested to keep
is the largest picture; of equally large ones the sharpest, then one with the
camera's data, then the earliest.

With --trash these stay, too: other formats of the shot that is kept, raw files
unless a raw file of the group is kept, links, what was changed since the last
scan, what is not like the one to keep itself, and whole groups whose photo to
keep breaks off before the end of its picture. Settings beside a photo (.xmp)
go along with it. "lumidex undo" brings all of it back while it is in the
trash.

Examples:
  lumidex similar
  lumidex similar --min 5                only groups of five and more
  lumidex similar --report similar.html  a page with the pictures side by side
  lumidex similar --explain a.jpg b.jpg  why they are together, or not
  lumidex similar --check                is the catalogue as matching made it?
  lumidex similar --model net.onnx       as a model of yours sees the photos
  lumidex similar --trash --dry-run      what would go to the trash?
  lumidex similar --trash                shows it, asks, and moves it there
  lumidex similar --trash --only a.jpg   of the group of that photo alone

Exit codes: 0 done; 1 the catalogue holds no photos, --check finds a
difference, or the answer to --trash was no; 3 some photos cannot be compared
or moved, or pictures are missing in the report; 4 there is no catalogue, it
cannot be written, a photo of --explain or --only is not in it, the model
cannot be used, the report cannot be written, no photo could be moved, or
nobody can be asked; 130 interrupted, what was moved stays in the trash.)";

struct SimilarArguments {
  int least = 2;
  std::string report;
  std::vector<std::string> explain;
  std::string model;
  std::vector<std::string> only;
  bool trash = false;
  bool yes = false;
  bool dryRun = false;
  bool check = false;
  bool anew = false;
  int threads = 0;
};

std::string FileName(const Host::SimilarMember& member) {
  return member.photo.path.filename().utf8string();
}

std::string VerbOf(Host::SimilarProgress::Step step) {
  switch (step) {
    case Host::SimilarProgress::Step::Analysing:
      return Say(Words::tr("Looking at"));
    case Host::SimilarProgress::Step::Grouping:
      return Say(Words::tr("Grouping"));
    case Host::SimilarProgress::Step::Measuring:
      return Say(Words::tr("Measuring"));
  }
  return "";
}

/// One run of the command.
class SimilarRun {
 public:
  SimilarRun(const SimilarArguments& arguments, const Host::PhotoAnalyser& analyser, Session& session)
      : arguments_(arguments),
        session_(session),
        analyser_(analyser),
        similar_(ExistingCatalogue(session), Host::NameOf(analyser_),
                 arguments.check ? Host::Catalogue::Mode::ReadOnly : Host::Catalogue::Mode::ReadWrite) {
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
      session_.console.Note(Say(view_.trash
                                    ? Words::tr("Interrupted. What was moved is in the trash.")
                                    : Words::tr("Interrupted. The same command goes on from there.")));
      return ExitCode::Interrupted;
    }
    return Graver(Judge(), JudgeTrash());
  }

 private:
  static ioPath ExistingCatalogue(Session& session) {
    const ioPath file = session.CatalogueFile();
    if (!file.exists()) {
      throw Failure("no-catalogue",
                    "There is no catalogue " + file.utf8string() + " yet. Run: lumidex scan DIR");
    }
    return file;
  }

  void Update() {
    Host::AnalysisOptions options;
    options.threads = arguments_.threads;
    options.cancel = &session_.interrupted;
    std::optional<Progress> progress;
    Host::SimilarProgress last;
    const Host::SimilarUpdateResult result =
        Host::UpdateSimilar(similar_, analyser_, options, [&](const Host::SimilarProgress& now) {
          if (!progress || now.step != last.step) {
            progress.emplace(session_.console, VerbOf(now.step), Say(Words::tr("photos", "of so many")));
          }
          last = now;
          progress->Update(now.done, now.total);
        });
    view_.analysed = result.analysed;
    view_.cancelled = result.cancelled;
    view_.problems = result.unreadable;
  }

  void Gather() {
    view_.photos = similar_.CountClustered();
    for (const auto& [photo, problem] : similar_.Problems()) {
      view_.problems.emplace_back(photo.path, problem);
    }
    std::vector<ioPath> only;
    for (const std::string& photo : arguments_.only) {
      only.push_back(KnownName(AbsolutePath(photo)));
    }
    for (Host::SimilarGroup& group : similar_.Groups(static_cast<std::size_t>(arguments_.least))) {
      if (!only.empty() && !HasOneOf(group, only)) {
        continue;
      }
      const Host::KeeperChoice keeper = Host::SuggestKeeper(group.members);
      view_.groups.push_back({std::move(group), keeper});
    }
  }

  static bool HasOneOf(const Host::SimilarGroup& group, const std::vector<ioPath>& photos) {
    return std::any_of(group.members.begin(), group.members.end(),
                       [&photos](const Host::SimilarMember& member) {
                         return std::find(photos.begin(), photos.end(), member.photo.path) != photos.end();
                       });
  }

  void Trash() {
    TrashView& trash = view_.trash.emplace(MakeTrashView(Host::PlanTrash(view_.groups), arguments_.dryRun));
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
    std::size_t number = 0;
    for (const SimilarView::Group& group : view_.groups) {
      facts += GroupText(group, ++number, &trash);
    }
    return Ask(session_.console, facts + StaysText(trash),
               Say(Words::tr("Move %1 to the trash? [y/N]"), {AmountText(trash.plan)}), session_.interrupted);
  }

  void MoveToTrash(TrashView& trash) {
    OpenJournal journal(session_);
    {
      Progress progress(session_.console, Say(Words::tr("Moving")), Say(Words::tr("photos", "of so many")));
      trash.result = journal.Get().MoveToTrash(
          QStringLiteral("move similar photos to the trash"), trash.plan.photos, session_.interrupted,
          [&progress](std::size_t done, std::size_t total) { progress.Update(done, total); });
    }
    view_.cancelled = trash.result.cancelled;
    if (trash.result.files > 0) {
      journal.Prune();
      trash.canBeUndone = journal.CanUndoLast();
    }
  }

  /// The one to keep first.
  static Host::ReportAlbum OnPage(const SimilarView::Group& shown) {
    const std::vector<Host::SimilarMember>& members = shown.group.members;
    const Host::SimilarMember& keeper = members[shown.keeper.index];
    Host::ReportAlbum group;
    const std::string reasons = ReasonsText(shown.keeper);
    const std::string heading = Say(Words::tr("%1 photos like %2", nullptr, Amount(members.size())),
                                    {GroupDigits(members.size()), FileName(keeper)});
    const std::string advice =
        reasons.empty() ? Say(Words::tr("Keep %1", "a file"), {FileName(keeper)})
                        : Say(Words::tr("Keep %1: %2", "a file: why"), {FileName(keeper), reasons});
    group.name = QString::fromStdString(heading + '\n' + advice);
    group.firstDay = keeper.photo.taken.date();
    group.chosen = 0;
    const auto add = [&group](const Host::SimilarMember& member) {
      group.photos.push_back(member.photo);
      const std::string facts =
          Say(Words::tr("%1, %2, score %3", "pixels, size, number"),
              {PixelsText(member.features), SizeText(member.photo.size), ScoreText(member.score)});
      group.captions.push_back(QString::fromStdString(FileName(member) + '\n' + facts));
    };
    add(keeper);
    for (const Host::SimilarMember& member : members) {
      if (&member != &keeper) {
        add(member);
      }
    }
    return group;
  }

  void Report() {
    if (arguments_.report.empty() || view_.cancelled) {
      return;
    }
    const ioPath report = AbsolutePath(arguments_.report);
    Progress progress(session_.console, Say(Words::tr("Drawing")), Say(Words::tr("pictures", "of so many")));
    // Also where the program speaks English to a script.
    const Host::InterfaceTexts pageTexts(App::GetCurrentLocale());
    std::vector<Host::ReportAlbum> groups;
    std::vector<Host::PhotoRecord> photos;
    for (const SimilarView::Group& shown : view_.groups) {
      groups.push_back(OnPage(shown));
      photos.insert(photos.end(), groups.back().photos.begin(), groups.back().photos.end());
    }
    RequireReplaceable(report, photos);
    Host::ReportOptions options;
    options.locale = QString::fromStdString(App::GetCurrentLocale());
    options.title = QCoreApplication::translate("Report", "Similar photos");
    options.words = {
        "group", "groups", QT_TRANSLATE_NOOP("Report", "Groups by year"),
        QT_TRANSLATE_NOOP("Report", "No similar photos"),
        QT_TRANSLATE_NOOP("Report", "Groups appear here once the catalogue holds photos that are alike.")};
    options.cancel = &session_.interrupted;
    view_.missingPictures = Host::WriteReport(report, groups, options, [&progress](int done, int total) {
      progress.Update(static_cast<std::uint64_t>(done), static_cast<std::uint64_t>(total));
    });
    view_.report = report;
  }

  [[noreturn]] static void ThrowNotCompared(const ioPath& photo) {
    throw Failure("unknown-photo", photo.utf8string() +
                                       " is not among the photos that are compared. \"lumidex scan\" takes "
                                       "photos in, and \"lumidex similar\" tells which cannot be compared.");
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
      ThrowIfInterrupted(Say(Words::tr("Interrupted. The same command goes on from there.")).c_str());
    }
    const ioPath first = KnownName(AbsolutePath(arguments_.explain[0]));
    const ioPath second = KnownName(AbsolutePath(arguments_.explain[1]));
    const std::optional<Host::SimilarityFacts> facts = similar_.Explain(first, second);
    if (!facts) {
      // Somebody began anew just now.
      ThrowNotCompared(first);
    }
    const ExplainView view{first, second, *facts};
    session_.output.Print(session_.globals.json ? ExplainDocument(view) : ExplainText(view));
    return ExitCode::Done;
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
  Host::SimilarPhotos similar_;
  SimilarView view_;
};

std::unique_ptr<Host::PhotoAnalyser> AnalyserOf(const SimilarArguments& arguments) {
  if (arguments.model.empty()) {
    return std::make_unique<Host::LayoutAnalyser>();
  }
  if (Host::ModelRuntime().empty()) {
    throw UsageError("--model: this lumidex was built without support for models (LUMIDEX_ONNX)");
  }
  return std::make_unique<Host::ModelAnalyser>(AbsolutePath(arguments.model));
}

/// Before all the work, whether there will be anything to ask or not: a script fails the first time.
void RequireAnswer(const SimilarArguments& arguments, const Session& session) {
  if (!arguments.trash || arguments.yes || arguments.dryRun) {
    return;
  }
  if (session.globals.json) {
    throw UsageError(
        "--trash asks before it moves anything, which --json leaves no place for: add --yes, or "
        "--dry-run");
  }
  if (!CanAsk()) {
    throw Failure(
        "needs-answer",
        "Nothing was moved: --trash asks first, and this is no terminal. With --yes nobody is asked; "
        "--dry-run only shows what would be moved.");
  }
}

ExitCode RunSimilar(const SimilarArguments& arguments, Session& session) {
  RequireAnswer(arguments, session);
  if (!arguments.report.empty()) {
    RequireReportName(AbsolutePath(arguments.report), session.CatalogueFile());
  }
  const std::unique_ptr<Host::PhotoAnalyser> analyser = AnalyserOf(arguments);
  if (!arguments.dryRun) {
    RecoverIfNeeded(session);
  }
  return SimilarRun(arguments, *analyser, session).Run();
}

}  // namespace

void AddSimilarCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("similar", kDescription);
  const auto arguments = std::make_shared<SimilarArguments>();
  command->footer(kFooter);
  command
      ->add_option("--min", arguments->least,
                   "Photos that a group needs to be shown, 1 to 1000000. Default: 2.")
      ->option_text("N")
      ->check(WholeNumber(1, 1'000'000));
  auto* const report =
      command
          ->add_option("--report", arguments->report, "Write the groups as an HTML page with their pictures.")
          ->option_text("FILE")
          ->transform(Text());
  auto* const explain = command
                            ->add_option("--explain", arguments->explain,
                                         "Tell how two photos score, and why they are together or not.")
                            ->option_text("A B")
                            ->expected(2)
                            ->excludes(report)
                            ->transform(Text());
  auto* const anew = command
                         ->add_flag("--anew", arguments->anew,
                                    "Make all groups from nothing; photos are not looked at again.")
                         ->disable_flag_override();
  auto* const only =
      command
          ->add_option("--only", arguments->only, "Only the group of that photo. Can be given several times.")
          ->option_text("FILE")
          ->allow_extra_args(false)
          ->excludes(explain)
          ->transform(Text());
  auto* const trash =
      command
          ->add_flag("--trash", arguments->trash,
                     "Move all photos of the groups but those to keep to the trash, after a question.")
          ->disable_flag_override()
          ->excludes(report)
          ->excludes(explain);
  auto* const yes = command->add_flag("--yes", arguments->yes, "With --trash: do not ask.")
                        ->disable_flag_override()
                        ->needs(trash);
  command->add_flag("--dry-run", arguments->dryRun, "With --trash: only show what would go there.")
      ->disable_flag_override()
      ->needs(trash)
      ->excludes(yes);
  command
      ->add_flag("--check", arguments->check,
                 "Match all photos again, in memory, and compare; change nothing.")
      ->disable_flag_override()
      ->excludes(report)
      ->excludes(explain)
      ->excludes(only)
      ->excludes(trash)
      ->excludes(anew);
  command
      ->add_option("--model", arguments->model,
                   Host::ModelRuntime().empty()
                       ? "Compare by an ONNX model. This lumidex was built without support for that."
                       : "Compare by what an ONNX model sees; its groups are kept apart from others.")
      ->option_text("FILE")
      ->transform(Text());
  command
      ->add_option("--threads", arguments->threads,
                   "Photos looked at at a time, 1 to 64. Default: one for each core, at most 8.")
      ->option_text("N")
      ->check(WholeNumber(1, 64));
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return RunSimilar(*arguments, session); };
  });
}

}  // namespace Zenvora::Lumidex::Cli
