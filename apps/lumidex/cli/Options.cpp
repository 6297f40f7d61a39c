#include "Options.h"

#include <zenvora/app/RealServices.h>

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

namespace Zenvora::Lumidex::Cli {

namespace {

// No argument of a process can hold it.
constexpr char kVerbatimMark = '\0';

/// "de_DE, en_US, ..."
std::string SpokenLocales() {
  std::string text;
  for (const std::string& locale : App::InterfaceLanguages()) {
    text += (text.empty() ? "" : ", ") + locale;
  }
  return text;
}

}  // namespace

std::string MarkVerbatim(const std::string& word) {
  return kVerbatimMark + word;
}

bool IsVerbatim(const std::string& word) {
  return !word.empty() && word.front() == kVerbatimMark;
}

std::string Unmarked(const std::string& word) {
  return IsVerbatim(word) ? word.substr(1) : word;
}

CLI::Validator Text() {
  return {[](std::string& text) {
            text = Unmarked(text);
            return text.empty() ? std::string("must not be empty") : std::string();
          },
          ""};
}

CLI::Validator WholeNumber(long long least, long long most) {
  return {[least, most](std::string& marked) {
            const std::string text = Unmarked(marked);
            long long number = 0;
            const char* const end = text.data() + text.size();
            const auto [stopped, error] = std::from_chars(text.data(), end, number);
            if (error == std::errc() && stopped == end && number >= least && number <= most) {
              return std::string();
            }
            return "needs a whole number from " + std::to_string(least) + " to " + std::to_string(most) +
                   ", not \"" + text + "\"";
          },
          ""};
}

CLI::Validator OneOf(std::vector<std::string> words) {
  return {[words = std::move(words)](std::string& marked) {
            const std::string text = Unmarked(marked);
            if (std::find(words.begin(), words.end(), text) != words.end()) {
              return std::string();
            }
            return "must be one of " + CLI::detail::join(words, ", ") + ", not \"" + text + '"';
          },
          ""};
}

LocaleScope::LocaleScope(const std::string& wish, Session& session) {
  if (wish.empty()) {
    return;
  }
  const App::InterfaceLanguage language = App::FindInterfaceLanguage(wish);
  if (language.match == App::LanguageMatch::None) {
    throw UsageError("--locale: \"" + wish + "\" is none of the languages " + SpokenLocales());
  }
  if (language.match == App::LanguageMatch::Near) {
    session.console.Note("There is no " + wish + "; " + language.locale + " is used.");
  }
  scope_.emplace(App::MakeFixedLookAndFeel(language.locale));
}

}  // namespace Zenvora::Lumidex::Cli
