#pragma once

#include <support/TempTree.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/tavolin/Trash.h>

#include <functional>
#include <string>

namespace Zenvora::Test {

/// A trash in a folder of the test, whose notes hold the path alone.
class FolderTrash : public Tavolin::ITrash {
 public:
  /// The folder must be there.
  explicit FolderTrash(const ioPath& folder) : folder_(folder) {}

  Tavolin::TrashPlace Choose(const ioPath& file) const override {
    Happen();
    for (int i = 0;; ++i) {
      const std::string name = std::to_string(i) + '-' + file.filename().utf8string();
      Tavolin::TrashPlace place{folder_ / ioPath(name), folder_ / ioPath(name + ".note")};
      if (IsFree(place.file) && IsFree(place.note)) {
        if (onChosen) {
          onChosen(place);
        }
        return place;
      }
    }
  }
  std::error_code WriteNote(const Tavolin::TrashPlace& place, const ioPath& file) const override {
    Happen();
    const std::string path = file.utf8string();
    NewFile note;
    std::error_code error = noteError ? noteError : note.Create(place.note);
    if (!error) {
      Happen();
      error = note.Write(path.data(), path.size());
    }
    error = error ? error : note.Close(false);
    if (!error) {
      note.Release();
    }
    Happen();
    return error;
  }
  Tavolin::TrashNoteOf ReadNote(const Tavolin::TrashPlace& place, const ioPath& file) const override {
    const std::string path = IsFree(place.note) ? std::string() : ReadFile(place.note);
    return path.empty()           ? Tavolin::TrashNoteOf::Nobody
           : ioPath(path) == file ? Tavolin::TrashNoteOf::ThisFile
                                  : Tavolin::TrashNoteOf::Another;
  }
  void RemoveNote(const Tavolin::TrashPlace& place) const override {
    Happen();
    place.note.remove();
    Happen();
  }
  bool IsInReach(const Tavolin::TrashPlace&) const override { return inReach; }

  /// Called between the steps of everything that writes.
  std::function<void()> onEvent;
  /// What happens right after a place was chosen.
  std::function<void(Tavolin::TrashPlace&)> onChosen;
  std::error_code noteError;
  bool inReach = true;

 private:
  void Happen() const {
    if (onEvent) {
      onEvent();
    }
  }
  static bool IsFree(const ioPath& name) { return QueryFile(name).kind == FileState::Kind::Missing; }

  const ioPath folder_;
};

}  // namespace Zenvora::Test
