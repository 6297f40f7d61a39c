#include "Commands.h"
#include "ImportView.h"
#include "Interrupt.h"
#include "JsonWriter.h"
#include "Options.h"
#include "Sources.h"
#include "TerminalText.h"
#include "TextTable.h"
#include "ValueTexts.h"
#include "Words.h"

#include <host/SaveChecks.h>

#include <algorithm>
#include <memory>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::CheckFinding;
using Host::CheckReport;

constexpr char kDescription[] =
    "See what would be in the way of importing or changing photos.\n"
    "\n"
    "Looks whether the files can be read, whether their formats can be written,\n"
    "whether there is room to save them anew, and whether folders and files may be\n"
    "written. Lists everything at once and changes nothing.";

constexpr char kFooter[] =
    R"(A folder stands for all photos in it and below it, with their side files;
hidden files and folders are passed over. What is no photo is not looked at.

Examples:
  lumidex check ~/Pictures
  lumidex check --json IMG_1.CR2 IMG_1.JPG

Exit codes: 0 nothing is in the way; 1 something is, or there are no photos;
4 a file or folder is missing; 130 interrupted.)";

const char* KindName(CheckFinding::Kind kind) {
  switch (kind) {
    case CheckFinding::Kind::Unreadable:
      return "unreadable";
    case CheckFinding::Kind::Format:
      return "format";
    case CheckFinding::Kind::Space:
      return "space";
    case CheckFinding::Kind::Folder:
      return "folder";
    case CheckFinding::Kind::File:
      return "file";
  }
  return "";
}

std::string Document(const CheckReport& report) {
  JsonWriter json("lumidex.check", 1);
  json.Number("files", static_cast<long long>(report.files));
  json.BeginArray("volumes");
  for (const Host::CheckedVolume& volume : report.volumes) {
    json.BeginObject();
    json.Path("folder", volume.folder);
    json.Number("files", static_cast<long long>(volume.files));
    json.Number("bytesNeeded", static_cast<long long>(volume.bytesNeeded));
    if (volume.bytesFree > 0) {
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
    json.EndObject();
  }
  json.EndArray();
  return json.Finish();
}

std::string KindText(CheckFinding::Kind kind) {
  switch (kind) {
    case CheckFinding::Kind::Unreadable:
      return Say(Words::tr("unreadable"));
    case CheckFinding::Kind::Format:
      return Say(Words::tr("format"));
    case CheckFinding::Kind::Space:
      return Say(Words::tr("space"));
    case CheckFinding::Kind::Folder:
      return Say(Words::tr("folder"));
    case CheckFinding::Kind::File:
      return Say(Words::tr("file"));
  }
  return "";
}

std::string VolumesText(const CheckReport& report) {
  TextTable table({{Say(Words::tr("Volume of"))},
                   {Say(Words::tr("Files")), TextTable::Align::Right},
                   {Say(Words::tr("Needed")), TextTable::Align::Right},
                   {Say(Words::tr("Free", "room on a disk")), TextTable::Align::Right}});
  for (const Host::CheckedVolume& volume : report.volumes) {
    table.AddRow({volume.folder.utf8string(), GroupDigits(volume.files), SizeText(volume.bytesNeeded),
                  volume.bytesFree > 0 ? SizeText(static_cast<std::uint64_t>(volume.bytesFree))
                                       : Say(Words::tr("unknown", "free room"))});
  }
  return table.Text() + '\n';
}

std::string FindingsText(const CheckReport& report) {
  TextTable table({{Say(Words::tr("What"))}, {Say(Words::tr("Where"))}, {Say(Words::tr("Why"))}});
  for (const CheckFinding& finding : report.findings) {
    table.AddRow({KindText(finding.kind), finding.path.utf8string(), finding.text});
  }
  return table.Text() + '\n';
}

std::string ReportText(const CheckReport& report) {
  if (report.files == 0 && report.findings.empty()) {
    return {};
  }
  const std::size_t things = report.findings.size();
  const std::string checked =
      Say(Words::tr("%1 files checked", nullptr, Amount(report.files)), {GroupDigits(report.files)}) + "; ";
  const std::string outcome = (things == 0 ? Say(Words::tr("nothing is in the way."))
                                           : Say(Words::tr("%1 things in the way.", nullptr, Amount(things)),
                                                 {GroupDigits(things)})) +
                              '\n';
  return (report.volumes.empty() ? "" : VolumesText(report)) +
         (report.findings.empty() ? "" : FindingsText(report)) + checked + outcome;
}

ExitCode RunCheck(const std::vector<std::string>& names, Session& session) {
  const CheckReport report = Host::CheckFiles(Host::GatherSources(ExistingSources(names)));
  ThrowIfInterrupted(Say(Words::tr("Interrupted. Nothing was changed.")).c_str());
  session.output.Print(session.globals.json ? Document(report) : ReportText(report));
  if (report.files == 0) {
    session.console.Note(Say(Words::tr("There are no photos in the given folders.")));
  }
  return report.findings.empty() && report.files > 0 ? ExitCode::Done : ExitCode::Findings;
}

}  // namespace

void AddCheckCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("check", kDescription);
  const auto names = std::make_shared<std::vector<std::string>>();
  command->footer(kFooter);
  command->add_option("FILE", *names, "Photos, or folders with all below them.")
      ->required()
      ->transform(Text());
  command->callback(
      [names, &chosen] { chosen = [names](Session& session) { return RunCheck(*names, session); }; });
}

}  // namespace Zenvora::Lumidex::Cli
