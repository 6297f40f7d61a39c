#pragma once

#include <host/edit/EditChanges.h>
#include <host/journal/Journal.h>
#include <host/journal/StepKind.h>

#include <zenvora/lumidex/IFileAccessLocker.h>

#include <QByteArray>

#include <atomic>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Exchanges photos and sidecars of an edit step for the versions that are kept of them, there and back.
class EditReversal {
 public:
  /// Both must outlive it.
  EditReversal(Journal& journal, IFileAccessLocker& locker) : journal_(journal), locker_(locker) {}

  UndoResult Run(const StepRow& step, bool redo, bool keepsForRedo, const std::atomic<bool>& cancelled,
                 const UndoProgress& progress);
  /// Whether the other version of a change is kept.
  bool IsKept(const ChangeRow& change, bool redo) const;

 private:
  void Exchange(ChangeRow& change, bool redo);
  void ExchangeInItsRoom(const ChangeRow& change, bool redo);
  void FinishReversal(ChangeRow& change, bool redo);
  std::string WhyNotPutBack(const ChangeRow& change, const QByteArray& now, bool redo) const;
  std::optional<FileFinding> FindObstacle(const std::vector<ChangeRow>& group, bool redo) const;
  void PutBack(ChangeRow& change, bool redo);
  bool BringBackAll(const std::vector<ChangeRow>& group, bool redo, UndoResult& result);
  State StateInPart(qlonglong step, bool anyHope) const;
  bool ReverseOne(ChangeRow& change, bool redo, UndoResult& result, bool& isNoted);

  Journal& journal_;
  IFileAccessLocker& locker_;
  bool keepsForRedo_ = true;
  /// What is undone lacks the room for the version that redo would need.
  bool lacksRoomForRedo_ = false;
};

/// Of a photo that has the name of its staging file and could not get its own back.
std::string WhyAway(const ChangeRow& change, const std::string& cause);

}  // namespace Zenvora::Lumidex::Host
