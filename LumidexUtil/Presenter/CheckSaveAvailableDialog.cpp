#include "Alerts.h"

#include <LumidexUtil/CheckSaveAvailable.h>

namespace Zenvora::Util {

namespace {

/// Stands for the files to be saved: its name lets their folder and volume be found, and is never used.
constexpr char STUB_NAME[] = "stub.dat";

}  // namespace

bool CheckSaveAvailableDialog(const std::vector<Lumidex::DataModel>& items, CheckSaveAvailableMode mode) {
  const auto [failed, text] = CheckSaveAvailable(items, mode);
  if (failed == CheckSaveAvailableMode::None) {
    return true;
  }
  Ask(AlertBox::Critical, text, QMessageBox::Ok);
  return false;
}

QMessageBox::StandardButton CheckSaveAvailableDialog(const ioPath& folder, unsigned long long bytesNeeded,
                                                     QFlags<QMessageBox::StandardButton> buttons) {
  Lumidex::DataModel stub;
  stub.SetPath(folder / STUB_NAME);
  stub.SetSize(bytesNeeded);
  const auto [failed, text] = CheckSaveAvailable(
      {stub}, CheckSaveAvailableMode::DiskSpace | CheckSaveAvailableMode::FolderPermission);
  return failed == CheckSaveAvailableMode::None ? QMessageBox::NoButton
                                                : Ask(AlertBox::Critical, text, buttons);
}

}  // namespace Zenvora::Util
