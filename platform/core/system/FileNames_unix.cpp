#include "SystemFiles.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Zenvora {

namespace {

std::error_code MoveInTwoSteps(const char* from, const char* to) {
  struct stat facts = {};
  if (lstat(to, &facts) == 0) {
    return std::make_error_code(std::errc::file_exists);
  }
  return std::rename(from, to) == 0 ? std::error_code() : LastSystemError();
}

}  // namespace

std::error_code MoveUnlessTaken(const ioPath& from, const ioPath& to) {
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
}

bool MakeHardLink(const ioPath& file, const ioPath& second) {
  return link(file.native().c_str(), second.native().c_str()) == 0;
}

bool MayPass(const std::error_code& /*error*/) {
  return false;
}

}  // namespace Zenvora
