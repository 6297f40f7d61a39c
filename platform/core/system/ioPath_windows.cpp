#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/WindowsNames.h>
#include <zenvora/core/ioPath.h>

#include <algorithm>
#include <utility>
#include <windows.h>

namespace Zenvora {

namespace fs = std::filesystem;

namespace {

// Leaves room for a short name behind a folder, as some calls demand.
constexpr std::size_t kLongName = 240;

/// The part in front of the first element, separator included.
std::size_t RootLength(const std::wstring& path) {
  const std::size_t name = WindowsNames::RootNameLength(path);
  return name < path.size() && (path[name] == L'\\' || path[name] == L'/') ? name + 1 : name;
}

/// Without "." and ".."; with the system's own separators.
std::wstring FullName(const std::wstring& path) {
  std::wstring name(path.size() + MAX_PATH, L'\0');
  DWORD length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(name.size()), name.data(), nullptr);
  if (length > name.size()) {
    name.resize(length);
    length = GetFullPathNameW(path.c_str(), static_cast<DWORD>(name.size()), name.data(), nullptr);
  }
  name.resize(std::min<std::size_t>(length, name.size()));
  return name.empty() ? path : name;
}

/// The standard library here takes the server of a network path for a folder.
bool IsNetworkOrPrefixed(const std::wstring& path) {
  return WindowsNames::RootNameLength(path) > 2;
}

}  // namespace

// `u8path` throws on malformed UTF-8; Qt replaces what it cannot read.
ioPath::ioPath(const std::string& utf8)
    : path_(QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size())).toStdWString()) {}

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
  if (path_.empty() || path_.native().rfind(L"\\\\?\\", 0) == 0) {
    return path_;
  }
  // Measured from the root on: a short name may be in a deep folder.
  const std::wstring absolute = FullName(path_.native());
  return absolute.size() < kLongName ? path_ : fs::path(WindowsNames::Extended(absolute));
}

bool ioPath::is_absolute() const {
  return IsNetworkOrPrefixed(path_.native()) || path_.is_absolute();
}

ioPath ioPath::absolute() const {
  return path_.empty() || path_.native().rfind(L"\\\\?\\", 0) == 0
             ? *this
             : ioPath(fs::path(FullName(path_.native())));
}

ioPath ioPath::canonical(std::error_code& error) const {
  error.clear();
  const HANDLE handle = CreateFileW(for_system().c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    error = LastSystemError();
    return {};
  }
  constexpr DWORD kLongestPath = 32768;
  std::wstring name(kLongestPath, L'\0');
  name.resize(std::min(kLongestPath,
                       GetFinalPathNameByHandleW(handle, name.data(), kLongestPath, FILE_NAME_NORMALIZED)));
  CloseHandle(handle);
  // Drives of some kinds cannot tell.
  return name.empty() ? absolute() : ioPath(fs::path(WindowsNames::Plain(name)));
}

bool ioPath::rename(const ioPath& to) const {
  if (!IsName() || !to.IsName()) {
    return false;
  }
  // Not by the standard library: that would copy to another volume and take its time. Only files replace
  // files.
  const bool isFolder = QueryFile(*this).kind == FileState::Kind::Folder;
  const DWORD replace = isFolder ? 0 : MOVEFILE_REPLACE_EXISTING;
  return MoveFileExW(for_system().c_str(), to.for_system().c_str(), replace) != 0;
}

bool ioPath::remove() const {
  if (!IsName()) {
    return false;
  }
  const std::wstring name = for_system().native();
  const DWORD attributes = GetFileAttributesW(name.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    return false;
  }
  return ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? RemoveDirectoryW(name.c_str())
                                                       : DeleteFileW(name.c_str())) != 0;
}

std::string ioPath::utf8string() const {
  // u8string throws on a lone surrogate, which the file system lets into names.
  return QString::fromStdWString(path_.native()).toStdString();
}

std::wstring ioPath::wstring() const {
  return path_.native();
}

std::size_t ioPath::hash() const noexcept {
  // The standard library's own tells '/' and '\\' apart where they are roots, its comparison does not.
  std::size_t hash = path_.has_root_directory() ? 1 : 0;
  for (const fs::path& element : path_.relative_path()) {
    hash = hash * 31 + std::hash<std::wstring>()(element.native());
  }
  return hash;
}

bool ioPath::IsName() const {
  // The system passes over a separator at the end, which only a folder can have.
  const std::wstring& text = path_.native();
  const std::size_t end = text.find_last_not_of(L"\\/") + 1;
  if (end < text.size() && end > RootLength(text) &&
      QueryFile(ioPath(fs::path(text.substr(0, end)))).kind == FileState::Kind::File) {
    return false;
  }
  return name_fault().empty();
}

}  // namespace Zenvora
