#pragma once

#ifdef QT_WIDGETS_LIB
#include <LumidexUtil/ElidedLabel.h>

namespace Zenvora::Lumidex {

/// An `ElidedLabel` to click on. Screen readers see a button. It takes no part in the keyboard's way through
/// a window until its owner adds `KeyboardClicks`.
class LUMIDEXUTIL_EXPORT ElidedClickableLabel : public ElidedLabel {
  Q_OBJECT

 public:
  explicit ElidedClickableLabel(QWidget* parent);
  ~ElidedClickableLabel() override;

 Q_SIGNALS:
  /// The left button was released without Shift, Ctrl and the like after some button had been pressed on the
  /// label; where it is released does not matter. A receiver may delete the label.
  void clicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool pressed_ = false;
};

}  // namespace Zenvora::Lumidex
#endif
