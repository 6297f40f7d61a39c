#pragma once

#include "CatalogueDatabase.h"
#include "StepState.h"
#include "TrashSteps.h"

#include <host/UndoJournal.h>

#include <zenvora/core/ioPath.h>

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A copy that an import made, or is about to give its name.
struct ImportedCopy {
  ioPath path;
  ioPath source;
  std::uint64_t size = 0;
  std::int64_t modifiedNs = 0;
  std::string sha256;  ///< 64 hexadecimal digits.
};

/// What the journal knows of imports. An import works without the journal's lock, since two of them may go on
/// at a time: its step begins with the first copies, in one transaction, and is under way as long as somebody
/// holds the lock of the folder of copies.
class ImportRows {
 public:
  /// `database` must outlive it.
  explicit ImportRows(const CatalogueDatabase& database) : database_(database) {}

  /// Writes down copies that are about to get their names; `step` 0 begins one. Returns the step.
  qlonglong Note(qlonglong step, const ioPath& folder, const std::vector<ImportedCopy>& copies) const;
  /// A copy that did not get its name.
  void Drop(qlonglong step, const ioPath& path) const;
  /// The import is over: the step stands, or, without a copy, is gone. Returns how many copies it has.
  std::size_t Close(qlonglong step) const;
  /// In the order in which they got their names.
  std::vector<ImportedCopy> Copies(qlonglong step) const;

 private:
  const CatalogueDatabase& database_;
};

/// The part of the journal that takes imports back: copies that are what they were go to the trash. Their
/// places there are rows of `trashed`, so that `TrashSteps` does all that moves a file.
class ImportSteps {
 public:
  /// All must outlive it.
  ImportSteps(const CatalogueDatabase& database, const TrashSteps& trash)
      : database_(database), rows_(database), trash_(trash) {}

  /// Throws `HostError` while an import is at work in a folder of the step's copies.
  void RequireIdle(qlonglong step) const;
  /// Moves copies to the trash, or back. Returns the state of the step afterwards.
  State Reverse(qlonglong step, bool redo, const std::atomic<bool>& cancelled, const UndoProgress& progress,
                UndoResult& result) const;

  /// True while the import whose step it is goes on.
  bool IsAtWork(qlonglong step) const;
  /// The folder for which recovery has to wait, because its volume is away.
  std::optional<ioPath> FindFolderAway(qlonglong step) const;
  /// Of an import that was broken off: drops what did not get its name. Returns how many copies are there.
  std::size_t Settle(qlonglong step) const;

 private:
  State TakeBack(qlonglong step, const std::atomic<bool>& cancelled, const UndoProgress& progress,
                 UndoResult& result) const;
  State DoAgain(qlonglong step, const std::atomic<bool>& cancelled, const UndoProgress& progress,
                UndoResult& result) const;
  std::vector<TrashedFile> InTrash(qlonglong step) const;

  const CatalogueDatabase& database_;
  const ImportRows rows_;
  const TrashSteps& trash_;
};

}  // namespace Zenvora::Lumidex::Host
