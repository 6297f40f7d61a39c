#include <host/settings/UsageStatistics.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/RealServices.h>
#include <zenvora/app/Services.h>
#include <zenvora/app/UserFolders.h>
#include <zenvora/strandel/StatisticsFile.h>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr char kOn[] = "true";
constexpr char kOff[] = "false";

}  // namespace

ioPath StatisticsFileOfUser() {
  return App::FolderOfUser(App::UserFolder::Data) / "lumidex" / "statistics.jsonl";
}

bool AreStatisticsOn() {
  // Anything else than the plain word is no consent.
  return App::Services::Current().Get<App::ISettingsManager>()->GetString(App::SettingsKey::kStatistics,
                                                                          kOff) == kOn;
}

bool TurnStatistics(bool on) {
  const std::string value = on ? kOn : kOff;
  App::Services::Current().Get<App::ISettingsManager>()->SetString(App::SettingsKey::kStatistics, value);
  // The service goes on with a value that it could not write; the next run would not know it.
  return App::MakeIniSettings(App::UserSettingsFile())->GetString(App::SettingsKey::kStatistics, "") == value;
}

std::unique_ptr<Strandel::IStatisticsEventHandler> MakeStatisticsHandler() {
  if (!AreStatisticsOn()) {
    return nullptr;
  }
  return std::make_unique<Strandel::StatisticsFile>(StatisticsFileOfUser(),
                                                    [] { return App::GetCurrentDateTime().date(); });
}

}  // namespace Zenvora::Lumidex::Host
