#pragma once

#include "CatalogueDatabase.h"

namespace Zenvora::Lumidex::Host {

/// SQLite's application id of catalogues: "LMDX".
constexpr int kCatalogueApplicationId = 0x4C4D4458;

/// Throws when the existing, non-empty file is somebody else's or no database, without taking a lock or
/// changing a byte.
void RequireOwnFile(const ioPath& file);

/// Makes the tables or brings them up to date, one transaction for each version. Two processes may do it at
/// once. Throws when the catalogue is newer than this program or somebody else's.
void BringUpToDate(const CatalogueDatabase& database);

/// Throws when the catalogue is not of this program's version, for those who may not change it.
void RequireCurrentVersion(const CatalogueDatabase& database);

}  // namespace Zenvora::Lumidex::Host
