#include <host/base/DiskReserve.h>

#include <zenvora/core/ErrorText.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Zenvora::Lumidex::Host {

namespace {

/// A descriptor, closed with the object.
class OpenFile {
 public:
  explicit OpenFile(const ioPath& file)
      : handle_(open(file.native().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR)) {}
  ~OpenFile() {
    if (IsOpen()) {
      close(handle_);
    }
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool IsOpen() const { return handle_ >= 0; }
  bool SetSize(std::uint64_t bytes) const { return ftruncate(handle_, static_cast<off_t>(bytes)) == 0; }
  /// Blocks of the file that hold nothing so far.
  std::error_code Allocate(std::uint64_t bytes) const {
    // Returns the error instead of setting `errno`; writes where the file system can do nothing better.
    return {posix_fallocate(handle_, 0, static_cast<off_t>(bytes)), std::generic_category()};
  }
  bool HasBlocks() const {
    struct stat facts = {};
    return fstat(handle_, &facts) == 0 && facts.st_blocks > 0;
  }

 private:
  const int handle_;
};

}  // namespace

std::uint64_t DiskReserve::Held() const {
  constexpr std::uint64_t kBlock = 512;
  struct stat facts = {};
  return lstat(file_.native().c_str(), &facts) == 0
             ? std::min(static_cast<std::uint64_t>(facts.st_size),
                        static_cast<std::uint64_t>(facts.st_blocks) * kBlock)
             : 0;
}

std::error_code DiskReserve::Hold(std::uint64_t bytes) const {
  const OpenFile file(file_);
  if (!file.IsOpen() || !file.SetSize(bytes)) {
    return LastSystemError();
  }
  const std::error_code error = file.Allocate(bytes);
  if (error) {
    // Part of the room is no use, and the size alone takes none.
    file.SetSize(0);
    file.SetSize(bytes);
  }
  return error;
}

bool DiskReserve::Release() const {
  const std::uint64_t wanted = Wanted();
  if (wanted == 0) {
    return false;
  }
  const OpenFile file(file_);
  return file.IsOpen() && file.HasBlocks() && file.SetSize(0) && file.SetSize(wanted);
}

}  // namespace Zenvora::Lumidex::Host
