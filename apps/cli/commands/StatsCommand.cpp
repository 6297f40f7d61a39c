#include <LumidexUtil/UpdateStat.h>
#include <cli/commands/Commands.h>
#include <cli/commands/StatsCommand.h>
#include <cli/session/Options.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/Words.h>
#include <host/settings/UsageStatistics.h>

#include <zenvora/app/RealServices.h>
#include <zenvora/strandel/StatisticsFile.h>

#include <utility>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr char kDescription[] =
    "Keep statistics of what you use, for yourself only.\n"
    "\n"
    "Statistics are off until you turn them on. They are kept in one file on this\n"
    "computer and never sent anywhere: the day, the command, and how many photos\n"
    "there were before and after it. They hold no names, no paths and nothing of\n"
    "your photos.";

constexpr char kFooter[] = "\"lumidex help stats COMMAND\" has the examples of a command.";

constexpr char kShowDescription[] =
    "Show the statistics in full.\n"
    "\n"
    "The file holds nothing but what is shown.";
constexpr char kShowFooter[] =
    R"(Examples:
  lumidex stats show
  lumidex stats show --json

Exit codes: 0 done; 1 some lines of the file are damaged; 4 it cannot be read.)";

constexpr char kClearDescription[] =
    "Delete the statistics.\n"
    "\n"
    "This does not turn them on or off.";
constexpr char kClearFooter[] =
    R"(Examples:
  lumidex stats clear

Exit codes: 0 done; 4 the file cannot be deleted.)";

constexpr char kOnDescription[] =
    "Keep statistics from now on.\n"
    "\n"
    "In a file on this computer only; \"lumidex stats show\" shows all of it.";
constexpr char kOffDescription[] =
    "Stop keeping statistics.\n"
    "\n"
    "The statistics kept so far stay until \"lumidex stats clear\".";
constexpr char kSwitchFooter[] =
    R"(Examples:
  lumidex stats on
  lumidex stats off

Exit codes: 0 done; 4 the settings cannot be written.)";

std::string StateText() {
  return Say(Host::AreStatisticsOn() ? Words::tr("Statistics are on.") : Words::tr("Statistics are off."));
}

std::string FileText() {
  return Say(Words::tr("File: %1"), {EscapeForTerminal(Host::StatisticsFileOfUser().utf8string())}) + '\n';
}

std::string StatsDocument(const Strandel::Statistics& statistics) {
  JsonWriter json("lumidex.stats", 1);
  json.Truth("on", Host::AreStatisticsOn());
  json.Path("file", Host::StatisticsFileOfUser());
  json.BeginArray("events");
  for (const Strandel::StatisticsEvent& event : statistics.events) {
    json.BeginObject();
    json.Day("day", event.day);
    json.Text("event", event.name);
    json.BeginObject("parameters");
    for (const auto& [key, value] : event.parameters) {
      json.Text(key, value);
    }
    json.EndObject();
    json.EndObject();
  }
  json.EndArray();
  json.Number("damaged", static_cast<long long>(statistics.damaged));
  return json.Finish();
}

std::string ParametersText(const Strandel::StatisticsEvent& event) {
  std::string text;
  for (const auto& [key, value] : event.parameters) {
    text += (text.empty() ? "" : ", ") + key + ": " + value;
  }
  return text;
}

std::string StatsText(const Strandel::Statistics& statistics) {
  std::string text;
  if (!statistics.events.empty()) {
    TextTable table({{Say(Words::tr("DAY"))}, {Say(Words::tr("COMMAND"))}, {Say(Words::tr("DETAILS"))}});
    for (const Strandel::StatisticsEvent& event : statistics.events) {
      table.AddRow({event.day.isValid() ? event.day.toString(Qt::ISODate).toStdString() : "-", event.name,
                    ParametersText(event)});
    }
    text = table.Text() + '\n';
  }
  const int lines = Amount(statistics.events.size());
  return text +
         Say(Host::AreStatisticsOn() ? Words::tr("Statistics are on; %1 lines.", nullptr, lines)
                                     : Words::tr("Statistics are off; %1 lines.", nullptr, lines),
             {GroupDigits(statistics.events.size())}) +
         '\n' + FileText();
}

ExitCode RunShow(Session& session) {
  const Strandel::Statistics statistics = Strandel::ReadStatistics(Host::StatisticsFileOfUser());
  if (!statistics.fault.empty()) {
    throw Failure("failed", "The statistics cannot be shown: " + statistics.fault + ".");
  }
  session.output.Print(session.globals.json ? StatsDocument(statistics) : StatsText(statistics));
  if (statistics.damaged > 0) {
    session.console.Warning(
        Say(Words::tr("%1 lines of the statistics cannot be read.", nullptr, Amount(statistics.damaged)),
            {GroupDigits(statistics.damaged)}));
    return ExitCode::Findings;
  }
  return ExitCode::Done;
}

/// What is there after a change.
ExitCode Tell(Session& session, const std::string& text) {
  if (session.globals.json) {
    session.output.Print(StatsDocument(Strandel::ReadStatistics(Host::StatisticsFileOfUser())));
  } else {
    session.output.Print(text);
  }
  return ExitCode::Done;
}

ExitCode RunClear(Session& session) {
  const std::string fault = Strandel::ClearStatistics(Host::StatisticsFileOfUser());
  if (!fault.empty()) {
    throw Failure("failed", "The statistics cannot be deleted: " + fault + ".");
  }
  return Tell(session, Say(Words::tr("The statistics are deleted.")) + ' ' + StateText() + '\n');
}

ExitCode RunSwitch(bool on, Session& session) {
  if (!Host::TurnStatistics(on)) {
    throw Failure("failed",
                  "The settings in " + App::UserSettingsFile().utf8string() + " cannot be written.");
  }
  return Tell(session, StateText() + '\n' + (on ? FileText() : std::string()));
}

void AddPart(CLI::App& stats, const char* name, const char* description, const char* footer,
             const Action& action, Action& chosen) {
  CLI::App* const command = stats.add_subcommand(name, description);
  command->footer(footer);
  command->callback([action, &chosen] { chosen = action; });
}

}  // namespace

void NoteUse(const std::string& command, Session& session) {
  if (command.rfind("stats", 0) == 0) {
    return;
  }
  if (const auto handler = Host::MakeStatisticsHandler()) {
    handler->HandleEvent(command, UpdateStat(LaunchMode::CommandLine, std::move(session.usage)));
  }
}

void AddStatsCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("stats", kDescription);
  command->footer(kFooter);
  AddPart(*command, "show", kShowDescription, kShowFooter, RunShow, chosen);
  AddPart(*command, "clear", kClearDescription, kClearFooter, RunClear, chosen);
  AddPart(
      *command, "on", kOnDescription, kSwitchFooter,
      [](Session& session) { return RunSwitch(true, session); }, chosen);
  AddPart(
      *command, "off", kOffDescription, kSwitchFooter,
      [](Session& session) { return RunSwitch(false, session); }, chosen);
}

}  // namespace Zenvora::Lumidex::Cli
