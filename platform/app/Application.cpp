#include <zenvora/app/Application.h>
#include <zenvora/app/IClock.h>
#include <zenvora/app/IHostEnvironment.h>
#include <zenvora/app/RealServices.h>

#include <QCoreApplication>

namespace Zenvora::App {

Application::Application() {
  services_.Exchange(MakeHostLookAndFeel());
}

Application::~Application() = default;

Application* Application::Instance() {
  return dynamic_cast<Application*>(QCoreApplication::instance());
}

std::shared_ptr<ISettingsManager> Application::GetSettingsManager() const {
  return services_.Get<ISettingsManager>();
}

std::shared_ptr<ILookAndFeelManager> Application::GetLookAndFeel() const {
  return services_.Get<ILookAndFeelManager>();
}

QWidget* Application::GetMainWindow() const {
  return services_.Get<IHostEnvironment>()->MainWindow();
}

std::string GetCurrentLocale() {
  return Services::Current().Get<ILookAndFeelManager>()->GetCurrentLocale();
}

ioPath GetPathToResources() {
  return Services::Current().Get<IHostEnvironment>()->ResourceFolder();
}

QDateTime GetCurrentDateTime() {
  return Services::Current().Get<IClock>()->Now();
}

void SleepFor(std::chrono::milliseconds pause) {
  Services::Current().Get<IClock>()->SleepFor(pause);
}

}  // namespace Zenvora::App
