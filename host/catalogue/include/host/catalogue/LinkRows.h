#pragma once

#include <host/catalogue/CatalogueDatabase.h>
#include <host/catalogue/MoveRows.h>

#include <zenvora/core/ioPath.h>

#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A symbolic link that a rename points to another name.
struct LinkChange {
  ioPath link;
  /// Under which its successor waits, hidden, in the same folder.
  ioPath staging;
  std::string before;
  std::string after;
};

/// The rows of `link_changes`. Throws `HostError`.
class LinkRows {
 public:
  /// `database` must outlive it.
  explicit LinkRows(const CatalogueDatabase& database) : database_(database) {}

  /// Notes what a step is about to do, within the caller's transaction.
  void Insert(qlonglong step, const std::vector<RenameLink>& links) const;
  std::vector<LinkChange> Links(qlonglong step) const;
  /// Notes links that lead to the step's files right before it is undone or redone (`redo`), within
  /// the caller's transaction. Those that the step knew and that lead elsewhere by now stay as they are.
  void Renew(qlonglong step, const std::vector<RenameLink>& links, bool redo) const;
  /// Others moved a link of the step, within the caller's transaction.
  void Follow(qlonglong step, const LinkChange& change, const ioPath& link) const;

 private:
  const CatalogueDatabase& database_;
};

}  // namespace Zenvora::Lumidex::Host
