#include <cli/session/Options.h>
#include <cli/terminal/Words.h>

#include <zenvora/app/Application.h>
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

App::InterfaceLanguage SpokenLanguage(const char* option, const std::string& wish) {
  App::InterfaceLanguage language = App::FindInterfaceLanguage(wish);
  if (language.match == App::LanguageMatch::None) {
    throw UsageError(std::string(option) + ": \"" + wish + "\" is not supported; choose one of " +
                     SpokenLocales());
  }
  return language;
}

void TellIfNear(const std::string& wish, const App::InterfaceLanguage& language, Console& console) {
  // "de" leaves the country open.
  const bool namesCountry = wish.find_first_of("_-") != std::string::npos;
  if (language.match == App::LanguageMatch::Near && namesCountry) {
    console.Note(Say(Words::tr("%1 is not supported; %2 is used.", "languages"), {wish, language.locale}));
  }
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
  const App::InterfaceLanguage language = SpokenLanguage("--locale", wish);
  scope_.emplace(App::MakeFixedLookAndFeel(language.locale));
  TellIfNear(wish, language, session.console);
}

LanguageScope::LanguageScope(const Globals& globals, Console& console) {
  std::optional<App::InterfaceLanguage> asked;
  if (!globals.language.empty()) {
    asked = SpokenLanguage("--lang", globals.language);
    scope_.emplace(App::MakeFixedLookAndFeel(asked->locale));
  }
  texts_.emplace(globals.json ? App::InterfaceLanguages().front() : App::GetCurrentLocale());
  if (asked) {
    TellIfNear(globals.language, *asked, console);
  }
}

}  // namespace Zenvora::Lumidex::Cli
