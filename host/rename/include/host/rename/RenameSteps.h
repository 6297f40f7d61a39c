#pragma once

#include <host/catalogue/LinkRows.h>
#include <host/journal/FileMoves.h>
#include <host/journal/Journal.h>
#include <host/journal/StepKind.h>
#include <host/rename/RenamePlan.h>

#include <zenvora/lumidex/IFileAccessLocker.h>

#include <QString>

#include <atomic>
#include <cstddef>
#include <optional>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Renames as steps of the journal: all of a batch or none.
class RenameSteps final : public StepKind {
 public:
  /// Both must outlive it.
  RenameSteps(Journal& journal, IFileAccessLocker& locker)
      : journal_(journal), locker_(locker), links_(journal.Database()) {}

  /// Renames the files of a plan as one step: when one cannot be renamed, or on `cancelled`, those renamed
  /// before get their old names back. What fails is recognised before anything is renamed where it can be.
  /// Nothing is ever replaced. Catalogued photos keep their records.
  UndoResult Run(const QString& name, const RenamePlan& plan, const std::atomic<bool>& cancelled,
                 const UndoProgress& progress);

  static constexpr KindFacts kFacts{StepType::Rename};
  const KindFacts& Facts() const override { return kFacts; }
  void Recover(StepRow& step) override;
  UndoResult Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                     const UndoProgress& progress) override;
  void AddTraces(qlonglong step, StepTraces& traces) const override;

 private:
  struct Batch {
    qlonglong step = 0;
    State state = State::Doing;
    std::vector<FileMove> moves;
  };
  struct Drive {
    std::size_t at = 0;
    bool cancelled = false;
    std::optional<FileFinding> failure;
  };

  Drive DriveMoves(const std::vector<FileMove>& moves, std::size_t at, std::size_t goal,
                   const std::atomic<bool>& cancelled, const UndoProgress& progress);
  std::size_t DriveOrReturn(Batch& batch, std::size_t begin, std::size_t goal,
                            const std::atomic<bool>& cancelled, const UndoProgress& progress,
                            UndoResult& result);
  void Settle(Batch& batch, std::size_t at);
  std::vector<RenameLink> FindLinksAgain(qlonglong step, const std::vector<RenameMove>& renames) const;

  Journal& journal_;
  IFileAccessLocker& locker_;
  const LinkRows links_;
};

/// What stands against the renames of a plan, file by file; empty: nothing.
std::vector<FileFinding> FindRenameFaults(const RenamePlan& plan);

}  // namespace Zenvora::Lumidex::Host
