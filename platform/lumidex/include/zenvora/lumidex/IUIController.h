#pragma once

#include <zenvora/lumidex/Export.h>

class QString;

namespace Zenvora::Lumidex {

/// What widgets may ask of the application that shows them. Whoever provides it answers the request
/// `LumidexInt::IObjectsConnectorID::GET_UI_CONTROLLER` and lives longer than the widgets.
///
/// GUI thread only. The order of the virtual operations is part of the binary interface: the destructor, then
/// as declared.
class ZENVORA_LUMIDEX_EXPORT IUIController {
 public:
  // Declared first: slots follow the order of declaration.
  virtual ~IUIController();

  /// Tells the user something that needs no answer, such as in a status bar. `text`: translated, plain; empty
  /// takes back what was told.
  virtual void ShowMessage(const QString& text) = 0;

 protected:
  IUIController() = default;
  IUIController(const IUIController&) = default;
  IUIController& operator=(const IUIController&) = default;
};

}  // namespace Zenvora::Lumidex
