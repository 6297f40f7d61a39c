#pragma once

#include <zenvora/app/IFolderDialog.h>
#include <zenvora/qtutility/Export.h>

#ifdef QT_WIDGETS_LIB
#include <QFileDialog>
#endif
#include <QString>

#include <memory>

class QWidget;

namespace Zenvora::Util {

#ifdef QT_WIDGETS_LIB
/// The dialogs that every program has. GUI thread only.
namespace StandardDialogs {

/// Lets the user choose a folder, beginning at `startFolder`, or somewhere near when it is gone. Blocks until
/// the user chose. The folder, absolute and with '/' between its parts; empty when the user cancelled.
/// `parent` waits meanwhile and may be null. In a process without windows, where nobody can be asked, a
/// warning is logged and the answer is empty. The name is that of Qt's own.
ZENVORA_QTUTILITY_EXPORT QString
getExistingDirectory(QWidget* parent, const QString& caption, const QString& startFolder,
                     QFlags<QFileDialog::Option> options = QFileDialog::ShowDirsOnly);

}  // namespace StandardDialogs
#endif

/// Qt's folder dialog: the desktop's own where there is one.
ZENVORA_QTUTILITY_EXPORT std::shared_ptr<App::IFolderDialog> MakeFolderDialog();

}  // namespace Zenvora::Util
