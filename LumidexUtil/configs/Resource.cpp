#include <LumidexUtil/Resource.h>

namespace Zenvora::Util {

const QString Resource::AutoTag = QStringLiteral("AutoTag");
const QString Resource::SysTagTr = QStringLiteral("SysTagTr");

Resource& Resource::operator=(const Resource&) = default;
Resource& Resource::operator=(Resource&&) noexcept = default;

QString Resource::GetName(const QString& name) {
  return QStringLiteral(":/LumidexUtil/configs/%1.json").arg(name, 0, QLatin1Char(' '));
}

}  // namespace Zenvora::Util
