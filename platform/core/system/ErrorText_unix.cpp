#include <zenvora/core/ErrorText.h>

#include <cerrno>

namespace Zenvora {

std::string SystemErrorText(int error) {
  return std::system_category().message(error);
}

std::error_code LastSystemError() {
  return {errno, std::system_category()};
}

std::string ErrorText(const std::error_code& error) {
  return error.message();
}

}  // namespace Zenvora
