#include <zenvora/lumidex/IObjectsConnectorID.h>

namespace Zenvora::Lumidex::LumidexInt {

const QString IObjectsConnectorID::GET_UI_CONTROLLER = QStringLiteral("GetUIController");

}  // namespace Zenvora::Lumidex::LumidexInt
