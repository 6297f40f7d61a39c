#include <cli/commands/Commands.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/session/UndoSettings.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/Question.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/UndoView.h>
#include <host/journal/JournalRoom.h>

#include <memory>
#include <optional>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr int kMostSteps = 1'000;

constexpr char kUndoDescription[] =
    "Take back what was done: imports, albums, tags, renames, edits, the trash.\n"
    "\n"
    "Without an option, the last step. The photos get back their names and every\n"
    "byte of what they were. A photo that was changed since by others is left as it\n"
    "is, and listed; older steps wait then, until --skip gives this one up.";

constexpr char kUndoFooter[] =
    R"(These are steps that can be taken back, within the limits below:
  import           copies that are what they were go to the trash, others stay
  albums --accept  the albums that were made, or the photos that were added
  tag              the tags that were given or taken
  rename           the old names
  rotate, shift-date, set-date
                   every byte of what the photos were
  similar --trash  what is still in the trash comes back
These are none: scan, photos that an import took in where they lie (they stay
in the catalogue), the list of copies beside an import, what "similar" found
out, settings, usage statistics, downloaded calendars, reports, sample photos.

What was taken back can be done again with "lumidex redo", until something new
is done. The originals of edited photos are kept beside the catalogue: usually
for 90 days on which steps are made or taken back, and no more than 5 GiB of
them. A step that needs older ones forgotten for that asks first.

Examples:
  lumidex undo
  lumidex undo --list                    what could be taken back
  lumidex undo --last 3                  the last three steps
  lumidex undo --skip                    leave the last step as it is, for good
  lumidex undo --no-redo                 where the disk is full
  lumidex undo --keep-days 365 --keep-size 20G
  lumidex undo --keep-size 0             keep no originals at all

Exit codes: 0 done; 1 there is nothing to take back, or less than asked for;
3 some files were left as they are; 4 all of them were, or the catalogue cannot
be written; 130 interrupted, what was taken back so far stays so.)";

constexpr char kRedoDescription[] =
    "Do again what \"lumidex undo\" took back.\n"
    "\n"
    "Without an option, the step taken back last. It is possible until something new\n"
    "is done to photos.";

constexpr char kRedoFooter[] =
    R"(Examples:
  lumidex redo
  lumidex redo --last 3

Exit codes: 0 done; 1 there is nothing to do again, or less than asked for;
3 some files were left as they are; 4 all of them were, or the catalogue cannot
be written; 130 interrupted, what was done so far stays so.)";

struct UndoArguments {
  bool redo = false;
  bool list = false;
  bool skip = false;
  bool noRedo = false;
  int last = 1;
  int keepDays = -1;
  std::string keepSize;

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
    if (arguments_.SetsLimits()) {
      StoreLimits(Wish());
      view_.limits = StoredLimits(session_.console);
    }
    if (arguments_.list) {
      view_.steps.emplace();
    } else if (arguments_.skip) {
      view_.skipped.emplace();
    }
    // Without a catalogue nothing was ever done, and none is made for finding that out.
    if (view_.steps) {
      // Looking needs no right to write. What was broken off is finished where it can be.
      RecoverIfNeeded(session_);
      view_.steps = Host::ReadUndoSteps(view_.catalogue);
    } else if (view_.catalogue.exists()) {
      OpenJournal journal(session_);
      Work(journal);
    }
    view_.recovered = session_.recovered;
    session_.output.Print(session_.globals.json ? UndoDocument(view_) : UndoText(view_));
    Note();
    return view_.limits || view_.steps ? ExitCode::Done : Judge();
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

  void Work(OpenJournal& journal) {
    if (view_.limits) {
      view_.forgotten = journal.ApplyLimits();
    } else if (view_.skipped) {
      if (const std::optional<Host::SkippedStep> step = journal.Get().SkipLast()) {
        view_.skipped->push_back(*step);
      }
    } else {
      journal.Get().KeepForRedo(!arguments_.noRedo);
      for (int i = 0; i < arguments_.last && (TakeStep(journal.Get()) || GoOnWithoutRedo(journal.Get()));
           ++i) {
      }
    }
  }

  /// False when no further step should be taken: an older one must not go before a newer one has gone whole.
  bool TakeStep(Host::UndoJournal& journal) {
    Progress progress(session_.console, Say(view_.redo ? Words::tr("Doing again") : Words::tr("Taking back")),
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

  /// Where only the room for doing it again is missing, and the person can do without.
  bool GoOnWithoutRedo(Host::UndoJournal& journal) {
    if (view_.done.empty() || !view_.done.back().lacksRoomForRedo || arguments_.noRedo || !CanAsk() ||
        !Ask(session_.console, UndoText(view_), Say(Words::tr("Go on without what redo needs? [y/N]")),
             session_.interrupted)) {
      return false;
    }
    journal.KeepForRedo(false);
    const std::size_t before = view_.done.back().files;
    view_.done.pop_back();
    const bool whole = TakeStep(journal);
    view_.done.back().files += before;
    return whole;
  }

  bool AreFewer() const { return view_.done.size() < static_cast<std::size_t>(arguments_.last); }

  void Note() const {
    if (view_.interrupted) {
      session_.console.Note(Say(Words::tr("Interrupted. What was done so far stays so.")));
    } else if (!view_.done.empty() && AreFewer()) {
      session_.console.Note(
          Say(Words::tr("Only %1 steps of the %2 asked for.", nullptr, Amount(view_.done.size())),
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
  return command.add_option("--last", arguments.last, "So many steps, 1 to 1000. Default: 1.")
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
      command->add_flag("--list", arguments->list, "Only list the steps, the latest first.")
          ->disable_flag_override()
          ->excludes(last);
  CLI::Option* const skip =
      command
          ->add_flag("--skip", arguments->skip,
                     "Take nothing back: leave the last step as it is for good, so that the one before it is "
                     "the next to be taken back.")
          ->disable_flag_override()
          ->excludes(last)
          ->excludes(list);
  command
      ->add_flag(
          "--no-redo", arguments->noRedo,
          "Keep nothing for redo, neither of this nor of what was taken back before: undo needs no new "
          "room then.")
      ->disable_flag_override()
      ->excludes(list)
      ->excludes(skip);
  command
      ->add_option(
          "--keep-days", arguments->keepDays,
          "From now on, keep steps for so many days of use, 0 to 36500; take nothing back. A day counts "
          "when steps are made or taken back on it, so a wrong clock makes nothing old.")
      ->option_text("N")
      ->check(WholeNumber(0, kMostDays))
      ->excludes(last)
      ->excludes(list)
      ->excludes(skip);
  command
      ->add_option("--keep-size", arguments->keepSize,
                   "From now on, keep no more than that of originals, such as 500M, 5G or 0; take nothing "
                   "back.")
      ->option_text("SIZE")
      ->transform(Size())
      ->excludes(last)
      ->excludes(list)
      ->excludes(skip);
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
