#include <zenvora/core/Exception.h>

namespace Zenvora {

Exception::~Exception() noexcept = default;

const char* Exception::what() const noexcept {
  try {
    if (const auto* description = boost::get_error_info<TagDescription>(*this)) {
      return description->c_str();
    }
    if (const auto* parseError = boost::get_error_info<TagParseError>(*this)) {
      return parseError->c_str();
    }
  } catch (...) {
    // Looking up may allocate; what() must not throw for that.
  }
  return "Zenvora::Exception";
}

namespace Core {

CoreException::~CoreException() noexcept = default;
JsonException::~JsonException() noexcept = default;

}  // namespace Core
}  // namespace Zenvora
