#include <host/base/SymbolicLinks.h>

#include <zenvora/core/ErrorText.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <unistd.h>

namespace Zenvora::Lumidex::Host {

std::optional<std::string> ReadSymbolicLink(const ioPath& link) {
  std::array<char, PATH_MAX> text{};
  const ssize_t length = readlink(link.native().c_str(), text.data(), text.size());
  // A longer one leads nowhere.
  return length > 0 && static_cast<std::size_t>(length) < text.size()
             ? std::make_optional(std::string(text.data(), static_cast<std::size_t>(length)))
             : std::nullopt;
}

std::error_code MakeSymbolicLink(const ioPath& link, const std::string& target) {
  return symlink(target.c_str(), link.native().c_str()) == 0 ? std::error_code() : LastSystemError();
}

std::error_code ReplaceSymbolicLink(const ioPath& by, const ioPath& link) {
  return std::rename(by.native().c_str(), link.native().c_str()) == 0 ? std::error_code() : LastSystemError();
}

void RemoveSymbolicLink(const ioPath& link) {
  if (ReadSymbolicLink(link)) {
    unlink(link.native().c_str());
  }
}

}  // namespace Zenvora::Lumidex::Host
