#pragma once

#include <host/import/ImportPlan.h>

#include <zenvora/core/ioPath.h>

#include <QSet>
#include <QString>

#include <cstddef>
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

/// Gives files names in the folder of copies that nothing has, by the rule of
/// `CheckFilesToCopyBeforeAddDialog`: a taken name gets "(1)" behind its base, that name, if taken too,
/// "(3)", and so on. A base is cut between two characters where the name would be too long. Pure.
class FreeNames {
 public:
  explicit FreeNames(const CopyFolder& folder);

  /// Nothing else gets the name from now on, in whichever case.
  void Take(const ioPath& name);
  /// The name that the file gets, which is taken from now on.
  ioPath Give(const ioPath& name);

 private:
  bool IsTaken(const ioPath& name) const;

  std::unordered_set<ioPath> there_;
  /// Without their case.
  QSet<QString> taken_;
};

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
