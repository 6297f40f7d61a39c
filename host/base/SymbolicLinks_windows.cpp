#include <host/base/SymbolicLinks.h>

#include <zenvora/core/ErrorText.h>

#include <cstring>
#include <filesystem>
#include <memory>
#include <vector>
#include <windows.h>
// Behind the header that it needs.
#include <winioctl.h>

namespace Zenvora::Lumidex::Host {

namespace {

/// The head of what a link says, up to its names.
struct LinkHead {
  ULONG tag;
  USHORT dataLength;
  USHORT reserved;
  USHORT substituteOffset;
  USHORT substituteLength;
  USHORT printOffset;
  USHORT printLength;
  ULONG flags;
};

std::optional<std::wstring> PrintName(const std::vector<char>& bytes, DWORD count) {
  LinkHead head{};
  if (count < sizeof(head)) {
    return std::nullopt;
  }
  std::memcpy(&head, bytes.data(), sizeof(head));
  const std::size_t begin = sizeof(head) + head.printOffset;
  if (head.tag != IO_REPARSE_TAG_SYMLINK || begin + head.printLength > count) {
    return std::nullopt;
  }
  std::wstring name(head.printLength / sizeof(wchar_t), L'\0');
  std::memcpy(name.data(), bytes.data() + begin, name.size() * sizeof(wchar_t));
  return name;
}

}  // namespace

// Not by the standard library, which knows no links here.
std::optional<std::string> ReadSymbolicLink(const ioPath& link) {
  const HANDLE handle =
      CreateFileW(link.for_system().c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return std::nullopt;
  }
  std::vector<char> bytes(MAXIMUM_REPARSE_DATA_BUFFER_SIZE);
  DWORD count = 0;
  const BOOL read = DeviceIoControl(handle, FSCTL_GET_REPARSE_POINT, nullptr, 0, bytes.data(),
                                    static_cast<DWORD>(bytes.size()), &count, nullptr);
  CloseHandle(handle);
  const auto name = read != 0 ? PrintName(bytes, count) : std::nullopt;
  return name ? std::make_optional(ioPath(std::filesystem::path(*name)).utf8string()) : std::nullopt;
}

std::error_code MakeSymbolicLink(const ioPath& link, const std::string& target) {
  // In developer mode everybody may.
  constexpr DWORD kUnprivileged = 0x2;
  const std::wstring text = ioPath(target).native().wstring();
  if (CreateSymbolicLinkW(link.for_system().c_str(), text.c_str(), kUnprivileged) == 0 &&
      // Windows versions that do not know the flag refuse it.
      (GetLastError() != ERROR_INVALID_PARAMETER ||
       CreateSymbolicLinkW(link.for_system().c_str(), text.c_str(), 0) == 0)) {
    return LastSystemError();
  }
  return {};
}

std::error_code ReplaceSymbolicLink(const ioPath& by, const ioPath& link) {
  return MoveFileExW(by.for_system().c_str(), link.for_system().c_str(), MOVEFILE_REPLACE_EXISTING) != 0
             ? std::error_code()
             : LastSystemError();
}

void RemoveSymbolicLink(const ioPath& link) {
  if (ReadSymbolicLink(link)) {
    DeleteFileW(link.for_system().c_str());
  }
}

}  // namespace Zenvora::Lumidex::Host
