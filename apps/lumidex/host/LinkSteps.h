#pragma once

#include "CatalogueDatabase.h"

#include <host/RenamePlan.h>

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A symbolic link that a rename points to another name.
struct LinkChange {
  ioPath link;
  /// Under which its successor waits, hidden, in the same folder.
  ioPath side;
  std::string before;
  std::string after;
};

/// The part of the journal that is about symbolic links to renamed files: each gets a successor, which takes
/// its name in one step when the files have theirs. However far that came, what a link says tells it, so that
/// all can be done again. Links that others changed since stay as they are.
///
/// Throws `HostError`.
class LinkSteps {
 public:
  /// `database` must outlive it.
  explicit LinkSteps(const CatalogueDatabase& database) : database_(database) {}

  /// Notes what a step is about to do, within the caller's transaction.
  void Insert(qlonglong step, const std::vector<RenameLink>& links) const;
  std::vector<LinkChange> Links(qlonglong step) const;
  /// Which links lead to files of the step right before its `renames` are taken back or done again: beside
  /// the files, below their folders, and where the step knew some. Blocks on the disk.
  std::vector<RenameLink> FindAgain(qlonglong step, const std::vector<RenameMove>& renames) const;
  /// Notes these (`redo`: for doing it again), within the caller's transaction. Those that the step knew and
  /// that lead elsewhere by now stay as they are.
  void Renew(qlonglong step, const std::vector<RenameLink>& links, bool redo) const;
  /// Others moved a link of the step, within the caller's transaction.
  void Follow(qlonglong step, const LinkChange& change, const ioPath& link) const;

  /// Makes the successors, so that what stands in the way shows before any file is renamed.
  static void Prepare(const std::vector<LinkChange>& links);
  /// Points all links to the new names, or to the old ones, and waits until that is on the disk.
  static void Point(const std::vector<LinkChange>& links, bool toNew);
  /// Removes successors that are not needed.
  static void Clear(const std::vector<LinkChange>& links);

 private:
  const CatalogueDatabase& database_;
};

}  // namespace Zenvora::Lumidex::Host
