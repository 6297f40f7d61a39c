#pragma once

#include <LumidexUtil/Export.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/DataModel.h>
#include <zenvora/lumidex/IFileAccessLocker.h>
#include <zenvora/lumidex/IUndo.h>

#include <memory>

namespace Zenvora::Lumidex {

/// Owns a staging file, written by the caller, that is to take the place of a library item's file. `Process`
/// does it; a holder that is destroyed before deletes the staging file, so that a given-up edit leaves
/// nothing behind.
///
/// It keeps no original: that is up to the undo receiver. Nor does it protect from a crash between the
/// staging file's making and `Process`: the staging file then stays on the disk.
///
/// For one thread at a time. `undo` and `locker` must outlive it.
class LUMIDEXUTIL_EXPORT UndoFileHolder {
 public:
  /// `undo`: told before anything changes; null: nobody is. `item` is copied. `heldPath`: the staging file.
  /// `adoptHeldPath`: false: `Process` moves the staging file onto the item's file; true: it points the item
  /// at the staging file, and no file is moved.
  UndoFileHolder(IUndo* undo, IFileAccessLocker& locker, const DataModel& item, const ioPath& heldPath,
                 bool adoptHeldPath);
  /// Leaves the source empty.
  UndoFileHolder(UndoFileHolder&& other) noexcept;
  /// Takes the item, the staging file and what to do with it, and leaves the source empty; keeps its own undo
  /// receiver and locker. A staging file that it held before stays on the disk.
  UndoFileHolder& operator=(UndoFileHolder&& other) noexcept;
  /// Deletes the staging file if it still holds one. Never throws.
  ~UndoFileHolder();
  UndoFileHolder(const UndoFileHolder&) = delete;
  UndoFileHolder& operator=(const UndoFileHolder&) = delete;

  /// True when there is no item or no staging file.
  bool IsEmpty() const;
  /// Lets go of the item and of the staging file, which stays on the disk.
  void Clear();
  /// Puts the staging file to use and becomes empty of it. It must not be empty before. Blocks on the disk,
  /// for more than a second at worst (`Util::Rename`).
  ///
  /// Throws what the undo receiver throws, with nothing changed, and `Util::ExceptionRename` when the file
  /// cannot be moved: the receiver was told then, the item's file is as it was, and the holder still owns the
  /// staging file.
  void Process();

 private:
  IUndo* undo_;
  IFileAccessLocker& locker_;
  std::unique_ptr<DataModel> item_;
  ioPath heldPath_;
  bool adoptHeldPath_;
};

}  // namespace Zenvora::Lumidex
