#pragma once

#include <QString>

namespace Zenvora::Lumidex::Host {

/// The text as it is compared: texts that look or are read alike become equal. Case, accents, blanks around
/// and runs of blanks, widths and ligatures make no difference, nor do Cyrillic letters with the look of
/// Latin ones ("Сamera" and "Camera", "Кот" and "Koт").
/// Characters that cannot be seen do not count. Other letters stay what they are.
/// Not to be shown, nor stored: the rule may change. Pure.
QString LookAlikeForm(const QString& text);

}  // namespace Zenvora::Lumidex::Host
