#include <zenvora/core/ErrorText.h>
#include <zenvora/strandel/PhotoSource.h>

#include <algorithm>
#include <windows.h>

namespace Zenvora::Strandel {

PhotoSource::~PhotoSource() {
  if (handle_ != nullptr) {
    CloseHandle(handle_);
  }
}

bool PhotoSource::Open(const ioPath& file, std::string& cause) {
  HANDLE handle = CreateFileW(file.for_system().c_str(), GENERIC_READ,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    cause = SystemErrorText(static_cast<int>(GetLastError()));
    return false;
  }
  handle_ = handle;
  LARGE_INTEGER size;
  if (GetFileType(handle_) != FILE_TYPE_DISK || !GetFileSizeEx(handle_, &size)) {
    cause = "It is not a regular file";
    return false;
  }
  size_ = static_cast<std::uint64_t>(size.QuadPart);
  return true;
}

std::size_t PhotoSource::ReadDirectly(std::uint64_t offset, void* to, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    OVERLAPPED place = {};
    place.Offset = static_cast<DWORD>(offset + done);
    place.OffsetHigh = static_cast<DWORD>((offset + done) >> 32);
    DWORD got = 0;
    const auto wanted = static_cast<DWORD>(std::min<std::size_t>(count - done, 1U << 30));
    if (!ReadFile(handle_, static_cast<char*>(to) + done, wanted, &got, &place)) {
      const DWORD error = GetLastError();
      if (error != ERROR_HANDLE_EOF) {
        failure_ = SystemErrorText(static_cast<int>(error));
      }
      break;
    }
    if (got == 0) {
      break;
    }
    done += got;
  }
  return done;
}

}  // namespace Zenvora::Strandel
