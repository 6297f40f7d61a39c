#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Zenvora::Strandel {

/// Where the text of an XMP property stands in its packet.
struct XmpPlace {
  std::string space;  ///< The URI of its name space.
  std::string name;   ///< Without a prefix.
  std::size_t at = 0;
  std::size_t size = 0;  ///< Blanks around the value of an element count.
};

/// The properties of a packet in UTF-8 that are plain texts, written as attributes or as elements; not those
/// inside of structures and lists, nor what comments show. Throws `EditRefusal` where the tags make no sense.
std::vector<XmpPlace> FindXmpPlaces(std::string_view packet);

}  // namespace Zenvora::Strandel
