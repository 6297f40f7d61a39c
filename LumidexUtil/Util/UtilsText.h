#pragma once

#include <QCoreApplication>
#include <QString>

namespace Zenvora::Util {

/// The translation of a text of this library. Sources name the context themselves where the translation tools
/// must find a text.
inline QString TranslateUtils(const char* text) {
  return QCoreApplication::translate("Zenvora::Lumidex::Utils", text);
}

}  // namespace Zenvora::Util
