#pragma once

#include <zenvora/app/Export.h>
#include <zenvora/app/ILookAndFeelManager.h>
#include <zenvora/app/ISettingsManager.h>
#include <zenvora/app/Services.h>
#include <zenvora/core/ioPath.h>

#include <QDateTime>

#include <chrono>
#include <memory>
#include <utility>

class QWidget;

namespace Zenvora::App {

/// What a host's application object adds to Qt's: the services that libraries ask of it.
///
/// A host makes one `ApplicationOf<QCoreApplication>` or `ApplicationOf<QApplication>`; libraries find it
/// through `Instance`. A process without one (a test, a plug-in in a foreign program) is served by the real
/// services of `Services::Current`.
class ZENVORA_APP_EXPORT Application {
 public:
  virtual ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// `QCoreApplication::instance()` as an `Application`; null when there is none or it is not one of ours.
  static Application* Instance();

  Services& GetServices() { return services_; }
  std::shared_ptr<ISettingsManager> GetSettingsManager() const;
  std::shared_ptr<ILookAndFeelManager> GetLookAndFeel() const;
  QWidget* GetMainWindow() const;

 protected:
  Application();

 private:
  Services services_;
};

/// The application object of a host: Qt's own class `QtApplication` with the services beside it.
template <class QtApplication>
class ApplicationOf : public QtApplication, public Application {
 public:
  /// `argc` and `argv` must outlive the object, as Qt asks.
  ApplicationOf(int& argc, char** argv) : QtApplication(argc, argv) {}
};

/// The interface language in force (see `ILookAndFeelManager`); without a host the system's locale name.
ZENVORA_APP_EXPORT std::string GetCurrentLocale();

/// The host's resource folder (see `IHostEnvironment`).
ZENVORA_APP_EXPORT ioPath GetPathToResources();

/// The current moment in local time, by the clock in force.
ZENVORA_APP_EXPORT QDateTime GetCurrentDateTime();

/// Blocks the calling thread for at least `pause`, by the clock in force.
ZENVORA_APP_EXPORT void SleepFor(std::chrono::milliseconds pause);

}  // namespace Zenvora::App
