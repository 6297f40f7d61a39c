#pragma once

#include <host/import/Import.h>
#include <host/import/ImportPlan.h>

#include <zenvora/core/ioPath.h>

#include <vector>

namespace Zenvora::Lumidex::Host {

/// Whether the sources of an import may be erased.
struct ImportVerdict {
  enum class Kind {
    NotAsked,       ///< They were not copied off, or single files of them were named.
    SomethingLeft,  ///< Something that they hold is nowhere else.
    CopiesWithin,   ///< All is copied, but copies would be erased with the sources.
    NothingLeft,    ///< Each file, housekeeping aside, has a copy elsewhere that was compared with it.
  };
  Kind kind = Kind::NotAsked;
  /// Each source is the top folder of its volume; else nothing was seen of what lies beside it there.
  bool wholeVolumes = false;
};

/// Judges an import that was carried out. `sources`: as they were given, absolute. Blocks on the disk.
ImportVerdict JudgeSources(const std::vector<ioPath>& sources, const ImportPlan& plan,
                           const ImportResult& result);

}  // namespace Zenvora::Lumidex::Host
