#include <zenvora/core/ioPath.h>

#include <system_error>
#include <utility>

namespace Zenvora {

namespace fs = std::filesystem;

ioPath::ioPath(const std::string& utf8) : path_(utf8) {}

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

std::string ioPath::name_fault() const {
  if (path_.empty()) {
    return "is empty";
  }
  return path_.native().find('\0') == std::string::npos ? "" : "holds a NUL character";
}

fs::path ioPath::for_system() const {
  return path_;
}

bool ioPath::is_absolute() const {
  return path_.is_absolute();
}

ioPath ioPath::absolute() const {
  std::error_code error;
  fs::path whole = fs::absolute(path_, error);
  return error ? *this : ioPath(std::move(whole));
}

ioPath ioPath::canonical(std::error_code& error) const {
  return ioPath(fs::canonical(path_, error));
}

bool ioPath::rename(const ioPath& to) const {
  if (!IsName() || !to.IsName()) {
    return false;
  }
  std::error_code error;
  fs::rename(path_, to.path_, error);
  return !error;
}

bool ioPath::remove() const {
  if (!IsName()) {
    return false;
  }
  std::error_code error;
  return fs::remove(path_, error) && !error;
}

std::string ioPath::utf8string() const {
  return path_.native();
}

std::wstring ioPath::wstring() const {
  return qstring().toStdWString();
}

std::size_t ioPath::hash() const noexcept {
  return fs::hash_value(path_);
}

bool ioPath::IsName() const {
  return name_fault().empty();
}

}  // namespace Zenvora
