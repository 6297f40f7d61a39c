#include "PathText.h"

#include <LumidexUtil/CheckFilesReadable.h>
#include <LumidexUtil/CheckFormatsWritable.h>
#include <LumidexUtil/CheckSaveAvailable.h>
#include <host/SaveChecks.h>

#include <zenvora/core/FileProbes.h>
#include <zenvora/core/FileState.h>
#include <zenvora/lumidex/DataModel.h>
#include <zenvora/qtutility/DiskQuestions.h>

#include <QSet>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Kind = CheckFinding::Kind;
using Util::CheckSaveAvailableMode;

DataModel ItemOf(const ioPath& path, std::uint64_t size = 0) {
  DataModel item;
  item.SetPath(path);
  item.SetSize(size);
  return item;
}

class Checker {
 public:
  explicit Checker(const GatheredSources& sources) : sources_(sources) {}

  CheckReport Run() {
    report_.files = sources_.files.size();
    for (const LeftFile& left : sources_.left) {
      if (left.kind == LeftFile::Kind::Unreadable) {
        Find(Kind::Unreadable, left.path, left.cause + ".");
      }
    }
    CheckReadable();
    CheckFormats();
    CheckSpace();
    CheckFolders();
    CheckWritable();
    std::stable_sort(report_.findings.begin(), report_.findings.end(),
                     [](const CheckFinding& left, const CheckFinding& right) {
                       return std::tie(left.kind, left.path) < std::tie(right.kind, right.path);
                     });
    return std::move(report_);
  }

 private:
  void Find(Kind kind, const ioPath& path, const std::string& text) {
    report_.findings.push_back({kind, path, text});
  }

  void CheckReadable() {
    QList<QString> files;
    for (const ImportSource& file : sources_.files) {
      if (IsText(file.path)) {
        files.append(ReversibleText(file.path));
      }
    }
    const QList<QString> found = Util::CheckFilesReadable(files);
    const auto readable = QSet<QString>(found.begin(), found.end());
    for (const ImportSource& file : sources_.files) {
      // The checks find no file whose name is no text.
      if (!(IsText(file.path) ? readable.contains(ReversibleText(file.path)) : OpensForReading(file.path))) {
        Find(Kind::Unreadable, file.path, "You do not have permission to read this file.");
      }
    }
  }

  void CheckFormats() {
    for (const ImportSource& file : sources_.files) {
      if (!file.isPhoto) {
        continue;
      }
      const auto [writable, text] = Util::CheckFormatsWritable({ItemOf(file.path)});
      if (!writable) {
        Find(Kind::Format, file.path, text.toStdString());
      }
    }
  }

  /// By the volumes that there are: the roots of paths, by which the check goes, are one on some systems.
  void CheckSpace() {
    std::map<std::uint64_t, CheckedVolume> volumes;
    for (const ImportSource& file : sources_.files) {
      CheckedVolume& volume = volumes[file.state.identity.first];
      if (volume.files++ == 0) {
        volume.folder = file.path.parent_path();
      }
      volume.bytesNeeded += file.state.size;
    }
    for (auto& [device, volume] : volumes) {
      volume.bytesFree = Util::GetAvailableDiskSpace(volume.folder);
      if (volume.bytesFree > 0 && volume.bytesNeeded > static_cast<std::uint64_t>(volume.bytesFree)) {
        Find(Kind::Space, volume.folder, "There is not enough space on the disk of this folder.");
      }
      report_.volumes.push_back(volume);
    }
    std::sort(
        report_.volumes.begin(), report_.volumes.end(),
        [](const CheckedVolume& left, const CheckedVolume& right) { return left.folder < right.folder; });
  }

  void CheckFolders() {
    std::set<ioPath> folders;
    for (const ImportSource& file : sources_.files) {
      if (folders.insert(file.path.parent_path()).second) {
        Ask(Kind::Folder, CheckSaveAvailableMode::FolderPermission, file.path, file.path.parent_path());
      }
    }
  }

  void CheckWritable() {
    for (const ImportSource& file : sources_.files) {
      Ask(Kind::File, CheckSaveAvailableMode::FilePermission, file.path, file.path);
    }
  }

  void Ask(Kind kind, CheckSaveAvailableMode mode, const ioPath& file, const ioPath& place) {
    const auto [failed, text] = Util::CheckSaveAvailable({ItemOf(file)}, mode);
    if (failed != CheckSaveAvailableMode::None) {
      Find(kind, place, text.toStdString());
    }
  }

  const GatheredSources& sources_;
  CheckReport report_;
};

}  // namespace

CheckReport CheckFiles(const GatheredSources& sources) {
  return Checker(sources).Run();
}

}  // namespace Zenvora::Lumidex::Host
