#pragma once

#include <host/journal/StepKind.h>
#include <host/journal/UndoTypes.h>

#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A disk on which a step finds too little room: it stops there when that is used up.
struct TightVolume {
  ioPath folder;  ///< One of the edited files, or the journal's.
  std::uint64_t bytesNeeded = 0;
  std::int64_t bytesFree = 0;
};

/// What a step that edits files will keep, and what the limits make undo forget for it. To be asked before
/// anything is changed, shown to the person, and handed to `UndoJournal::Prune` afterwards.
struct JournalRoom {
  std::uint64_t needed = 0;  ///< Bytes of originals that the step keeps, as if nothing were shared.
  std::uint64_t limit = 0;   ///< `UndoLimits::bytes`
  /// What is kept when the step is done and no older one is forgotten, `needed` counted.
  std::uint64_t total = 0;
  /// Steps that could be undone and cannot any more when the step is done, the latest first. Those that
  /// are too old anyway are not among them.
  std::vector<UndoStep> forgotten;
  /// Of the files with their new versions, and of the journal with what it keeps. Volumes that share blocks
  /// may need less.
  std::vector<TightVolume> tight;

  /// False when the step alone is beyond the limit: it could not be undone.
  bool Fits() const { return needed <= limit; }
};

/// Of a step that edits `files` (all that it replaces, settings beside photos too; of links, the files that
/// they lead to count), after `steps`, the latest first (`ReadUndoSteps`). Changes nothing. Blocks on the
/// disk.
JournalRoom PlanRoom(const ioPath& catalogue, const std::vector<ioPath>& files, std::vector<UndoStep> steps,
                     const UndoLimits& limits);

/// Of `steps`, the latest first, those that can be undone or redone and that the limits leave no place for.
std::vector<UndoStep> StepsToForget(const std::vector<UndoStep>& steps, const UndoLimits& limits);

/// All steps, the latest first, from a catalogue that need not be there, nor writable, nor of this version.
/// `kinds`: all that its steps may be of. Throws `HostError`.
std::vector<UndoStep> ReadUndoSteps(const ioPath& catalogue, const std::vector<KindFacts>& kinds);

}  // namespace Zenvora::Lumidex::Host
