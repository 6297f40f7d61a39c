#pragma once

#include <host/import/ImportPlan.h>

#include <zenvora/core/ioPath.h>

#include <string>
#include <unordered_set>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A file in the folder of copies that belongs to a shot of the sources: a copy of a former run, or one of
/// the sources itself.
struct PlacedFile {
  ioPath source;
  ioPath path;
  std::size_t shot = 0;
};

/// Gives the copies names that can be had where the library's cannot: it sees no file whose name is no text,
/// and knows no longest name. Marks are put as it does; before them the name is cut where it is too long. The
/// other copies keep their names. `entries`: the names in the folder of copies. Pure.
void MakeNamesServe(std::vector<ImportCopy>& copies, const std::vector<ioPath>& entries);

/// The shots whose files would get different names. `shots`: of each copy. `placed`: what is in the folder of
/// them. Pure.
std::vector<SplitShot> FindSplits(const std::vector<ImportCopy>& copies,
                                  const std::vector<std::size_t>& shots,
                                  const std::vector<PlacedFile>& placed);

/// The shots whose files would get the name of another one, in the folder or among the copies. `entries`: the
/// names in the folder of copies. Pure.
std::vector<JoinedShot> FindJoins(const std::vector<ImportCopy>& copies,
                                  const std::vector<std::size_t>& shots,
                                  const std::vector<PlacedFile>& placed, const std::vector<ioPath>& entries);

}  // namespace Zenvora::Lumidex::Host
