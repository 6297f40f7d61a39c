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
struct Side {
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
  EditRunner(EditSteps& steps, IFileAccessLocker& locker, const EditOrder& order, const WriteSide& write)
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
    std::vector<Side> sides;
    bool isFound = false;
    try {
      const ioPath side = steps_.PlanEdit(task.photo);
      const FileVerdict failure = Edit(task, side, sides);
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
    result_.sidecars += sides.size() - 1;
    result_.files += sides.size();
    Finish(task);
  }

  /// What stands against it; then nothing of the photo and its sidecars has changed, or the journal knows.
  FileVerdict Edit(const EditTask& task, const ioPath& side, std::vector<Side>& sides) {
    try {
      write_ ? write_(task.photo, side) : Strandel::WriteEdited(task.photo, side, order_.edit);
      sides.push_back(SideOf(task.photo, side));
      FileVerdict verdict = WriteSidecars(task, sides);
      if (!verdict.IsRefused()) {
        Replace(sides);
      }
      return verdict;
    } catch (const std::exception& failure) {
      // In the words in which it would have been told beforehand, where it would have been.
      sides.clear();
      FileVerdict told = write_ ? FileVerdict() : JudgeEdit(task, order_.edit, order_.force);
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

  static Side SideOf(const ioPath& file, const ioPath& path) {
    Side side;
    side.item.SetPath(file);
    side.item.SetSize(file.file_size());
    side.path = path;
    return side;
  }

  FileVerdict WriteSidecars(const EditTask& task, std::vector<Side>& sides) {
    for (const ioPath& sidecar : task.sidecars) {
      bool changes = false;
      FileVerdict verdict = JudgeSidecar(sidecar, task.photo, order_.edit, order_.force, changes);
      if (verdict.IsRefused()) {
        return verdict;
      }
      if (changes) {
        const ioPath side = steps_.PlanSidecar(sidecar);
        Strandel::WriteEditedSidecar(sidecar, side, task.photo, order_.edit);
        sides.push_back(SideOf(sidecar, side));
      }
    }
    return {};
  }

  /// The journal knows of all of them before the first takes its place.
  void Replace(std::vector<Side>& sides) {
    for (Side& side : sides) {
      steps_.RegisterFileChange(side.item, side.item.GetPath());
    }
    for (const Side& side : sides) {
      UndoFileHolder holder(nullptr, locker_, side.item, side.path, false);
      holder.Process();
    }
  }

  EditSteps& steps_;
  IFileAccessLocker& locker_;
  const EditOrder& order_;
  const WriteSide& write_;
  EditResult result_;
  /// Where nothing can be written down any more, nothing more is changed: what was done is told.
  std::string stopped_;
};

}  // namespace

EditResult EditPhotos(EditSteps& steps, IFileAccessLocker& locker, const EditOrder& order,
                      const std::vector<EditTask>& tasks, const std::atomic<bool>& cancelled,
                      const UndoProgress& progress) {
  const WriteSide none;
  return EditRunner(steps, locker, order, none).Run(tasks, cancelled, progress);
}

EditResult EditPhotos(EditSteps& steps, IFileAccessLocker& locker, const QString& name,
                      const std::vector<ioPath>& photos, const WriteSide& write,
                      const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  EditOrder order;
  order.name = name;
  std::vector<EditTask> tasks;
  for (const ioPath& photo : photos) {
    tasks.push_back({FileOf(photo), {}});
  }
  return EditRunner(steps, locker, order, write).Run(tasks, cancelled, progress);
}

}  // namespace Zenvora::Lumidex::Host
