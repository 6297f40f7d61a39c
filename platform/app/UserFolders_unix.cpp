#include "SystemPlaces.h"

#include <cstddef>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace Zenvora::App {

namespace {

ioPath HomeOfAccount() {
  constexpr std::size_t kEnough = 16384;
  std::vector<char> texts(kEnough);
  passwd account = {};
  passwd* found = nullptr;
  if (getpwuid_r(geteuid(), &account, texts.data(), texts.size(), &found) != 0 || found == nullptr) {
    return {};
  }
  return ioPath(account.pw_dir);
}

}  // namespace

ioPath FolderInVariable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? ioPath() : ioPath(value);
}

ioPath UsualFolder(UserFolder /*folder*/, const char* belowHome) {
  ioPath home = FolderInVariable("HOME");
  if (!home.native().is_absolute()) {
    home = HomeOfAccount();
  }
  return home.native().is_absolute() ? home / belowHome : ioPath();
}

}  // namespace Zenvora::App
