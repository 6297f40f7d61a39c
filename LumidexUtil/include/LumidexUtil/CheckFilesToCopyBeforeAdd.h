#pragma once

#include <LumidexUtil/Export.h>

#include <QList>
#include <QPair>
#include <QString>

namespace Zenvora::Util {

/// Plans how files get into the library when some of them lie on removable storage: the user is asked
/// whether to copy those, and where to. It copies nothing itself.
///
/// The result has a pair for each file that is to be added: where to copy it from (empty: it is added where
/// it lies) and the path under which it is added. An empty result means that nothing is to be added: the
/// user cancelled, or there were no files.
///
/// - Without a file on removable storage nobody is asked, and every file stays where it lies, in the order of
///   `files`; so it is when the user wants no copies.
/// - Otherwise the files that stay come first, by folder, then those to be copied, by folder too, and within
///   a folder in the order of `files`. The user chooses the folder, beginning at the one chosen last; one on
///   removable storage is refused and asked for again. The choice is remembered in the settings
///   ("LumidexLastUsedCopyDirectory") and the folder is made if it is missing, which may fail unnoticed
///   (`App::IFolderAccess` makes it).
/// - A file whose path begins with the chosen folder, whatever its case, stays. The others get names there
///   that nothing has on the disk, not even a link that leads nowhere, and no file in this plan, case
///   ignored: a taken name gets "(1)" behind its base name, that name, if taken too, "(3)", and so on:
///   IMG.jpg, IMG(1).jpg, IMG(1)(3).jpg. One without an extension ends in a dot then. The new paths have '/'
///   between their parts. Somebody else may take a name later: copy without replacing.
///
/// Whether a file lies on removable storage is asked of its real folder, links followed. Never throws. GUI
/// thread only: blocks until the user answered.
LUMIDEXUTIL_EXPORT QList<QPair<QString, QString>> CheckFilesToCopyBeforeAddDialog(
    const QList<QString>& files);

}  // namespace Zenvora::Util
