#pragma once

#include <zenvora/app/IAlerts.h>
#include <zenvora/app/IFolderAccess.h>
#include <zenvora/app/IFolderDialog.h>
#include <zenvora/app/IRemovableStorage.h>
#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/Services.h>
#include <zenvora/core/ioPath.h>

#include <memory>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Stands between the library's checks and the machine while an import is planned: nothing is made, written
/// or remembered, every question is put to the user once however often the checks ask it, and, on request,
/// all sources count as removable. At the end of its scope the services are as before. Main thread only.
class ImportQuestions {
 public:
  /// `nameless`: the folders of files that the checks cannot find by their names. They take them for lying in
  /// one folder, named by a separator alone.
  ImportQuestions(bool allRemovable, std::vector<ioPath> nameless);
  ~ImportQuestions();
  ImportQuestions(const ImportQuestions&) = delete;
  ImportQuestions& operator=(const ImportQuestions&) = delete;

  /// From now on the folder that was chosen before answers the first question for one.
  void BeginRound();
  /// The folder that the user chose; empty: none yet.
  ioPath ChosenFolder() const;

 private:
  class Alerts;
  class FolderDialog;
  class Settings;
  class NoFolders;
  class Storage;

  std::shared_ptr<FolderDialog> dialog_;
  App::ServiceScope<App::IAlerts> alertsScope_;
  App::ServiceScope<App::IFolderDialog> dialogScope_;
  App::ServiceScope<App::ISettingsManager> settingsScope_;
  App::ServiceScope<App::IFolderAccess> accessScope_;
  App::ServiceScope<App::IRemovableStorage> removableScope_;
};

}  // namespace Zenvora::Lumidex::Host
