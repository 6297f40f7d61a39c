#include <zenvora/core/WindowsNames.h>
#include <zenvora/core/ioPath.h>

#include <algorithm>
#include <ostream>
#include <system_error>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#endif

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

#ifdef _WIN32

// Leaves room for a short name behind a folder, as some calls demand.
constexpr std::size_t kLongName = 240;

/// The part in front of the first element, separator included.
std::size_t RootLength(const std::wstring& path) {
  const std::size_t name = WindowsNames::RootNameLength(path);
  return name < path.size() && (path[name] == L'\\' || path[name] == L'/') ? name + 1 : name;
}

/// The standard library here takes the server of a network path for a folder.
bool IsNetworkOrPrefixed(const std::wstring& path) {
  return WindowsNames::RootNameLength(path) > 2;
}

#endif

}  // namespace

ioPath::ioPath(const std::string& utf8) : path_(FromUtf8(utf8)) {}

ioPath::ioPath(const char* utf8) : ioPath(std::string(utf8)) {}

ioPath::ioPath(const QString& text) : ioPath(text.toStdString()) {}

ioPath::ioPath(fs::path native) : path_(std::move(native)) {}

ioPath& ioPath::operator/=(const ioPath& right) {
  *this = *this / right;
  return *this;
}

#ifdef _WIN32

ioPath ioPath::operator/(const ioPath& right) const {
  if (IsNetworkOrPrefixed(right.path_.native())) {
    return right;
  }
  return ioPath(path_ / right.path_);
}

ioPath ioPath::parent_path() const {
  const std::wstring& path = path_.native();
  if (!IsNetworkOrPrefixed(path)) {
    return ioPath(path_.parent_path());
  }
  const std::size_t root = RootLength(path);
  const std::size_t separator = path.find_last_of(L"\\/");
  if (separator == std::wstring::npos || separator < root) {
    return ioPath(fs::path(path.substr(0, root)));
  }
  const std::size_t last = path.find_last_not_of(L"\\/", separator);
  return ioPath(fs::path(path.substr(0, std::max(root, last + 1))));
}

ioPath ioPath::root_path() const {
  const std::wstring& path = path_.native();
  std::wstring root = path.substr(0, RootLength(path));
  // A share has no folder of its own that it could be relative to.
  if (IsNetworkOrPrefixed(path) && root.back() != L'\\' && root.back() != L'/') {
    root += L'\\';
  }
  return ioPath(fs::path(root));
}

ioPath ioPath::root_name() const {
  return ioPath(fs::path(path_.native().substr(0, WindowsNames::RootNameLength(path_.native()))));
}

ioPath ioPath::filename() const {
  const std::wstring& path = path_.native();
  return path.size() <= RootLength(path) ? ioPath() : ioPath(path_.filename());
}

std::string ioPath::name_fault() const {
  return path_.empty() ? "is empty" : WindowsNames::FindFault(path_.native());
}

fs::path ioPath::for_system() const {
  if (path_.native().size() < kLongName) {
    return path_;
  }
  std::wstring absolute(path_.native().size() + MAX_PATH, L'\0');
  const DWORD length =
      GetFullPathNameW(path_.c_str(), static_cast<DWORD>(absolute.size()), absolute.data(), nullptr);
  if (length == 0 || length > absolute.size()) {
    return path_;
  }
  absolute.resize(length);
  return WindowsNames::Extended(absolute);
}

#else

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

#endif

ioPath ioPath::extension() const {
  return ioPath(path_.extension());
}

ioPath& ioPath::replace_extension(const ioPath& extension) {
  path_.replace_extension(extension.path_);
  return *this;
}

bool ioPath::rename(const ioPath& to) const {
  if (!IsName() || !to.IsName()) {
    return false;
  }
#ifdef _WIN32
  // Not by the standard library: that would copy to another volume and take its time. Only files replace
  // files.
  std::error_code unknown;
  const DWORD replace = fs::is_directory(for_system(), unknown) ? 0 : MOVEFILE_REPLACE_EXISTING;
  return MoveFileExW(for_system().c_str(), to.for_system().c_str(), replace) != 0;
#else
  std::error_code error;
  fs::rename(path_, to.path_, error);
  return !error;
#endif
}

bool ioPath::remove() const {
  if (!IsName()) {
    return false;
  }
  std::error_code error;
  return fs::remove(for_system(), error) && !error;
}

std::uint64_t ioPath::file_size() const {
  if (!IsName()) {
    return 0;
  }
  std::error_code error;
  const fs::path file = for_system();
  if (!fs::is_regular_file(file, error) || error) {
    return 0;
  }
  const auto size = fs::file_size(file, error);
  return error ? 0 : size;
}

bool ioPath::exists() const {
  if (!IsName()) {
    return false;
  }
  std::error_code error;
  return fs::exists(for_system(), error) && !error;
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

std::size_t ioPath::hash() const noexcept {
#ifdef _WIN32
  // The standard library's own tells '/' and '\\' apart where they are roots, its comparison does not.
  std::size_t hash = path_.has_root_directory() ? 1 : 0;
  for (const fs::path& element : path_.relative_path()) {
    hash = hash * 31 + std::hash<std::wstring>()(element.native());
  }
  return hash;
#else
  return fs::hash_value(path_);
#endif
}

bool ioPath::IsName() const {
#ifdef _WIN32
  // The system passes over a separator at the end, which only a folder can have.
  std::error_code unknown;
  if (!path_.empty() && path_.has_relative_path() && path_.filename().empty() &&
      fs::is_regular_file(for_system(), unknown)) {
    return false;
  }
#endif
  return name_fault().empty();
}

std::ostream& operator<<(std::ostream& stream, const ioPath& path) {
  return stream << path.utf8string();
}

}  // namespace Zenvora
