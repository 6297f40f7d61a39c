#include <zenvora/core/ioPath.h>

#include <ostream>
#include <system_error>
#include <utility>

namespace Zenvora {

namespace fs = std::filesystem;

namespace {

fs::path FromUtf8(const std::string& utf8) {
#ifdef _WIN32
  // u8path throws on malformed UTF-8; Qt replaces what it cannot read.
  return fs::path(QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size())).toStdWString());
#else
  return fs::path(utf8);
#endif
}

bool NamesNothing(const fs::path& path) {
  return path.empty() || path.native().find(fs::path::value_type{}) != fs::path::string_type::npos;
}

}  // namespace

ioPath::ioPath(const std::string& utf8) : path_(FromUtf8(utf8)) {}

ioPath::ioPath(const char* utf8) : ioPath(std::string(utf8)) {}

ioPath::ioPath(const QString& text) : ioPath(text.toStdString()) {}

ioPath::ioPath(fs::path native) : path_(std::move(native)) {}

ioPath& ioPath::operator/=(const ioPath& right) {
  // By way of a new path: the standard library's own joining goes wrong for a path and itself.
  path_ = path_ / right.path_;
  return *this;
}

ioPath ioPath::operator/(const ioPath& right) const {
  return ioPath(path_ / right.path_);
}

ioPath ioPath::parent_path() const {
  return ioPath(path_.parent_path());
}

ioPath ioPath::root_path() const {
  return ioPath(path_.root_path());
}

ioPath ioPath::root_name() const {
  return ioPath(path_.root_name());
}

ioPath ioPath::filename() const {
  return ioPath(path_.filename());
}

ioPath ioPath::extension() const {
  return ioPath(path_.extension());
}

ioPath& ioPath::replace_extension(const ioPath& extension) {
  path_.replace_extension(extension.path_);
  return *this;
}

bool ioPath::rename(const ioPath& to) const {
  if (NamesNothing(path_) || NamesNothing(to.path_)) {
    return false;
  }
  std::error_code error;
  fs::rename(path_, to.path_, error);
  return !error;
}

bool ioPath::remove() const {
  if (NamesNothing(path_)) {
    return false;
  }
  std::error_code error;
  return fs::remove(path_, error) && !error;
}

std::uint64_t ioPath::file_size() const {
  if (NamesNothing(path_)) {
    return 0;
  }
  std::error_code error;
  if (!fs::is_regular_file(path_, error) || error) {
    return 0;
  }
  const auto size = fs::file_size(path_, error);
  return error ? 0 : size;
}

bool ioPath::exists() const {
  if (NamesNothing(path_)) {
    return false;
  }
  std::error_code error;
  return fs::exists(path_, error) && !error;
}

std::string ioPath::utf8string() const {
#ifdef _WIN32
  // u8string throws on a lone surrogate, which the file system lets into names.
  return QString::fromStdWString(path_.native()).toStdString();
#else
  return path_.native();
#endif
}

QString ioPath::qstring() const {
  return QString::fromStdString(utf8string());
}

std::wstring ioPath::wstring() const {
#ifdef _WIN32
  return path_.native();
#else
  return qstring().toStdWString();
#endif
}

std::ostream& operator<<(std::ostream& stream, const ioPath& path) {
  return stream << path.utf8string();
}

}  // namespace Zenvora
