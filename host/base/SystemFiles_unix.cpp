#include "SystemFiles.h"

#include <host/base/WholeFile.h>

#include <zenvora/core/ErrorText.h>

#include <cstdio>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace Zenvora::Lumidex::Host {

namespace fs = std::filesystem;

// Also a link that leads nowhere yet: the file appears where it points.
void WholeFile::FollowLinks() {
  constexpr int kMostLinks = 40;
  std::error_code error;
  for (int links = 0; fs::is_symlink(fs::symlink_status(target_.native(), error)); ++links) {
    const fs::path next = fs::read_symlink(target_.native(), error);
    if (error || links == kMostLinks) {
      ThrowCannotWrite(named_, error ? ErrorText(error) : "its links lead in a circle");
    }
    target_ = ioPath(target_.native().parent_path() / next);
  }
}

int ProcessNumber() {
  return getpid();
}

bool MoveOver(const ioPath& file, const ioPath& target) {
  return std::rename(file.native().c_str(), target.native().c_str()) == 0;
}

void CopyTimeMade(const ioPath& /*source*/, const ioPath& /*copy*/) {}

}  // namespace Zenvora::Lumidex::Host
