#include "SystemPaths.h"

#include <LumidexUtil/UpdateStat.h>
#include <cli/session/Session.h>
#include <cli/terminal/Failure.h>
#include <host/catalogue/Catalogue.h>

#include <utility>

namespace Zenvora::Lumidex::Cli {

ioPath AbsolutePath(const std::string& argument) {
  const ioPath path(argument);
  if (argument.empty()) {
    return path;
  }
  if (const std::string fault = path.name_fault(); !fault.empty()) {
    throw UsageError("The name " + argument + " " + fault + ".");
  }
  return Absolute(path);
}

ioPath Session::CatalogueFile() const {
  return globals.catalogue.empty() ? Host::Catalogue::DefaultFile() : AbsolutePath(globals.catalogue);
}

ioPath Session::ExistingCatalogue() const {
  const ioPath file = CatalogueFile();
  if (!file.exists()) {
    throw Failure("no-catalogue",
                  "There is no catalogue " + file.utf8string() + " yet. Run: lumidex scan DIR");
  }
  return file;
}

void Session::Count(ItemType type, std::size_t itemsIn, std::size_t itemsOut) {
  usage = UpdateStat(type, UpdateStat(LaunchMode::CommandLine, itemsIn, itemsOut, std::move(usage)));
}

}  // namespace Zenvora::Lumidex::Cli
