#include <cli/commands/Commands.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/EditView.h>
#include <cli/views/StepRoom.h>
#include <host/edit/PhotoEditing.h>
#include <host/scan/FileVerdicts.h>
#include <host/scan/PhotoChoice.h>

#include <zenvora/strandel/PhotoEdit.h>

#include <glog/logging.h>

#include <memory>
#include <utility>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr char kRotateDescription[] =
    "Rotate photos without losing quality.\n"
    "\n"
    "DIRECTION is left or right (by 90 degrees) or 180. Only the EXIF orientation\n"
    "changes, not the picture. \"lumidex undo\" undoes it.";

constexpr char kShiftDescription[] =
    "Correct the dates of photos whose camera's clock was wrong.\n"
    "\n"
    "OFFSET is added to the dates: +1h, -2d3h, +90m, or as a time +1:30, -0:00:45.\n"
    "All dates of a photo are shifted, also those in its XMP and IPTC data.\n"
    "\"lumidex undo\" undoes it.";

constexpr char kSetDescription[] =
    "Give photos a date.\n"
    "\n"
    "DATE is a day with a time, 2024-05-17T18:30 or \"2024-05-17 18:30:05\", as the\n"
    "clock of the camera should have shown it. A day alone means its midnight.\n"
    "\"lumidex undo\" undoes it.";

constexpr char kEditNote[] =
    R"(JPEG, PNG, WebP, TIFF and most raw files can be edited; their pictures stay the
same, bit for bit. Other photos are listed with the reason. A folder stands for
the photos in it, without subfolders; a link stands for the photo it leads to.
The sidecar of a photo (IMG_1.xmp, IMG_1.CR2.xmp) is edited with it; an
IMG_1.xmp that several formats share is edited with the raw file.
Write-protected files are skipped unless you give --force.

The originals are kept for undo up to a limit (see: lumidex help undo). If undo
would have to forget older steps for that, you are asked; without a terminal,
nothing is changed unless you give --forget-older.
)";

constexpr char kRotateExamples[] =
    R"(
Examples:
  lumidex rotate right IMG_1.jpg IMG_2.jpg
  lumidex rotate --dry-run 180 ~/Pictures/scans
)";

constexpr char kShiftExamples[] =
    R"(
Examples:
  lumidex shift-date +1h ~/Pictures/trip        the clock was one hour slow
  lumidex shift-date -2d3h IMG_1.jpg            the clock was fast
  lumidex shift-date --dry-run +1:30 *.jpg
)";

constexpr char kSetExamples[] =
    R"(
Examples:
  lumidex set-date 1987-08-15 ~/Pictures/scans
  lumidex set-date "2024-05-17 18:30" IMG_1.jpg
  lumidex set-date --dry-run 2024-05-17T18:30:05 *.jpg
)";

constexpr char kExitCodes[] =
    R"(
Exit codes: 0 done; 1 there are no photos, or you answered no; 3 some photos
cannot be edited; 4 no photo can be edited, the originals exceed the limit of
undo, or the catalogue cannot be written; 130 interrupted, the photos edited so
far stay edited. A dry run ends with the exit code of the run.)";

struct EditArguments {
  std::string what;
  std::vector<std::string> files;
  bool dryRun = false;
  bool force = false;
  RoomWish room;
};

/// What is to be done to each photo.
struct Order {
  const char* command;
  std::string argument;
  std::string step;  ///< Its name in the journal.
  Strandel::PhotoEdit edit;
};

Order RotateOrder(const EditArguments& arguments) {
  Order order{"rotate", arguments.what, "rotate " + arguments.what, {}};
  order.edit.turn = arguments.what == "left"    ? Strandel::Turn::Left
                    : arguments.what == "right" ? Strandel::Turn::Right
                                                : Strandel::Turn::Half;
  return order;
}

[[noreturn]] void ThrowUsage(const char* command, const char* argument, const std::string& fault) {
  throw UsageError(std::string(argument) + " needs " + fault + " (see: lumidex help " + command + ")");
}

Order ShiftOrder(const EditArguments& arguments) {
  std::string fault;
  const auto offset = ParseOffset(arguments.what, fault);
  if (!offset) {
    ThrowUsage("shift-date", "OFFSET", fault);
  }
  Order order{"shift-date", arguments.what, "shift dates by " + OffsetText(*offset), {}};
  order.edit.shift = *offset;
  return order;
}

Order SetOrder(const EditArguments& arguments) {
  std::string fault;
  const auto date = ParseDate(arguments.what, fault);
  if (!date) {
    ThrowUsage("set-date", "DATE", fault);
  }
  const std::string text = date->toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toStdString();
  Order order{"set-date", arguments.what, "set dates to " + text, {}};
  order.edit.date = *date;
  return order;
}

/// One run of one of the commands.
class EditRun {
 public:
  EditRun(const EditArguments& arguments, Order order, Session& session)
      : arguments_(arguments), order_(std::move(order)), session_(session) {
    view_.catalogue = session.CatalogueFile();
    view_.command = order_.command;
    view_.argument = order_.argument;
    view_.turns = order_.edit.turn != Strandel::Turn::None;
    view_.dryRun = arguments.dryRun;
    view_.roomWish = arguments.room;
  }

  ExitCode Run() {
    // What a former run left half done changes what there is to choose from.
    if (!arguments_.dryRun) {
      RequireRecovered(session_);
    }
    Choose();
    view_.room = RoomFor(session_, FilesToReplace(), arguments_.room);
    if (arguments_.dryRun) {
      Try();
    } else if (!tasks_.empty()) {
      view_.declined = !AgreeOnRoom(session_, view_.room, arguments_.room);
      view_.interrupted = view_.declined && session_.interrupted;
      if (!view_.declined) {
        Edit();
      }
    }
    session_.Count(ItemType::Photo, view_.photos, view_.edited);
    view_.recovered = session_.recovered;
    session_.output.Print(session_.globals.json ? EditDocument(view_) : EditText(view_));
    Note();
    return Judge();
  }

 private:
  void Choose() {
    std::vector<ioPath> named;
    for (const std::string& file : arguments_.files) {
      named.push_back(AbsolutePath(file));
    }
    Host::EditChoice choice = Host::ChooseForEdit(named);
    tasks_ = Host::FindSidecars(choice.photos);
    view_.photos = tasks_.size();
    view_.findings = std::move(choice.refused);
  }

  /// Without what is refused at first sight; what is refused later needs no room either.
  std::vector<ioPath> FilesToReplace() const {
    std::vector<ioPath> files;
    for (const Host::EditTask& task : tasks_) {
      if (!Host::JudgeEditing(task.photo, arguments_.force).IsRefused()) {
        files.push_back(task.photo);
        files.insert(files.end(), task.sidecars.begin(), task.sidecars.end());
      }
    }
    return files;
  }

  void Try() {
    Progress progress(session_.console, Say(Words::tr("Checking")), Say(Words::tr("photos", "of so many")));
    std::uint64_t done = 0;
    for (const Host::EditTask& task : tasks_) {
      if (session_.interrupted) {
        view_.interrupted = true;
        break;
      }
      Host::EditVerdict verdict = Host::JudgeEdit(task, order_.edit, arguments_.force);
      if (verdict.IsRefused()) {
        view_.findings.push_back({task.photo, std::move(verdict.text)});
      } else {
        view_.sidecars += verdict.sidecars.size();
        view_.tried.push_back({task.photo, verdict.effect, std::move(verdict.sidecars)});
      }
      progress.Update(++done, tasks_.size());
    }
    view_.edited = view_.tried.size();
  }

  void Edit() {
    VLOG(1) << "editing " << tasks_.size() << " photos";
    OpenJournal journal(session_);
    journal.Get().KeepOriginals(!arguments_.room.noUndo);
    Host::EditOrder order;
    order.name = QString::fromStdString(order_.step);
    order.edit = order_.edit;
    order.force = arguments_.force;
    Host::EditResult result;
    {
      Progress progress(session_.console, Say(Words::tr("Editing")), Say(Words::tr("photos", "of so many")));
      result = Host::EditPhotos(
          journal.Get().Edits(), journal.Locker(), order, tasks_, session_.interrupted,
          [&progress](std::size_t done, std::size_t total) { progress.Update(done, total); });
    }
    view_.edited = result.photos;
    view_.sidecars = result.sidecars;
    view_.interrupted = result.cancelled;
    view_.findings.insert(view_.findings.end(), result.findings.begin(), result.findings.end());
    if (result.files > 0) {
      view_.forgotten = journal.Prune(view_.room.forgotten);
      if (arguments_.room.noUndo) {
        view_.blocked = journal.Get().BlockedBy(FilesToReplace());
      }
      view_.canBeUndone = journal.CanUndoLast();
    }
  }

  void Note() const {
    if (view_.interrupted) {
      session_.console.Note(Say(arguments_.dryRun
                                    ? Words::tr("Interrupted.")
                                    : Words::tr("Interrupted. The photos edited so far stay edited.")));
    } else if (tasks_.empty() && view_.findings.empty() && !view_.declined) {
      session_.console.Note(Say(Words::tr("There are no photos in the given folders.")));
    }
  }

  ExitCode Judge() const {
    if (view_.interrupted) {
      return ExitCode::Interrupted;
    }
    // As the run, which asks for room before it looks at any file.
    if (arguments_.dryRun && !tasks_.empty() && WouldBeRefused(view_.room, arguments_.room)) {
      return ExitCode::Failed;
    }
    if (arguments_.dryRun && view_.edited > 0 && !view_.room.tight.empty()) {
      return ExitCode::Partly;
    }
    if (!view_.findings.empty()) {
      return view_.edited > 0 ? ExitCode::Partly : ExitCode::Failed;
    }
    return tasks_.empty() || view_.declined ? ExitCode::Findings : ExitCode::Done;
  }

  const EditArguments& arguments_;
  const Order order_;
  Session& session_;
  std::vector<Host::EditTask> tasks_;
  EditView view_;
};

using MakeOrder = Order (*)(const EditArguments&);

CLI::Option* AddCommand(CLI::App& program, Action& chosen, const char* name, const char* description,
                        const char* examples, std::pair<const char*, const char*> what, MakeOrder makeOrder) {
  CLI::App* const command = program.add_subcommand(name, description);
  const auto arguments = std::make_shared<EditArguments>();
  command->footer(std::string(kEditNote) + examples + kExitCodes);
  CLI::Option* const argument =
      command->add_option(what.first, arguments->what, what.second)->required()->transform(Text());
  command->add_option("FILE", arguments->files, "Photos, or folders with photos.")
      ->required()
      ->transform(Text());
  command->add_flag("--dry-run", arguments->dryRun, "Show what would be changed; change nothing.")
      ->disable_flag_override();
  command->add_flag("--force", arguments->force, "Also edit write-protected files.")->disable_flag_override();
  AddRoomOptions(*command, arguments->room);
  command->callback([arguments, makeOrder, &chosen] {
    chosen = [arguments, makeOrder](Session& session) {
      return EditRun(*arguments, makeOrder(*arguments), session).Run();
    };
  });
  return argument;
}

}  // namespace

void AddEditCommands(CLI::App& program, Action& chosen) {
  AddCommand(program, chosen, "rotate", kRotateDescription, kRotateExamples,
             {"DIRECTION", "left, right or 180."}, RotateOrder)
      ->check(OneOf({"left", "right", "180"}));
  AddCommand(program, chosen, "shift-date", kShiftDescription, kShiftExamples,
             {"OFFSET", "A sign and a duration: +1h, -2d3h, +90m, +1:30."}, ShiftOrder);
  AddCommand(program, chosen, "set-date", kSetDescription, kSetExamples,
             {"DATE", "A day, with or without a time of day."}, SetOrder);
}

}  // namespace Zenvora::Lumidex::Cli
