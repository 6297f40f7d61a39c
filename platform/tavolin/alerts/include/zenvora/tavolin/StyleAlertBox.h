#pragma once

#include <zenvora/alerts/Export.h>
#include <zenvora/app/IAlerts.h>
#include <zenvora/qtutility/AlertBox.h>

#ifdef QT_WIDGETS_LIB
#include <QMessageBox>
#endif

#include <functional>
#include <memory>
#include <vector>

namespace Zenvora::Tavolin {

#ifdef QT_WIDGETS_LIB
/// Gives a message box the looks of this program and returns what shows it: a callable that blocks until the
/// user answered and returns the button (see `App::IAlerts::Show`), as often as it is called. `box` is not
/// needed any more by then; its parent is.
///
/// `emphasised`: buttons that stand out from the others. `defaultButton`: what Enter presses; `NoButton`: the
/// one that goes on with what was begun.
///
/// The box has the icon of its level, its text can be selected and copied and is read as it is written,
/// without mark-up; Escape and the window's own button press the button that stops things. In a process
/// without windows a warning is logged and the answer is that of `App::UnansweredButton`. GUI thread only.
ZENVORA_ALERTS_EXPORT std::function<QMessageBox::StandardButton()> StyleAlertBox(
    Util::AlertBox& box, const std::vector<QMessageBox::StandardButton>& emphasised,
    QMessageBox::StandardButton defaultButton);
#endif

/// Alerts in message boxes of Qt.
ZENVORA_ALERTS_EXPORT std::shared_ptr<App::IAlerts> MakeMessageBoxes();

}  // namespace Zenvora::Tavolin
