#include <cli/terminal/HelpFormatter.h>

#include <cstddef>
#include <sstream>
#include <vector>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr std::size_t kColumns = 79;
constexpr std::size_t kTextColumn = 26;

struct Entry {
  std::string term;
  std::string text;
};

std::vector<std::string> Wrap(const std::string& text, std::size_t width) {
  std::vector<std::string> lines;
  std::istringstream words(text);
  std::string word;
  while (words >> word) {
    if (lines.empty() || lines.back().size() + 1 + word.size() > width) {
      lines.push_back(word);
    } else {
      lines.back() += ' ' + word;
    }
  }
  return lines;
}

std::string Section(const std::string& title, const std::vector<Entry>& entries) {
  if (entries.empty()) {
    return {};
  }
  std::string text = '\n' + title + ":\n";
  for (const Entry& entry : entries) {
    std::string line = "  " + entry.term;
    for (const std::string& part : Wrap(entry.text, kColumns - kTextColumn)) {
      if (line.size() + 2 > kTextColumn) {
        text += line + '\n';
        line.clear();
      }
      line.resize(kTextColumn, ' ');
      text += line + part + '\n';
      line.clear();
    }
  }
  return text;
}

std::string CommandName(const CLI::App& command) {
  const CLI::App* const parent = command.get_parent();
  return parent ? CommandName(*parent) + ' ' + command.get_name() : command.get_name();
}

const CLI::App& Program(const CLI::App& command) {
  const CLI::App* const parent = command.get_parent();
  return parent ? Program(*parent) : command;
}

bool TakesMany(const CLI::Option& option) {
  return option.get_expected_max() > 1;
}

Entry OptionEntry(const CLI::Option& option) {
  const std::string indent = option.get_snames().empty() ? "    " : "-" + option.get_snames().front() + ", ";
  std::string term = indent + "--" + option.get_lnames().front();
  if (!option.get_option_text().empty()) {
    term += ' ' + option.get_option_text();
  }
  return {term, option.get_description()};
}

std::vector<Entry> OptionsOf(const CLI::App& command) {
  std::vector<Entry> entries;
  for (const CLI::Option* const option : command.get_options()) {
    const bool isEverybodys = option == command.get_help_ptr() && command.get_parent();
    if (option->nonpositional() && !isEverybodys) {
      entries.push_back(OptionEntry(*option));
    }
  }
  return entries;
}

std::vector<Entry> ArgumentsOf(const CLI::App& command) {
  std::vector<Entry> entries;
  for (const CLI::Option* const option : command.get_options()) {
    if (option->get_positional()) {
      entries.push_back(
          {option->get_name(true) + (TakesMany(*option) ? "..." : ""), option->get_description()});
    }
  }
  return entries;
}

void AddCommands(const CLI::App& command, const std::string& prefix, std::vector<Entry>& entries) {
  for (const CLI::App* const sub : command.get_subcommands({})) {
    const std::string name = prefix + sub->get_name();
    if (sub->get_subcommands({}).empty()) {
      const std::string& description = sub->get_description();
      entries.push_back({name, description.substr(0, description.find('\n'))});
    } else {
      AddCommands(*sub, name + ' ', entries);
    }
  }
}

/// The pages of commands name them only: "lumidex --help" explains them.
std::string GlobalOptionsLine(const CLI::App& program) {
  std::string names;
  for (const CLI::Option* const option : program.get_options()) {
    names += (names.empty() ? "" : ", ") + ("--" + option->get_lnames().front());
  }
  std::string text = "\nGlobal options (see: lumidex --help):\n";
  for (const std::string& line : Wrap(names, kColumns - 2)) {
    text += "  " + line + '\n';
  }
  return text;
}

}  // namespace

std::string UsageLine(const CLI::App& command) {
  std::string usage = CommandName(command);
  if (!command.get_subcommands({}).empty()) {
    return usage + " COMMAND [OPTIONS]";
  }
  usage += " [OPTIONS]";
  for (const CLI::Option* const option : command.get_options()) {
    if (option->get_positional()) {
      const std::string name = option->get_name(true) + (TakesMany(*option) ? "..." : "");
      usage += option->get_required() ? ' ' + name : " [" + name + ']';
    }
  }
  return usage;
}

std::string HelpPage(const CLI::App& command) {
  std::vector<Entry> commands;
  AddCommands(command, "", commands);
  const CLI::App& program = Program(command);

  std::string text = command.get_description() + "\n\nUsage: " + UsageLine(command) + '\n';
  text += Section("Commands", commands);
  text += Section("Arguments", ArgumentsOf(command));
  if (&program != &command) {
    text += Section("Options", OptionsOf(command));
  }
  text += &program == &command ? Section("Global options", OptionsOf(program)) : GlobalOptionsLine(program);
  if (!command.get_footer().empty()) {
    text += '\n' + command.get_footer() + '\n';
  }
  return text;
}

}  // namespace Zenvora::Lumidex::Cli
