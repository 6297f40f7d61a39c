#include "SimilarRun.h"

#include <cli/commands/Commands.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/session/ReportTarget.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/Question.h>
#include <host/similar/Models.h>

#include <memory>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr char kDescription[] =
    "Show groups of similar photos: the same picture, or the same moment.\n"
    "\n"
    "Looks at the photos of the catalogue that are new or changed, puts each into\n"
    "the first group that it is like, tells which photo of a group to keep, and\n"
    "compares the others with that one, pixel by pixel. A run that is interrupted\n"
    "goes on where it stopped when repeated. Your files are only read, unless\n"
    "--trash asks for more: it shows what would go, and asks.";

constexpr char kFooter[] =
    R"(The word before a photo says what it is to the one to keep:
  same       the same picture: a copy, smaller, compressed again, without data
  alike      a burst, the same view, or cropped, straightened, brightened or
             framed: it may be somebody's work
  different  another picture
  unknown    the two could not be compared
The numbers behind it are its score against the middle of its group (1 is the
most; above 0.91 is similar), its pixels and its bytes.

--trash takes what is the same picture, and with --alike also what is alike,
listed apart. These stay in any case: what is different or unknown, other
formats of the shot that is kept, raw files unless a raw file of the group is
kept, links, what was changed since the last scan, what does not score above
0.91 against the one to keep itself, what has settings beside it (.xmp) that
the one to keep has not, and whole groups whose photo to keep is damaged. Equal
settings go along with their photo. "lumidex undo" brings all of it back while
it is in the trash.

Examples:
  lumidex similar
  lumidex similar --min 5                only groups of five and more
  lumidex similar --report similar.html  a page with the pictures side by side
  lumidex similar --explain a.jpg b.jpg  why they are together, or not
  lumidex similar --not-compared         with all that cannot be compared
  lumidex similar --check                is the catalogue as matching made it?
  lumidex similar --model net.onnx       as a model of yours sees the photos
  lumidex similar --trash --dry-run      what would go to the trash?
  lumidex similar --trash                shows it, asks, and moves it there
  lumidex similar --trash --alike        also what is not the same picture
  lumidex similar --trash --only a.jpg   of the group of that photo alone

Exit codes: 0 done; 1 the catalogue holds no photos, --check finds a
difference, or the answer to --trash was no; 3 some photos cannot be compared
or moved, or pictures are missing in the report; 4 there is no catalogue, it
cannot be written, a photo of --explain or --only is not in it, the model
cannot be used, the report cannot be written, no photo could be moved, or
nobody can be asked; 130 interrupted, what was moved stays in the trash.)";

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
  return ShowSimilar(arguments, *analyser, session);
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
                     "Move what is the same picture as the one to keep to the trash, after a question.")
          ->disable_flag_override()
          ->excludes(report)
          ->excludes(explain);
  command
      ->add_flag("--alike", arguments->alike,
                 "With --trash: also what is only alike and may be somebody's work.")
      ->disable_flag_override()
      ->needs(trash);
  auto* const yes = command->add_flag("--yes", arguments->yes, "With --trash: do not ask.")
                        ->disable_flag_override()
                        ->needs(trash);
  command->add_flag("--dry-run", arguments->dryRun, "With --trash: only show what would go there.")
      ->disable_flag_override()
      ->needs(trash)
      ->excludes(yes);
  auto* const notCompared =
      command
          ->add_flag("--not-compared", arguments->notCompared,
                     "List all photos that cannot be compared, also those that were told before.")
          ->disable_flag_override()
          ->excludes(explain);
  command
      ->add_flag("--check", arguments->check,
                 "Match all photos again, in memory, and compare; change nothing.")
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
