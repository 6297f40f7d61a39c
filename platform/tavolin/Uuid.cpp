#include <zenvora/tavolin/Uuid.h>

#include <QUuid>

namespace Zenvora::Tavolin {

QString GenerateUuid() {
  return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

}  // namespace Zenvora::Tavolin
