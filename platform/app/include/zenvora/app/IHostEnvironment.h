#pragma once

#include <zenvora/core/ioPath.h>

class QWidget;

namespace Zenvora::App {

/// What the host program itself provides. `ResourceFolder` may be asked on any thread, `MainWindow` on the
/// GUI thread only. Neither fails or blocks.
class IHostEnvironment {
 public:
  virtual ~IHostEnvironment() = default;

  /// The folder with the files shipped with the host (calendar, translations). It may not exist.
  virtual ioPath ResourceFolder() const = 0;
  /// The parent of dialogs, not owned by the caller; null while there is no window.
  virtual QWidget* MainWindow() const = 0;
};

}  // namespace Zenvora::App
