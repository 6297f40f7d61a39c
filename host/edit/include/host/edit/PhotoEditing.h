#pragma once

#include <host/edit/EditSteps.h>
#include <host/shots/PhotoSidecars.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/IFileAccessLocker.h>
#include <zenvora/strandel/PhotoEdit.h>

#include <QString>

#include <atomic>
#include <cstddef>
#include <functional>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What one edit is to do.
struct EditOrder {
  QString name;  ///< Of the step in the journal.
  Strandel::PhotoEdit edit;
  bool force = false;  ///< Also photos that are write-protected.
};

/// Makes the staging file with the edited photo; throws what derives from `std::exception` when it cannot.
using WriteStaging = std::function<void(const ioPath& photo, const ioPath& staging)>;

struct EditResult : UndoResult {
  std::size_t photos = 0;
  std::size_t sidecars = 0;  ///< Both make up `files`.
};

/// Edits photos with their sidecars one after the other as one step of the journal. Each is replaced in one
/// moment by a file that is on the disk already; until then nothing of it changes. A photo and its sidecars
/// are edited together or not at all. What is refused (`JudgeEdit` says the same beforehand) or fails is a
/// finding, and the others are edited; on `cancelled` those edited before stay edited.
EditResult EditPhotos(EditSteps& steps, IFileAccessLocker& locker, const EditOrder& order,
                      const std::vector<EditTask>& tasks, const std::atomic<bool>& cancelled,
                      const UndoProgress& progress);

/// The same in another way than `Strandel::WriteEdited`, without sidecars and without asking beforehand; of a
/// link it is the file that it leads to.
EditResult EditPhotos(EditSteps& steps, IFileAccessLocker& locker, const QString& name,
                      const std::vector<ioPath>& photos, const WriteStaging& write,
                      const std::atomic<bool>& cancelled, const UndoProgress& progress);

}  // namespace Zenvora::Lumidex::Host
