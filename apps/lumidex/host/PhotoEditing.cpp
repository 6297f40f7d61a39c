#include <LumidexUtil/UndoFileHolder.h>
#include <host/PhotoEditing.h>

#include <filesystem>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

/// The file itself where the photo is a link, which is not to be replaced.
ioPath FileOf(const ioPath& photo) {
  std::error_code error;
  if (!std::filesystem::is_symlink(std::filesystem::symlink_status(photo.for_system(), error))) {
    return photo;
  }
  const ioPath file = photo.canonical(error);
  return error ? photo : file;
}

}  // namespace

UndoResult EditPhotos(UndoJournal& journal, IFileAccessLocker& locker, const QString& name,
                      const std::vector<ioPath>& photos,
                      const std::function<void(const ioPath& photo, const ioPath& side)>& write,
                      const std::atomic<bool>& cancelled, const UndoProgress& progress) {
  UndoResult result;
  result.name = name;
  journal.BeginStep(name);
  std::size_t looked = 0;
  for (const ioPath& photo : photos) {
    if (cancelled) {
      result.cancelled = true;
      break;
    }
    const ioPath file = FileOf(photo);
    const ioPath side = journal.PlanEdit(file);
    bool replaced = false;
    try {
      write(file, side);
      DataModel item;
      item.SetPath(file);
      item.SetSize(file.file_size());
      UndoFileHolder holder(&journal, locker, item, side, false);
      holder.Process();
      replaced = true;
    } catch (const std::exception& failure) {
      journal.DropEdit();
      result.findings.push_back({photo, failure.what()});
    }
    if (replaced) {
      // Not to be dropped when this fails: the next journal finds out how far it was.
      journal.FinishEdit();
      ++result.files;
    }
    if (progress) {
      progress(++looked, photos.size());
    }
  }
  journal.EndStep();
  return result;
}

}  // namespace Zenvora::Lumidex::Host
