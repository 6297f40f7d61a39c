#include <support/Obstacles.h>

#include <filesystem>
#include <stdexcept>

#ifdef _WIN32
#include <atomic>
#include <string>
#include <windows.h>
#else
#include <sys/stat.h>
#endif

namespace Zenvora::Test {

#ifdef _WIN32

Closed::Closed(const ioPath& path) : path_(path) {
  handle_ = CreateFileW(path.for_system().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                        FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle_ == INVALID_HANDLE_VALUE) {
    throw std::runtime_error("cannot hold " + path.utf8string());
  }
}

Closed::~Closed() {
  CloseHandle(handle_);
}

Pipe::Pipe(const ioPath& /*place*/) {
  static std::atomic<int> count{0};
  const std::string name =
      "pipe\\lumidex-test-" + std::to_string(GetCurrentProcessId()) + '-' + std::to_string(count++);
  // With '.' it is a device, which is refused by its name alone.
  path_ = ioPath("\\\\?\\" + name);
  for (void*& instance : instances_) {
    instance = CreateNamedPipeW(ioPath("\\\\.\\" + name).native().c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE,
                                PIPE_UNLIMITED_INSTANCES, 4096, 4096, 0, nullptr);
    if (instance == INVALID_HANDLE_VALUE) {
      throw std::runtime_error("cannot make a pipe");
    }
  }
}

Pipe::~Pipe() {
  for (void* const instance : instances_) {
    CloseHandle(instance);
  }
}

#else

Closed::Closed(const ioPath& path) : path_(path) {
  std::filesystem::permissions(path.native(), std::filesystem::perms::none);
}

Closed::~Closed() {
  std::error_code ignored;
  std::filesystem::permissions(path_.native(), std::filesystem::perms::owner_all, ignored);
}

Pipe::Pipe(const ioPath& place) : path_(place) {
  if (::mkfifo(place.native().c_str(), S_IRUSR | S_IWUSR) != 0) {
    throw std::runtime_error("cannot make a pipe at " + place.utf8string());
  }
}

Pipe::~Pipe() = default;

#endif

}  // namespace Zenvora::Test
