#include <zenvora/core/FileProbes.h>

#include <cstdio>
#include <windows.h>

namespace Zenvora {

namespace {

bool Opens(const ioPath& file, const wchar_t* mode) {
  // Other names stand for devices, some of which would wait for input.
  if (!file.name_fault().empty()) {
    return false;
  }
  std::FILE* const stream = _wfopen(file.for_system().c_str(), mode);
  return stream != nullptr && std::fclose(stream) == 0;
}

DWORD AttributesOf(const ioPath& file) {
  return file.name_fault().empty() ? GetFileAttributesW(file.for_system().c_str()) : INVALID_FILE_ATTRIBUTES;
}

}  // namespace

bool OpensForReading(const ioPath& file) noexcept {
  return Opens(file, L"rb");
}

bool OpensForAppending(const ioPath& file) noexcept {
  // The mode would make the file.
  return AttributesOf(file) != INVALID_FILE_ATTRIBUTES && Opens(file, L"ab");
}

bool HasWritePermission(const ioPath& file) noexcept {
  const DWORD attributes = AttributesOf(file);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) == 0;
}

bool IsWriteProtected(const ioPath& file) noexcept {
  const DWORD attributes = AttributesOf(file);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

bool IsImmutable(const ioPath&) noexcept {
  return false;
}

bool IsOursToMove(const ioPath&) noexcept {
  return true;
}

}  // namespace Zenvora
