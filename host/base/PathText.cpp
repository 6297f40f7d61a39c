#include <host/base/PathText.h>

#include <QDir>

#include <algorithm>
#include <system_error>

namespace Zenvora::Lumidex::Host {

ioPath RealFolder(const ioPath& folder) {
  QString rest;
  for (ioPath place = folder; !place.empty(); place = place.parent_path()) {
    std::error_code error;
    const ioPath real = place.canonical(error);
    if (!error) {
      return IsText(real) ? ioPath(QDir::cleanPath(real.qstring() + rest)) : folder;
    }
    if (place.parent_path() == place) {
      break;
    }
    rest.prepend(QLatin1Char('/') + place.filename().qstring());
  }
  return folder;
}

bool IsAtOrBelow(const ioPath& path, const ioPath& folder) {
  const auto& whole = path.native();
  const auto& start = folder.native();
  return std::mismatch(start.begin(), start.end(), whole.begin(), whole.end()).first == start.end();
}

}  // namespace Zenvora::Lumidex::Host
