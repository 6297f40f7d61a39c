#pragma once

#include <host/catalogue/CatalogueDatabase.h>

#include <zenvora/core/ioPath.h>

#include <string>
#include <unordered_map>

namespace Zenvora::Lumidex::Host {

struct FileMove;

/// Lets the steps of the journal follow photos that others moved, and what went along with them: what a step
/// did to a photo is to be undone where the photo is now.
///
/// A name in a step is the photo's of that time. From the present on, each step is told what its photos are
/// called after it; a rename then tells the steps before it what they were called before. The names that a
/// rename gave and took stay, their folder is the one where the photo is now. Steps that are under way stay
/// as they are: how far they came shows on the disk.
class JournalPaths {
 public:
  void Add(const ioPath& from, const ioPath& to);
  /// Within the caller's transaction, which must hold the journal's lock.
  void Rewrite(const CatalogueDatabase& database) const;

 private:
  std::unordered_map<std::string, std::string> moved_;
};

}  // namespace Zenvora::Lumidex::Host
