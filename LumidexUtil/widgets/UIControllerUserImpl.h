#pragma once

#include <zenvora/lumidex/IUIController.h>

#include <QObject>

namespace Zenvora::Lumidex {

/// Asks for the controller and keeps it. A QObject beside its user, which need not be one.
class UIControllerUserImpl : public QObject {
  Q_OBJECT

 public:
  UIControllerUserImpl();
  ~UIControllerUserImpl() override;

  IUIController& Controller();

 Q_SIGNALS:
  /// Answered by storing the controller. Unqualified, since receivers are matched by these very words.
  void getUIController(IUIController*& controller);

 private:
  IUIController* controller_ = nullptr;
};

}  // namespace Zenvora::Lumidex
