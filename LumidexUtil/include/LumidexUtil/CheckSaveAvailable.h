#pragma once

#include <LumidexUtil/Export.h>

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/CheckSaveAvailableMode.h>
#include <zenvora/lumidex/DataModel.h>

#include <QFlags>
#ifdef QT_WIDGETS_LIB
#include <QMessageBox>
#endif
#include <QString>

#include <utility>
#include <vector>

namespace Zenvora::Util {

using Lumidex::CheckSaveAvailableMode;

/// The first thing that keeps the items from being saved where they lie, and the translated sentence that
/// names it; `None` and an empty text when nothing does. Only the checks of `mode` are made, in this order:
///
/// - `DiskSpace`: the sizes of the items (`DataModel::GetSize`) are summed up for each volume, which is the
///   root of their paths, and each volume is asked once for its free space. A sum that just fits passes, and
///   so does a volume that does not tell, or is full to the last byte. On Linux all absolute paths have one
///   root, so it is that volume which is asked, whatever is mounted below it, and it has no name to be told.
/// - `FolderPermission`: a file can be made in the folder of each item (`CanCreateFileIn`).
/// - `FilePermission`: each item's file gives write permission (as `QFileInfo` has it) and can be opened for
///   writing. It is neither changed nor made. Items that are lost are passed over; in the other checks they
///   count.
///
/// Never throws. Blocks on the disk; GUI thread, as all that translates. 100 000 items take about as long as
/// the system takes to open them.
LUMIDEXUTIL_EXPORT std::pair<CheckSaveAvailableMode, QString> CheckSaveAvailable(
    const std::vector<Lumidex::DataModel>& items, CheckSaveAvailableMode mode);

/// True when nothing is in the way; else the user is told what is. GUI thread only: blocks until the user
/// answered.
LUMIDEXUTIL_EXPORT bool CheckSaveAvailableDialog(const std::vector<Lumidex::DataModel>& items,
                                                 CheckSaveAvailableMode mode);

#ifdef QT_WIDGETS_LIB
/// Whether new files of `bytesNeeded` in all can be saved in `folder`: the checks of room and folder.
/// `NoButton` when nothing is in the way; else the user is told, and the button of `buttons` that they
/// pressed is returned. GUI thread only: blocks until the user answered. Only for programs that link Qt
/// Widgets.
LUMIDEXUTIL_EXPORT QMessageBox::StandardButton CheckSaveAvailableDialog(
    const ioPath& folder, unsigned long long bytesNeeded, QFlags<QMessageBox::StandardButton> buttons);
#endif

}  // namespace Zenvora::Util
