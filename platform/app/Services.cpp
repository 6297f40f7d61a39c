#include <zenvora/app/Application.h>
#include <zenvora/app/RealServices.h>
#include <zenvora/app/Services.h>

namespace Zenvora::App {

Services::Services()
    : slots_(MakeIniSettings(UserSettingsFile()), MakeSystemLookAndFeel(), MakeSystemClock(),
             MakeProgramEnvironment(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr) {}

Services::~Services() = default;

Services& Services::Current() {
  if (auto* application = Application::Instance()) {
    return application->GetServices();
  }
  static Services withoutHost;
  return withoutHost;
}

}  // namespace Zenvora::App
