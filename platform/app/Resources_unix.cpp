#include "SystemPlaces.h"

#include <filesystem>
#include <system_error>

namespace Zenvora::App {

ioPath ProgramFile() {
  std::error_code error;
  return ioPath(std::filesystem::read_symlink("/proc/self/exe", error));
}

}  // namespace Zenvora::App
