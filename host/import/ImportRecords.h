#pragma once

#include "ImportManifest.h"

#include <host/catalogue/Catalogue.h>
#include <host/catalogue/CatalogueDatabase.h>
#include <host/import/ImportRows.h>

#include <zenvora/core/ioPath.h>

#include <cstdint>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What one import tells the undo journal and the catalogue of its copies. All of it throws `HostError`.
class ImportRecords {
 public:
  /// `folder`: of the copies, canonical, so that a photo has one path however its folder is named.
  /// `catalogue` must outlive it.
  ImportRecords(Catalogue& catalogue, const ioPath& folder);

  /// Of the journal; 0: nothing was noted.
  std::int64_t Step() const { return step_; }
  /// Under its name in the catalogue.
  ioPath PathOf(const ioPath& target) const { return folder_ / target.filename(); }

  /// Notes in the journal what is about to get its name, on the disk when this returns.
  void Note(const std::vector<ManifestRecord>& records);
  /// A copy that was noted and did not get its name.
  void Drop(const ioPath& target) const;
  void Store(const std::vector<PhotoRecord>& photos) const;
  /// Closes the step while the folder of copies is still locked: a step whose import is not at work was
  /// interrupted. A step without a copy is gone.
  void Close();

 private:
  Catalogue& catalogue_;
  const ioPath folder_;
  /// A connection of its own: what it says must be on the disk before copies get their names.
  const CatalogueDatabase database_;
  const ImportRows rows_;
  std::int64_t step_ = 0;
};

}  // namespace Zenvora::Lumidex::Host
