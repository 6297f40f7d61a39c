#pragma once

#include <host/import/ImportRows.h>
#include <host/journal/Journal.h>
#include <host/journal/StepKind.h>
#include <host/journal/TrashedFiles.h>

#include <zenvora/core/ioPath.h>

#include <atomic>
#include <cstddef>
#include <optional>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Imports as steps of the journal: undone, copies that are what they were go to the trash. Their places
/// there are rows of `trashed`, so that `TrashedFiles` does all that moves a file. What begins and closes
/// such a step is `ImportRows`.
class ImportSteps final : public StepKind {
 public:
  /// Both must outlive it.
  ImportSteps(Journal& journal, const TrashedFiles& trash)
      : journal_(journal), database_(journal.Database()), rows_(database_), trash_(trash) {}

  static constexpr KindFacts kFacts{StepType::Import, true};
  const KindFacts& Facts() const override { return kFacts; }
  void Recover(StepRow& step) override;
  /// Throws while an import is at work in a folder of the step's copies.
  UndoResult Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                     const UndoProgress& progress) override;
  void AddTraces(qlonglong step, StepTraces& traces) const override;

 private:
  bool IsAtWork(qlonglong step) const;
  void RequireIdle(qlonglong step) const;
  std::optional<ioPath> FindFolderAway(qlonglong step) const;
  std::size_t Settle(qlonglong step) const;
  State TakeBack(qlonglong step, const std::atomic<bool>& cancelled, const UndoProgress& progress,
                 UndoResult& result) const;
  State DoAgain(qlonglong step, const std::atomic<bool>& cancelled, const UndoProgress& progress,
                UndoResult& result) const;
  std::vector<TrashedFile> InTrash(qlonglong step) const;

  Journal& journal_;
  const CatalogueDatabase& database_;
  const ImportRows rows_;
  const TrashedFiles& trash_;
};

}  // namespace Zenvora::Lumidex::Host
