#pragma once

#include <LumidexUtil/Export.h>

#include <memory>

namespace Zenvora::Lumidex {

class IUIController;
class UIControllerUserImpl;

/// For classes to derive from that need the application's UI controller without knowing who provides it: it
/// is asked for at the first use, through `Util::ObjectsConnector` under `GET_UI_CONTROLLER`, and kept.
///
/// To be built and used in the GUI thread. Not to be deleted through a pointer to this class.
class LUMIDEXUTIL_EXPORT UIControllerUser {
 public:
  UIControllerUser();
  ~UIControllerUser();

 protected:
  /// The controller. Some provider must have been registered, and it must live as long as this is called:
  /// without one there is nothing that the result could refer to.
  IUIController& GetUIController() const;

 private:
  std::unique_ptr<UIControllerUserImpl> impl_;
};

}  // namespace Zenvora::Lumidex
