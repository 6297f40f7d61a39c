#include "Alerts.h"
#include "CopyTargets.h"

#include <LumidexUtil/CheckFilesToCopyBeforeAdd.h>

#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/Services.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/qtutility/DiskQuestions.h>
#include <zenvora/qtutility/StandardDialogs.h>
#include <zenvora/tavolin/RemovableStorage.h>
#include <zenvora/tavolin/StandardFolders.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <vector>

namespace Zenvora::Util {

namespace {

const char* const TEXT_QUESTION = QT_TRANSLATE_NOOP(
    "Zenvora::Lumidex::Utils",
    "Some of the selected photos are on removable storage. Would you like copy they to your hard drive?");
const char* const TEXT_REFUSED = QT_TRANSLATE_NOOP(
    "Zenvora::Lumidex::Utils", "The selected directory is temporary, select another directory.");

using Plan = QList<QPair<QString, QString>>;
using FolderMap = std::map<ioPath, QList<QString>>;

/// The real folder, with a separator at its end. All files that do not exist share one: Qt gives them the
/// current folder or none, by their name.
ioPath FolderKey(const QString& file) {
  const QFileInfo info(file);
  const QString folder = info.canonicalFilePath().isEmpty() ? QString() : info.canonicalPath();
  return ioPath(QDir::fromNativeSeparators(folder + QDir::separator()));
}

FolderMap ByFolder(const QList<QString>& files) {
  FolderMap folders;
  for (const QString& file : files) {
    folders[FolderKey(file)].append(file);
  }
  return folders;
}

std::vector<ioPath> RemovableOf(const FolderMap& folders) {
  std::vector<ioPath> keys;
  keys.reserve(folders.size());
  for (const auto& entry : folders) {
    keys.push_back(entry.first);
  }
  return Tavolin::GetRemovable(keys);
}

void AddInPlace(const QList<QString>& files, Plan& plan) {
  for (const QString& file : files) {
    plan.append({QString(), file});
  }
}

QString RememberedFolder() {
  const auto settings = App::Services::Current().Get<App::ISettingsManager>();
  return QString::fromStdString(settings->GetString(App::SettingsKey::kLastUsedCopyDirectory,
                                                    Tavolin::DefaultPicturesDirectory().toStdString()));
}

void RememberFolder(const QString& folder) {
  App::Services::Current().Get<App::ISettingsManager>()->SetString(App::SettingsKey::kLastUsedCopyDirectory,
                                                                   folder.toStdString());
}

/// Empty when the user cancelled.
QString ChooseFolder() {
  const QString remembered = RememberedFolder();
  const auto ask = [&remembered] {
    return StandardDialogs::getExistingDirectory(MainWindow(), QObject::tr("Select folder"), remembered,
                                                 QFileDialog::ShowDirsOnly);
  };
  QString folder = ask();
  while (!folder.isEmpty() && Tavolin::IsRemovable(folder)) {
    Ask(AlertBox::Warning, Translated(TEXT_REFUSED), QMessageBox::Ok);
    folder = ask();
  }
  return folder;
}

/// A link that leads nowhere has the name as well: a copy would be written to wherever it leads.
bool IsTaken(const QString& path) {
  const QFileInfo info(path);
  return info.exists() || info.isSymLink();
}

void AddCopies(const QList<QString>& files, const QString& folder, Plan& plan) {
  const QString target = folder + QDir::separator();
  // A folder that cannot be made is told by whoever copies.
  MakeFolder(folder);
  CopyTargets targets(target, IsTaken);
  for (const QString& file : files) {
    plan.append(targets.Plan(file));
  }
}

/// `plan` gets what stays, in the order of folders; what is to be copied is returned.
QList<QString> Split(const FolderMap& folders, const std::vector<ioPath>& removable, Plan& plan) {
  QList<QString> toCopy;
  for (const auto& [folder, files] : folders) {
    if (std::find(removable.begin(), removable.end(), folder) != removable.end()) {
      toCopy += files;
    } else {
      AddInPlace(files, plan);
    }
  }
  return toCopy;
}

}  // namespace

QList<QPair<QString, QString>> CheckFilesToCopyBeforeAddDialog(const QList<QString>& files) {
  const FolderMap folders = ByFolder(files);
  const std::vector<ioPath> removable = RemovableOf(folders);
  Plan plan;
  if (removable.empty()) {
    AddInPlace(files, plan);
    return plan;
  }
  const auto answer = Ask(AlertBox::Warning, Translated(TEXT_QUESTION),
                          QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  if (answer == QMessageBox::No) {
    AddInPlace(files, plan);
    return plan;
  }
  if (answer != QMessageBox::Yes) {
    return {};
  }
  const QList<QString> toCopy = Split(folders, removable, plan);
  const QString folder = ChooseFolder();
  if (folder.isEmpty()) {
    return {};
  }
  RememberFolder(folder);
  AddCopies(toCopy, folder, plan);
  return plan;
}

}  // namespace Zenvora::Util
