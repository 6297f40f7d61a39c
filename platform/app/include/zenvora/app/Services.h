#pragma once

#include <zenvora/app/Export.h>

#include <memory>
#include <mutex>
#include <tuple>
#include <utility>

namespace Zenvora::App {

class IAlerts;
class IClock;
class IDiskSpace;
class IDownloads;
class IFolderAccess;
class IFolderDialog;
class IHostEnvironment;
class ILookAndFeelManager;
class IRemovableStorage;
class ISettingsManager;

/// The registry of what belongs to the machine or to the host. Everything that the libraries ask of either
/// goes through here, and nothing else does; this list is therefore all that a test can and must replace.
///
/// There is one registry at a time: the application object's, or, in a process without one, a registry of
/// real services that belongs to the process. A new registry holds the real services.
///
/// Thread-safety: reading and replacing are safe from any thread; a service read stays alive while it is
/// held.
class ZENVORA_APP_EXPORT Services {
 public:
  Services();
  ~Services();
  Services(const Services&) = delete;
  Services& operator=(const Services&) = delete;

  /// The registry in force.
  static Services& Current();

  /// The service. Null means the own one of the room that uses it, which stands above this one: so at first
  /// `IAlerts`, `IDiskSpace`, `IDownloads`, `IFolderAccess`, `IFolderDialog` and `IRemovableStorage`. The
  /// others are never null.
  template <class Service>
  std::shared_ptr<Service> Get() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return std::get<std::shared_ptr<Service>>(slots_);
  }

  /// Puts `service` in place and returns what stood there.
  template <class Service>
  std::shared_ptr<Service> Exchange(std::shared_ptr<Service> service) {
    const std::lock_guard<std::mutex> lock(mutex_);
    std::swap(std::get<std::shared_ptr<Service>>(slots_), service);
    return service;
  }

 private:
  mutable std::mutex mutex_;
  std::tuple<std::shared_ptr<ISettingsManager>, std::shared_ptr<ILookAndFeelManager>, std::shared_ptr<IClock>,
             std::shared_ptr<IHostEnvironment>, std::shared_ptr<IDownloads>, std::shared_ptr<IAlerts>,
             std::shared_ptr<IDiskSpace>, std::shared_ptr<IFolderAccess>, std::shared_ptr<IFolderDialog>,
             std::shared_ptr<IRemovableStorage>>
      slots_;
};

/// Replaces one service for a scope and puts the former one back at its end. Scopes end in reverse order of
/// their beginning, and the registry that was current at the beginning must outlive them.
template <class Service>
class ServiceScope {
 public:
  explicit ServiceScope(std::shared_ptr<Service> service)
      : registry_(Services::Current()), former_(registry_.Exchange(std::move(service))) {}
  ~ServiceScope() { registry_.Exchange(std::move(former_)); }
  ServiceScope(const ServiceScope&) = delete;
  ServiceScope& operator=(const ServiceScope&) = delete;

 private:
  Services& registry_;
  std::shared_ptr<Service> former_;
};

}  // namespace Zenvora::App
