#include "UsageFaults.h"

#include <cli/session/Options.h>
#include <cli/terminal/Failure.h>

#include <algorithm>
#include <numeric>
#include <vector>

namespace Zenvora::Lumidex::Cli {

namespace {

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

std::string NameOf(const CLI::App& command) {
  const CLI::App* const parent = command.get_parent();
  const std::string above = parent ? NameOf(*parent) : std::string();
  return parent ? above + (above.empty() ? "" : " ") + command.get_name() : above;
}

const CLI::App& GivenCommand(const CLI::App& command) {
  const std::vector<CLI::App*> given = command.get_subcommands();
  return given.empty() ? command : GivenCommand(*given.front());
}

void ThrowUsage(const CLI::App& command, const std::string& text) {
  throw UsageError(text + " (see: " + HelpHint(command) + ")");
}

namespace {

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

}  // namespace

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

void ThrowParserFault(const CLI::App& program, const CLI::ParseError& error) {
  const CLI::App& command = GivenCommand(program);
  if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
    ThrowUsage(command, MismatchText(error.what()));
  }
  if (dynamic_cast<const CLI::ValidationError*>(&error) != nullptr) {
    std::string text = error.what();
    const std::size_t colon = text.find(": ");
    ThrowUsage(command, colon == std::string::npos ? text : text.erase(colon, 1));
  }
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
    // "--patern x" is why --pattern is missing.
    CheckLeftOverOption(program);
  }
  ThrowUsage(command, WithoutPeriod(error.what()));
}

}  // namespace Zenvora::Lumidex::Cli
