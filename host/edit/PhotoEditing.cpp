#include <LumidexUtil/UndoFileHolder.h>
#include <host/base/HostError.h>
#include <host/edit/PhotoEditing.h>
#include <host/scan/FileVerdicts.h>

#include <zenvora/strandel/SidecarEdit.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// An edited file that waits beside the one whose place it takes.
struct Staged {
  DataModel item;
  ioPath path;
};

/// The file itself where the photo is a link, which is not to be replaced.
ioPath FileOf(const ioPath& photo) {
  std::error_code error;
  if (!std::filesystem::is_symlink(std::filesystem::symlink_status(photo.for_system(), error))) {
    return photo;
  }
  const ioPath file = photo.canonical(error);
  return error ? photo : file;
}

class EditRunner {
 public:
  EditRunner(EditSteps& steps, IFileAccessLocker& locker, const EditOrder& order, const WriteStaging& write)
      : steps_(steps), locker_(locker), order_(order), write_(write) {}

  EditResult Run(const std::vector<EditTask>& tasks, const std::atomic<bool>& cancelled,
                 const UndoProgress& progress) {
    result_.name = order_.name;
    steps_.BeginStep(order_.name);
    std::size_t looked = 0;
    for (const EditTask& task : tasks) {
      if (cancelled) {
        result_.cancelled = true;
        break;
      }
      if (!stopped_.empty()) {
        Find(task, task.photo.utf8string() + " is unchanged: " + stopped_);
        continue;
      }
      Take(task);
      if (progress) {
        progress(++looked, tasks.size());
      }
    }
    End(tasks);
    return std::move(result_);
  }

 private:
  void Find(const EditTask& task, const std::string& cause) {
    result_.findings.push_back({task.photo, cause});
  }

  void Take(const EditTask& task) {
    const FileVerdict verdict = write_ ? FileVerdict() : JudgeEditing(task.photo, order_.force);
    if (verdict.IsRefused()) {
      Find(task, verdict.text);
      return;
    }
    std::vector<Staged> staged;
    bool isFound = false;
    try {
      const ioPath staging = steps_.PlanEdit(task.photo);
      const FileVerdict failure = Edit(task, staging, staged);
      if (failure.IsRefused()) {
        Find(task, failure.text);
        isFound = true;
        steps_.DropEdit();
        return;
      }
    } catch (const HostError& failure) {
      // Not the photo's fault, but the journal's, which finds out later how far it was.
      if (!isFound) {
        Find(task, task.photo.utf8string() + " is unchanged: " + failure.what());
      }
      stopped_ = failure.what();
      return;
    }
    ++result_.photos;
    result_.sidecars += staged.size() - 1;
    result_.files += staged.size();
    Finish(task);
  }

  /// What stands against it; then nothing of the photo and its sidecars has changed, or the journal knows.
  FileVerdict Edit(const EditTask& task, const ioPath& staging, std::vector<Staged>& staged) {
    try {
      write_ ? write_(task.photo, staging) : Strandel::WriteEdited(task.photo, staging, order_.edit);
      staged.push_back(StagedOf(task.photo, staging));
      FileVerdict verdict = WriteSidecars(task, staged);
      if (!verdict.IsRefused()) {
        Replace(staged);
      }
      return verdict;
    } catch (const std::exception& failure) {
      // In the words in which it would have been told beforehand, where it would have been.
      staged.clear();
      const EditVerdict judged = write_ ? EditVerdict() : JudgeEdit(task, order_.edit, order_.force);
      const FileVerdict& told = judged;
      return told.IsRefused() ? told : JudgeFailure(task.photo, failure.what());
    }
  }

  void Finish(const EditTask& task) {
    try {
      steps_.FinishEdit();
    } catch (const HostError& failure) {
      // Not to be dropped: the next journal finds out how far it was.
      TellLater(task, failure);
      stopped_ = failure.what();
    }
  }

  void TellLater(const EditTask& task, const HostError& failure) {
    Find(task, task.photo.utf8string() + " was edited, but the catalogue could not be updated (" +
                   failure.what() + "). The next run updates it");
  }

  void End(const std::vector<EditTask>& tasks) {
    try {
      steps_.EndStep();
    } catch (const HostError& failure) {
      if (stopped_.empty() && !tasks.empty()) {
        TellLater(tasks.back(), failure);
      }
    }
  }

  static Staged StagedOf(const ioPath& file, const ioPath& path) {
    Staged staging;
    staging.item.SetPath(file);
    staging.item.SetSize(file.file_size());
    staging.path = path;
    return staging;
  }

  FileVerdict WriteSidecars(const EditTask& task, std::vector<Staged>& staged) {
    for (const ioPath& sidecar : task.sidecars) {
      bool changes = false;
      FileVerdict verdict = JudgeSidecar(sidecar, task.photo, order_.edit, order_.force, changes);
      if (verdict.IsRefused()) {
        return verdict;
      }
      if (changes) {
        const ioPath staging = steps_.PlanSidecar(sidecar);
        Strandel::WriteEditedSidecar(sidecar, staging, task.photo, order_.edit);
        staged.push_back(StagedOf(sidecar, staging));
      }
    }
    return {};
  }

  /// The journal knows of all of them before the first takes its place.
  void Replace(std::vector<Staged>& staged) {
    for (Staged& staging : staged) {
      steps_.RegisterFileChange(staging.item, staging.item.GetPath());
    }
    for (const Staged& staging : staged) {
      UndoFileHolder holder(nullptr, locker_, staging.item, staging.path, false);
      holder.Process();
    }
  }

  EditSteps& steps_;
  IFileAccessLocker& locker_;
  const EditOrder& order_;
  const WriteStaging& write_;
  EditResult result_;
  /// Where nothing can be written down any more, nothing more is changed: what was done is told.
  std::string stopped_;
};

}  // namespace

EditResult EditPhotos(EditSteps& steps, IFileAccessLocker& locker, const EditOrder& order,
                      const std::vector<EditTask>& tasks, const std::atomic<bool>& cancelled,
                      const UndoProgress& progress) {
  const WriteStaging none;
  return EditRunner(steps, locker, order, none).Run(tasks, cancelled, progress);
}

EditResult EditPhotos(EditSteps& steps, IFileAccessLocker& locker, const QString& name,
                      const std::vector<ioPath>& photos, const WriteStaging& write,
                      const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  EditOrder order;
  order.name = name;
  std::vector<EditTask> tasks;
  tasks.reserve(photos.size());
  for (const ioPath& photo : photos) {
    tasks.push_back({FileOf(photo), {}});
  }
  return EditRunner(steps, locker, order, write).Run(tasks, cancelled, progress);
}

}  // namespace Zenvora::Lumidex::Host
