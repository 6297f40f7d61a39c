#include <cli/commands/Commands.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/session/Sources.h>
#include <cli/session/TerminalQuestions.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/Words.h>
#include <cli/views/ImportView.h>
#include <host/base/PathText.h>
#include <host/catalogue/Catalogue.h>
#include <host/import/Import.h>
#include <host/import/ImportFacts.h>
#include <host/import/ImportPlan.h>
#include <host/import/ImportQuestions.h>
#include <host/scan/ImportSources.h>

#include <glog/logging.h>

#include <QDir>

#include <memory>
#include <optional>

namespace Zenvora::Lumidex::Cli {

namespace {

using Outcome = Host::ImportPlan::Outcome;

constexpr char kDescription[] =
    "Copy photos and videos off a card, and add the photos to the catalogue.\n"
    "\n"
    "Copies files on removable storage, with --to all files; other photos are added\n"
    "to the catalogue without copying. Every copy is read back from the disk and\n"
    "verified. Your files are only read. Files that were copied before are skipped,\n"
    "so you can repeat a run that was interrupted. \"lumidex undo\" moves the copies\n"
    "of a run to the trash.";

constexpr char kFooter[] =
    R"help(A folder stands for all photos and videos in it and in its subfolders, with the
files that belong to them: thumbnails, voice memos, sidecars (.xmp and others).
Copies keep their names; if a name is taken, "(1)" is added to the names of the
photo and of all that belongs to it. The hidden folder .lumidex-import beside
the copies lists each copy with its source and its SHA-256.

All other files on removable storage are skipped and listed, also hidden ones.
Only files that cameras and systems keep for themselves (.DS_Store, Thumbs.db,
AUTPRINT.MRK and such) are not listed, unless they begin like a picture or a
video. "Safe to format" is said only if no other file remains.

Undo moves unchanged copies to the trash; changed copies stay. The list of
copies stays, too. Photos that were added without copying stay in the
catalogue: undo has no step for them.

Without --to, --yes and --no-copy, questions are asked on the terminal; without
a terminal, nothing is imported.

Examples:
  lumidex import /media/card
  lumidex import /media/card --to ~/Pictures/2024 --yes
  lumidex import --dry-run /media/card --to ~/Pictures/2024
  lumidex import --no-copy ~/Downloads/photos

Exit codes: 0 done; 1 nothing was imported because you chose so or there is
nothing to import, some files remain, or something needs your attention; 3 some
files were not copied or cannot be read; 4 nothing could be imported; 130
interrupted.)help";

struct ImportArguments {
  std::vector<std::string> sources;
  std::string to;
  bool yes = false;
  bool noCopy = false;
  bool dryRun = false;
};

GivenAnswers AnswersOf(const ImportArguments& arguments) {
  GivenAnswers given;
  given.yes = arguments.yes;
  given.noCopy = arguments.noCopy;
  if (arguments.to.empty()) {
    return given;
  }
  const ioPath folder = AbsolutePath(arguments.to);
  given.folder = QDir::cleanPath(folder.qstring());
  // Settings and the names of copies are text.
  if (!Host::IsText(folder)) {
    throw UsageError("--to: the name of the folder must be text in UTF-8");
  }
  return given;
}

/// One run of the command.
class ImportCommand {
 public:
  ImportCommand(const ImportArguments& arguments, Session& session)
      : arguments_(arguments), session_(session) {
    view_.catalogue = session.CatalogueFile();
    view_.dryRun = arguments.dryRun;
    view_.noCopy = arguments.noCopy;
  }

  ExitCode Run() {
    const std::vector<ioPath> roots = ExistingSources(arguments_.sources);
    const GivenAnswers given = AnswersOf(arguments_);
    if (!arguments_.dryRun) {
      RecoverIfNeeded(session_);
    }
    view_.sources = roots;
    Host::GatheredSources sources = Host::GatherSources(roots, Host::Gathered::Everything);
    view_.found = sources.files.size();
    Plan(std::move(sources), given);
    if (!arguments_.dryRun && view_.plan.outcome == Outcome::Ready && view_.plan.obstacle.empty() &&
        !(view_.plan.copies.empty() && view_.plan.stays.empty())) {
      Import();
      LookAtJournal();
    }
    if (!arguments_.dryRun) {
      view_.verdict = Host::JudgeSources(roots, view_.plan, view_.result);
    }
    view_.recovered = session_.recovered;
    session_.output.Print(session_.globals.json ? ImportDocument(view_) : ImportText(view_));
    Tell();
    return Judge();
  }

 private:
  void Plan(Host::GatheredSources sources, const GivenAnswers& given) {
    Host::ImportFacts facts;
    facts.sources = std::move(sources);
    facts.copyAll = !arguments_.to.empty();
    Host::ImportAnswers answers;
    const std::vector<Host::PhotoRecord> photos = CataloguedPhotos();
    const TerminalQuestions questions(session_, given);
    if (Host::AskReadable(facts, answers)) {
      Compare(facts, photos);
      if (Host::AskCopies(facts, answers)) {
        Host::LookAtFolder(facts, answers, view_.catalogue, &session_.interrupted);
      }
    }
    if (answers.declined && !session_.interrupted && !questions.Unanswered().empty()) {
      throw Failure("needs-answer", "Nothing was imported, because this question could not be asked: " +
                                        questions.Unanswered() + " Add --yes, --to DIR or --no-copy.");
    }
    facts.interrupted = session_.interrupted;
    view_.plan = Host::PlanImport(facts, answers);
  }

  /// None where there is no catalogue: a dry run, and one that is declined, makes none.
  std::vector<Host::PhotoRecord> CataloguedPhotos() {
    if (!view_.catalogue.exists()) {
      return {};
    }
    const auto mode = arguments_.dryRun ? Host::Catalogue::Mode::ReadOnly : Host::Catalogue::Mode::ReadWrite;
    catalogue_.emplace(view_.catalogue, mode);
    return catalogue_->Photos();
  }

  void Compare(Host::ImportFacts& facts, const std::vector<Host::PhotoRecord>& photos) {
    Progress progress(session_.console, Say(Words::tr("Comparing")), Say(Words::tr("files", "of so many")));
    Host::LookAtSources(
        facts, photos, &session_.interrupted,
        [&progress](std::uint64_t done, std::uint64_t total) { progress.Update(done, total); });
  }

  void Import() {
    if (!catalogue_) {
      catalogue_.emplace(view_.catalogue, Host::Catalogue::Mode::ReadWrite);
    }
    VLOG(1) << "importing into " << view_.catalogue;
    Host::ImportOptions options;
    options.cancel = &session_.interrupted;
    Progress progress(session_.console, Say(Words::tr("Copying")), Say(Words::tr("files", "of so many")));
    view_.result = Host::RunImport(
        view_.plan, *catalogue_, options,
        [&progress](const Host::ImportProgress& now) { progress.Update(now.files, now.totalFiles); });
  }

  /// The step is written; where there is none, the room that was held for it is given back. Somebody who
  /// works with the journal meanwhile is no reason to wait.
  void LookAtJournal() {
    if (view_.plan.copies.empty()) {
      return;
    }
    try {
      OpenJournal journal(session_);
      journal.Prune();
      for (const Host::UndoStep& step : journal.Get().Steps()) {
        view_.canBeUndone = view_.canBeUndone || (step.number == view_.result.step && !step.undone &&
                                                  !step.givenUp && !step.underWay);
      }
    } catch (const Host::HostError& error) {
      VLOG(1) << "the journal was not looked at: " << error.what();
    }
  }

  void Tell() const {
    if (view_.result.cancelled) {
      session_.console.Note(
          Say(Words::tr("Interrupted. The copies made so far are complete and verified; run the same command "
                        "to copy the rest.")));
    } else if (view_.found == 0) {
      session_.console.Note(Say(Words::tr("There are no photos or videos in the given folders.")));
    }
  }

  ExitCode Judge() const {
    if (view_.result.cancelled || view_.plan.outcome == Outcome::Interrupted) {
      return ExitCode::Interrupted;
    }
    if (!view_.plan.obstacle.empty()) {
      return ExitCode::Failed;
    }
    ExitCode code =
        view_.verdict.kind == Host::ImportVerdict::Kind::SomethingLeft ? ExitCode::Findings : ExitCode::Done;
    if (view_.plan.outcome == Outcome::Declined || view_.found == 0 || !view_.plan.splits.empty() ||
        !view_.plan.joins.empty()) {
      code = ExitCode::Findings;
    }
    for (const Host::LeftFile& left : view_.plan.left) {
      if (left.kind == Host::LeftFile::Kind::Unreadable) {
        code = Worse(code, ExitCode::Partly);
      } else if (left.kind == Host::LeftFile::Kind::Loop || left.copiedOff) {
        code = Worse(code, ExitCode::Findings);
      }
    }
    for (const Host::ScanFinding& finding : view_.result.findings) {
      code = Worse(
          code, finding.kind == Host::ScanFinding::Kind::Unreadable ? ExitCode::Partly : ExitCode::Findings);
    }
    return view_.result.missing.empty() && view_.result.stopped.empty() ? code
                                                                        : Worse(code, ExitCode::Partly);
  }

  const ImportArguments& arguments_;
  Session& session_;
  ImportView view_;
  std::optional<Host::Catalogue> catalogue_;
};

}  // namespace

void AddImportCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("import", kDescription);
  const auto arguments = std::make_shared<ImportArguments>();
  command->footer(kFooter);
  command->add_option("SOURCE", arguments->sources, "Folders and files to import, with subfolders.")
      ->required()
      ->transform(Text());
  CLI::Option* const to =
      command
          ->add_option("--to", arguments->to,
                       "Copy all files to this folder, also those that are not on removable storage.")
          ->option_text("DIR")
          ->transform(Text());
  CLI::Option* const noCopy = command
                                  ->add_flag("--no-copy", arguments->noCopy,
                                             "Copy nothing: add the photos to the catalogue where they are.")
                                  ->disable_flag_override();
  noCopy->excludes(to);
  command
      ->add_flag("--yes", arguments->yes,
                 "Ask nothing: copy files on removable storage, without --to to the folder used last, and "
                 "skip files "
                 "that cannot be read.")
      ->disable_flag_override()
      ->excludes(noCopy);
  command->add_flag("--dry-run", arguments->dryRun, "Show what would be done; change nothing.")
      ->disable_flag_override();
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return ImportCommand(*arguments, session).Run(); };
  });
}

}  // namespace Zenvora::Lumidex::Cli
