#include <host/base/DiskReserve.h>

#include <zenvora/core/ErrorText.h>

#include <windows.h>

namespace Zenvora::Lumidex::Host {

namespace {

/// A file open for writing, closed with the object.
class OpenFile {
 public:
  explicit OpenFile(const ioPath& file)
      : handle_(CreateFileW(file.for_system().c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  ~OpenFile() {
    if (IsOpen()) {
      CloseHandle(handle_);
    }
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  bool SetSize(std::uint64_t bytes) const {
    LARGE_INTEGER end;
    end.QuadPart = static_cast<LONGLONG>(bytes);
    return SetFilePointerEx(handle_, end, nullptr, FILE_BEGIN) && SetEndOfFile(handle_);
  }

 private:
  const HANDLE handle_;
};

}  // namespace

std::uint64_t DiskReserve::Held() const {
  return Wanted();
}

std::error_code DiskReserve::Hold(std::uint64_t bytes) const {
  const OpenFile file(file_);
  // The size of a file is room that it has, here: there is none without the other.
  return file.IsOpen() && file.SetSize(0) && file.SetSize(bytes) ? std::error_code() : LastSystemError();
}

bool DiskReserve::Release() const {
  if (Wanted() == 0) {
    return false;
  }
  const OpenFile file(file_);
  return file.IsOpen() && file.SetSize(0);
}

}  // namespace Zenvora::Lumidex::Host
