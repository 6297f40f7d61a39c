#include <LumidexUtil/ElidedClickableLabel.h>

#include <QMouseEvent>
#include <QPointer>

namespace Zenvora::Lumidex {

ElidedClickableLabel::ElidedClickableLabel(QWidget* parent) : ElidedLabel(parent) {}

ElidedClickableLabel::~ElidedClickableLabel() = default;

void ElidedClickableLabel::mousePressEvent(QMouseEvent* event) {
  pressed_ = true;
  QWidget::mousePressEvent(event);
}

void ElidedClickableLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (pressed_ && event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier) {
    const QPointer<ElidedClickableLabel> self(this);
    Q_EMIT clicked();
    if (!self) {
      return;
    }
  }
  pressed_ = false;
  QWidget::mouseReleaseEvent(event);
}

}  // namespace Zenvora::Lumidex
