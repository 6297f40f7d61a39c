#include <zenvora/core/ErrorText.h>
#include <zenvora/strandel/PhotoSource.h>

#include <algorithm>
#include <string_view>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zenvora::Strandel {

#ifdef _WIN32

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
    cause = "It is no regular file";
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

#else

PhotoSource::~PhotoSource() {
  if (handle_ >= 0) {
    close(handle_);
  }
}

bool PhotoSource::Open(const ioPath& file, std::string& cause) {
  const char* name = file.native().c_str();
  struct stat facts = {};
  // Asked before opening, since opening alone can wake a device; and after, in case another file took the
  // name.
  if (stat(name, &facts) != 0) {
    cause = SystemErrorText(errno);
    return false;
  }
  if (S_ISREG(facts.st_mode)) {
    handle_ = open(name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (handle_ < 0 || fstat(handle_, &facts) != 0) {
      cause = SystemErrorText(errno);
      return false;
    }
  }
  if (!S_ISREG(facts.st_mode)) {
    cause = "It is no regular file";
    return false;
  }
  size_ = static_cast<std::uint64_t>(facts.st_size);
  return true;
}

std::size_t PhotoSource::ReadDirectly(std::uint64_t offset, void* to, std::size_t count) {
  std::size_t done = 0;
  while (done < count) {
    const ssize_t got =
        pread(handle_, static_cast<char*>(to) + done, count - done, static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) {
      continue;
    }
    if (got < 0) {
      failure_ = SystemErrorText(errno);
    }
    if (got <= 0) {
      break;
    }
    done += static_cast<std::size_t>(got);
  }
  return done;
}

#endif

std::size_t PhotoSource::Read(std::uint64_t offset, void* to, std::size_t count) {
  if (offset >= size_ || count == 0) {
    return 0;
  }
  count = static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset));
  if (count > sizeof window_) {
    return ReadDirectly(offset, to, count);
  }
  return Window(offset, count).Text().copy(static_cast<char*>(to), count);
}

ByteView PhotoSource::At(std::uint64_t at, std::size_t count) {
  if (at >= size_ || count == 0) {
    return {};
  }
  count = static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - at));
  if (count <= sizeof window_) {
    return Window(at, count);
  }
  large_.resize(count);
  large_.resize(ReadDirectly(at, large_.data(), count));
  return large_;
}

/// `count` is no more than fits in.
ByteView PhotoSource::Window(std::uint64_t at, std::size_t count) {
  if (at < windowOffset_ || at + count > windowOffset_ + windowSize_) {
    windowSize_ = ReadDirectly(at, window_, sizeof window_);
    windowOffset_ = at;
  }
  return ByteView(std::string_view(window_, windowSize_)).Part({at - windowOffset_, count});
}

}  // namespace Zenvora::Strandel
