#include "CommandLine.h"

#include <cli/commands/Commands.h>
#include <cli/session/Options.h>
#include <cli/terminal/HelpFormatter.h>
#include <cli/terminal/JsonWriter.h>
#include <host/similar/Models.h>

#include <algorithm>
#include <numeric>

namespace Zenvora::Lumidex::Cli {

namespace {

using Words = std::vector<std::string>;

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

/// True for an option of the program itself that takes the next word as its value.
bool WantsValue(const std::string& word) {
  if (word == "--catalogue" || word == "--catalog" || word == "--lang") {
    return true;
  }
  // "-qc" wants one, "-cFILE" has it.
  const bool isShort = word.size() > 1 && word[0] == '-' && word[1] != '-';
  return isShort && word.find('c') == word.size() - 1;
}

/// The first word that is neither an option of the program nor the value of one.
Words::iterator FindCommand(Words& words) {
  auto word = words.begin();
  while (word != words.end() && word->size() > 1 && word->front() == '-') {
    if (WantsValue(*word) && word + 1 != words.end()) {
      ++word;
    }
    ++word;
  }
  return word;
}

/// Of the command `tag`, "+Beach" gives a tag and "-Family" takes one away. A dash with a single letter stays
/// an option.
void TakeTagWords(Words& words) {
  const auto command = FindCommand(words);
  if (command == words.end() || *command != "tag") {
    return;
  }
  Words rewritten(words.begin(), command + 1);
  for (auto word = command + 1; word != words.end(); ++word) {
    if (*word == "--") {
      rewritten.insert(rewritten.end(), word, words.end());
      break;
    }
    const bool takesNext =
        WantsValue(*word) || *word == "--add" || *word == "--remove" || *word == "--locale";
    if (takesNext && word + 1 != words.end()) {
      rewritten.push_back(*word);
      rewritten.push_back(MarkVerbatim(*++word));
      continue;
    }
    const bool adds = !word->empty() && word->front() == '+';
    const bool removes = word->size() > 2 && (*word)[0] == '-' && (*word)[1] != '-';
    if (adds || removes) {
      rewritten.emplace_back(adds ? "--add" : "--remove");
      rewritten.push_back(MarkVerbatim(word->substr(1)));
    } else {
      rewritten.push_back(*word);
    }
  }
  words = std::move(rewritten);
}

/// `help COMMAND` is `COMMAND --help`. Words behind "--" are no options, whatever they begin with.
Words Rewritten(Words words) {
  TakeTagWords(words);
  const auto mark = std::find(words.begin(), words.end(), "--");
  if (mark != words.end()) {
    std::transform(mark + 1, words.end(), mark + 1, [](const std::string& word) {
      return !word.empty() && word.front() == '-' ? MarkVerbatim(word) : word;
    });
    words.erase(mark);
  }
  // The parser takes brackets for a list: "[a,b]" is one folder.
  std::transform(words.begin(), words.end(), words.begin(), [](const std::string& word) {
    return !word.empty() && word.front() == '[' ? MarkVerbatim(word) : word;
  });
  auto command = FindCommand(words);
  if (command != words.end() && *command == "help") {
    while (command != words.end() && *command == "help") {
      command = words.erase(command);
    }
    // Options and their values say nothing of the page, and one without its value is no fault here.
    command = FindCommand(words);
    const auto isOption = [](const std::string& word) { return word.size() > 1 && word.front() == '-'; };
    words.erase(std::find_if(command, words.end(), isOption), words.end());
    words.emplace_back("--help");
  }
  return words;
}

std::size_t EditDistance(const std::string& left, const std::string& right) {
  std::vector<std::size_t> row(right.size() + 1);
  std::iota(row.begin(), row.end(), 0);
  for (std::size_t i = 1; i <= left.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= right.size(); ++j) {
      const std::size_t change = diagonal + (left[i - 1] == right[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, change});
    }
  }
  return row.back();
}

/// The only name that goes on where `wrong` ends ("--dry" of "--dry-run"), or the other way round; else
/// empty.
std::string NameWithSameStart(const std::string& wrong, const std::vector<std::string>& known) {
  constexpr std::size_t kLeast = 3;
  std::string found;
  for (const std::string& name : known) {
    const std::size_t length = std::min(name.size(), wrong.size());
    if (length < kLeast || name.compare(0, length, wrong, 0, length) != 0) {
      continue;
    }
    if (!found.empty() && found != name) {
      return {};
    }
    found = name;
  }
  return found;
}

std::string Suggestion(const std::string& wrong, const std::vector<std::string>& known) {
  constexpr std::size_t kTypingErrors = 2;
  std::string best;
  std::size_t least = std::min(kTypingErrors, wrong.size() / 2) + 1;
  for (const std::string& name : known) {
    const std::size_t distance = EditDistance(wrong, name);
    if (distance < least) {
      least = distance;
      best = name;
    }
  }
  if (best.empty()) {
    best = NameWithSameStart(wrong, known);
  }
  return best.empty() ? "" : "; did you mean \"" + best + "\"?";
}

std::vector<std::string> NamesOfOptions(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* const option : command.get_options()) {
    for (const std::string& name : option->get_lnames()) {
      names.push_back("--" + name);
    }
  }
  if (const CLI::App* const parent = command.get_parent()) {
    const std::vector<std::string> more = NamesOfOptions(*parent);
    names.insert(names.end(), more.begin(), more.end());
  }
  return names;
}

std::vector<std::string> NamesOfCommands(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::App* const sub : command.get_subcommands({})) {
    names.push_back(sub->get_name());
  }
  return names;
}

std::string HelpHint(const CLI::App& command) {
  const CLI::App* const parent = command.get_parent();
  return parent ? HelpHint(*parent) + ' ' + command.get_name() : "lumidex help";
}

/// "calendar show"; empty for the program itself.
std::string NameOf(const CLI::App& command) {
  const CLI::App* const parent = command.get_parent();
  const std::string above = parent ? NameOf(*parent) : std::string();
  return parent ? above + (above.empty() ? "" : " ") + command.get_name() : above;
}

/// The innermost command that was given.
const CLI::App& GivenCommand(const CLI::App& command) {
  const std::vector<CLI::App*> given = command.get_subcommands();
  return given.empty() ? command : GivenCommand(*given.front());
}

[[noreturn]] void ThrowUsage(const CLI::App& command, const std::string& text) {
  throw UsageError(text + " (see: " + HelpHint(command) + ")");
}

[[noreturn]] void ThrowNoCommand(const CLI::App& command, const std::string& word) {
  ThrowUsage(command, "There is no command \"" + word + '"' + Suggestion(word, NamesOfCommands(command)));
}

bool HasOption(const CLI::App& command, const std::string& name) {
  const std::vector<std::string> names = NamesOfOptions(command);
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// The commands below that have the option, by their names.
std::vector<std::string> CommandsWith(const std::string& option, const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::App* const sub : command.get_subcommands({})) {
    const std::vector<std::string> below = CommandsWith(option, *sub);
    names.insert(names.end(), below.begin(), below.end());
    if (sub->get_subcommands({}).empty() && HasOption(*sub, option)) {
      names.push_back(NameOf(*sub));
    }
  }
  return names;
}

/// What a word that begins with a dash could have meant.
[[noreturn]] void ThrowNoOption(const CLI::App& program, const CLI::App& command, const std::string& word) {
  const std::string option = word.substr(0, word.find('='));
  const std::string name = NameOf(command);
  if (HasOption(command, option)) {
    ThrowUsage(command, "The option " + option + " must follow its command: lumidex " + name + ' ' + option);
  }
  if (name == "tag" && word.size() == 2) {
    const std::string tag = word.substr(1);
    ThrowUsage(command,
               "There is no option " + word + "; to remove the tag " + tag + ", write --remove " + tag);
  }
  const std::vector<std::string> others = CommandsWith(option, program);
  const std::string fault = name.empty() ? "There is no option " + word + " before a command"
                                         : "There is no option " + word + " of \"" + name + '"';
  ThrowUsage(command, others.empty()
                          ? "There is no option " + word + Suggestion(option, NamesOfOptions(command))
                          : fault + "; it belongs to: " + CLI::detail::join(others, ", "));
}

void CheckLeftOverOption(const CLI::App& program) {
  for (const std::string& word : program.remaining(true)) {
    const std::string plain = Unmarked(word);
    if (plain.size() > 1 && plain.front() == '-' && !IsVerbatim(word)) {
      ThrowNoOption(program, GivenCommand(program), plain);
    }
  }
}

void CheckLeftOvers(const CLI::App& program) {
  CheckLeftOverOption(program);
  const std::vector<std::string> left = program.remaining(true);
  const CLI::App& command = GivenCommand(program);
  const bool wantsCommand = !command.get_subcommands({}).empty();
  if (!left.empty()) {
    const std::string first = Unmarked(left.front());
    if (wantsCommand) {
      ThrowNoCommand(command, first);
    }
    ThrowUsage(command, "Unexpected argument \"" + first + "\"");
  }
  if (wantsCommand) {
    ThrowUsage(command, "A command is missing: " + CLI::detail::join(NamesOfCommands(command), ", "));
  }
}

/// Help comes for any line but one that names a command which does not exist.
void CheckHelpTopic(const CLI::App& program) {
  const CLI::App& command = GivenCommand(program);
  if (command.get_subcommands({}).empty()) {
    return;
  }
  for (const std::string& word : program.remaining(true)) {
    if (IsVerbatim(word) || word.empty() || word.front() != '-') {
      ThrowNoCommand(command, Unmarked(word));
    }
  }
}

std::string WithoutPeriod(std::string text) {
  while (!text.empty() && (text.back() == '.' || text.back() == '\n')) {
    text.pop_back();
  }
  return text;
}

/// The parser counts values; people think of options that lack one or stand there twice.
std::string MismatchText(const std::string& text) {
  const std::string option = text.substr(0, text.find_first_of(": "));
  if (text.find("flag override") != std::string::npos) {
    // Here the parser leaves the dashes out.
    return "--" + option + " takes no value";
  }
  const std::size_t count = text.find_first_of("0123456789", option.size());
  if (count != std::string::npos && text[count] != '1') {
    return option + " needs " + text.substr(count, text.find(' ', count) - count) + " values";
  }
  const bool isMissing = text.find("missing") != std::string::npos;
  return option + (isMissing ? " needs a value" : " can be given only once");
}

}  // namespace

ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments) {
  ParsedCommandLine parsed;
  Globals globals;
  Action chosen;
  const auto program = MakeProgram(globals, chosen);
  Complete(*program);

  Words reversed = Rewritten(arguments);
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
  } catch (const CLI::ArgumentMismatch& error) {
    ThrowUsage(GivenCommand(*program), MismatchText(error.what()));
  } catch (const CLI::ValidationError& error) {
    std::string text = error.what();
    const std::size_t colon = text.find(": ");
    ThrowUsage(GivenCommand(*program), colon == std::string::npos ? text : text.erase(colon, 1));
  } catch (const CLI::RequiredError& error) {
    // "--patern x" is why --pattern is missing.
    CheckLeftOverOption(*program);
    ThrowUsage(GivenCommand(*program), WithoutPeriod(error.what()));
  } catch (const CLI::ParseError& error) {
    ThrowUsage(GivenCommand(*program), WithoutPeriod(error.what()));
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
