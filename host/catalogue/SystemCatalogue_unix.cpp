#include "SystemCatalogue.h"

#include <host/catalogue/CatalogueDatabase.h>
#include <host/catalogue/CatalogueRows.h>

#include <cerrno>
#include <cstdint>
#include <sys/statvfs.h>
#include <unistd.h>

namespace Zenvora::Lumidex::Host {

QByteArray PathBytes(const ioPath& path) {
  return QByteArray::fromStdString(path.native().native());
}

std::string UriPath(const ioPath& absoluteFile) {
  return absoluteFile.utf8string();
}

void RequireWritable(const ioPath& file) {
  const ioPath folder = file.parent_path().empty() ? ioPath(".") : file.parent_path();
  for (const ioPath& place : {folder, file}) {
    if (access(place.native().c_str(), W_OK) != 0 && errno != ENOENT) {
      ThrowCatalogueError(file, place == file ? "it is write-protected" : "its folder is write-protected");
    }
  }
}

QString VolumeId(const ioPath& mount) {
  struct statvfs facts {};
  const std::uint64_t serial =
      statvfs(mount.native().c_str(), &facts) == 0 ? static_cast<std::uint64_t>(facts.f_fsid) : 0;
  return serial == 0 ? QString() : QString::number(serial, 16);
}

bool IsAlwaysMounted(const ioPath& mount) {
  // The root of all.
  return mount.parent_path() == mount || mount.parent_path().empty();
}

}  // namespace Zenvora::Lumidex::Host
