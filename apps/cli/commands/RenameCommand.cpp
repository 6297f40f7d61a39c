#include <LumidexUtil/UpdateStat.h>
#include <cli/commands/Commands.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>
#include <cli/views/RenameView.h>
#include <host/rename/RenameLinks.h>
#include <host/rename/RenamePattern.h>
#include <host/scan/FileVerdicts.h>
#include <host/scan/PhotoChoice.h>
#include <host/shots/ShotDates.h>
#include <host/shots/ShotSets.h>

#include <zenvora/tavolin/Uuid.h>

#include <glog/logging.h>

#include <cstdint>
#include <memory>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr char kDescription[] =
    "Give photos new names, all at once.\n"
    "\n"
    "PATTERN is text with placeholders in braces. Extensions do not change. The\n"
    "files of one shot are renamed together: a raw file, its JPEG, its .xmp.\n"
    "Symbolic links keep their names; those inside the folders are changed to lead\n"
    "to the new names. No file is ever replaced, and \"lumidex undo\" undoes all\n"
    "renames.";

constexpr char kFooter[] =
    R"(Placeholders:
  {number}  {number:4}             a number; a number with at least 4 digits
  {date}  {date:yyyy-MM-dd}        the day: letters d, M and y
  {datetime}                       yyyy-MM-dd_HH-mm-ss, the day and the time
  {datetime:yyyyMMdd_HHmmss}       the same in your form: h, H, m, s, z, AP
  {name}                           the old name without its extension
  {{  }}                           a brace

A folder stands for the photos in it, without subfolders. If one photo cannot
get its new name, because the name is taken or not allowed on every system,
nothing is renamed and every such photo is listed. Dates are those of the
camera; for a photo without a date the time of its file is used, with a note.

Examples:
  lumidex rename --dry-run --pattern "{date}_{number:3}" ~/Pictures/trip
  lumidex rename --pattern "{date}_{number:3}" --order date ~/Pictures/trip
  lumidex rename --pattern "Garden {number:2}" --start 10 a.jpg b.jpg
  lumidex rename --pattern "{datetime} {name}" --skip-problems *.jpg

Exit codes: 0 done; 1 nothing was renamed because of problems, or there are no
photos; 3 some photos were left out because of problems; 4 a file is missing or
could not be renamed, and nothing was renamed; 130 interrupted, nothing was
renamed.)";

struct RenameArguments {
  std::vector<std::string> files;
  std::string pattern;
  std::uint32_t start = 1;
  std::string order = "given";
  bool skipProblems = false;
  bool dryRun = false;
};

std::string NothingRenamed() {
  return Say(Words::tr("Interrupted. Nothing was renamed."));
}

Host::RenamePattern ReadPattern(const std::string& text) {
  Host::RenamePatternFault fault;
  auto pattern = Host::RenamePattern::Parse(text, fault);
  if (!pattern) {
    throw UsageError("--pattern: \"" + text + "\" at character " + std::to_string(fault.at) + ": " +
                     fault.cause + " (see: lumidex help rename)");
  }
  return *pattern;
}

Host::RenameOptions OptionsOf(const RenameArguments& arguments) {
  Host::RenameOptions options;
  options.order = arguments.order == "date"   ? Host::RenameOrder::ByDate
                  : arguments.order == "name" ? Host::RenameOrder::ByName
                                              : Host::RenameOrder::AsGiven;
  options.start = arguments.start;
  options.onProblem = arguments.skipProblems ? Host::RenameFailing::Others : Host::RenameFailing::Nothing;
  options.token = Tavolin::GenerateUuid().toStdString();
  return options;
}

/// One run of the command.
class RenameRun {
 public:
  RenameRun(const RenameArguments& arguments, Session& session)
      : arguments_(arguments), session_(session), pattern_(ReadPattern(arguments.pattern)) {
    view_.catalogue = session.CatalogueFile();
    view_.dryRun = arguments.dryRun;
  }

  ExitCode Run() {
    // What a former run left half done changes the names that are there.
    if (!arguments_.dryRun) {
      RequireRecovered(session_);
    }
    Plan();
    if (!arguments_.dryRun && !view_.plan.renames.empty() && view_.result.findings.empty()) {
      Rename();
    }
    session_.Count(ItemType::Photo, view_.shots, view_.result.files);
    session_.usage = UpdateStat(pattern_.MainMode(), std::move(session_.usage));
    view_.recovered = session_.recovered;
    session_.output.Print(session_.globals.json ? RenameDocument(view_) : RenameText(view_));
    if (view_.result.cancelled) {
      session_.console.Note(NothingRenamed());
    } else if (view_.shots == 0) {
      session_.console.Note(Say(Words::tr("There are no photos in the given folders.")));
    }
    return Judge();
  }

 private:
  void Plan() {
    std::vector<ioPath> named;
    for (const std::string& file : arguments_.files) {
      named.push_back(AbsolutePath(file));
    }
    Host::RenameChoice choice = Host::ChooseForRename(named);
    view_.linksNamed = choice.linksNamed;
    std::vector<Host::RenameShot> shots;
    shots.reserve(choice.named.size());
    const Host::TornLinks torn(choice.links);
    for (Host::ShotSet& set : Host::GroupShots(std::move(choice.named), choice.files)) {
      ioPath link = torn.Of(set);
      shots.push_back({std::move(set), {}, {}, std::move(link)});
    }
    if (pattern_.NeedsDate() || arguments_.order == "date") {
      FindDates(shots);
    }
    ThrowIfInterrupted(NothingRenamed().c_str());
    view_.shots = shots.size();
    view_.plan = Host::MakeRenamePlan(shots, pattern_, choice.entries, OptionsOf(arguments_));
    view_.plan.links = Host::PlanLinks(choice.links, view_.plan.renames);
    view_.refused = !view_.plan.problems.empty() && !arguments_.skipProblems;
    view_.result.findings = Host::FindRenameFaults(view_.plan);
  }

  void FindDates(std::vector<Host::RenameShot>& shots) {
    const Host::ShotDates dates(view_.catalogue, shots.size());
    Progress progress(session_.console, Say(Words::tr("Reading")), Say(Words::tr("photos", "of so many")));
    std::uint64_t done = 0;
    for (Host::RenameShot& shot : shots) {
      ThrowIfInterrupted(NothingRenamed().c_str());
      const Host::ShotDate date = dates.Of(shot.set);
      shot.taken = date.taken;
      shot.dateFault = date.fault;
      view_.fileTimes += date.source == Host::DateSource::FileTime ? 1 : 0;
      progress.Update(++done, shots.size());
    }
  }

  void Rename() {
    VLOG(1) << "renaming " << view_.plan.renames.size() << " files";
    OpenJournal journal(session_);
    const QString step =
        QString::fromStdString("rename " + PhotosAndFiles(view_.plan.shots, view_.plan.renames.size()));
    {
      Progress progress(session_.console, Say(Words::tr("Renaming")), Say(Words::tr("files", "of so many")));
      view_.result = journal.Get().Renames().Run(
          step, view_.plan, session_.interrupted,
          [&progress](std::size_t done, std::size_t total) { progress.Update(done, total); });
    }
    if (view_.result.files > 0) {
      journal.Prune();
      view_.canBeUndone = journal.CanUndoLast();
    }
  }

  ExitCode Judge() const {
    if (view_.result.cancelled) {
      return ExitCode::Interrupted;
    }
    if (!view_.result.findings.empty()) {
      return view_.result.files > 0 ? ExitCode::Partly : ExitCode::Failed;
    }
    if (view_.refused || view_.shots == 0) {
      return ExitCode::Findings;
    }
    if (!view_.plan.problems.empty()) {
      return view_.plan.renames.empty() ? ExitCode::Findings : ExitCode::Partly;
    }
    return ExitCode::Done;
  }

  const RenameArguments& arguments_;
  Session& session_;
  const Host::RenamePattern pattern_;
  RenameView view_;
};

}  // namespace

void AddRenameCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("rename", kDescription);
  const auto arguments = std::make_shared<RenameArguments>();
  command->footer(kFooter);
  command->add_option("FILE", arguments->files, "Photos, or folders with photos.")
      ->required()
      ->transform(Text());
  command->add_option("--pattern", arguments->pattern, "The pattern of the new names; see below.")
      ->option_text("PATTERN")
      ->required()
      ->transform(Text());
  command->add_option("--start", arguments->start, "The first number, 0 to 4294967295. Default: 1.")
      ->option_text("N")
      ->check(WholeNumber(0, 4'294'967'295));
  command
      ->add_option("--order", arguments->order,
                   "The order of the numbers: given, date or name. Default: given.")
      ->option_text("ORDER")
      ->check(OneOf({"given", "date", "name"}));
  command
      ->add_flag("--skip-problems", arguments->skipProblems,
                 "Leave out photos that cannot get their new names, and rename the others.")
      ->disable_flag_override();
  command->add_flag("--dry-run", arguments->dryRun, "Show the old and the new names; change nothing.")
      ->disable_flag_override();
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return RenameRun(*arguments, session).Run(); };
  });
}

}  // namespace Zenvora::Lumidex::Cli
