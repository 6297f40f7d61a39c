#include <zenvora/core/FileState.h>
#include <zenvora/core/ioPath.h>

#include <ostream>
#include <utility>

namespace Zenvora {

namespace fs = std::filesystem;

ioPath::ioPath(const char* utf8) : ioPath(std::string(utf8)) {}

ioPath::ioPath(const QString& text) : ioPath(text.toStdString()) {}

ioPath::ioPath(fs::path native) : path_(std::move(native)) {}

ioPath& ioPath::operator/=(const ioPath& right) {
  *this = *this / right;
  return *this;
}

ioPath ioPath::extension() const {
  return ioPath(path_.extension());
}

ioPath& ioPath::replace_extension(const ioPath& extension) {
  path_.replace_extension(extension.path_);
  return *this;
}

std::uint64_t ioPath::file_size() const {
  if (!IsName()) {
    return 0;
  }
  const FileState state = QueryFile(*this);
  return state.kind == FileState::Kind::File ? state.size : 0;
}

bool ioPath::exists() const {
  if (!IsName()) {
    return false;
  }
  const FileState::Kind kind = QueryFile(*this).kind;
  return kind == FileState::Kind::File || kind == FileState::Kind::Folder || kind == FileState::Kind::Other;
}

QString ioPath::qstring() const {
  return QString::fromStdString(utf8string());
}

std::ostream& operator<<(std::ostream& stream, const ioPath& path) {
  return stream << path.utf8string();
}

}  // namespace Zenvora
