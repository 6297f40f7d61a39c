#include <host/base/FolderEntries.h>
#include <host/base/LinkSearch.h>
#include <host/scan/PhotoChoice.h>
#include <host/scan/SaveChecks.h>
#include <host/scan/Scanner.h>
#include <host/shots/PhotoSidecars.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/FileState.h>
#include <zenvora/qtutility/DiskQuestions.h>
#include <zenvora/tavolin/RemovableStorage.h>

#include <algorithm>
#include <map>
#include <system_error>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Kind = FileVerdict::Kind;
using Acts = std::set<FileAct>;

ioPath TrueName(const ioPath& file) {
  std::error_code error;
  const ioPath path = file.canonical(error);
  return error ? file : path;
}

/// Edits that stand for all of their kind: no photo refuses one of them and takes another.
Strandel::PhotoEdit EditFor(FileAct act, bool back = false) {
  // Of a text without seconds a whole minute asks for no more room.
  constexpr std::chrono::seconds kShift{60};
  Strandel::PhotoEdit edit;
  if (act == FileAct::Rotate) {
    edit.turn = Strandel::Turn::Right;
  } else if (act == FileAct::ShiftDate) {
    edit.shift = back ? -kShift : kShift;
  } else {
    edit.date = QDateTime(QDate(2001, 2, 3), QTime(4, 5));
  }
  return edit;
}

EditVerdict JudgeAny(const EditTask& task, FileAct act) {
  EditVerdict verdict = JudgeEdit(task, EditFor(act), false);
  if (verdict.IsRefused() && act == FileAct::ShiftDate) {
    // At the end of the calendar only one way is barred.
    EditVerdict back = JudgeEdit(task, EditFor(act, true), false);
    return back.IsRefused() ? verdict : back;
  }
  return verdict;
}

class Checker {
 public:
  Checker(const std::vector<ioPath>& arguments, const CheckOptions& options)
      : arguments_(arguments), options_(options) {}

  CheckReport Run() {
    Gather();
    CheckImport();
    CheckLeft();
    CheckRename();
    CheckTrash();
    CheckEdits();
    for (auto& [place, finding] : findings_) {
      report_.findings.push_back(std::move(finding));
    }
    return std::move(report_);
  }

 private:
  /// An import looks at more than the others, but not at what is housekeeping to it.
  void Gather() {
    Acts others = options_.acts;
    others.erase(FileAct::Import);
    if (!others.empty()) {
      photos_ = GatherSources(arguments_);
    }
    if (Wants(FileAct::Import)) {
      imported_ = GatherSources(arguments_, Gathered::Everything);
    }
    std::unordered_set<ioPath> known;
    std::vector<const ImportSource*> files;
    for (const GatheredSources* const sources : {&photos_, &imported_}) {
      for (const ImportSource& file : sources->files) {
        if (known.insert(file.path).second) {
          files.push_back(&file);
        }
      }
    }
    report_.files = files.size();
    MeasureVolumes(files);
  }

  bool Wants(FileAct act) const { return options_.acts.count(act) > 0; }

  void Take(FileAct act, const ioPath& file, const FileVerdict& verdict) {
    if (!verdict.IsRefused() || !Wants(act)) {
      return;
    }
    CheckFinding& finding = findings_[{file, verdict.kind, verdict.text}];
    finding.kind = verdict.kind;
    finding.path = file;
    finding.text = verdict.text;
    finding.acts.insert(act);
  }

  std::set<ioPath> Folders() const {
    std::set<ioPath> folders;
    for (const ImportSource& file : photos_.files) {
      folders.insert(file.path.parent_path());
    }
    return folders;
  }

  /// No rename changes the name of a link.
  void CheckRename() {
    if (!Wants(FileAct::Rename)) {
      return;
    }
    std::map<std::size_t, ShotSet> shots;
    for (const ImportSource& file : photos_.files) {
      if (!LeadsElsewhere(file.path)) {
        Take(FileAct::Rename, file.path, JudgeRename(file.path));
        shots[file.shot].files.push_back({file.path, file.suffix});
      }
    }
    const std::set<ioPath> folders = Folders();
    const TornLinks links(FindLinks({folders.begin(), folders.end()}, {}));
    for (const auto& [number, shot] : shots) {
      const ioPath& first = shot.files.front().path;
      if (IsPhotoName(first)) {
        Take(FileAct::Rename, first, links.Judge(shot));
      }
    }
  }

  void CheckTrash() {
    if (!Wants(FileAct::Trash)) {
      return;
    }
    LinkedFiles links(Folders());
    for (const ImportSource& file : photos_.files) {
      if (file.isPhoto) {
        Take(FileAct::Trash, file.path, JudgeTrash(file.path, links));
      }
    }
  }

  static FileVerdict Refusal(Kind kind, const std::string& text) {
    FileVerdict verdict;
    verdict.kind = kind;
    verdict.text = text;
    return verdict;
  }

  void CheckImport() {
    for (const ImportSource& file : imported_.files) {
      Take(FileAct::Import, file.path, JudgeImport(file.path));
    }
    std::unordered_map<ioPath, bool> removable;
    for (LeftFile left : imported_.left) {
      if (left.kind == LeftFile::Kind::NotAPhoto || left.kind == LeftFile::Kind::Hidden) {
        const auto [known, isNew] = removable.try_emplace(left.path.parent_path(), false);
        if (isNew) {
          known->second = !Tavolin::GetRemovable({known->first}).empty();
        }
        left.copiedOff = known->second;
        left.cause = ReasonToLeave(left);
      }
      if (left.kind == LeftFile::Kind::NoFile) {
        Take(FileAct::Import, left.path, Refusal(Kind::NoFile, left.cause));
      } else if (left.kind == LeftFile::Kind::Unreadable || left.kind == LeftFile::Kind::Loop) {
        Take(FileAct::Import, left.path, Refusal(Kind::Unreadable, left.cause));
      } else if (left.copiedOff) {
        Take(FileAct::Import, left.path, Refusal(Kind::Name, left.cause));
      } else {
        report_.left.push_back(left);
      }
    }
  }

  /// What cannot even be looked at stands against everything else, too, but links that lead nowhere only
  /// against what goes by way of links.
  void CheckLeft() {
    for (const LeftFile& left : photos_.left) {
      const std::string name = left.path.utf8string();
      if (LeadsElsewhere(left.path)) {
        const std::string fault = IsPhotoName(left.path) ? FindEditLinkFault(left.path) : std::string();
        if (!fault.empty()) {
          AddForEdits(left.path, Refusal(Kind::Unreadable, name + ' ' + fault + '.'));
        }
      } else if (left.kind == LeftFile::Kind::Unreadable) {
        const std::string text = name + " cannot be read: " + left.cause + '.';
        AddForEdits(left.path, Refusal(Kind::Unreadable, text));
        Take(FileAct::Rename, left.path, Refusal(Kind::Unreadable, "Nothing was renamed: " + text));
        Take(FileAct::Trash, left.path, Refusal(Kind::Unreadable, text));
      }
    }
  }

  void AddForEdits(const ioPath& file, const FileVerdict& verdict) {
    for (const FileAct act : Edits()) {
      Take(act, file, verdict);
    }
  }

  void MeasureVolumes(const std::vector<const ImportSource*>& files) {
    std::map<std::uint64_t, CheckedVolume> volumes;
    for (const ImportSource* const file : files) {
      CheckedVolume& volume = volumes[file->state.identity.first];
      if (volume.files++ == 0) {
        volume.folder = file->path.parent_path();
      }
      volume.bytesNeeded += file->state.size;
    }
    for (auto& [device, volume] : volumes) {
      volume.bytesFree = Util::GetAvailableDiskSpace(volume.folder);
      report_.volumes.push_back(volume);
    }
    std::sort(
        report_.volumes.begin(), report_.volumes.end(),
        [](const CheckedVolume& left, const CheckedVolume& right) { return left.folder < right.folder; });
  }

  Acts Edits() const {
    Acts edits;
    for (const FileAct act : {FileAct::Rotate, FileAct::ShiftDate, FileAct::SetDate}) {
      if (Wants(act)) {
        edits.insert(act);
      }
    }
    return edits;
  }

  void CheckEdits() {
    const Acts edits = Edits();
    if (edits.empty()) {
      return;
    }
    const std::vector<EditTask> tasks = FindSidecars(PhotosToEdit(edits));
    std::size_t done = 0;
    for (const EditTask& task : tasks) {
      if (options_.cancel != nullptr && *options_.cancel) {
        report_.cancelled = true;
        return;
      }
      CheckEdits(task, edits);
      if (options_.progress) {
        options_.progress(++done, tasks.size());
      }
    }
  }

  /// What the commands make of names comes first, as it does in them.
  std::vector<ioPath> PhotosToEdit(const Acts& edits) {
    std::vector<ioPath> named;
    for (const ioPath& argument : arguments_) {
      if (QueryFile(argument).kind != FileState::Kind::Folder) {
        named.push_back(argument);
      }
    }
    const EditChoice choice = ChooseForEdit(named);
    std::unordered_set<ioPath> known;
    for (const FileFinding& refused : choice.refused) {
      known.insert(TrueName(refused.file));
      for (const FileAct act : edits) {
        const bool isFile = QueryFile(refused.file).kind == FileState::Kind::File;
        Take(act, refused.file, Refusal(isFile ? Kind::Name : Kind::NoFile, refused.cause));
      }
    }
    std::vector<ioPath> photos;
    const auto add = [&photos, &known](const ioPath& photo) {
      if (known.insert(photo).second) {
        photos.push_back(photo);
      }
    };
    std::for_each(choice.photos.begin(), choice.photos.end(), add);
    for (const ImportSource& file : photos_.files) {
      if (file.isPhoto) {
        add(TrueName(file.path));
      }
    }
    return photos;
  }

  void CheckEdits(const EditTask& task, const Acts& edits) {
    const FileVerdict before = JudgeEditing(task.photo, false);
    std::map<FileAct, EditVerdict> verdicts;
    if (!before.IsRefused() && edits.count(FileAct::Rotate) + edits.count(FileAct::SetDate) == 2) {
      // Both at once costs as much as one; who takes both takes each.
      Strandel::PhotoEdit both = EditFor(FileAct::SetDate);
      both.turn = EditFor(FileAct::Rotate).turn;
      EditVerdict verdict = JudgeEdit(task, both, false);
      if (!verdict.IsRefused()) {
        verdicts[FileAct::Rotate] = verdict;
        verdicts[FileAct::SetDate] = verdict;
      }
    }
    bool anyEdits = false;
    std::set<ioPath> sidecars;
    for (const FileAct act : edits) {
      if (before.IsRefused()) {
        Take(act, task.photo, before);
        continue;
      }
      const auto known = verdicts.find(act);
      const EditVerdict verdict = known != verdicts.end() ? known->second : JudgeAny(task, act);
      Take(act, task.photo, verdict);
      anyEdits = anyEdits || !verdict.IsRefused();
      sidecars.insert(verdict.sidecars.begin(), verdict.sidecars.end());
    }
    if (anyEdits) {
      report_.edited.push_back(task.photo);
      report_.edited.insert(report_.edited.end(), sidecars.begin(), sidecars.end());
    }
  }

  const std::vector<ioPath>& arguments_;
  const CheckOptions& options_;
  GatheredSources photos_;
  GatheredSources imported_;
  /// By file; one cause that several commands share is told once.
  std::map<std::tuple<ioPath, Kind, std::string>, CheckFinding> findings_;
  CheckReport report_;
};

}  // namespace

CheckReport CheckFiles(const std::vector<ioPath>& arguments, const CheckOptions& options) {
  return Checker(arguments, options).Run();
}

}  // namespace Zenvora::Lumidex::Host
