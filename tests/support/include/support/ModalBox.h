#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <functional>

namespace Zenvora::Test {

/// Does something to the message box that comes up next, once it is on the screen. To be called before.
inline void WhenBoxIsShown(const std::function<void(QMessageBox&)>& act) {
  auto* const timer = new QTimer(qApp);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != nullptr && box->isVisible()) {
      timer->stop();
      timer->deleteLater();
      act(*box);
    }
  });
  timer->start(1);
}

/// Presses a button of the message box that comes up next.
inline void PressWhenShown(QMessageBox::StandardButton button) {
  WhenBoxIsShown([button](QMessageBox& box) { box.button(button)->click(); });
}

}  // namespace Zenvora::Test
