#pragma once

#include <QString>

class QWidget;

namespace Zenvora::App {

struct FolderQuestion {
  /// The window that waits meanwhile, not owned; may be null.
  QWidget* parent = nullptr;
  QString caption;
  /// Where the dialog begins.
  QString startFolder;
  /// Bits of `QFileDialog::Option`.
  int options = 0;
};

/// Lets the user choose a folder. GUI thread only.
class IFolderDialog {
 public:
  virtual ~IFolderDialog() = default;

  /// Blocks until the user chose. The folder, absolute; empty when the user cancelled.
  virtual QString Ask(const FolderQuestion& question) = 0;
};

}  // namespace Zenvora::App
