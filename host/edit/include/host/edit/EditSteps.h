#pragma once

#include <host/edit/EditChanges.h>
#include <host/edit/EditReversal.h>
#include <host/journal/Journal.h>
#include <host/journal/StepKind.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/DataModel.h>
#include <zenvora/lumidex/IFileAccessLocker.h>

#include <QString>

#include <atomic>
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Edits of photos and their sidecars as steps of the journal: each file for itself, a photo and its sidecars
/// together. What a file was before is kept (`KeptFiles`) until the step is forgotten.
///
/// A step is open from `BeginStep` to `EndStep`; in between each edit is planned, registered once its staging
/// files are whole, and finished when they are in place.
class EditSteps final : public StepKind {
 public:
  /// Both must outlive it.
  EditSteps(Journal& journal, IFileAccessLocker& locker)
      : journal_(journal), locker_(locker), reversal_(journal, locker) {}

  /// Whether the originals of edits to come are kept, as they are at first. A step without them is given up
  /// from its beginning: it cannot be undone.
  void KeepOriginals(bool keep) { keeps_ = keep; }
  /// Whether what undo replaces is kept for redo, as it is at first.
  void KeepForRedo(bool keep) { keepsForRedo_ = keep; }

  void BeginStep(const QString& name);
  /// A step without changes is forgotten.
  void EndStep();

  /// The name for the staging file of an edit of `photo`, in its folder: hidden, and removed by recovery when
  /// it is still there. To be called within a step, before that file is made.
  ioPath PlanEdit(const ioPath& photo);
  /// The same for a sidecar that is edited together with the photo planned last: undo and redo change both or
  /// none, and so does recovery. `RegisterFileChange` must be called for all of them before the first is
  /// replaced.
  ioPath PlanSidecar(const ioPath& sidecar);
  /// The staging file is whole, and is about to take the place of `item`'s file. With another `newPath` than
  /// the file's own the file has moved there, and nothing is kept.
  void RegisterFileChange(DataModel& item, const ioPath& newPath);
  /// The edit planned last is in place: `RegisterFileChange` was called and the photo replaced.
  void FinishEdit();
  /// The edit planned last did not happen: nothing is left of it, unless the photo says otherwise.
  void DropEdit();

  static constexpr KindFacts kFacts{StepType::Edit, false, KeptBytesOfEdits};
  const KindFacts& Facts() const override { return kFacts; }
  void Recover(StepRow& step) override;
  UndoResult Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                     const UndoProgress& progress) override;
  void TidyUp() override;
  void AddTraces(qlonglong step, StepTraces& traces) const override;
  std::optional<FileFinding> WhyHeld(qlonglong step) const override;
  void GiveUp(qlonglong step) override;
  std::vector<std::string> KeptNames(qlonglong step) const override;

 private:
  ioPath InsertChange(const ioPath& file, qlonglong goesWith);
  void SettleStep(qlonglong step);
  std::size_t SettleGroup(std::vector<ChangeRow>& group);
  void BringTogether(std::vector<ChangeRow>& group);
  bool FinishReplacing(const ChangeRow& change);
  void ReplaceBack(const ChangeRow& change);
  bool SettleChange(ChangeRow& change);
  void DropChange(const ChangeRow& change) const;
  void SweepKept(const std::set<std::string>& wanted);

  Journal& journal_;
  IFileAccessLocker& locker_;
  EditReversal reversal_;
  qlonglong step_ = 0;
  bool keeps_ = true;
  bool keepsForRedo_ = true;
  /// The edit under way: a photo, then its sidecars.
  std::vector<ChangeRow> edits_;
};

}  // namespace Zenvora::Lumidex::Host
