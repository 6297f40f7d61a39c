#pragma once

#include <QString>

#include <tuple>

namespace Zenvora::Lumidex::Host {

/// Where a tag's name comes from. The numbers are stored.
enum class TagType : int {
  Own = 0,        ///< The user's own word.
  System = 1,     ///< A built-in category: a key of the dictionary SysTagTr.
  Icon = 2,       ///< One with an icon: a key of IconTag.
  Automatic = 3,  ///< What automatic tagging recognised: a key of AutoTag.
};

/// "own", "system", "icon" or "automatic".
const char* TagTypeName(TagType type);

struct Tag {
  TagType type = TagType::Own;
  /// The key in its dictionary, the same in all languages; of an own tag its text.
  QString name;

  bool operator==(const Tag& other) const { return type == other.type && name == other.name; }
  bool operator<(const Tag& other) const { return std::tie(type, name) < std::tie(other.type, other.name); }
};

}  // namespace Zenvora::Lumidex::Host
