#pragma once

#include <LumidexUtil/Export.h>

#include <QList>
#include <QString>

namespace Zenvora::Util {

/// The files that can be opened for reading, in the order of `files`, duplicates kept. The others are left
/// out without a word.
///
/// First the folder of each file is asked whether files in it can be read (`CanReadFileIn`); one that cannot
/// is asked once, however many of its files there are. Then each file left is opened for a moment; nothing
/// is read, and a pipe or a device is not waited for. A folder counts as a file that can be opened on Linux.
/// Never throws. Any thread; blocks on the disk for every file.
LUMIDEXUTIL_EXPORT QList<QString> CheckFilesReadable(const QList<QString>& files);

/// The files that the caller should go on with. When `CheckFilesReadable` leaves out some of them, the user
/// is asked whether to go on with the others: all of these, or none. When it leaves none (also when there was
/// none to begin with) the user is told so. GUI thread only: blocks until the user answered.
LUMIDEXUTIL_EXPORT QList<QString> CheckFilesReadableDialog(const QList<QString>& files);

}  // namespace Zenvora::Util
