#pragma once

#include <host/catalogue/CatalogueDatabase.h>

#include <zenvora/core/ioPath.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// A copy that an import made, or is about to give its name.
struct ImportedCopy {
  ioPath path;
  ioPath source;
  std::uint64_t size = 0;
  std::int64_t modifiedNs = 0;
  std::string sha256;  ///< 64 hexadecimal digits.
};

/// How many bytes undoing the import of a copy adds to the catalogue: a row with four paths, two of them in
/// the trash.
std::uint64_t BytesToUndo(const ioPath& source, const ioPath& target);

/// What the journal knows of imports. An import works without the journal's lock, since two of them may go on
/// at a time: its step begins with the first copies, in one transaction, and is under way as long as somebody
/// holds the lock of the folder of copies.
class ImportRows {
 public:
  /// `database` must outlive it.
  explicit ImportRows(const CatalogueDatabase& database) : database_(database) {}

  /// Writes down copies that are about to get their names; `step` 0 begins one. Returns the step.
  qlonglong Note(qlonglong step, const ioPath& folder, const std::vector<ImportedCopy>& copies) const;
  /// A copy that did not get its name.
  void Drop(qlonglong step, const ioPath& path) const;
  /// The import is over: the step stands, or, without a copy, is gone. Returns how many copies it has.
  std::size_t Close(qlonglong step) const;
  /// In the order in which they got their names.
  std::vector<ImportedCopy> Copies(qlonglong step) const;

 private:
  const CatalogueDatabase& database_;
};

}  // namespace Zenvora::Lumidex::Host
