#pragma once

#include <host/catalogue/Catalogue.h>
#include <host/catalogue/CatalogueDatabase.h>

#include <memory>

namespace Zenvora::Lumidex::Host {

/// Opens a catalogue as the class `Catalogue` does, with all that it refuses.
std::unique_ptr<CatalogueDatabase> OpenCatalogue(const ioPath& file, Catalogue::Mode mode);

/// Opens a catalogue for reading, of whatever version it is. Throws for what is not ours and what is not
/// there.
std::unique_ptr<CatalogueDatabase> OpenAsItIs(const ioPath& file);

/// SQLite's application id of catalogues: "LMDX".
constexpr int kCatalogueApplicationId = 0x4C4D4458;

/// Throws when the existing, non-empty file is somebody else's or no database, without taking a lock or
/// changing a byte.
void RequireOwnFile(const ioPath& file);

/// Makes the tables or brings them up to date, one transaction for each version. Two processes may do it at
/// once. Throws when the catalogue is newer than this program or somebody else's.
void BringUpToDate(const CatalogueDatabase& database);

/// Gives a missing catalogue its name when it is complete, so that none is ever there by halves. Nothing
/// happens when another process was faster. Throws `HostError`.
void MakeNewCatalogue(const ioPath& file);

/// Throws when a newer program made the catalogue.
void RequireKnownVersion(const CatalogueDatabase& database);

/// False also for what is not ours and for what a newer program made.
bool HasJournal(const CatalogueDatabase& database);

/// Throws when the catalogue is not of this program's version, for those who may not change it.
void RequireCurrentVersion(const CatalogueDatabase& database);

}  // namespace Zenvora::Lumidex::Host
