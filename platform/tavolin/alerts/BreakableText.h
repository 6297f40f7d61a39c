#pragma once

#include <QString>

namespace Zenvora::Tavolin {

/// A text as it fits a message box: names that are too long for a line get invisible marks where they may be
/// broken, and the middle of a text that would fill the screen gives way to an ellipsis. Other texts stay as
/// they are. Pure.
QString BreakableText(const QString& text);

}  // namespace Zenvora::Tavolin
