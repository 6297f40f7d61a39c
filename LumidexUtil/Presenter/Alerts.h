#pragma once

#include <zenvora/qtutility/AlertBox.h>

#include <QMessageBox>
#include <QString>

namespace Zenvora::Util {

/// The host's main window; null while there is none.
QWidget* MainWindow();

/// The translation of a text of this library.
QString Translated(const char* text);

/// Shows an alert of this library over the main window and returns the button that closed it. `text` is
/// translated already.
QMessageBox::StandardButton Ask(AlertBox::Level level, const QString& text,
                                QMessageBox::StandardButtons buttons);

}  // namespace Zenvora::Util
