#include "SystemPaths.h"

#include <cli/session/ReportTarget.h>

#include <system_error>

namespace Zenvora::Lumidex::Cli {

ioPath Absolute(const ioPath& path) {
  return path.absolute();
}

ioPath FollowLinks(const ioPath& file) {
  // The standard library knows no links there. One that leads nowhere stays itself.
  std::error_code error;
  const ioPath target = file.canonical(error);
  return target.empty() ? file : target;
}

}  // namespace Zenvora::Lumidex::Cli
