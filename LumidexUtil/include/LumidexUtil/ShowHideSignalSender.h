#pragma once

#include <LumidexUtil/Export.h>

#include <QObject>

class QWidget;

namespace Zenvora::Util {

/// Tells by signals when a widget appears and disappears, so that nobody needs to derive from it. It watches
/// through an event filter and keeps nothing from the widget. GUI thread only.
class LUMIDEXUTIL_EXPORT ShowHideSignalSender : public QObject {
  Q_OBJECT

 public:
  /// `widget`: watched and owner, so the sender goes with it. Not null.
  explicit ShowHideSignalSender(QWidget* widget);
  ~ShowHideSignalSender() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  // Their order is part of the binary interface.
  /// The widget is about to be on the screen. Windows that the user minimises and brings back count as well.
  void wasShown();
  void wasHidden();
};

}  // namespace Zenvora::Util
