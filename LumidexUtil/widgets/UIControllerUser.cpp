#include "UIControllerUserImpl.h"

#include <LumidexUtil/UIControllerUser.h>

#include <zenvora/lumidex/IObjectsConnectorID.h>
#include <zenvora/qtutility/ObjectsConnector.h>

#include <glog/logging.h>

#include <QThread>

namespace Zenvora::Lumidex {

UIControllerUserImpl::UIControllerUserImpl() {
  setObjectName(QStringLiteral("UIControllerUserImpl"));
}

UIControllerUserImpl::~UIControllerUserImpl() = default;

IUIController& UIControllerUserImpl::Controller() {
  if (controller_ == nullptr) {
    LOG_IF(ERROR, thread() != QThread::currentThread()) << "The UI controller is asked for by another thread";
    Q_EMIT getUIController(controller_);
  }
  return *controller_;
}

UIControllerUser::UIControllerUser() : impl_(std::make_unique<UIControllerUserImpl>()) {
  // Not across threads: the answer comes through the argument, within the emission.
  Util::ObjectsConnector::registerEmitter(LumidexInt::IObjectsConnectorID::GET_UI_CONTROLLER, impl_.get(),
                                          QStringLiteral("2getUIController(IUIController*&)"), false);
}

UIControllerUser::~UIControllerUser() = default;

IUIController& UIControllerUser::GetUIController() const {
  return impl_->Controller();
}

}  // namespace Zenvora::Lumidex
