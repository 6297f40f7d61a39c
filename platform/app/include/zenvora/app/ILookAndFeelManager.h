#pragma once

#include <string>

namespace Zenvora::App {

/// How the application presents itself. May be asked on any thread; never fails, but may read the settings.
class ILookAndFeelManager {
 public:
  virtual ~ILookAndFeelManager() = default;

  /// The name of the current interface language: language and country as `QLocale` takes them, such as en_US.
  virtual std::string GetCurrentLocale() const = 0;
};

}  // namespace Zenvora::App
