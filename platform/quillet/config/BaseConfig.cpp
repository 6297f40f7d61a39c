#include "JsonNesting.h"
#include "JsonSerializer.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>
#include <zenvora/quillet/config/Config.h>

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <fstream>
#include <system_error>
#include <vector>

namespace Zenvora::Quillet::Config {

namespace {

/// Throws unless reading the file comes to an end: a pipe waits for its writer, a device may never finish.
void RequireFile(const FileState& state, const std::string& fileName) {
  if (state.kind == FileState::Kind::Folder) {
    ThrowJson(fileName, "", "is a folder");
  } else if (state.kind == FileState::Kind::Other) {
    ThrowJson(fileName, "", "is not a regular file");
  } else if (state.kind != FileState::Kind::File) {
    ThrowJson(fileName, "", "cannot be read: " + ErrorText(state.error));
  }
}

[[noreturn]] void ThrowUnreadable(const std::string& fileName, int systemError) {
  ThrowJson(fileName, "", "cannot be read: " + std::generic_category().message(systemError));
}

QByteArray ReadWhole(const ioPath& path, const std::string& fileName) {
  // By its native name: a QString cannot hold every one.
  errno = 0;
  std::ifstream stream(path.for_system(), std::ios::binary);
  if (!stream.is_open()) {
    ThrowUnreadable(fileName, errno);
  }
  constexpr std::size_t kChunk = std::size_t{64} * 1024;
  std::vector<char> chunk(kChunk);
  QByteArray text;
  // Counted while reading: a file may grow, and some files have no size to trust.
  while (stream && static_cast<std::size_t>(text.size()) <= BaseConfig::kSizeLimit) {
    stream.read(chunk.data(), static_cast<std::streamsize>(chunk.size()));
    text.append(chunk.data(), static_cast<int>(stream.gcount()));
  }
  if (stream.bad()) {
    ThrowUnreadable(fileName, errno == 0 ? EIO : errno);
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
    ThrowJson(fileName, PlaceOf(text, error.offset).toStdString(),
              "is not JSON: " + error.errorString().toStdString());
  }
  if (!document.isObject()) {
    ThrowJson(fileName, "", "an object is expected at the top");
  }
  return document.object();
}

}  // namespace

bool BaseConfig::Parse(IParserConfigBase& object, const std::string& rootName, const std::string& fileName,
                       bool optional) const {
  const ioPath path(fileName);
  const FileState state = QueryFile(path);
  if (optional && state.kind == FileState::Kind::Missing) {
    return false;
  }
  RequireFile(state, fileName);
  const QJsonObject document = ParseRoot(ReadWhole(path, fileName), fileName);
  boost::intrusive_ptr<const ISerializer> root = new JsonSerializer(document, fileName, "");
  object.Deserialize(rootName.empty() ? root : root->GetChild(rootName));
  return true;
}

}  // namespace Zenvora::Quillet::Config
