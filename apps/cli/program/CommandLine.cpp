#include "CommandLine.h"

#include "ArgumentWords.h"
#include "UsageFaults.h"

#include <cli/commands/Commands.h>
#include <cli/session/Options.h>
#include <cli/terminal/HelpFormatter.h>
#include <cli/terminal/JsonWriter.h>
#include <host/similar/Models.h>

#include <algorithm>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr char kDescription[] =
    "Lumidex keeps track of your photos, proposes albums for holidays and weekends,\n"
    "and renames photos, rotates them and corrects their dates. \"lumidex undo\"\n"
    "undoes imports, accepted albums, tags, renames, edits and moves to the trash;\n"
    "its help page says what it does not cover. Lumidex never deletes a photo.";

constexpr char kFooter[] =
    R"(Examples:
  lumidex scan ~/Pictures              add the photos to the catalogue
  lumidex import /media/card           copy photos and videos off a card
  lumidex albums                       see which albums they could form
  lumidex albums --accept "Christmas, December 2023"
  lumidex albums --report albums.html  the same as a page with pictures
  lumidex find --tag Beach --date "2023-06-01 - 2023-08-31"
  lumidex rename --pattern "{date}_{number:3}" ~/Pictures/trip
  lumidex undo                         undo that
  lumidex sample /tmp/demo             make sample photos to try things out

"lumidex help COMMAND" has the options and examples of a command.

Exit codes:
  0    done
  1    done, but something needs your attention
  2    invalid arguments
  3    partly failed
  4    failed
  130  interrupted; what was finished stays done)";

std::string VersionText() {
  const std::string runtime = Host::ModelRuntime();
  return "lumidex " LUMIDEX_VERSION "\nmodels: " +
         (runtime.empty() ? "none (built without LUMIDEX_ONNX)" : "ONNX, run by " + runtime);
}

std::string VersionDocument() {
  const std::string runtime = Host::ModelRuntime();
  JsonWriter json("lumidex.version", 1);
  json.Text("lumidex", LUMIDEX_VERSION);
  if (runtime.empty()) {
    json.Null("models");
  } else {
    json.Text("models", runtime);
  }
  return json.Finish();
}

std::unique_ptr<CLI::App> MakeProgram(Globals& globals, Action& chosen) {
  auto program = std::make_unique<CLI::App>(kDescription, "lumidex");
  program->footer(kFooter);
  // A word that begins with a slash is a path on every system.
  program->allow_windows_style_options(false);
  program->formatter_fn(
      [](const CLI::App* command, const std::string&, CLI::AppFormatMode) { return HelpPage(*command); });
  program->set_help_flag("-h,--help", "Print this page.");
  program->set_version_flag("-V,--version", VersionText(), "Print the version and the runtime for models.");
  program
      ->add_option("-c,--catalogue,--catalog", globals.catalogue,
                   "The catalogue file. Default: lumidex/catalogue.sqlite in your data folder.")
      ->option_text("FILE")
      ->transform(Text());
  program
      ->add_option("--lang", globals.language,
                   "The language of messages, such as de_DE. Default: that of the settings, or the system's.")
      ->option_text("LANG")
      ->transform(Text());
  program->add_flag("--json", globals.json, "Print the result as one JSON document.")
      ->disable_flag_override();
  program->add_flag("-q,--quiet", globals.quiet, "Print no notes and no progress.")->disable_flag_override();
  program->add_flag("-v,--verbose", globals.verbosity, "Print the log; twice: with more detail.")
      ->disable_flag_override();
  AddScanCommand(*program, chosen);
  AddImportCommand(*program, chosen);
  AddCheckCommand(*program, chosen);
  AddAlbumsCommand(*program, chosen);
  AddSimilarCommand(*program, chosen);
  AddInfoCommand(*program, chosen);
  AddFindCommand(*program, chosen);
  AddTagCommand(*program, chosen);
  AddRenameCommand(*program, chosen);
  AddEditCommands(*program, chosen);
  AddUndoCommands(*program, chosen);
  AddCalendarCommand(*program, chosen);
  AddSampleCommand(*program, chosen);
  AddStatsCommand(*program, chosen);
  return program;
}

void Complete(CLI::App& command) {
  // One command a run; it also keeps a folder called "albums" from being taken for a second one.
  command.require_subcommand(0, 1);
  command.allow_extras();
  command.fallthrough();
  for (CLI::App* const sub : command.get_subcommands({})) {
    Complete(*sub);
  }
}

}  // namespace

ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments) {
  ParsedCommandLine parsed;
  Globals globals;
  Action chosen;
  const auto program = MakeProgram(globals, chosen);
  Complete(*program);

  std::vector<std::string> reversed = RewriteForParser(arguments);
  std::reverse(reversed.begin(), reversed.end());
  try {
    program->parse(reversed);
    CheckLeftOvers(*program);
  } catch (const CLI::CallForHelp&) {
    CheckHelpTopic(*program);
    parsed.text = HelpPage(GivenCommand(*program));
    return parsed;
  } catch (const CLI::CallForVersion& version) {
    parsed.text = AsksForJson(arguments) ? VersionDocument() : std::string(version.what()) + '\n';
    return parsed;
  } catch (const CLI::ParseError& error) {
    ThrowParserFault(*program, error);
  }
  parsed.globals = globals;
  parsed.action = chosen;
  parsed.command = NameOf(GivenCommand(*program));
  return parsed;
}

bool AsksForJson(const std::vector<std::string>& arguments) {
  const auto end = std::find(arguments.begin(), arguments.end(), "--");
  return std::find(arguments.begin(), end, "--json") != end;
}

std::string ShortHelp() {
  Globals globals;
  Action chosen;
  const auto program = MakeProgram(globals, chosen);
  program->footer("\"lumidex help\" has examples, \"lumidex help COMMAND\" the options of a command.");
  return HelpPage(*program);
}

}  // namespace Zenvora::Lumidex::Cli
