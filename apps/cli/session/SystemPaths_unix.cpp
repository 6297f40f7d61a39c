#include "SystemPaths.h"

#include <cli/session/ReportTarget.h>

#include <filesystem>
#include <system_error>

namespace Zenvora::Lumidex::Cli {

namespace fs = std::filesystem;

ioPath Absolute(const ioPath& path) {
  std::error_code ignored;
  const fs::path absolute = fs::absolute(path.native(), ignored);
  if (absolute.empty()) {
    return path;
  }
  fs::path plain;
  for (const fs::path& element : absolute) {
    // No other clean-up: ".." behind a symbolic link is not what it looks like.
    if (element != ".") {
      plain /= element;
    }
  }
  return ioPath(plain);
}

ioPath FollowLinks(const ioPath& file) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  fs::path target = file.native();
  for (int i = 0; i < kMostLinks && fs::is_symlink(target, error); ++i) {
    const fs::path next = fs::read_symlink(target, error);
    if (error) {
      break;
    }
    target = next.is_absolute() ? next : target.parent_path() / next;
  }
  return ioPath(target);
}

}  // namespace Zenvora::Lumidex::Cli
