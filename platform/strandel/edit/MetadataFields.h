#pragma once

#include "MetadataPlan.h"

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

namespace Zenvora::Strandel {

/// As Exiv2 names the directory.
inline const char* GroupOf(ExifDirectory directory) {
  switch (directory) {
    case ExifDirectory::Photo:
      return "Photo";
    case ExifDirectory::Thumbnail:
      return "Thumbnail";
    default:
      return "Image";
  }
}

inline const Exiv2::Exifdatum* Find(const Exiv2::ExifData& exif, ExifDirectory directory, std::uint16_t tag) {
  const auto found = std::find_if(exif.begin(), exif.end(),
                                  [group = GroupOf(directory), tag](const Exiv2::Exifdatum& datum) {
                                    return datum.tag() == tag && datum.groupName() == group;
                                  });
  return found == exif.end() ? nullptr : &*found;
}

template <class Datum>
std::string BytesOf(const Datum& datum) {
  std::string bytes(static_cast<std::size_t>(std::max(datum.size(), 0L)), '\0');
  if (!bytes.empty()) {
    datum.copy(reinterpret_cast<Exiv2::byte*>(bytes.data()), Exiv2::littleEndian);
  }
  return bytes;
}

/// Of XMP the texts are all there is.
inline std::string BytesOf(const Exiv2::Xmpdatum& datum) {
  return datum.toString();
}

inline std::string TextOf(const Exiv2::Exifdatum& datum) {
  const Exiv2::TypeId type = datum.typeId();
  return type == Exiv2::asciiString || type == Exiv2::unsignedByte || type == Exiv2::undefined
             ? BytesOf(datum)
             : std::string();
}

}  // namespace Zenvora::Strandel
