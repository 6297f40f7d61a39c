#pragma once

#include <LumidexUtil/Export.h>

#include <QString>

namespace Zenvora::Util {

/// Where the tag dictionaries lie that the library carries in Qt's resource system for as long as it is
/// loaded: "SysTagTr", "IconTag" and "AutoTag" (docs/formats/dictionaries.md). The library only holds them;
/// read them with `QFile`.
///
/// All of it is there when the library is loaded. Safe from any thread.
class LUMIDEXUTIL_EXPORT Resource {
 public:
  /// Object classes of automatic tagging, with search synonyms in English and Russian.
  static const QString AutoTag;
  /// The built-in tag categories in nine languages.
  static const QString SysTagTr;

  Resource& operator=(const Resource&);
  Resource& operator=(Resource&&) noexcept;

  /// ":/LumidexUtil/configs/<name>.json". Whether there is such a dictionary is not looked at.
  static QString GetName(const QString& name);
};

}  // namespace Zenvora::Util
