#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace Zenvora {

namespace {

// The system would take a name with a NUL for a shorter one.
bool AreNames(const ioPath& left, const ioPath& right) {
  return left.name_fault().empty() && right.name_fault().empty();
}

#ifndef _WIN32
std::error_code MoveInTwoSteps(const char* from, const char* to) {
  struct stat facts = {};
  if (lstat(to, &facts) == 0) {
    return std::make_error_code(std::errc::file_exists);
  }
  return std::rename(from, to) == 0 ? std::error_code() : LastSystemError();
}
#endif

}  // namespace

std::error_code MoveToFreeName(const ioPath& from, const ioPath& to) {
  if (!AreNames(from, to)) {
    return std::make_error_code(std::errc::invalid_argument);
  }
#ifdef _WIN32
  if (MoveFileExW(from.for_system().c_str(), to.for_system().c_str(), 0)) {
    return {};
  }
  const std::error_code error = LastSystemError();
  return error.value() == ERROR_ALREADY_EXISTS || error.value() == ERROR_FILE_EXISTS
             ? std::make_error_code(std::errc::file_exists)
         : error.value() == ERROR_NOT_SAME_DEVICE ? std::make_error_code(std::errc::cross_device_link)
                                                  : error;
#else
  const char* const source = from.native().c_str();
  const char* const target = to.native().c_str();
  if (renameat2(AT_FDCWD, source, AT_FDCWD, target, RENAME_NOREPLACE) == 0) {
    return {};
  }
  // What file systems and kernels say that do not know the flag.
  if (errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP) {
    return MoveInTwoSteps(source, target);
  }
  return LastSystemError();
#endif
}

std::error_code AddName(const ioPath& file, const ioPath& second) {
  if (!AreNames(file, second)) {
    return std::make_error_code(std::errc::invalid_argument);
  }
#ifdef _WIN32
  const bool done = CreateHardLinkW(second.for_system().c_str(), file.for_system().c_str(), nullptr) != 0;
#else
  const bool done = link(file.native().c_str(), second.native().c_str()) == 0;
#endif
  return done ? std::error_code() : LastSystemError();
}

bool MayPass(const std::error_code& error) {
#ifdef _WIN32
  // Access is denied also for a moment, while a file is on its way out.
  return error.category() == std::system_category() &&
         (error.value() == ERROR_SHARING_VIOLATION || error.value() == ERROR_LOCK_VIOLATION ||
          error.value() == ERROR_ACCESS_DENIED);
#else
  static_cast<void>(error);
  return false;
#endif
}

}  // namespace Zenvora
