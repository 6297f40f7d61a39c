#pragma once

#include <zenvora/lumidex/Export.h>

#include <QString>

namespace Zenvora::Lumidex::LumidexInt {

/// The ids under which objects of the application meet (see `Util::ObjectsConnector`).
struct ZENVORA_LUMIDEX_EXPORT IObjectsConnectorID {
  /// Emitters: `getUIController(IUIController*&)`, one of them for each object that needs the controller.
  /// Receiver: a slot of the same arguments that stores the controller at once.
  static const QString GET_UI_CONTROLLER;
};

}  // namespace Zenvora::Lumidex::LumidexInt
