#pragma once

#ifdef QT_WIDGETS_LIB
#include <LumidexUtil/Export.h>

#include <QObject>

class QWidget;

namespace Zenvora::Lumidex {

class ElidedClickableLabel;

/// Lets a clickable label be reached by Tab and pressed by the keyboard: Enter when it goes down, Space when
/// it comes up, without Shift, Ctrl and the like, and not again while it is held. A frame shows where the
/// keyboard is. Create one per label; the label owns it. GUI thread only.
class LUMIDEXUTIL_EXPORT KeyboardClicks : public QObject {
 public:
  /// `label`: not null. Its focus policy becomes `Qt::TabFocus`.
  explicit KeyboardClicks(ElidedClickableLabel* label);
  ~KeyboardClicks() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ShowFocus(bool shown);

  ElidedClickableLabel& label_;
  QWidget* const focusMark_;  ///< Owned by the label.
  bool spaceIsDown_ = false;
};

}  // namespace Zenvora::Lumidex
#endif
