#pragma once

#include <zenvora/core/ioPath.h>

#include <string>

namespace Zenvora::Test {

/// What EXIF says of a place, as Exiv2 writes it: "48/1 51/1 2960/100", "N". Empty texts are left out.
struct GpsTags {
  std::string latitude;
  std::string latitudeSide;
  std::string longitude;
  std::string longitudeSide;
};

/// Adds them to the photo, a file that Exiv2 can write. Throws what Exiv2 throws.
void AddGps(const ioPath& photo, const GpsTags& tags);

}  // namespace Zenvora::Test
