#include "UtilsText.h"
#include "VolumeTotals.h"

#include <LumidexUtil/CheckSaveAvailable.h>

#include <zenvora/core/FileProbes.h>
#include <zenvora/qtutility/DiskQuestions.h>
#include <zenvora/tavolin/NativePath.h>

#include <set>
#include <string>

namespace Zenvora::Util {

namespace {

using Lumidex::DataModel;

const char* const TEXT_NO_SPACE =
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "There is not enough space on the disk %1");
const char* const TEXT_NO_FOLDER = QT_TRANSLATE_NOOP(
    "Zenvora::Lumidex::Utils", "You do not have permission to edit files in this folder: %1");
const char* const TEXT_NO_FILE =
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "You do not have permission to edit file: %1");

using Verdict = std::pair<CheckSaveAvailableMode, QString>;

QString Text(const ioPath& path) {
  const std::string utf8 = path.utf8string();
  return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

Verdict Failed(CheckSaveAvailableMode check, const char* text, const QString& place) {
  return {check, TranslateUtils(text).arg(place, 0, QLatin1Char(' '))};
}

Verdict Passed() {
  return {CheckSaveAvailableMode::None, QString()};
}

VolumeTotals TotalsOf(const std::vector<DataModel>& items) {
  VolumeTotals totals;
  for (const DataModel& item : items) {
    const ioPath volume(Tavolin::GetPlatformFileName(item.GetPath().root_path().utf8string()));
    std::uint64_t& total = totals[volume];
    total = AddSizes(total, item.GetSize());
  }
  return totals;
}

Verdict CheckDiskSpace(const std::vector<DataModel>& items) {
  for (const auto& [volume, needed] : TotalsOf(items)) {
    if (!HasRoom(needed, GetAvailableDiskSpace(volume))) {
      return Failed(CheckSaveAvailableMode::DiskSpace, TEXT_NO_SPACE, Text(volume.root_name()));
    }
  }
  return Passed();
}

std::set<QString> FoldersOf(const std::vector<DataModel>& items) {
  std::set<QString> folders;
  ioPath last;
  bool first = true;
  for (const DataModel& item : items) {
    ioPath folder = item.GetPath().parent_path();
    // Items mostly come folder by folder.
    if (first || folder.native().native() != last.native().native()) {
      folders.insert(Text(folder));
      last = std::move(folder);
      first = false;
    }
  }
  return folders;
}

Verdict CheckFolders(const std::vector<DataModel>& items) {
  for (const QString& folder : FoldersOf(items)) {
    if (!CanCreateFileIn(folder)) {
      return Failed(CheckSaveAvailableMode::FolderPermission, TEXT_NO_FOLDER, folder);
    }
  }
  return Passed();
}

Verdict CheckFiles(const std::vector<DataModel>& items) {
  for (const DataModel& item : items) {
    const ioPath& file = item.GetPath();
    if (!item.IsLost() && !(HasWritePermission(file) && OpensForAppending(file))) {
      return Failed(CheckSaveAvailableMode::FilePermission, TEXT_NO_FILE, Text(file));
    }
  }
  return Passed();
}

}  // namespace

std::pair<CheckSaveAvailableMode, QString> CheckSaveAvailable(const std::vector<DataModel>& items,
                                                              CheckSaveAvailableMode mode) {
  using Check = Verdict (*)(const std::vector<DataModel>&);
  static constexpr std::pair<CheckSaveAvailableMode, Check> CHECKS[] = {
      {CheckSaveAvailableMode::DiskSpace, CheckDiskSpace},
      {CheckSaveAvailableMode::FolderPermission, CheckFolders},
      {CheckSaveAvailableMode::FilePermission, CheckFiles},
  };
  for (const auto& [bit, check] : CHECKS) {
    if ((mode & bit) != CheckSaveAvailableMode::None) {
      Verdict verdict = check(items);
      if (verdict.first != CheckSaveAvailableMode::None) {
        return verdict;
      }
    }
  }
  return Passed();
}

}  // namespace Zenvora::Util
