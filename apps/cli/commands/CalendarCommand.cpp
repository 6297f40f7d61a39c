#include <cli/commands/Commands.h>
#include <cli/session/Options.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/TextTable.h>
#include <cli/terminal/Words.h>
#include <host/albums/CalendarCheck.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/RealServices.h>

#include <memory>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::CalendarEvent;
using Host::CalendarFinding;
using Host::CalendarSource;

constexpr char kDescription[] =
    "Show, check or update the holiday calendar.\n"
    "\n"
    "The calendar names the days that albums are proposed for. One comes with the\n"
    "program; if you set a server, a newer one can be downloaded.";

constexpr char kFooter[] = "\"lumidex help calendar COMMAND\" has the options and examples of a command.";

constexpr char kShowDescription[] =
    "Show the holidays of a language.\n"
    "\n"
    "They are listed in the order in which they are tried: the first that contains\n"
    "a day gives it its name.";

constexpr char kShowFooter[] =
    R"(Examples:
  lumidex calendar show
  lumidex calendar show --locale fr_FR --year 2024

Exit codes: 0 done; 1 the calendar has no holidays for the language; 4 the
calendar cannot be read.)";

constexpr char kCheckDescription[] =
    "Check a calendar file for mistakes.\n"
    "\n"
    "Finds days that do not exist, events that are never used because others come\n"
    "first, missing and repeated names, and missing and unknown languages.";

constexpr char kCheckFooter[] =
    R"(Examples:
  lumidex calendar check                    the calendar in use
  lumidex calendar check HolidayEvents.json

Exit codes: 0 no mistakes; 1 mistakes; 4 the file cannot be read.)";

constexpr char kUpdateDescription[] =
    "Ask the server for a newer calendar.\n"
    "\n"
    "Set the server in lumidex.ini: BaseUrl in the group Download. If the server has\n"
    "no calendar, the one in use stays. \"lumidex albums\" asks the server once a\n"
    "week, and after a failure once a day, and waits at most 5 seconds; this command\n"
    "asks now, and waits up to two minutes.";

constexpr char kUpdateFooter[] =
    R"(Examples:
  lumidex calendar update

Exit codes: 0 the calendar is up to date; 3 the server has no calendar, and the
one in use stays; 4 no server is set, or there is no calendar at all; 130
interrupted.)";

struct CalendarArguments {
  std::string file;
  std::string locale;
  int year = 0;
};

const char* SourceName(CalendarSource source) {
  switch (source) {
    case CalendarSource::Stored:
      return "stored";
    case CalendarSource::Shipped:
      return "shipped";
  }
  return "";
}

/// An event in a year: the days that it begins and ends on.
struct Occurrence {
  QDate first;
  QDate last;
};

Occurrence InYear(const CalendarEvent& event, int year) {
  const bool runsOverNewYear = event.start > event.end;
  return {QDate(year, event.start.month(), event.start.day()),
          QDate(runsOverNewYear ? year + 1 : year, event.end.month(), event.end.day())};
}

std::string ShowDocument(const Host::CalendarFile& calendar, int year,
                         const std::vector<CalendarEvent>& events) {
  JsonWriter json("lumidex.calendar.show", 1);
  json.Path("file", calendar.file);
  json.Text("source", SourceName(calendar.source));
  json.Text("locale", App::GetCurrentLocale());
  json.Number("year", year);
  json.BeginArray("events");
  for (const CalendarEvent& event : events) {
    const Occurrence days = InYear(event, year);
    json.BeginObject();
    json.Text("name", event.name);
    json.Day("first", days.first);
    json.Day("last", days.last);
    json.EndObject();
  }
  json.EndArray();
  return json.Finish();
}

std::string ShowText(const Host::CalendarFile& calendar, int year, const std::vector<CalendarEvent>& events) {
  const std::string file = EscapeForTerminal(calendar.file.utf8string());
  const std::string source =
      (calendar.source == CalendarSource::Stored ? Say(Words::tr("Calendar: %1 (from the server)"), {file})
                                                 : Say(Words::tr("Calendar: %1"), {file})) +
      '\n';
  if (events.empty()) {
    return Say(Words::tr("The calendar has no holidays for %1."), {App::GetCurrentLocale()}) + '\n' + source;
  }
  TextTable table({{Say(Words::tr("HOLIDAY"))},
                   {Say(Words::tr("FIRST DAY"))},
                   {Say(Words::tr("LAST DAY"))},
                   {Say(Words::tr("DAYS")), TextTable::Align::Right}});
  const auto dayText = [](const QDate& day) {
    return day.isValid() ? day.toString(QStringLiteral("yyyy-MM-dd")).toStdString() : std::string("?");
  };
  for (const CalendarEvent& event : events) {
    const Occurrence days = InYear(event, year);
    const bool isSound = days.first.isValid() && days.last.isValid();
    table.AddRow({event.name.isEmpty() ? Say(Words::tr("(no name)")) : event.name.toStdString(),
                  dayText(days.first), dayText(days.last),
                  isSound ? std::to_string(days.first.daysTo(days.last) + 1) : "?"});
  }
  return table.Text() + '\n' +
         Say(Words::tr("%1 holidays for %2.", nullptr, Amount(events.size())),
             {GroupDigits(events.size()), App::GetCurrentLocale()}) +
         '\n' + source;
}

ExitCode RunShow(const CalendarArguments& arguments, Session& session) {
  const LocaleScope locale(arguments.locale, session);
  const Host::CalendarFile calendar = Host::FindCurrentCalendar();
  const auto events = Host::ReadCalendar(calendar.file, App::GetCurrentLocale());
  const int year = arguments.year > 0 ? arguments.year : App::GetCurrentDateTime().date().year();
  session.output.Print(session.globals.json ? ShowDocument(calendar, year, events)
                                            : ShowText(calendar, year, events));
  return events.empty() ? ExitCode::Findings : ExitCode::Done;
}

std::string CheckDocument(const ioPath& file, const std::vector<CalendarFinding>& findings) {
  JsonWriter json("lumidex.calendar.check", 1);
  json.Path("file", file);
  json.BeginArray("findings");
  for (const CalendarFinding& finding : findings) {
    json.BeginObject();
    json.Text("locale", finding.locale);
    json.Number("number", finding.number);
    json.Text("text", finding.text);
    json.EndObject();
  }
  json.EndArray();
  return json.Finish();
}

std::string CheckText(const ioPath& file, const std::vector<CalendarFinding>& findings) {
  const std::string name = EscapeForTerminal(file.utf8string());
  if (findings.empty()) {
    return Say(Words::tr("%1: no mistakes found."), {name}) + '\n';
  }
  TextTable table({{}, {}, {}});
  for (const CalendarFinding& finding : findings) {
    const std::string place = finding.number > 0
                                  ? Say(Words::tr("event %1"), {std::to_string(finding.number)})
                                  : Say(Words::tr("list", "of the events of a language"));
    table.AddRow({finding.locale, place, finding.text});
  }
  return table.Text() + '\n' +
         Say(Words::tr("%1: %2 mistakes found.", nullptr, Amount(findings.size())),
             {name, GroupDigits(findings.size())}) +
         '\n';
}

ExitCode RunCheck(const CalendarArguments& arguments, Session& session) {
  const ioPath file = arguments.file.empty() ? Host::CurrentCalendar() : AbsolutePath(arguments.file);
  const auto findings = Host::CheckCalendar(file);
  session.output.Print(session.globals.json ? CheckDocument(file, findings) : CheckText(file, findings));
  return findings.empty() ? ExitCode::Done : ExitCode::Findings;
}

void RequireServer() {
  const std::string server = App::Services::Current().Get<App::ISettingsManager>()->GetString(
      App::SettingsKey::kDownloadBaseUrl, "");
  if (QString::fromStdString(server).trimmed().isEmpty()) {
    throw Failure("no-server",
                  "No server is set to ask for a calendar. Set one in " +
                      App::UserSettingsFile().utf8string() + " with these lines:",
                  {"[Download]", "BaseUrl=https://..."});
  }
}

std::string UpdateDocument(const Host::CalendarUpdate& update) {
  JsonWriter json("lumidex.calendar.update", 1);
  json.Truth("ok", update.ok);
  json.Truth("changed", update.changed);
  if (update.file.empty()) {
    json.Null("file");
  } else {
    json.Path("file", update.file);
  }
  if (update.cause.empty()) {
    json.Null("cause");
  } else {
    json.Text("cause", update.cause);
  }
  return json.Finish();
}

std::string UpdateText(const Host::CalendarUpdate& update) {
  const std::string file = EscapeForTerminal(update.file.utf8string());
  if (!update.ok) {
    return Say(Words::tr("The calendar was not updated: %1"), {EscapeForTerminal(update.cause)}) + '\n' +
           (update.file.empty() ? Say(Words::tr("There is no calendar."))
                                : Say(Words::tr("Still in use: %1"), {file})) +
           '\n';
  }
  return Say(update.changed ? Words::tr("The calendar was updated: %1")
                            : Words::tr("The calendar is up to date: %1"),
             {file}) +
         '\n';
}

ExitCode RunUpdate(Session& session) {
  RequireServer();
  const Host::CalendarUpdate update = Host::UpdateCalendar(&session.interrupted);
  session.output.Print(session.globals.json ? UpdateDocument(update) : UpdateText(update));
  if (update.ok) {
    return ExitCode::Done;
  }
  return update.file.empty() ? ExitCode::Failed : ExitCode::Partly;
}

using Arguments = std::shared_ptr<CalendarArguments>;

void AddShow(CLI::App& calendar, const Arguments& arguments, Action& chosen) {
  CLI::App* const command = calendar.add_subcommand("show", kShowDescription);
  command->footer(kShowFooter);
  command
      ->add_option("--locale", arguments->locale,
                   "The language, such as de_DE. Default: that of the interface.")
      ->option_text("LOCALE")
      ->transform(Text());
  command->add_option("--year", arguments->year, "The year of the dates, 1 to 9998. Default: this year.")
      ->option_text("YEAR")
      ->check(WholeNumber(1, 9998));
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return RunShow(*arguments, session); };
  });
}

void AddCheck(CLI::App& calendar, const Arguments& arguments, Action& chosen) {
  CLI::App* const command = calendar.add_subcommand("check", kCheckDescription);
  command->footer(kCheckFooter);
  command->add_option("FILE", arguments->file, "The calendar file. Default: the calendar in use.")
      ->transform(Text());
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return RunCheck(*arguments, session); };
  });
}

void AddUpdate(CLI::App& calendar, Action& chosen) {
  CLI::App* const command = calendar.add_subcommand("update", kUpdateDescription);
  command->footer(kUpdateFooter);
  command->callback([&chosen] { chosen = RunUpdate; });
}

}  // namespace

void AddCalendarCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("calendar", kDescription);
  const auto arguments = std::make_shared<CalendarArguments>();
  command->footer(kFooter);
  AddShow(*command, arguments, chosen);
  AddCheck(*command, arguments, chosen);
  AddUpdate(*command, chosen);
}

}  // namespace Zenvora::Lumidex::Cli
