#include "LocaleChoice.h"

#include <zenvora/app/RealServices.h>

#include <algorithm>
#include <cctype>

namespace Zenvora::Lumidex::Cli {

namespace {

std::string LanguageOf(const std::string& locale) {
  std::string language = locale.substr(0, locale.find_first_of("_-.@"));
  std::transform(language.begin(), language.end(), language.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return language;
}

}  // namespace

std::optional<LocaleChoice> ChooseLocale(const std::string& wish) {
  const auto& spoken = App::InterfaceLanguages();
  if (std::find(spoken.begin(), spoken.end(), wish) != spoken.end()) {
    return LocaleChoice{wish, true};
  }
  const std::string language = LanguageOf(wish);
  const std::string nearest = App::NearestInterfaceLanguage(language);
  // What is spoken nowhere near is answered with the first language.
  if (LanguageOf(nearest) != language) {
    return std::nullopt;
  }
  return LocaleChoice{nearest, false};
}

std::string SpokenLocales() {
  std::string text;
  for (const std::string& locale : App::InterfaceLanguages()) {
    text += (text.empty() ? "" : ", ") + locale;
  }
  return text;
}

}  // namespace Zenvora::Lumidex::Cli
