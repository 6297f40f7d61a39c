#pragma once

#include <zenvora/app/Export.h>
#include <zenvora/app/IClock.h>
#include <zenvora/app/IHostEnvironment.h>
#include <zenvora/app/ILookAndFeelManager.h>
#include <zenvora/app/ISettingsManager.h>
#include <zenvora/core/ioPath.h>

#include <memory>
#include <string>
#include <vector>

namespace Zenvora::App {

/// Settings in an INI file (Qt's dialect, UTF-8), created with its folder on the first write. Values are
/// written at once, and what other processes write is seen at the next reading. Of a damaged file the
/// readable lines count, but it is never written to: that would drop the others for good. `file` must be
/// valid UTF-8.
ZENVORA_APP_EXPORT std::shared_ptr<ISettingsManager> MakeIniSettings(const ioPath& file);

/// The INI file of the user: lumidex/lumidex.ini in the user's configuration folder (XDG_CONFIG_HOME on
/// Linux, the local application data on Windows).
ZENVORA_APP_EXPORT ioPath UserSettingsFile();

/// The languages that the interface speaks, as locale names.
ZENVORA_APP_EXPORT const std::vector<std::string>& InterfaceLanguages();

/// How an interface language fits a wish.
enum class LanguageMatch {
  Exact,  ///< The language itself, however the wish spells it ("de-DE.UTF-8").
  Near,   ///< The same language without a country, or of another one.
  None,   ///< Another language.
};

struct InterfaceLanguage {
  std::string locale;  ///< One of `InterfaceLanguages`.
  LanguageMatch match = LanguageMatch::None;
};

/// The same as `NearestInterfaceLanguage`, and how well it fits.
ZENVORA_APP_EXPORT InterfaceLanguage FindInterfaceLanguage(const std::string& wish);

/// The interface language that serves a wish such as "de", "de_AT", "de-DE.UTF-8" (case does not matter): the
/// language itself if spoken, else one of the same language, else en_US.
ZENVORA_APP_EXPORT std::string NearestInterfaceLanguage(const std::string& wish);

/// The interface language of a host: the one nearest to the setting `SettingsKey::kLanguage`, without it the
/// one nearest to the system's.
ZENVORA_APP_EXPORT std::shared_ptr<ILookAndFeelManager> MakeHostLookAndFeel();

/// A fixed interface language, given exactly as it will be reported.
ZENVORA_APP_EXPORT std::shared_ptr<ILookAndFeelManager> MakeFixedLookAndFeel(const std::string& locale);

/// The interface language of a process without a host: the system's locale name as it is.
ZENVORA_APP_EXPORT std::shared_ptr<ILookAndFeelManager> MakeSystemLookAndFeel();

ZENVORA_APP_EXPORT std::shared_ptr<IClock> MakeSystemClock();

/// The resource folder of the program: share/lumidex in the program's folder if that is there, else in the
/// folder above. No main window. Needs no application object.
ZENVORA_APP_EXPORT std::shared_ptr<IHostEnvironment> MakeProgramEnvironment();

}  // namespace Zenvora::App
