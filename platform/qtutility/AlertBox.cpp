#include <zenvora/qtutility/AlertBox.h>

namespace Zenvora::Util {

AlertBox::AlertBox(Level level, const QString& title, const QString& text,
                   QMessageBox::StandardButtons buttons, QWidget* parent, Qt::WindowFlags windowFlags) {
  content_.level = static_cast<App::AlertLevel>(level);
  content_.title = title;
  content_.text = text;
  content_.buttons = App::AlertButtons(QFlag(static_cast<int>(buttons)));
  content_.parent = parent;
  content_.windowFlags = windowFlags;
}

}  // namespace Zenvora::Util
