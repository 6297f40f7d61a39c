#include "SimilarJobs.h"

#include <cli/commands/Commands.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/session/ReportTarget.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/Question.h>
#include <cli/terminal/Words.h>
#include <host/similar/Models.h>

#include <memory>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr char kDescription[] =
    "Show groups of similar photos: the same picture, or the same moment.\n"
    "\n"
    "Analyses the new and changed photos of the catalogue, puts each into the first\n"
    "group that it resembles, suggests which photo of a group to keep, and compares\n"
    "the others with that one, pixel by pixel. If a run is interrupted, run the same\n"
    "command to continue. Your files are only read, unless you give --trash: it\n"
    "shows what would be moved, and asks.";

constexpr char kFooter[] =
    R"(The word before a photo compares it with the photo to keep:
  same       the same picture: a copy, smaller, compressed again, or without
             metadata
  alike      a burst, the same view, or a crop or an edit of it
  different  another picture
  unknown    the two could not be compared
The numbers after it are its score against the centre of its group (at most 1;
above 0.91 is similar), its pixels and its bytes.

--trash moves photos with the same picture, and with --alike also those that
are alike, which are listed separately. These photos always stay: different and
unknown ones, other formats of the shot that is kept, raw files unless a raw
file of the group is kept, links, photos that were changed after the last scan,
photos that do not score above 0.91 against the photo to keep, photos with a
sidecar (.xmp) that the photo to keep does not have, and groups whose photo to
keep is damaged. Identical sidecars are moved with their photos. "lumidex undo"
brings the photos back from the trash.

Examples:
  lumidex similar
  lumidex similar --min 5                only groups of at least five photos
  lumidex similar --report similar.html  a page with the pictures side by side
  lumidex similar --explain a.jpg b.jpg  why are they in one group, or not?
  lumidex similar --not-compared         list photos that cannot be compared
  lumidex similar --check                are the groups in the catalogue right?
  lumidex similar --model net.onnx       compare with a model of your own
  lumidex similar --trash --dry-run      what would be moved to the trash?
  lumidex similar --trash                show it, ask, and move it there
  lumidex similar --trash --alike        also photos that are only alike
  lumidex similar --trash --only a.jpg   only in the group of this photo

Exit codes: 0 done; 1 the catalogue has no photos, --check finds a difference,
or you answered no; 3 some photos cannot be compared or moved, or pictures are
missing in the report; 4 there is no catalogue, it cannot be written, a photo
of --explain or --only is not in it, the model cannot be used, the report
cannot be written, no photo could be moved, or --trash could not ask; 130
interrupted, the photos moved so far stay in the trash.)";

std::unique_ptr<Host::PhotoAnalyser> AnalyserOf(const SimilarArguments& arguments) {
  if (arguments.model.empty()) {
    return std::make_unique<Host::LayoutAnalyser>();
  }
  if (Host::ModelRuntime().empty()) {
    throw UsageError("--model: this lumidex was built without support for models (LUMIDEX_ONNX)");
  }
  return Host::OpenModel(AbsolutePath(arguments.model));
}

/// Before all the work, whether there will be anything to ask or not: a script fails the first time.
void RequireAnswer(const SimilarArguments& arguments, const Session& session) {
  if (!arguments.trash || arguments.yes || arguments.dryRun) {
    return;
  }
  if (session.globals.json) {
    throw UsageError("--trash asks before it moves anything, and --json cannot ask: add --yes or --dry-run");
  }
  if (!CanAsk()) {
    throw Failure("needs-answer",
                  "Nothing was moved: --trash asks first, and this is not a terminal. Add --yes to move "
                  "without a question, or --dry-run to see what would be moved.");
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
  if (arguments.check) {
    return CheckGroups(SimilarStores(session, *analyser, Host::Catalogue::Mode::ReadOnly), session);
  }
  SimilarStores stores(session, *analyser, Host::Catalogue::Mode::ReadWrite);
  if (arguments.anew) {
    stores.similar.ClearClusters();
  }
  const Host::SimilarUpdateResult update = UpdateGroups(stores, arguments.threads, session);
  if (arguments.explain.empty()) {
    return ShowGroups(stores, update, arguments, session);
  }
  if (update.cancelled) {
    ThrowIfInterrupted(Say(Words::tr("Interrupted. Run the same command to continue.")).c_str());
  }
  return ExplainPair(stores, arguments, session);
}

}  // namespace

void AddSimilarCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("similar", kDescription);
  const auto arguments = std::make_shared<SimilarArguments>();
  command->footer(kFooter);
  command
      ->add_option("--min", arguments->least,
                   "Show groups with at least this many photos, 1 to 1000000. Default: 2.")
      ->option_text("N")
      ->check(WholeNumber(1, 1'000'000));
  auto* const report =
      command
          ->add_option("--report", arguments->report, "Write the groups to an HTML page with their pictures.")
          ->option_text("FILE")
          ->transform(Text());
  auto* const explain =
      command
          ->add_option("--explain", arguments->explain,
                       "Show the score of two photos, and why they are in one group or not.")
          ->option_text("A B")
          ->expected(2)
          ->excludes(report)
          ->transform(Text());
  auto* const anew =
      command->add_flag("--anew", arguments->anew, "Make all groups again; photos are not analysed again.")
          ->disable_flag_override();
  auto* const only = command
                         ->add_option("--only", arguments->only,
                                      "Show only the group of this photo. Can be given several times.")
                         ->option_text("FILE")
                         ->allow_extra_args(false)
                         ->excludes(explain)
                         ->transform(Text());
  auto* const trash =
      command
          ->add_flag("--trash", arguments->trash,
                     "Move photos with the same picture as the one to keep to the trash, after a question.")
          ->disable_flag_override()
          ->excludes(report)
          ->excludes(explain);
  command->add_flag("--alike", arguments->alike, "With --trash: also move photos that are only alike.")
      ->disable_flag_override()
      ->needs(trash);
  auto* const yes = command->add_flag("--yes", arguments->yes, "With --trash: do not ask.")
                        ->disable_flag_override()
                        ->needs(trash);
  command->add_flag("--dry-run", arguments->dryRun, "With --trash: show what would be moved; change nothing.")
      ->disable_flag_override()
      ->needs(trash)
      ->excludes(yes);
  auto* const notCompared =
      command
          ->add_flag("--not-compared", arguments->notCompared,
                     "List all photos that cannot be compared, also those listed before.")
          ->disable_flag_override()
          ->excludes(explain);
  command
      ->add_flag("--check", arguments->check,
                 "Match all photos again in memory, and compare the groups; change nothing.")
      ->disable_flag_override()
      ->excludes(report)
      ->excludes(explain)
      ->excludes(only)
      ->excludes(trash)
      ->excludes(notCompared)
      ->excludes(anew);
  command
      ->add_option("--model", arguments->model,
                   Host::ModelRuntime().empty()
                       ? "Compare with an ONNX model. This lumidex was built without support for models."
                       : "Compare with an ONNX model; its groups are kept separately.")
      ->option_text("FILE")
      ->transform(Text());
  command
      ->add_option("--threads", arguments->threads,
                   "Photos processed in parallel, 1 to 64. Default: one per core, at most 8.")
      ->option_text("N")
      ->check(WholeNumber(1, 64));
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return RunSimilar(*arguments, session); };
  });
}

}  // namespace Zenvora::Lumidex::Cli
