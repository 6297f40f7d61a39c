#include "JsonNesting.h"
#include "JsonSerializer.h"

#include <zenvora/core/ioPath.h>
#include <zenvora/quillet/Config.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace Zenvora::Quillet::Config {

namespace {

QByteArray ReadWhole(QFile& file, const std::string& fileName) {
  if (!file.open(QIODevice::ReadOnly)) {
    ThrowJson(fileName, "", "cannot be read: " + file.errorString().toStdString());
  }
  // One byte more than allowed: a device or a growing file has no size to trust.
  QByteArray text = file.read(static_cast<qint64>(BaseConfig::kSizeLimit) + 1);
  if (file.error() != QFileDevice::NoError) {
    ThrowJson(fileName, "", "cannot be read: " + file.errorString().toStdString());
  }
  if (static_cast<std::size_t>(text.size()) > BaseConfig::kSizeLimit) {
    ThrowJson(fileName, "", "is longer than " + std::to_string(BaseConfig::kSizeLimit) + " bytes");
  }
  return text;
}

QJsonObject ParseRoot(const QByteArray& text, const std::string& fileName) {
  if (const int tooDeep = FindTooDeep(text, BaseConfig::kDepthLimit); tooDeep >= 0) {
    ThrowJson(fileName, PlaceOf(text, tooDeep).toStdString(),
              "is nested deeper than " + std::to_string(BaseConfig::kDepthLimit) + " levels");
  }
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(text, &error);
  if (error.error != QJsonParseError::NoError) {
    ThrowJson(fileName, PlaceOf(text, error.offset).toStdString(), "is not JSON: " + error.errorString().toStdString());
  }
  if (!document.isObject()) {
    ThrowJson(fileName, "", "an object is expected at the top");
  }
  return document.object();
}

}  // namespace

bool BaseConfig::Parse(IParserConfigBase& object, const std::string& rootName, const std::string& fileName,
                       bool optional) const {
  QFile file(ioPath(fileName).qstring());
  if (optional && !file.exists()) {
    return false;
  }
  const QJsonObject document = ParseRoot(ReadWhole(file, fileName), fileName);
  boost::intrusive_ptr<const ISerializer> root = new JsonSerializer(document, fileName, "");
  object.Deserialize(rootName.empty() ? root : root->GetChild(rootName));
  return true;
}

}  // namespace Zenvora::Quillet::Config
