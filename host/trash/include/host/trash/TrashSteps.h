#pragma once

#include <host/journal/Journal.h>
#include <host/journal/StepKind.h>
#include <host/journal/TrashedFiles.h>
#include <host/trash/TrashPlan.h>

#include <zenvora/core/ioPath.h>

#include <QString>

#include <atomic>
#include <cstddef>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A file that went to the trash.
struct TrashMove {
  ioPath from;
  ioPath to;
};

/// What a move to the trash did. `files`: photos and what went along with them.
struct TrashResult : UndoResult {
  std::size_t photos = 0;
  std::vector<TrashMove> moved;
};

/// Moves of photos to the trash as steps of the journal, each for itself.
class TrashSteps final : public StepKind {
 public:
  /// Both must outlive it.
  TrashSteps(Journal& journal, const TrashedFiles& trash) : journal_(journal), trash_(trash) {}

  /// Moves photos to the trash as one step: what stays is a finding, and on `cancelled` what has gone stays
  /// there. Each is looked at once more right before it goes (`FindTrashFault`). The catalogue has the photos
  /// for lost while they are there. Undo brings them back to where they were, if nothing is there now, with
  /// all that the catalogue knew of them.
  TrashResult Run(const QString& name, const std::vector<TrashPhoto>& photos,
                  const std::atomic<bool>& cancelled, const UndoProgress& progress);

  static constexpr KindFacts kFacts{StepType::Trash};
  const KindFacts& Facts() const override { return kFacts; }
  void Recover(StepRow& step) override;
  UndoResult Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                     const UndoProgress& progress) override;
  void AddTraces(qlonglong step, StepTraces& traces) const override;

 private:
  bool MoveOne(qlonglong step, const SeenFile& file, const ioPath& kept, TrashResult& result) const;
  std::size_t Settle(qlonglong step);

  Journal& journal_;
  const TrashedFiles& trash_;
};

}  // namespace Zenvora::Lumidex::Host
