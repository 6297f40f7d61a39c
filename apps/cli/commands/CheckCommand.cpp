#include <cli/commands/Commands.h>
#include <cli/session/Options.h>
#include <cli/session/Sources.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>
#include <cli/views/ImportView.h>
#include <cli/views/JournalView.h>
#include <cli/views/StepRoom.h>
#include <host/scan/SaveChecks.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::CheckFinding;
using Host::CheckReport;
using Host::FileAct;
using Kind = Host::FileVerdict::Kind;

constexpr char kDescription[] =
    "Check which files a command would refuse, and why.\n"
    "\n"
    "Checks for each file what import, rename, rotate, shift-date, set-date and\n"
    "similar --trash would do, and lists the files that they would refuse. Nothing\n"
    "is changed.";

constexpr char kFooter[] =
    R"(A folder stands for all photos in it and in its subfolders, with their
sidecars; hidden files and folders are skipped. For import it stands for all
files that an import looks at, also videos and hidden files. Files that are not
pictures are listed on removable storage and counted elsewhere.

For rotate, shift-date and set-date each photo and its sidecar are read
completely and edited in memory, so the answer is certain. Problems that depend
on the arguments of a command (dates after the year 9999, names that are taken)
are not listed; --dry-run of the command shows them. What similar --trash moves
also depends on the photo that is kept of each group: photos with tags, albums
or settings that it does not have stay, and so do second names of its file and
raw files if no raw file is kept; similar --trash --dry-run lists them.

Examples:
  lumidex check ~/Pictures
  lumidex check --for rotate,shift-date ~/Pictures/trip
  lumidex check --json IMG_1.CR2 IMG_1.JPG

Exit codes: 0 no file would be refused; 1 some files would be refused, or there
are no photos; 4 a file or folder is missing; 130 interrupted.)";

struct ActName {
  FileAct act;
  const char* name;  ///< Of the command; of the trash what people call it.
};
constexpr std::array kActs = {
    ActName{FileAct::Import, "import"},    ActName{FileAct::Rename, "rename"},
    ActName{FileAct::Rotate, "rotate"},    ActName{FileAct::ShiftDate, "shift-date"},
    ActName{FileAct::SetDate, "set-date"}, ActName{FileAct::Trash, "trash"}};

struct CheckArguments {
  std::vector<std::string> files;
  std::string acts;  ///< With commas between them; empty: all.
};

std::vector<std::string> ActNames(const std::set<FileAct>& acts) {
  std::vector<std::string> names;
  for (const ActName& act : kActs) {
    if (acts.count(act.act) > 0) {
      names.emplace_back(act.name);
    }
  }
  return names;
}

std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) {
    text += (text.empty() ? "" : ", ") + name;
  }
  return text;
}

std::set<FileAct> ActsOf(const std::string& list) {
  const std::set<FileAct> all = Host::CheckOptions().acts;
  if (list.empty()) {
    return all;
  }
  std::set<FileAct> acts;
  for (std::size_t begin = 0; begin <= list.size();) {
    const std::size_t end = std::min(list.find(',', begin), list.size());
    const std::string name = list.substr(begin, end - begin);
    const auto* const known =
        std::find_if(kActs.begin(), kActs.end(), [&name](const ActName& act) { return name == act.name; });
    if (known == kActs.end()) {
      throw UsageError("--for must name some of " + Joined(ActNames(all)) + ", not \"" + name +
                       "\" (see: lumidex help check)");
    }
    acts.insert(known->act);
    begin = end + 1;
  }
  return acts;
}

const char* KindName(Kind kind) {
  switch (kind) {
    case Kind::Unreadable:
      return "unreadable";
    case Kind::NoFile:
      return "no-file";
    case Kind::Name:
      return "name";
    case Kind::Format:
      return "format";
    case Kind::Content:
      return "content";
    case Kind::Protected:
      return "protected";
    case Kind::Folder:
      return "folder";
    case Kind::Sidecar:
      return "sidecar";
    case Kind::Kept:
      return "kept";
    case Kind::Torn:
      return "torn";
    case Kind::Room:
      return "room";
    case Kind::Done:
      break;
  }
  return "";
}

void WriteActs(JsonWriter& json, const std::set<FileAct>& acts) {
  json.BeginArray("for");
  for (const std::string& name : ActNames(acts)) {
    json.Text("", name);
  }
  json.EndArray();
}

bool IsEdit(FileAct act) {
  return act == FileAct::Rotate || act == FileAct::ShiftDate || act == FileAct::SetDate;
}

std::string Document(const CheckReport& report, const std::set<FileAct>& acts,
                     const Host::JournalRoom& room) {
  JsonWriter json("lumidex.check", 1);
  WriteActs(json, acts);
  json.Number("files", static_cast<long long>(report.files));
  json.BeginArray("volumes");
  for (const Host::CheckedVolume& volume : report.volumes) {
    json.BeginObject();
    json.Path("folder", volume.folder);
    json.Number("files", static_cast<long long>(volume.files));
    json.Number("bytesNeeded", static_cast<long long>(volume.bytesNeeded));
    if (volume.bytesFree >= 0) {
      json.Number("bytesFree", static_cast<long long>(volume.bytesFree));
    } else {
      json.Null("bytesFree");
    }
    json.EndObject();
  }
  json.EndArray();
  json.BeginArray("findings");
  for (const CheckFinding& finding : report.findings) {
    json.BeginObject();
    json.Text("kind", KindName(finding.kind));
    json.Path("path", finding.path);
    json.Text("text", finding.text);
    WriteActs(json, finding.acts);
    json.EndObject();
  }
  json.EndArray();
  json.BeginArray("left");
  for (const Host::LeftFile& left : report.left) {
    json.BeginObject();
    WriteLeft(json, left);
    json.EndObject();
  }
  json.EndArray();
  if (std::any_of(acts.begin(), acts.end(), IsEdit)) {
    WriteRoom(json, room, RoomWish());
  }
  return json.Finish();
}

std::string VolumesText(const CheckReport& report) {
  TextTable table({{Say(Words::tr("Volume of"))},
                   {Say(Words::tr("Files")), TextTable::Align::Right},
                   {Say(Words::tr("Needed")), TextTable::Align::Right},
                   {Say(Words::tr("Free", "room on a disk")), TextTable::Align::Right}});
  for (const Host::CheckedVolume& volume : report.volumes) {
    table.AddRow({volume.folder.utf8string(), GroupDigits(volume.files), SizeText(volume.bytesNeeded),
                  volume.bytesFree >= 0 ? SizeText(static_cast<std::uint64_t>(volume.bytesFree))
                                        : Say(Words::tr("unknown", "free room"))});
  }
  return table.Text() + '\n';
}

/// A sentence that names its file, as those of the commands.
std::string LineOf(const CheckFinding& finding) {
  const std::string name = finding.path.utf8string();
  return finding.text.find(name) == std::string::npos ? name + ": " + finding.text : finding.text;
}

/// Commands that refuse the same files share a heading.
std::string RefusedText(const CheckReport& report) {
  std::vector<std::pair<std::set<FileAct>, std::vector<Host::FileFinding>>> groups;
  for (const CheckFinding& finding : report.findings) {
    auto group = std::find_if(groups.begin(), groups.end(),
                              [&finding](const auto& other) { return other.first == finding.acts; });
    if (group == groups.end()) {
      group = groups.insert(groups.end(), {finding.acts, {}});
    }
    group->second.push_back({finding.path, LineOf(finding)});
  }
  std::string text;
  for (const auto& [acts, findings] : groups) {
    text += FindingsText(Say(Words::tr("Refused by %1", "commands"), {Joined(ActNames(acts))}), findings);
  }
  return text;
}

std::string EditRoomText(const Host::JournalRoom& room) {
  const std::string text = RoomText(room, RoomWish());
  return text.empty() ? text : Say(Words::tr("If all these photos are edited at once:")) + '\n' + text + '\n';
}

std::string ReportText(const CheckReport& report, const std::set<FileAct>& acts,
                       const Host::JournalRoom& room) {
  if (report.files == 0 && report.findings.empty()) {
    return {};
  }
  std::set<ioPath> refused;
  for (const CheckFinding& finding : report.findings) {
    refused.insert(finding.path);
  }
  const std::string checked =
      Say(Words::tr("%1 files checked", nullptr, Amount(report.files)), {GroupDigits(report.files)});
  const std::string roomText = EditRoomText(room);
  const std::string outcome =
      (refused.empty() && roomText.empty()
           ? Say(Words::tr("no problems found."))
           : Say(Words::tr("%1 files or folders would be refused.", nullptr, Amount(refused.size())),
                 {GroupDigits(refused.size())}));
  const std::string left = report.left.empty()
                               ? std::string()
                               : Say(Words::tr("An import skips %1 other files (--json lists them).", nullptr,
                                               Amount(report.left.size())),
                                     {GroupDigits(report.left.size())}) +
                                     '\n';
  const std::string groups =
      acts.count(FileAct::Trash) == 0
          ? std::string()
          : Say(Words::tr(
                "Whether a photo goes to the trash also depends on the one that is kept of its group, and on "
                "tags, albums, settings and second names; \"lumidex similar --trash --dry-run\" tells.")) +
                '\n';
  return (report.volumes.empty() ? "" : VolumesText(report)) + RefusedText(report) + roomText + left +
         groups + Say(Words::tr("%1; %2", "files checked; outcome"), {checked, outcome}) + '\n';
}

ExitCode RunCheck(const CheckArguments& arguments, Session& session) {
  Host::CheckOptions options;
  options.acts = ActsOf(arguments.acts);
  const std::vector<ioPath> named = ExistingSources(arguments.files);
  options.cancel = &session.interrupted;
  CheckReport report;
  {
    Progress progress(session.console, Say(Words::tr("Checking")), Say(Words::tr("photos", "of so many")));
    options.progress = [&progress](std::size_t done, std::size_t total) { progress.Update(done, total); };
    report = Host::CheckFiles(named, options);
  }
  ThrowIfInterrupted(Say(Words::tr("Interrupted. Nothing was changed.")).c_str());
  const Host::JournalRoom room = RoomFor(session, report.edited, RoomWish());
  session.output.Print(session.globals.json ? Document(report, options.acts, room)
                                            : ReportText(report, options.acts, room));
  if (report.files == 0) {
    session.console.Note(Say(Words::tr("There are no photos in the given folders.")));
  }
  const bool hasRoom = room.Fits() && room.forgotten.empty() && room.tight.empty();
  return report.findings.empty() && hasRoom && report.files > 0 ? ExitCode::Done : ExitCode::Findings;
}

}  // namespace

void AddCheckCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("check", kDescription);
  const auto arguments = std::make_shared<CheckArguments>();
  command->footer(kFooter);
  command->add_option("FILE", arguments->files, "Photos, or folders with their subfolders.")
      ->required()
      ->transform(Text());
  command
      ->add_option("--for", arguments->acts,
                   "The commands to check: import, rename, rotate, shift-date, set-date, trash, "
                   "separated by commas. Default: all.")
      ->option_text("COMMANDS")
      ->transform(Text());
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return RunCheck(*arguments, session); };
  });
}

}  // namespace Zenvora::Lumidex::Cli
