#include "Session.h"

#include <host/Catalogue.h>

#include <filesystem>

namespace Zenvora::Lumidex::Cli {

ioPath AbsolutePath(const std::string& argument) {
  const std::string fault = ioPath(argument).name_fault();
  if (!argument.empty() && !fault.empty()) {
    throw UsageError("The name " + argument + " " + fault + ".");
  }
#ifdef _WIN32
  return argument.empty() ? ioPath() : ioPath(argument).absolute();
#else
  std::error_code ignored;
  const std::filesystem::path absolute = std::filesystem::absolute(ioPath(argument).native(), ignored);
  if (absolute.empty()) {
    return ioPath(argument);
  }
  std::filesystem::path plain;
  for (const std::filesystem::path& element : absolute) {
    // No other clean-up: ".." behind a symbolic link is not what it looks like.
    if (element != ".") {
      plain /= element;
    }
  }
  return ioPath(plain);
#endif
}

ioPath Session::CatalogueFile() const {
  return globals.catalogue.empty() ? Host::Catalogue::DefaultFile() : AbsolutePath(globals.catalogue);
}

}  // namespace Zenvora::Lumidex::Cli
