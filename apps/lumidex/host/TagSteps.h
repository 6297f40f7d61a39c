#pragma once

#include "CatalogueDatabase.h"

#include <host/Tags.h>
#include <host/UndoJournal.h>

#include <optional>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// The part of the journal that is about tags, which are in the catalogue only: within a transaction of the
/// caller's each function is done or not.
class TagSteps {
 public:
  /// `database` must outlive it.
  explicit TagSteps(const CatalogueDatabase& database) : database_(database) {}

  /// Gives photos tags and takes some from them, and notes for the step what that changed. What is in the
  /// catalogue under none of the paths is passed over. Returns how many photos have other tags now.
  std::size_t Apply(qlonglong step, const TagWishes& wishes) const;
  /// Takes back what the step changed, or does it again. Returns of how many photos.
  std::size_t Reverse(qlonglong step, bool redo) const;

 private:
  std::optional<qlonglong> FindNumber(const Tag& tag) const;
  qlonglong FindOrMake(const Tag& tag) const;
  bool Set(qlonglong photo, qlonglong tag, bool wanted) const;

  const CatalogueDatabase& database_;
};

}  // namespace Zenvora::Lumidex::Host
