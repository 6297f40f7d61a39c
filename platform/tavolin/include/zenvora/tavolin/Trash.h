#pragma once

#include <zenvora/core/Exception.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/tavolin/Export.h>

#include <system_error>

namespace Zenvora::Tavolin {

/// Where a file lies in a trash, or is to lie.
struct TrashPlace {
  ioPath file;  ///< The file itself, under the name that it has there.
  ioPath note;  ///< A small file that says where it came from and when; what shows the trash reads it.
};

enum class TrashNoteOf {
  Nobody,
  ThisFile,
  Another,
};

/// There is no trash that could take a file. Carries `TagFilename` and `TagDescription`, a sentence that
/// names the file and the cause.
class ZENVORA_TAVOLIN_EXPORT TrashException : public Exception {
 public:
  TrashException() = default;
  TrashException(const TrashException&) = default;
  TrashException(TrashException&&) = default;
  TrashException& operator=(const TrashException&) = default;
  TrashException& operator=(TrashException&&) = default;
  ~TrashException() noexcept override;
};

/// Places for files in trashes. Who moves a file there goes three steps, so that it can be found again
/// however far that came: choose a place and write it down, write the note, move the file. On the way back
/// the file comes first and the note goes afterwards. A place is always on the file's own volume: moving is a
/// rename, and nothing is ever copied.
///
/// Everything blocks on the disk.
class ZENVORA_TAVOLIN_EXPORT ITrash {
 public:
  virtual ~ITrash();

  /// A place in the trash of the file's volume that nothing has yet. The trash's folders are made where they
  /// are missing. `file`: absolute. Throws `TrashException`.
  virtual TrashPlace Choose(const ioPath& file) const = 0;
  /// Writes the note, down to the disk, for a file that is still where it was. `file_exists` when somebody
  /// took the place meanwhile: another one is to be chosen. On any error there is no note of ours.
  virtual std::error_code WriteNote(const TrashPlace& place, const ioPath& file) const = 0;
  /// Whose note it is. What cannot be read is nobody's.
  virtual TrashNoteOf ReadNote(const TrashPlace& place, const ioPath& file) const = 0;
  /// Whether there was one does not matter.
  virtual void RemoveNote(const TrashPlace& place) const = 0;
  /// False while nobody can tell what lies there, because the volume may be away.
  virtual bool IsInReach(const TrashPlace& place) const = 0;
};

/// The trash that the desktop shows. Safe from any thread.
///
/// On Linux as freedesktop.org has agreed on it (Trash 1.0): `Trash` in the user's data folder for what is on
/// its volume, elsewhere `.Trash/<uid>` in the top folder of the volume where somebody prepared that safely,
/// else `.Trash-<uid>`. On Windows the recycle bin of a fixed disk; network shares and removable media have
/// none.
ZENVORA_TAVOLIN_EXPORT const ITrash& DesktopTrash();

/// True when a file lies in somebody's trash, by the names of the folders above it; links are followed.
ZENVORA_TAVOLIN_EXPORT bool LiesInTrash(const ioPath& file);

}  // namespace Zenvora::Tavolin
