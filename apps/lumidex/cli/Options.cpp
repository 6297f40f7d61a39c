#include "Options.h"

#include "LocaleChoice.h"

#include <zenvora/app/RealServices.h>

#include <charconv>
#include <system_error>

namespace Zenvora::Lumidex::Cli {

CLI::Validator NotEmpty() {
  return {[](std::string& text) { return text.empty() ? std::string("must not be empty") : std::string(); },
          ""};
}

CLI::Validator WholeNumber(long long least, long long most) {
  return {[least, most](std::string& text) {
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

LocaleScope::LocaleScope(const std::string& wish, Session& session) {
  if (wish.empty()) {
    return;
  }
  const auto choice = ChooseLocale(wish);
  if (!choice) {
    throw UsageError("--locale: \"" + wish + "\" is none of the languages " + SpokenLocales());
  }
  if (!choice->isExact) {
    session.console.Note("There is no " + wish + "; " + choice->locale + " is used.");
  }
  scope_.emplace(App::MakeFixedLookAndFeel(choice->locale));
}

}  // namespace Zenvora::Lumidex::Cli
