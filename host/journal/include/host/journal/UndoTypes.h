#pragma once

#include <host/base/FileFinding.h>
#include <host/catalogue/StepType.h>

#include <zenvora/core/ioPath.h>

#include <QDateTime>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What the journal knows of a step.
struct UndoStep {
  std::int64_t number = 0;  ///< Grows with every step; never used twice.
  StepType type = StepType::Unknown;
  QString name;                 ///< What the person did.
  QDateTime begun;              ///< UTC; invalid: the clock showed no year from 1 to 9999.
  bool stands = false;          ///< Done; it can be undone.
  bool undone = false;          ///< Undone; it can be redone.
  bool givenUp = false;         ///< Can be neither undone nor redone.
  bool underWay = false;        ///< It goes on now, while others may use the journal: an import.
  std::size_t files = 0;        ///< Files that it changed or moved.
  std::uint64_t keptBytes = 0;  ///< What is kept for it, as if nothing were shared with the photos.
  std::int64_t daysOfUse = 0;   ///< How many days the journal was used on since.
};

/// A step that cannot be undone, or not whole, for what was done since.
struct BlockedStep {
  UndoStep step;
  std::vector<ioPath> files;  ///< That stand in another way than it left them.
};

/// A step that was given up. `blocked`: the older ones that wait for it in vain.
struct SkippedStep : UndoStep {
  std::vector<BlockedStep> blocked;
};

/// Behind the sentence that tells why something could not be written down.
constexpr char kNotedLater[] = " What was done stays done, and the next run records it.";

/// What a step, an undo or a redo did.
struct UndoResult {
  StepType type = StepType::Unknown;
  QString name;           ///< Of the step; empty: there was none.
  std::size_t files = 0;  ///< Changed or renamed.
  bool cancelled = false;
  bool stands = false;  ///< Of an undo: not all of the step could be undone, and older ones wait for it.
  /// Of an undo: something was left for want of the room that redo needs (`UndoJournal::KeepForRedo`).
  bool lacksRoomForRedo = false;
  /// Of the undo of an import: copies in the trash now whose sources are not to be found.
  std::size_t lastCopies = 0;
  std::vector<FileFinding> findings;
};

/// What is kept at most, the latest steps first. Days are days of use: such on which the journal was opened.
struct UndoLimits {
  static constexpr int kDefaultDays = 90;
  static constexpr std::uint64_t kDefaultBytes = std::uint64_t{5} << 30U;
  int days = kDefaultDays;
  std::uint64_t bytes = kDefaultBytes;
};

/// How far a piece of work is: files done, files in all.
using UndoProgress = std::function<void(std::size_t, std::size_t)>;

}  // namespace Zenvora::Lumidex::Host
