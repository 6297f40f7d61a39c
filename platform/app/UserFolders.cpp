#include "SystemPlaces.h"

#include <zenvora/app/UserFolders.h>

namespace Zenvora::App {

namespace {

struct Place {
  const char* variable;
  const char* belowHome;
};

Place PlaceOf(UserFolder folder) {
  switch (folder) {
    case UserFolder::Settings:
      return {"XDG_CONFIG_HOME", ".config"};
    case UserFolder::Data:
      return {"XDG_DATA_HOME", ".local/share"};
    case UserFolder::Cache:
      break;
  }
  return {"XDG_CACHE_HOME", ".cache"};
}

}  // namespace

ioPath FolderOfUser(UserFolder folder) {
  const Place place = PlaceOf(folder);
  const ioPath named = FolderInVariable(place.variable);
  return named.is_absolute() ? named : UsualFolder(folder, place.belowHome);
}

}  // namespace Zenvora::App
