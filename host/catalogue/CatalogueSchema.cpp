#include "CatalogueMigrations.h"

#include <host/catalogue/CatalogueSchema.h>

#include <zenvora/core/FileState.h>

#include <glog/logging.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <fstream>
#include <string>
#include <thread>

namespace Zenvora::Lumidex::Host {

namespace {

/// What a database file says of itself.
struct Identity {
  int applicationId = 0;
  int version = 0;
  bool hasTables = false;

  bool IsOurs() const { return applicationId == kCatalogueApplicationId; }
  bool IsEmpty() const { return applicationId == 0 && version == 0 && !hasTables; }
};

Identity ReadIdentity(const CatalogueDatabase& database) {
  // One statement sees one state, whoever is writing meanwhile.
  QSqlQuery query = database.Prepare(
      "SELECT (SELECT application_id FROM pragma_application_id), (SELECT user_version FROM "
      "pragma_user_version),"
      " (SELECT count(*) FROM sqlite_master)");
  database.Run(query);
  database.Next(query);
  Identity identity;
  identity.applicationId = query.value(0).toInt();
  identity.version = query.value(1).toInt();
  identity.hasTables = query.value(2).toInt() > 0;
  return identity;
}

void RequireOwn(const CatalogueDatabase& database, const Identity& identity) {
  if (!identity.IsOurs() && !identity.IsEmpty()) {
    database.Fail("it is a database of another program, which is left alone");
  }
}

void RequireNotNewer(const CatalogueDatabase& database, int version) {
  if (version < 0 || version > Catalogue::kSchemaVersion) {
    database.Fail("a newer version of the program made it (its format is " + std::to_string(version) +
                  ", this program knows formats up to " + std::to_string(Catalogue::kSchemaVersion) + ")");
  }
}

/// Throws for what is not ours to change.
bool IsCurrent(const CatalogueDatabase& database, const Identity& identity) {
  RequireOwn(database, identity);
  RequireNotNewer(database, identity.version);
  return identity.version == Catalogue::kSchemaVersion;
}

/// Readers and a writer at the same time need the write-ahead log. Whoever has the file open meanwhile can
/// stand in the way; then the next opening tries again, and until then the catalogue works without.
void TurnOnWriteAheadLog(const CatalogueDatabase& database) {
  constexpr int kAttempts = 50;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    int code = 0;
    if (database.Value("PRAGMA journal_mode").toString() == QLatin1String("wal") ||
        (database.TryExecute("PRAGMA journal_mode = WAL", code) &&
         database.Value("PRAGMA journal_mode").toString() == QLatin1String("wal"))) {
      return;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  LOG(WARNING) << "The catalogue " << database.File() << " works without a write-ahead log for now";
}

/// True when a first transaction was interrupted on what was empty before: opening the file for writing takes
/// it back, and until then its pages are nobody's. SQLite's journal file says so.
bool IsMadeFromNothing(const ioPath& file) {
  constexpr std::array<unsigned char, 8> kMagic = {0xd9, 0xd5, 0x05, 0xf9, 0x20, 0xa1, 0x63, 0xd7};
  constexpr std::size_t kSizeBefore = 16;
  const ioPath journal(file.utf8string() + "-journal");
  if (QueryFile(journal).kind != FileState::Kind::File) {
    return false;
  }
  std::ifstream stream(journal.for_system(), std::ios::binary);
  std::array<char, kSizeBefore + 4> head{};
  return stream.read(head.data(), head.size()) &&
         std::equal(
             kMagic.begin(), kMagic.end(), head.begin(),
             [](unsigned char left, char right) { return left == static_cast<unsigned char>(right); }) &&
         std::all_of(head.begin() + kSizeBefore, head.end(), [](char byte) { return byte == 0; });
}

}  // namespace

void RequireOwnFile(const ioPath& file) {
  if (IsMadeFromNothing(file)) {
    return;
  }
  using Access = CatalogueDatabase::Access;
  auto database = std::make_unique<CatalogueDatabase>(file, Access::Frozen, 0);
  int code = 0;
  if (!database->TryExecute("SELECT count(*) FROM sqlite_master", code) &&
      code == CatalogueDatabase::kCorrupt) {
    // Without its log, or while another process is just writing, a sound file can look damaged.
    database = std::make_unique<CatalogueDatabase>(file, Access::ReadOnly, Catalogue::kBusyTimeoutMs);
  }
  RequireOwn(*database, ReadIdentity(*database));
}

void BringUpToDate(const CatalogueDatabase& database) {
  while (!IsCurrent(database, ReadIdentity(database))) {
    WriteTransaction transaction(database);
    // Another process may have been faster.
    const Identity identity = ReadIdentity(database);
    if (!IsCurrent(database, identity)) {
      for (const char* statement : MigrationFrom(identity.version)) {
        database.Execute(statement);
      }
      database.Execute(("PRAGMA user_version = " + std::to_string(identity.version + 1)).c_str());
      transaction.Commit();
    }
  }
  TurnOnWriteAheadLog(database);
}

void RequireKnownVersion(const CatalogueDatabase& database) {
  RequireNotNewer(database, ReadIdentity(database).version);
}

bool HasJournal(const CatalogueDatabase& database) {
  constexpr int kFirstWithJournal = 2;
  const Identity identity = ReadIdentity(database);
  return identity.IsOurs() && identity.version >= kFirstWithJournal &&
         identity.version <= Catalogue::kSchemaVersion;
}

void RequireCurrentVersion(const CatalogueDatabase& database) {
  const Identity identity = ReadIdentity(database);
  if (!IsCurrent(database, identity)) {
    database.Fail(identity.IsEmpty()
                      ? "it is empty; run a scan to fill it"
                      : "an older version of the program made it; run a scan to bring it up to date");
  }
}

}  // namespace Zenvora::Lumidex::Host
