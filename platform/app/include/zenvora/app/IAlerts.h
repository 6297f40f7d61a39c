#pragma once

#include <zenvora/app/Export.h>

#include <QFlags>
#include <QString>

class QWidget;

namespace Zenvora::App {

/// How much an alert matters. The numbers are passed between libraries: they never change.
enum class AlertLevel : int {
  Information = 0,
  Critical = 1,  ///< What was asked for cannot be done.
  Warning = 2,   ///< It can be done, but not as somebody might expect.
  Question = 3,
};

/// A button of an alert. The numbers are those of Qt's message boxes, so that whoever shows alerts elsewhere
/// (in a terminal, in a test) need not link Qt Widgets.
enum class AlertButton : unsigned int {
  None = 0,
  Ok = 0x00000400,
  Save = 0x00000800,
  SaveAll = 0x00001000,
  Open = 0x00002000,
  Yes = 0x00004000,
  YesToAll = 0x00008000,
  No = 0x00010000,
  NoToAll = 0x00020000,
  Abort = 0x00040000,
  Retry = 0x00080000,
  Ignore = 0x00100000,
  Close = 0x00200000,
  Cancel = 0x00400000,
  Discard = 0x00800000,
  Help = 0x01000000,
  Apply = 0x02000000,
  Reset = 0x04000000,
  RestoreDefaults = 0x08000000,
};
Q_DECLARE_FLAGS(AlertButtons, AlertButton)
Q_DECLARE_OPERATORS_FOR_FLAGS(AlertButtons)

/// What is told, and what may be answered.
struct Alert {
  AlertLevel level = AlertLevel::Information;
  QString title;
  QString text;
  /// None: Ok alone.
  AlertButtons buttons;
  /// What Enter presses; `None`: the one of `DefaultButton`.
  AlertButton defaultButton = AlertButton::None;
  /// Those of the buttons that stand out from the others.
  AlertButtons emphasised;
  /// The window that waits meanwhile, not owned; may be null.
  QWidget* parent = nullptr;
  Qt::WindowFlags windowFlags;
};

/// The answer of somebody who closes the alert without choosing: the button that stops things, such as
/// Cancel; the only button, whatever it is; `None` when there are several and none of them stops anything.
/// Pure.
ZENVORA_APP_EXPORT AlertButton EscapeButton(AlertButtons buttons);

/// The button that goes on with what was begun: what Enter presses where nothing else is said. Pure.
ZENVORA_APP_EXPORT AlertButton DefaultButton(AlertButtons buttons);

/// The answer where nobody can be asked or the program ends meanwhile: the one of `EscapeButton`, else the
/// one that does the least and asks for nothing again. One of the buttons always. Pure.
ZENVORA_APP_EXPORT AlertButton UnansweredButton(AlertButtons buttons);

/// Shows alerts to the user. GUI thread only.
class IAlerts {
 public:
  virtual ~IAlerts() = default;

  /// Blocks until the user answered. Returns one of the alert's buttons, never another one: that of
  /// `EscapeButton` when the alert was closed, which it cannot be where that gives none, and that of
  /// `UnansweredButton` where nobody can be asked.
  virtual AlertButton Show(const Alert& alert) = 0;
};

}  // namespace Zenvora::App
