#pragma once

#ifdef QT_WIDGETS_LIB
#include <zenvora/app/IAlerts.h>
#include <zenvora/qtutility/Export.h>

#include <QMessageBox>
#include <QString>

namespace Zenvora::Util {

/// What a message box is to show. It becomes a window only when the callable of `Tavolin::StyleAlertBox`
/// runs, so that the same code serves programs without windows and tests with scripted answers.
///
/// A value: copies are cheap. `parent` is not owned and must live until the box is closed.
class ZENVORA_QTUTILITY_EXPORT AlertBox {
 public:
  /// How much it matters; `App::AlertLevel` by the names that callers use.
  enum Level : int { Information = 0, Critical = 1, Warning = 2, Question = 3 };

  /// `text`: plain text, shown as it is written. `buttons`: none stands for Ok alone.
  AlertBox(Level level, const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
           QWidget* parent = nullptr, Qt::WindowFlags windowFlags = Qt::Dialog);

  /// The same for those who show alerts.
  const App::Alert& Content() const { return content_; }

 private:
  App::Alert content_;
};

}  // namespace Zenvora::Util
#endif
