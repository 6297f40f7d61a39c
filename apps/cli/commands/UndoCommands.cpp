#include <cli/commands/Commands.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/session/UndoSettings.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/Question.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/StepRoom.h>
#include <cli/views/UndoView.h>
#include <host/journal/JournalRoom.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr int kMostSteps = 1'000;

constexpr char kUndoDescription[] =
    "Undo imports, accepted albums, tags, renames, edits and moves to the trash.\n"
    "\n"
    "Without options, undoes the last step. Photos get back their names and every\n"
    "byte of their files. A photo that another program changed later is left as it\n"
    "is, and listed. Older steps cannot be undone before that one, unless you skip\n"
    "it with --skip.";

constexpr char kUndoFooter[] =
    R"(These steps can be undone, within the limits below:
  import           unchanged copies go to the trash, changed copies stay
  albums --accept  new albums are removed, added photos are removed from albums
  tag              photos get their former tags back
  rename           files get their former names back
  rotate, shift-date, set-date
                   photos get every byte of their originals back
  similar --trash  photos that are still in the trash come back
These cannot be undone: scan, photos that an import added without copying (they
stay in the catalogue), the list of copies of an import, the results of
similar, settings, usage statistics, downloaded calendars, reports, sample
photos.

"lumidex redo" does undone steps again, until something new is done. The
originals of edited photos are kept beside the catalogue, by default for 90
days of use (days on which steps are done or undone) and up to 5 GiB. If older
steps must be forgotten for a new one or for new limits, you are asked first;
without a terminal, nothing is changed unless you give --forget-older.

Examples:
  lumidex undo
  lumidex undo --list                    list the steps that can be undone
  lumidex undo --last 3                  undo the last three steps
  lumidex undo --skip                    skip the last step for good
  lumidex undo --no-redo                 if the disk is full
  lumidex undo --keep-days 365 --keep-size 20G
  lumidex undo --keep-size 0 --forget-older
                                         keep no originals at all

Exit codes: 0 done; 1 there is nothing to undo, less than you asked for, or you
answered no; 3 some files were left as they are; 4 all files were left as they
are, steps beyond new limits may not be forgotten, or the catalogue cannot be
written; 130 interrupted, what was undone so far stays undone.)";

constexpr char kRedoDescription[] =
    "Redo what \"lumidex undo\" undid.\n"
    "\n"
    "Without options, redoes the step that was undone last. This is possible until\n"
    "something new is done.";

constexpr char kRedoFooter[] =
    R"(Examples:
  lumidex redo
  lumidex redo --last 3

Exit codes: 0 done; 1 there is nothing to redo, or less than you asked for; 3
some files were left as they are; 4 all files were left as they are, or the
catalogue cannot be written; 130 interrupted, what was redone so far stays
redone.)";

struct UndoArguments {
  bool redo = false;
  bool list = false;
  bool skip = false;
  bool noRedo = false;
  int last = 1;
  int keepDays = -1;
  std::string keepSize;
  bool forgetOlder = false;

  bool SetsLimits() const { return keepDays >= 0 || !keepSize.empty(); }
};

/// One run of one of the commands.
class UndoRun {
 public:
  UndoRun(const UndoArguments& arguments, Session& session) : arguments_(arguments), session_(session) {
    view_.catalogue = session.CatalogueFile();
    view_.redo = arguments.redo;
  }

  ExitCode Run() {
    if (arguments_.forgetOlder && !arguments_.SetsLimits()) {
      throw UsageError("--forget-older goes with --keep-days or --keep-size (see: lumidex help undo)");
    }
    if (arguments_.SetsLimits()) {
      SetLimits();
    } else if (arguments_.list) {
      view_.steps.emplace();
    } else if (arguments_.skip) {
      view_.skipped.emplace();
    }
    // Without a catalogue nothing was ever done, and none is made for finding that out.
    if (view_.steps) {
      // Looking needs no right to write. What was interrupted is finished where it can be.
      RecoverIfNeeded(session_);
      view_.steps = Host::ReadUndoSteps(view_.catalogue);
    } else if (!view_.limits && view_.catalogue.exists()) {
      Work();
    }
    view_.recovered = session_.recovered;
    session_.output.Print(session_.globals.json ? UndoDocument(view_) : UndoText(view_));
    Note();
    return view_.steps ? ExitCode::Done : Judge();
  }

 private:
  LimitsWish Wish() const {
    LimitsWish wish;
    if (arguments_.keepDays >= 0) {
      wish.days = arguments_.keepDays;
    }
    wish.size = arguments_.keepSize;
    return wish;
  }

  /// Stored is what is wished for once it is clear that nothing goes of which the person did not know.
  void SetLimits() {
    const LimitsWish wish = Wish();
    const Host::UndoLimits limits = WishedLimits(wish, session_.console);
    const bool isThere = view_.catalogue.exists();
    std::vector<Host::UndoStep> beyond;
    if (isThere) {
      // With today counted as a day of use, and closed while that is asked.
      beyond = Host::StepsToForget(OpenJournal(session_).Get().Steps(), limits);
    }
    view_.declined = !AgreeOnLimits(session_, beyond, arguments_.forgetOlder);
    view_.interrupted = view_.declined && session_.interrupted;
    if (!view_.declined) {
      StoreLimits(wish);
      if (isThere) {
        view_.forgotten = OpenJournal(session_).Get().Prune(limits, beyond);
      }
    }
    view_.limits = StoredLimits(session_.console);
  }

  void Work() {
    std::optional<OpenJournal> journal(std::in_place, session_);
    if (view_.skipped) {
      if (const std::optional<Host::SkippedStep> step = journal->Get().SkipLast()) {
        view_.skipped->push_back(*step);
      }
    } else {
      journal->Get().KeepForRedo(!arguments_.noRedo);
      for (int i = 0; i < arguments_.last && (TakeStep(journal->Get()) || GoOnWithoutRedo(journal)); ++i) {
      }
    }
  }

  /// False when no further step should be taken: an older one must not go before a newer one has gone whole.
  bool TakeStep(Host::UndoJournal& journal) {
    Progress progress(session_.console, Say(view_.redo ? Words::tr("Redoing") : Words::tr("Undoing")),
                      Say(Words::tr("files", "of so many")));
    const auto show = [&progress](std::size_t done, std::size_t total) { progress.Update(done, total); };
    Host::UndoResult result = view_.redo ? journal.RedoLast(session_.interrupted, show)
                                         : journal.UndoLast(session_.interrupted, show);
    if (result.name.isEmpty()) {
      return false;
    }
    view_.interrupted = result.cancelled;
    const bool whole = result.findings.empty() && !result.cancelled;
    view_.done.push_back(std::move(result));
    return whole;
  }

  /// Where only the room for doing it again is missing, and the person can do without. The journal is closed
  /// while that is asked.
  bool GoOnWithoutRedo(std::optional<OpenJournal>& journal) {
    if (view_.done.empty() || !view_.done.back().lacksRoomForRedo || arguments_.noRedo || !CanAsk()) {
      return false;
    }
    const std::int64_t asked = LastThatStands(*journal);
    journal.reset();
    if (!Ask(session_.console, UndoText(view_), Say(Words::tr("Undo without keeping what redo needs? [y/N]")),
             session_.interrupted)) {
      return false;
    }
    journal.emplace(session_);
    if (LastThatStands(*journal) != asked) {
      session_.console.Warning(
          "Another program changed the list of steps meanwhile. Nothing more was undone. Run: lumidex undo "
          "--list");
      return false;
    }
    journal->Get().KeepForRedo(false);
    const std::size_t before = view_.done.back().files;
    view_.done.pop_back();
    const bool whole = TakeStep(journal->Get());
    view_.done.back().files += before;
    return whole;
  }

  /// The number of the step that the next undo takes; 0: there is none.
  static std::int64_t LastThatStands(OpenJournal& journal) {
    const std::vector<Host::UndoStep> steps = journal.Get().Steps();
    const auto last =
        std::find_if(steps.begin(), steps.end(), [](const Host::UndoStep& step) { return step.stands; });
    return last == steps.end() ? 0 : last->number;
  }

  bool AreFewer() const { return view_.done.size() < static_cast<std::size_t>(arguments_.last); }

  void Note() const {
    if (view_.interrupted) {
      session_.console.Note(Say(Words::tr("Interrupted. What was done so far stays done.")));
    } else if (!view_.done.empty() && AreFewer()) {
      session_.console.Note(
          Say(Words::tr("Only %1 of the %2 steps that you asked for.", nullptr, Amount(view_.done.size())),
              {GroupDigits(view_.done.size()), std::to_string(arguments_.last)}));
    }
  }

  ExitCode Judge() const {
    if (view_.skipped) {
      return view_.skipped->empty() ? ExitCode::Findings : ExitCode::Done;
    }
    if (view_.interrupted) {
      return ExitCode::Interrupted;
    }
    if (view_.limits) {
      return view_.declined ? ExitCode::Findings : ExitCode::Done;
    }
    bool anyFile = false;
    bool anyFinding = false;
    for (const Host::UndoResult& result : view_.done) {
      anyFile = anyFile || result.files > 0;
      anyFinding = anyFinding || !result.findings.empty();
    }
    if (anyFinding) {
      return anyFile ? ExitCode::Partly : ExitCode::Failed;
    }
    return AreFewer() ? ExitCode::Findings : ExitCode::Done;
  }

  const UndoArguments& arguments_;
  Session& session_;
  UndoView view_;
};

CLI::Validator Size() {
  return {[](std::string& text) {
            text = Unmarked(text);
            std::string fault;
            return ParseSize(text, fault) ? std::string() : "needs " + fault;
          },
          ""};
}

CLI::Option* AddLast(CLI::App& command, UndoArguments& arguments) {
  return command.add_option("--last", arguments.last, "The number of steps, 1 to 1000. Default: 1.")
      ->option_text("N")
      ->check(WholeNumber(1, kMostSteps));
}

void Choose(CLI::App& command, const std::shared_ptr<UndoArguments>& arguments, Action& chosen) {
  command.callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return UndoRun(*arguments, session).Run(); };
  });
}

void AddUndoCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("undo", kUndoDescription);
  const auto arguments = std::make_shared<UndoArguments>();
  command->footer(kUndoFooter);
  CLI::Option* const last = AddLast(*command, *arguments);
  CLI::Option* const list =
      command->add_flag("--list", arguments->list, "List the steps, the latest first; undo nothing.")
          ->disable_flag_override()
          ->excludes(last);
  CLI::Option* const skip =
      command
          ->add_flag("--skip", arguments->skip,
                     "Undo nothing: skip the last step for good, so that the step before it is undone next.")
          ->disable_flag_override()
          ->excludes(last)
          ->excludes(list);
  command
      ->add_flag("--no-redo", arguments->noRedo,
                 "Undo without keeping what redo needs, so that undo needs no free disk space. Steps undone "
                 "before cannot be redone either.")
      ->disable_flag_override()
      ->excludes(list)
      ->excludes(skip);
  command
      ->add_option(
          "--keep-days", arguments->keepDays,
          "From now on, keep steps for this many days of use, 0 to 36500; undo nothing. Only days on "
          "which steps are done or undone count, so a wrong clock does not matter.")
      ->option_text("N")
      ->check(WholeNumber(0, kMostDays))
      ->excludes(last)
      ->excludes(list)
      ->excludes(skip);
  command
      ->add_option("--keep-size", arguments->keepSize,
                   "From now on, keep at most this size of originals, such as 500M, 5G or 0; undo nothing.")
      ->option_text("SIZE")
      ->transform(Size())
      ->excludes(last)
      ->excludes(list)
      ->excludes(skip);
  command
      ->add_flag("--forget-older", arguments->forgetOlder,
                 "With --keep-days or --keep-size: forget steps beyond the new limits without asking.")
      ->disable_flag_override();
  Choose(*command, arguments, chosen);
}

void AddRedoCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("redo", kRedoDescription);
  const auto arguments = std::make_shared<UndoArguments>();
  arguments->redo = true;
  command->footer(kRedoFooter);
  AddLast(*command, *arguments);
  Choose(*command, arguments, chosen);
}

}  // namespace

void AddUndoCommands(CLI::App& program, Action& chosen) {
  AddUndoCommand(program, chosen);
  AddRedoCommand(program, chosen);
}

}  // namespace Zenvora::Lumidex::Cli
