#include <LumidexUtil/ElidedClickableLabel.h>
#include <LumidexUtil/KeyboardClicks.h>

#include <QFocusFrame>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace Zenvora::Lumidex {

namespace {

/// The style's focus frame over a label, which itself paints nothing but its text.
class FocusMark : public QFocusFrame {
 public:
  // A focus frame, which is nothing to screen readers and the mouse, but one that every style draws.
  explicit FocusMark(QWidget* label) : QFocusFrame(label) { hide(); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.state |= QStyle::State_KeyboardFocusChange | QStyle::State_HasFocus;
    option.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
  }
};

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Enter on the number block comes with a modifier.
bool IsPlain(const QKeyEvent& event) {
  return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

}  // namespace

KeyboardClicks::KeyboardClicks(ElidedClickableLabel* label)
    : QObject(label), label_(*label), focusMark_(new FocusMark(label)) {
  label->setFocusPolicy(Qt::TabFocus);
  label->installEventFilter(this);
  ShowFocus(label->hasFocus());
}

KeyboardClicks::~KeyboardClicks() = default;

bool KeyboardClicks::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
      ShowFocus(true);
      return false;
    case QEvent::FocusOut:
      spaceIsDown_ = false;
      ShowFocus(false);
      return false;
    case QEvent::Resize:
      focusMark_->setGeometry(label_.rect());
      return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      break;
    default:
      return false;
  }
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool isPress = event->type() == QEvent::KeyPress;
  if ((!IsEnter(key) && key.key() != Qt::Key_Space) || (isPress && !IsPlain(key))) {
    return false;
  }
  bool clicks = false;
  if (!key.isAutoRepeat()) {
    clicks = IsEnter(key) ? isPress : !isPress && spaceIsDown_ && IsPlain(key);
    spaceIsDown_ = key.key() == Qt::Key_Space && isPress;
  }
  if (clicks) {
    Q_EMIT label_.clicked();
  }
  return true;
}

void KeyboardClicks::ShowFocus(bool shown) {
  focusMark_->setGeometry(label_.rect());
  focusMark_->setVisible(shown);
}

}  // namespace Zenvora::Lumidex
