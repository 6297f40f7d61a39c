#include <LumidexUtil/UpdateStat.h>
#include <cli/session/Session.h>
#include <host/catalogue/Catalogue.h>

#include <filesystem>
#include <utility>

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

void Session::Count(ItemType type, std::size_t itemsIn, std::size_t itemsOut) {
  usage = UpdateStat(type, UpdateStat(LaunchMode::CommandLine, itemsIn, itemsOut, std::move(usage)));
}

}  // namespace Zenvora::Lumidex::Cli
