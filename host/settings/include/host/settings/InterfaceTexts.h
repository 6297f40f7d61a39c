#pragma once

#include <QTranslator>

#include <string>

namespace Zenvora::Lumidex::Host {

/// The texts of the program and of its libraries in one of `App::InterfaceLanguages`, in force while it
/// lives: whatever is translated meanwhile is in that language. One made later goes before one made earlier,
/// so that a page can be in another language than the program.
///
/// Only about texts: dates, holidays and numbers follow the `App::ILookAndFeelManager`. Needs the application
/// object, and belongs to its thread.
class InterfaceTexts {
 public:
  /// Any locale name; the nearest language that is spoken serves, en_US if none does.
  explicit InterfaceTexts(const std::string& locale);
  ~InterfaceTexts();
  InterfaceTexts(const InterfaceTexts&) = delete;
  InterfaceTexts& operator=(const InterfaceTexts&) = delete;

  /// From now on in this language. Windows are told by Qt's event for that.
  void Speak(const std::string& locale);

 private:
  QTranslator catalogue_;
  bool installed_ = false;
};

}  // namespace Zenvora::Lumidex::Host
