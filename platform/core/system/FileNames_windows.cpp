#include "SystemFiles.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>

#include <windows.h>

namespace Zenvora {

std::error_code MoveUnlessTaken(const ioPath& from, const ioPath& to) {
  if (MoveFileExW(from.for_system().c_str(), to.for_system().c_str(), 0)) {
    return {};
  }
  const std::error_code error = LastSystemError();
  return error.value() == ERROR_ALREADY_EXISTS || error.value() == ERROR_FILE_EXISTS
             ? std::make_error_code(std::errc::file_exists)
         : error.value() == ERROR_NOT_SAME_DEVICE ? std::make_error_code(std::errc::cross_device_link)
                                                  : error;
}

bool MakeHardLink(const ioPath& file, const ioPath& second) {
  return CreateHardLinkW(second.for_system().c_str(), file.for_system().c_str(), nullptr) != 0;
}

bool MayPass(const std::error_code& error) {
  // Access is denied also for a moment, while a file is on its way out.
  return error.category() == std::system_category() &&
         (error.value() == ERROR_SHARING_VIOLATION || error.value() == ERROR_LOCK_VIOLATION ||
          error.value() == ERROR_ACCESS_DENIED);
}

}  // namespace Zenvora
