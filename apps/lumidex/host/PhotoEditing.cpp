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
  // Where nothing can be written down any more, nothing more is changed: what was done is told.
  std::string stopped;
  const auto tellLater = [&result](const ioPath& photo, const HostError& failure) {
    result.findings.push_back({photo, photo.utf8string() +
                                          " is edited, but that could not be written down (" +
                                          failure.what() + "). The next run of lumidex does it"});
  };
  for (const ioPath& photo : photos) {
    if (cancelled) {
      result.cancelled = true;
      break;
    }
    if (!stopped.empty()) {
      result.findings.push_back({photo, photo.utf8string() + " is as it was: " + stopped});
      continue;
    }
    const ioPath file = FileOf(photo);
    bool replaced = false;
    try {
      const ioPath side = journal.PlanEdit(file);
      try {
        write(file, side);
        DataModel item;
        item.SetPath(file);
        item.SetSize(file.file_size());
        UndoFileHolder holder(&journal, locker, item, side, false);
        holder.Process();
        replaced = true;
      } catch (const std::exception& failure) {
        result.findings.push_back({photo, failure.what()});
        journal.DropEdit();
      }
    } catch (const HostError& failure) {
      // Not the photo's fault, but the journal's, which finds out later how far it was.
      if (result.findings.empty() || result.findings.back().file != photo) {
        result.findings.push_back({photo, photo.utf8string() + " is as it was: " + failure.what()});
      }
      stopped = failure.what();
    }
    if (replaced) {
      ++result.files;
      try {
        journal.FinishEdit();
      } catch (const HostError& failure) {
        tellLater(photo, failure);
        stopped = failure.what();
      }
    }
    if (progress) {
      progress(++looked, photos.size());
    }
  }
  try {
    journal.EndStep();
  } catch (const HostError& failure) {
    if (stopped.empty() && !photos.empty()) {
      tellLater(photos.back(), failure);
    }
  }
  return result;
}

}  // namespace Zenvora::Lumidex::Host
