#include "Alerts.h"

#include <zenvora/app/IHostEnvironment.h>
#include <zenvora/app/Services.h>
#include <zenvora/tavolin/StyleAlertBox.h>

#include <QCoreApplication>

namespace Zenvora::Util {

namespace {

const char* const TEXT_TITLE = QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Attention");

}  // namespace

QWidget* MainWindow() {
  return App::Services::Current().Get<App::IHostEnvironment>()->MainWindow();
}

QString Translated(const char* text) {
  return QCoreApplication::translate("Zenvora::Lumidex::Utils", text);
}

QMessageBox::StandardButton Ask(AlertBox::Level level, const QString& text,
                                QMessageBox::StandardButtons buttons) {
  AlertBox box(level, Translated(TEXT_TITLE), text, buttons, MainWindow(),
               Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
  return Tavolin::StyleAlertBox(box, {}, QMessageBox::NoButton)();
}

}  // namespace Zenvora::Util
