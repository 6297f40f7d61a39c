#include "ResourceValidator.h"

#include "DownloadLimits.h"

#include <zenvora/quillet/config/Config.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstddef>

namespace Zenvora::Tavolin {

namespace {

// A copy that its reader refuses must not replace one that it takes.
constexpr std::size_t kDepthLimit = Quillet::Config::BaseConfig::kDepthLimit;
static_assert(kSizeLimit <= static_cast<qint64>(Quillet::Config::BaseConfig::kSizeLimit));

// Recurses `limit` levels at the most.
bool IsDeeperThan(const QJsonValue& value, std::size_t limit) {
  if (!value.isObject() && !value.isArray()) {
    return false;
  }
  if (limit == 0) {
    return true;
  }
  const auto isDeeper = [limit](const QJsonValue& inner) { return IsDeeperThan(inner, limit - 1); };
  if (value.isArray()) {
    const QJsonArray array = value.toArray();
    return std::any_of(array.begin(), array.end(), isDeeper);
  }
  const QJsonObject object = value.toObject();
  return std::any_of(object.begin(), object.end(), isDeeper);
}

QString FindJsonFault(const QByteArray& body, const QString& section) {
  QJsonParseError failure{};
  const QJsonDocument document = QJsonDocument::fromJson(body, &failure);
  if (failure.error == QJsonParseError::DeepNesting) {
    return QStringLiteral("it is nested too deep");
  }
  if (failure.error != QJsonParseError::NoError) {
    return QStringLiteral("it is not JSON (byte %1: %2)").arg(failure.offset).arg(failure.errorString());
  }
  if (!document.isObject()) {
    return QStringLiteral("its root is not an object");
  }
  if (IsDeeperThan(document.object(), kDepthLimit)) {
    return QStringLiteral("it is nested too deep");
  }
  if (section == QLatin1String("holidayEvents") &&
      !document.object().value(QStringLiteral("events")).isObject()) {
    return QStringLiteral("it has no object \"events\"");
  }
  return {};
}

}  // namespace

QString FindBodyFault(const QByteArray& body, const QString& format, const QString& section) {
  if (body.isEmpty()) {
    return QStringLiteral("it is empty");
  }
  return format == QLatin1String("json") ? FindJsonFault(body, section) : QString();
}

}  // namespace Zenvora::Tavolin
