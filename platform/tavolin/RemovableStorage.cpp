#include <zenvora/app/Services.h>
#include <zenvora/tavolin/RemovableStorage.h>

namespace Zenvora::Tavolin {

std::vector<ioPath> GetRemovable(const std::vector<ioPath>& folders) {
  auto service = App::Services::Current().Get<App::IRemovableStorage>();
  if (service == nullptr) {
    service = MakeSystemRemovableStorage();
  }
  return service->Removable(folders);
}

bool IsRemovable(const QString& folder) {
  return !GetRemovable({ioPath(folder)}).empty();
}

}  // namespace Zenvora::Tavolin
