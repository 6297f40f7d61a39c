#pragma once

#include <host/shots/PhotoSidecars.h>
#include <host/shots/ShotSets.h>

#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/strandel/PhotoEdit.h>

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
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
    Torn,        ///< Its name changes, and that of a link beside it does not.
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

/// The words for a shot that is not renamed on account of a link.
constexpr char kTornFromLink[] = "has a link of the same name beside it, which would not be renamed";

/// Symbolic links that bear the names of shots beside them, such as settings that lie elsewhere: links keep
/// their names, so that a rename would tear the two apart.
class TornLinks {
 public:
  /// Blocks on the disk, as `Of`.
  explicit TornLinks(const std::vector<ioPath>& links);

  /// A link of the shot's name that leads to none of its files; empty: there is none.
  ioPath Of(const ShotSet& shot) const;
  /// Whether any new name of the shot would be refused.
  FileVerdict Judge(const ShotSet& shot) const;

 private:
  std::unordered_multimap<std::string, ioPath> byShot_;
};

/// The files that symbolic links in some folders, and below them, lead to. Blocks on the disk when it is
/// first asked; links that lie in a trash do not count.
class LinkedFiles {
 public:
  explicit LinkedFiles(std::set<ioPath> folders) : folders_(std::move(folders)) {}

  /// A link that leads to the file; empty: there is none.
  ioPath LinkTo(const FileState& file);
  /// It stays out of the trash when there is one: somebody chose this file and no other of its group.
  FileVerdict Judge(const ioPath& file, const FileState& state);

 private:
  const std::set<ioPath> folders_;
  std::optional<std::map<std::pair<std::uint64_t, std::uint64_t>, ioPath>> links_;
};

/// Whether the photo could go to the trash when a group keeps another one in its stead.
FileVerdict JudgeTrash(const ioPath& photo, LinkedFiles& links);

/// The words for a file that an import leaves behind.
constexpr char kCannotBeRead[] = "It cannot be read";
/// Whether the file can be copied or added.
FileVerdict JudgeImport(const ioPath& file);

}  // namespace Zenvora::Lumidex::Host
