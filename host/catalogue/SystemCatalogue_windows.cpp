#include "SystemCatalogue.h"

#include <host/catalogue/CatalogueDatabase.h>
#include <host/catalogue/CatalogueRows.h>

#include <zenvora/core/FileState.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <windows.h>

namespace Zenvora::Lumidex::Host {

QByteArray PathBytes(const ioPath& path) {
  std::filesystem::path plain = path.native();
  return QByteArray::fromStdString(ioPath(plain.make_preferred()).utf8string());
}

std::string UriPath(const ioPath& absoluteFile) {
  std::string name = absoluteFile.utf8string();
  std::replace(name.begin(), name.end(), '\\', '/');
  // "file:///C:/a" and "file:////server/share/a".
  name.insert(0, absoluteFile.root_name().native().native().size() == 2 ? "/" : "");
  return name;
}

void RequireWritable(const ioPath& file) {
  // Folders have no such mark; what their access lists forbid shows on opening.
  const DWORD attributes = GetFileAttributesW(file.for_system().c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    ThrowCatalogueError(file, "it is write-protected");
  }
}

QString VolumeId(const ioPath& mount) {
  const std::uint64_t serial = QueryFile(mount).identity.first;
  return serial == 0 ? QString() : QString::number(serial, 16);
}

bool IsAlwaysMounted(const ioPath& /*mount*/) {
  return false;
}

}  // namespace Zenvora::Lumidex::Host
