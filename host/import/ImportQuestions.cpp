#include <LumidexUtil/CheckFilesReadable.h>
#include <LumidexUtil/CheckFilesToCopyBeforeAdd.h>
#include <host/base/PathText.h>
#include <host/import/ImportQuestions.h>

#include <zenvora/app/IFolderAccess.h>
#include <zenvora/app/IRemovableStorage.h>
#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/Services.h>
#include <zenvora/core/FileProbes.h>
#include <zenvora/qtutility/SystemDisk.h>
#include <zenvora/tavolin/NativePath.h>
#include <zenvora/tavolin/RemovableStorage.h>

#include <QHash>
#include <QSet>
#include <QString>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

template <class Service>
std::shared_ptr<Service> InForce(const std::shared_ptr<Service>& otherwise) {
  auto service = App::Services::Current().Get<Service>();
  return service != nullptr ? service : otherwise;
}

class SettingsAsTheyAre : public App::ISettingsManager {
 public:
  std::string GetString(const std::string& key, const std::string& defaultValue) const override {
    return real_->GetString(key, defaultValue);
  }
  void SetString(const std::string& /*key*/, const std::string& /*value*/) override {}

 private:
  const std::shared_ptr<App::ISettingsManager> real_ = InForce<App::ISettingsManager>(nullptr);
};

class FoldersAsTheyAre : public App::IFolderAccess {
 public:
  bool CanCreateFileIn(const ioPath& folder) const override { return real_->CanCreateFileIn(folder); }
  bool CanReadFileIn(const ioPath& folder) const override { return real_->CanReadFileIn(folder); }
  bool MakeFolder(const ioPath& /*folder*/) const override { return false; }

 private:
  const std::shared_ptr<App::IFolderAccess> real_ =
      InForce<App::IFolderAccess>(Util::MakeSystemFolderAccess());
};

/// The check asks for the folders of all sources first, and then for each that is chosen for the copies.
class SourceStorage : public App::IRemovableStorage {
 public:
  /// `nameless`: the folders of sources that the check cannot find by their names. It takes them for lying in
  /// one folder, named by a separator alone.
  SourceStorage(bool all, std::vector<ioPath> nameless) : all_(all), nameless_(std::move(nameless)) {}

  std::vector<ioPath> Removable(const std::vector<ioPath>& folders) const override {
    if (std::exchange(sourcesSeen_, true)) {
      return real_->Removable(folders);
    }
    if (all_) {
      return folders;
    }
    std::vector<ioPath> removable = real_->Removable(folders);
    if (!nameless_.empty()) {
      const ioPath shared("/");
      removable.erase(std::remove(removable.begin(), removable.end(), shared), removable.end());
      if (!real_->Removable(nameless_).empty()) {
        removable.push_back(shared);
      }
    }
    return removable;
  }

 private:
  const bool all_;
  const std::vector<ioPath> nameless_;
  mutable bool sourcesSeen_ = false;
  const std::shared_ptr<App::IRemovableStorage> real_ =
      InForce<App::IRemovableStorage>(Tavolin::MakeSystemRemovableStorage());
};

}  // namespace

bool AskReadable(ImportFacts& facts, ImportAnswers& answers) {
  const std::vector<ImportSource>& sources = facts.sources.files;
  QList<QString> asked;
  for (const ImportSource& source : sources) {
    if (IsText(source.path)) {
      asked.append(ReversibleText(source.path));
    }
  }
  const QList<QString> readable = asked.isEmpty() ? asked : Util::CheckFilesReadableDialog(asked);
  // None at all is no answer when there are none.
  if (readable.isEmpty() && !Util::CheckFilesReadable(asked).isEmpty()) {
    answers.declined = true;
    return false;
  }
  const QSet<QString> taken(readable.begin(), readable.end());
  for (std::size_t i = 0; i < sources.size(); ++i) {
    const ioPath& path = sources[i].path;
    // The check finds no file whose name is no text.
    const bool isReadable = IsText(path) ? taken.contains(ReversibleText(path)) : OpensForReading(path);
    (isReadable ? facts.readable : facts.unreadable).push_back(i);
  }
  return true;
}

bool AskCopies(const ImportFacts& facts, ImportAnswers& answers) {
  if (facts.fresh.empty() || facts.interrupted) {
    return false;
  }
  QList<QString> asked;
  QHash<QString, std::size_t> places;
  std::vector<ioPath> nameless;
  for (const std::size_t i : facts.fresh) {
    const ioPath& path = facts.sources.files[i].path;
    asked.append(ReversibleText(path));
    places.insert(asked.back(), i);
    if (!IsText(path)) {
      nameless.push_back(path.parent_path());
    }
  }
  const App::ServiceScope<App::ISettingsManager> settings(std::make_shared<SettingsAsTheyAre>());
  const App::ServiceScope<App::IFolderAccess> folders(std::make_shared<FoldersAsTheyAre>());
  const App::ServiceScope<App::IRemovableStorage> storage(
      std::make_shared<SourceStorage>(facts.copyAll, std::move(nameless)));
  const auto pairs = Util::CheckFilesToCopyBeforeAddDialog(asked);
  answers.declined = pairs.isEmpty();
  for (const auto& [source, target] : pairs) {
    const bool copy = !source.isEmpty();
    answers.files.push_back({places.value(copy ? source : target), copy});
    if (copy && answers.folder.empty()) {
      answers.folder = Tavolin::FromNative(RealFolder(PathOfReversible(target).parent_path()));
    }
  }
  return !answers.folder.empty();
}

}  // namespace Zenvora::Lumidex::Host
