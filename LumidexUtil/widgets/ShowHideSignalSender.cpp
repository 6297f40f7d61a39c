#include <LumidexUtil/ShowHideSignalSender.h>

#include <QEvent>
#include <QWidget>

namespace Zenvora::Util {

ShowHideSignalSender::ShowHideSignalSender(QWidget* widget) : QObject(widget) {
  widget->installEventFilter(this);
}

ShowHideSignalSender::~ShowHideSignalSender() = default;

bool ShowHideSignalSender::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::Show) {
    Q_EMIT wasShown();
  } else if (event->type() == QEvent::Hide) {
    Q_EMIT wasHidden();
  }
  return false;
}

}  // namespace Zenvora::Util
