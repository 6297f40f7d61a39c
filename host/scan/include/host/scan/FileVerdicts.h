#pragma once

#include <host/shots/PhotoSidecars.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/PhotoEdit.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What will become of one file when a command comes to it. Whoever tells it beforehand (`check`, a dry run)
/// and whoever does it (the run) ask the same function, so that what is told is what happens.
///
/// A verdict holds as long as the file, its folder, its sidecars and the room on its disk stay as they are;
/// what all files of a step take together is no part of it (`PlanRoom`). All functions block on the disk,
/// change nothing and throw nothing but `std::bad_alloc`.
struct FileVerdict {
  enum class Kind {
    Done,        ///< It will be done.
    Unreadable,  ///< The file cannot be read.
    NoFile,      ///< A pipe, a device, or nothing at all.
    Name,        ///< It is hidden, or not named like a photo.
    Format,      ///< No file of its format is edited.
    Content,     ///< What is in it cannot be edited: it is damaged, has no date, is too large.
    Protected,   ///< It is write-protected.
    Folder,      ///< Its folder does not let go of it or takes no new file.
    Sidecar,     ///< What lies beside it cannot be edited along with it.
    Kept,        ///< It is never moved to the trash.
    Room,        ///< Its disk has no room for the new version beside the old one.
  };
  Kind kind = Kind::Done;
  /// One English sentence that names the file, the cause and, where there is something, what to do. Empty
  /// when it will be done.
  std::string text;

  bool IsRefused() const { return kind != Kind::Done; }
};

/// What an edit does to a photo and what lies beside it.
struct EditVerdict : FileVerdict {
  Strandel::EditEffect effect;
  /// Those of the photo's sidecars that change, too.
  std::vector<ioPath> sidecars;
};

/// Does all the work of the edit but the writing. `force`: write protection is no obstacle.
EditVerdict JudgeEdit(const EditTask& task, const Strandel::PhotoEdit& edit, bool force);

/// The part of it that a run asks before it writes anything: what it costs nothing to know.
FileVerdict JudgeEditing(const ioPath& photo, bool force);
/// The part that it asks of each sidecar; `changes`: whether the edit changes something in it.
FileVerdict JudgeSidecar(const ioPath& sidecar, const ioPath& photo, const Strandel::PhotoEdit& edit,
                         bool force, bool& changes);
/// Of what the edit of the photo itself threw.
FileVerdict JudgeFailure(const ioPath& photo, const std::string& failure);

/// Whether the file can get another name in its folder; which one is no part of it. Renaming does not change
/// a file, so that write protection does not matter. Of a link it is the link that is renamed.
FileVerdict JudgeRename(const ioPath& file);

/// Whether the photo could go to the trash when a group keeps another one in its stead.
FileVerdict JudgeTrash(const ioPath& photo);

/// The words for a file that an import leaves behind.
constexpr char kCannotBeRead[] = "It cannot be read";
/// Whether the file can be copied or added.
FileVerdict JudgeImport(const ioPath& file);

}  // namespace Zenvora::Lumidex::Host
