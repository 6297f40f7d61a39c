#include <cli/session/UndoSettings.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/ValueTexts.h>
#include <cli/terminal/Words.h>

#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/RealServices.h>
#include <zenvora/app/Services.h>

#include <charconv>
#include <system_error>

namespace Zenvora::Lumidex::Cli {

namespace {

using App::SettingsKey::kUndoDays;
using App::SettingsKey::kUndoSize;

std::string Stored(const char* key) {
  return App::Services::Current().Get<App::ISettingsManager>()->GetString(key, "");
}

void Store(const char* key, const std::string& value) {
  App::Services::Current().Get<App::ISettingsManager>()->SetString(key, value);
  // The service goes on with a value that it could not write; the next run would not know it.
  const ioPath file = App::UserSettingsFile();
  if (App::MakeIniSettings(file)->GetString(key, "") != value) {
    throw Failure("failed", "The settings in " + file.utf8string() + " cannot be written.");
  }
}

std::optional<int> ParseDays(const std::string& text) {
  int days = 0;
  const char* const end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, days);
  const bool valid = error == std::errc() && stopped == end && days >= 0 && days <= kMostDays;
  return valid ? std::make_optional(days) : std::nullopt;
}

void WarnOf(Console& console, const char* key, const std::string& value) {
  console.Warning(Say(Words::tr("The setting %1 is invalid (%2); the default is used."), {key, value}));
}

}  // namespace

Host::UndoLimits StoredLimits(Console& console) {
  Host::UndoLimits limits;
  const std::string days = Stored(kUndoDays);
  if (const auto number = ParseDays(days)) {
    limits.days = *number;
  } else if (!days.empty()) {
    WarnOf(console, kUndoDays, days);
  }
  std::string fault;
  const std::string size = Stored(kUndoSize);
  if (const auto bytes = ParseSize(size, fault)) {
    limits.bytes = *bytes;
  } else if (!size.empty()) {
    WarnOf(console, kUndoSize, size);
  }
  return limits;
}

Host::UndoLimits WishedLimits(const LimitsWish& wish, Console& console) {
  Host::UndoLimits limits = StoredLimits(console);
  std::string fault;
  limits.days = wish.days.value_or(limits.days);
  limits.bytes = ParseSize(wish.size, fault).value_or(limits.bytes);
  return limits;
}

void StoreLimits(const LimitsWish& wish) {
  if (wish.days) {
    Store(kUndoDays, std::to_string(*wish.days));
  }
  if (!wish.size.empty()) {
    Store(kUndoSize, wish.size);
  }
}

std::string LimitsText(const Host::UndoLimits& limits) {
  return Say(
      Words::tr("Steps can be undone for %1 days of use, with up to %2 of originals.", nullptr, limits.days),
      {GroupDigits(static_cast<unsigned long long>(limits.days)), SizeText(limits.bytes)});
}

}  // namespace Zenvora::Lumidex::Cli
