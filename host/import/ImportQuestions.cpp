#include "ImportQuestions.h"

#include <host/base/PathText.h>

#include <zenvora/qtutility/SystemDisk.h>
#include <zenvora/tavolin/RemovableStorage.h>

#include <QDir>
#include <QString>

#include <algorithm>
#include <map>
#include <string>
#include <system_error>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

template <class Service>
std::shared_ptr<Service> InForce() {
  return App::Services::Current().Get<Service>();
}

/// Without links, as the sources are named: what lies in the folder is then seen to. It need not exist.
QString RealFolder(const QString& answer) {
  QString rest;
  for (ioPath place(answer); !place.empty(); place = place.parent_path()) {
    std::error_code error;
    const ioPath real = place.canonical(error);
    if (!error) {
      return IsText(real) ? QDir::cleanPath(real.qstring() + rest) : answer;
    }
    if (place.parent_path() == place) {
      break;
    }
    rest.prepend(QLatin1Char('/') + place.filename().qstring());
  }
  return answer;
}

}  // namespace

class ImportQuestions::Alerts : public App::IAlerts {
 public:
  explicit Alerts(bool copyWanted) : copyWanted_(copyWanted), real_(InForce<App::IAlerts>()) {}

  App::AlertButton Show(const App::Alert& alert) override {
    using App::AlertButton;
    // Whether to copy, the user said before.
    if (copyWanted_ && alert.buttons.testFlag(AlertButton::Yes) && alert.buttons.testFlag(AlertButton::No)) {
      return AlertButton::Yes;
    }
    const auto known = answers_.find(alert.text);
    if (known != answers_.end()) {
      return known->second;
    }
    const AlertButton answer = real_ != nullptr ? real_->Show(alert) : App::UnansweredButton(alert.buttons);
    // A refusal may come twice; only questions have one answer.
    if (alert.buttons.testFlag(AlertButton::Cancel)) {
      answers_[alert.text] = answer;
    }
    return answer;
  }

 private:
  const bool copyWanted_;
  const std::shared_ptr<App::IAlerts> real_;
  std::map<QString, App::AlertButton> answers_;
};

class ImportQuestions::FolderDialog : public App::IFolderDialog {
 public:
  FolderDialog() : real_(InForce<App::IFolderDialog>()) {}

  QString Ask(const App::FolderQuestion& question) override {
    // Asked again within one round it was refused; in the next round it is as good as it was.
    if (!asked_ && !chosen_.isEmpty()) {
      return chosen_;
    }
    asked_ = true;
    chosen_ = real_ != nullptr ? RealFolder(real_->Ask(question)) : QString();
    return chosen_;
  }

  void BeginRound() { asked_ = false; }
  const QString& Chosen() const { return chosen_; }

 private:
  const std::shared_ptr<App::IFolderDialog> real_;
  QString chosen_;
  bool asked_ = false;
};

class ImportQuestions::Settings : public App::ISettingsManager {
 public:
  Settings() : real_(InForce<App::ISettingsManager>()) {}

  std::string GetString(const std::string& key, const std::string& defaultValue) const override {
    return real_->GetString(key, defaultValue);
  }
  void SetString(const std::string& /*key*/, const std::string& /*value*/) override {}

 private:
  const std::shared_ptr<App::ISettingsManager> real_;
};

class ImportQuestions::NoFolders : public App::IFolderAccess {
 public:
  NoFolders() : real_(InForce<App::IFolderAccess>()) {
    if (real_ == nullptr) {
      real_ = Util::MakeSystemFolderAccess();
    }
  }

  bool CanCreateFileIn(const ioPath& folder) const override { return real_->CanCreateFileIn(folder); }
  bool CanReadFileIn(const ioPath& folder) const override { return real_->CanReadFileIn(folder); }
  bool MakeFolder(const ioPath& /*folder*/) const override { return false; }

 private:
  std::shared_ptr<App::IFolderAccess> real_;
};

class ImportQuestions::Storage : public App::IRemovableStorage {
 public:
  Storage(bool all, std::vector<ioPath> nameless, std::shared_ptr<FolderDialog> dialog)
      : all_(all),
        nameless_(std::move(nameless)),
        dialog_(std::move(dialog)),
        real_(InForce<App::IRemovableStorage>()) {
    if (real_ == nullptr) {
      real_ = Tavolin::MakeSystemRemovableStorage();
    }
  }

  std::vector<ioPath> Removable(const std::vector<ioPath>& folders) const override {
    // The folder of the copies is asked for by itself.
    const bool isChoice =
        folders.size() == 1 && !dialog_->Chosen().isEmpty() && folders.front() == ioPath(dialog_->Chosen());
    if (isChoice) {
      return real_->Removable(folders);
    }
    if (all_) {
      return folders;
    }
    const std::vector<ioPath> found = real_->Removable(folders);
    std::vector<ioPath> removable;
    for (const ioPath& folder : folders) {
      const bool isNameless = !nameless_.empty() && folder == ioPath("/");
      if (isNameless ? !real_->Removable(nameless_).empty()
                     : std::find(found.begin(), found.end(), folder) != found.end()) {
        removable.push_back(folder);
      }
    }
    return removable;
  }

 private:
  const bool all_;
  const std::vector<ioPath> nameless_;
  const std::shared_ptr<FolderDialog> dialog_;
  std::shared_ptr<App::IRemovableStorage> real_;
};

ImportQuestions::ImportQuestions(bool allRemovable, std::vector<ioPath> nameless)
    : dialog_(std::make_shared<FolderDialog>()),
      alertsScope_(std::make_shared<Alerts>(allRemovable)),
      dialogScope_(dialog_),
      settingsScope_(std::make_shared<Settings>()),
      accessScope_(std::make_shared<NoFolders>()),
      removableScope_(std::make_shared<Storage>(allRemovable, std::move(nameless), dialog_)) {}

ImportQuestions::~ImportQuestions() = default;

void ImportQuestions::BeginRound() {
  dialog_->BeginRound();
}

ioPath ImportQuestions::ChosenFolder() const {
  return ioPath(dialog_->Chosen());
}

}  // namespace Zenvora::Lumidex::Host
