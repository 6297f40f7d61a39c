#pragma once

#include <QString>

namespace Zenvora::Util {

/// `text` with its first letter in upper case, by Unicode's simple case mapping.
inline QString WithUpperFirst(const QString& text) {
  if (text.isEmpty()) {
    return text;
  }
  // Some scripts with case, such as Adlam, lie outside the basic plane and take two units a letter.
  const bool isPair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
  if (!isPair) {
    return text[0].toUpper() + text.mid(1);
  }
  const uint upper = QChar::toUpper(QChar::surrogateToUcs4(text[0], text[1]));
  return QString::fromUcs4(&upper, 1) + text.mid(2);
}

}  // namespace Zenvora::Util
