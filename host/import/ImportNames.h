#pragma once

#include <host/import/ImportPlan.h>
#include <host/shots/ShotNames.h>

#include <zenvora/core/ioPath.h>

#include <QSet>
#include <QString>

#include <cstddef>
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

/// Gives shots names in the folder of copies that nothing has: of a taken one all files get "(1)" behind what
/// they share, if that is taken too "(1)(3)", and so on, as `CheckFilesToCopyBeforeAddDialog` counts for
/// single files. A name is also taken when a photo, or what belongs to one, bears it with another extension:
/// the files of two shots never share a name. It is cut between two characters where it would be too long.
/// Pure.
class FreeNames {
 public:
  explicit FreeNames(const CopyFolder& folder);

  /// Nothing else gets the name from now on, in whichever case.
  void Take(const ioPath& name);
  /// The name, which is taken from now on; false: something has it already.
  bool TakeFree(const ioPath& name);
  /// The names that the files of a shot get, which are taken from now on. `files`: one or more.
  std::vector<ioPath> Give(const std::vector<ShotName>& files);

 private:
  bool IsTaken(const ioPath& name) const;

  std::unordered_set<ioPath> there_;
  /// Without their case.
  QSet<QString> taken_;
  /// What the files of each shot share, as `NameKey` has it.
  std::unordered_set<std::string> shots_;
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
