#pragma once

#include <optional>
#include <string>

namespace Zenvora::Lumidex::Cli {

/// The interface language for what a user wrote.
struct LocaleChoice {
  std::string locale;
  bool isExact = false;  ///< False: another country's form of the language serves.
};

/// Empty when the language is not spoken.
std::optional<LocaleChoice> ChooseLocale(const std::string& wish);

/// The names of all interface languages: "de_DE, en_US, ...".
std::string SpokenLocales();

}  // namespace Zenvora::Lumidex::Cli
