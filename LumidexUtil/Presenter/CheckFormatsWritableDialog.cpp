#include "Alerts.h"

#include <LumidexUtil/CheckFormatsWritable.h>

namespace Zenvora::Util {

bool CheckFormatsWritableDialog(const std::vector<Lumidex::DataModel>& items) {
  const auto [writable, text] = CheckFormatsWritable(items);
  return writable || Ask(AlertBox::Warning, text, QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

}  // namespace Zenvora::Util
