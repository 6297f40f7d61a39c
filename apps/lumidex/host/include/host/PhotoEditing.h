#pragma once

#include <host/UndoJournal.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/IFileAccessLocker.h>

#include <QString>

#include <atomic>
#include <functional>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Edits photos one after the other as one step of the journal; of a link, the file that it leads to.
/// `write(photo, side)` makes the side file with
/// the edited photo, and throws what derives from `std::exception` when it cannot. Each photo is replaced in
/// one moment by a file that is on the disk already; until then nothing of it changes. What fails for one
/// photo is a finding, and the others are edited; on `cancelled` those edited before stay edited.
UndoResult EditPhotos(UndoJournal& journal, IFileAccessLocker& locker, const QString& name,
                      const std::vector<ioPath>& photos,
                      const std::function<void(const ioPath& photo, const ioPath& side)>& write,
                      const std::atomic<bool>& cancelled, const UndoProgress& progress);

}  // namespace Zenvora::Lumidex::Host
