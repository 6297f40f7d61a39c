#pragma once

#include <CLI/CLI.hpp>
#include <cli/session/Session.h>
#include <host/settings/InterfaceTexts.h>

#include <zenvora/app/ILookAndFeelManager.h>
#include <zenvora/app/Services.h>

#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Cli {

/// A word that the parser must take as it is, whatever it begins with; `Text` takes the mark off again. Only
/// for words from the command line, which never hold the mark.
std::string MarkVerbatim(const std::string& word);
bool IsVerbatim(const std::string& word);
/// The word without its mark, if it has one.
std::string Unmarked(const std::string& word);

/// For every option and argument that is a text. Refuses an empty one, which a script with an unset variable
/// passes. To be added with `transform`: it takes off the mark of `MarkVerbatim`.
CLI::Validator Text();

/// Refuses everything but decimal digits that make a number in the range.
CLI::Validator WholeNumber(long long least, long long most);

/// Refuses every other word.
CLI::Validator OneOf(std::vector<std::string> words);

/// The option `--locale`: other holidays, and the wording that goes with them, while it lives. What the
/// program says stays in its language.
class LocaleScope {
 public:
  /// An empty `wish` changes nothing. Throws `UsageError` for a language that is not spoken, and says so when
  /// another country's form of the language serves.
  LocaleScope(const std::string& wish, Session& session);

 private:
  std::optional<App::ServiceScope<App::ILookAndFeelManager>> scope_;
};

/// The language of the program while it lives: its texts, holidays and their wording. A script that asks for
/// JSON gets texts in English, whatever the language; only holidays and wording follow it.
class LanguageScope {
 public:
  /// The option `--lang`, without it the settings' or the system's language. Throws as `LocaleScope` does.
  LanguageScope(const Globals& globals, Console& console);

 private:
  std::optional<App::ServiceScope<App::ILookAndFeelManager>> scope_;
  std::optional<Host::InterfaceTexts> texts_;
};

}  // namespace Zenvora::Lumidex::Cli
