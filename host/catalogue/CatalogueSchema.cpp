#include <host/base/FolderEntries.h>
#include <host/catalogue/CatalogueSchema.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileNames.h>
#include <zenvora/core/FileState.h>
#include <zenvora/core/NewFile.h>
#include <zenvora/core/PrivateFiles.h>
#include <zenvora/tavolin/Uuid.h>

#include <glog/logging.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <fstream>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

namespace Zenvora::Lumidex::Host {

namespace {

using Statements = std::vector<const char*>;

const Statements& Migration(int fromVersion) {
  // Never changed once it has shipped: a new version is a new entry.
  static const std::vector<Statements> migrations = {
      {
          "PRAGMA application_id = 1280132184",
          "CREATE TABLE photos ("
          " number INTEGER PRIMARY KEY,"
          " id TEXT NOT NULL UNIQUE,"
          " path BLOB NOT NULL UNIQUE,"
          " size INTEGER NOT NULL,"
          " modified_ns INTEGER NOT NULL,"
          " taken TEXT,"
          " taken_source INTEGER NOT NULL,"
          " camera TEXT NOT NULL,"
          " lost INTEGER NOT NULL DEFAULT 0 CHECK (lost IN (0, 1)))",
          "CREATE TABLE albums ("
          " number INTEGER PRIMARY KEY,"
          " id TEXT NOT NULL UNIQUE,"
          " name TEXT NOT NULL UNIQUE,"
          " first_day TEXT)",
          "CREATE TABLE album_photos ("
          " album INTEGER NOT NULL REFERENCES albums (number),"
          " position INTEGER NOT NULL,"
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " PRIMARY KEY (album, position),"
          " UNIQUE (album, photo)) WITHOUT ROWID",
          "CREATE INDEX album_photos_by_photo ON album_photos (photo)",
          "CREATE TABLE album_attributes ("
          " album INTEGER NOT NULL REFERENCES albums (number),"
          " attribute INTEGER NOT NULL,"
          " value TEXT NOT NULL,"
          " PRIMARY KEY (album, attribute)) WITHOUT ROWID",
      },
      {
          // AUTOINCREMENT: the names of kept files hold numbers, which must not come back.
          "CREATE TABLE steps ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " name TEXT NOT NULL,"
          " begun TEXT NOT NULL,"
          " state INTEGER NOT NULL,"
          " files INTEGER NOT NULL DEFAULT 0,"
          " moves BLOB)",
          "CREATE TABLE changes ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " state INTEGER NOT NULL,"
          " path BLOB NOT NULL,"
          " side BLOB,"
          " adopted INTEGER NOT NULL DEFAULT 0 CHECK (adopted IN (0, 1)),"
          " kept_size INTEGER NOT NULL DEFAULT 0,"
          " digest_before BLOB,"
          " digest_after BLOB)",
          "CREATE INDEX changes_by_step ON changes (step)",
      },
      {
          // AUTOINCREMENT: a program of another version may still be at work with a number that went.
          "CREATE TABLE analysers ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " name TEXT NOT NULL,"
          " version INTEGER NOT NULL,"
          " length INTEGER NOT NULL,"
          " UNIQUE (name, version, length))",
          "CREATE TABLE features ("
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " analyser INTEGER NOT NULL REFERENCES analysers (number) ON DELETE CASCADE,"
          " size INTEGER NOT NULL,"
          " modified_ns INTEGER NOT NULL,"
          " vector BLOB,"
          " problem TEXT NOT NULL,"
          " width INTEGER NOT NULL,"
          " height INTEGER NOT NULL,"
          " sharpness REAL NOT NULL,"
          " PRIMARY KEY (photo, analyser))",
          "CREATE TABLE clusters ("
          " id INTEGER PRIMARY KEY,"
          " analyser INTEGER NOT NULL REFERENCES analysers (number) ON DELETE CASCADE,"
          " count INTEGER NOT NULL CHECK (count > 0),"
          " centre BLOB NOT NULL)",
          "CREATE INDEX clusters_by_analyser ON clusters (analyser)",
          "CREATE TABLE cluster_photos ("
          " cluster INTEGER NOT NULL REFERENCES clusters (id) ON DELETE CASCADE,"
          " arrival INTEGER NOT NULL,"
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " PRIMARY KEY (cluster, arrival)) WITHOUT ROWID",
          "CREATE INDEX cluster_photos_by_photo ON cluster_photos (photo)",
      },
      {
          "CREATE TABLE trashed ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " state INTEGER NOT NULL,"
          " path BLOB NOT NULL,"
          " place BLOB NOT NULL,"
          " note BLOB NOT NULL,"
          " photo INTEGER REFERENCES photos (number),"
          " kept BLOB NOT NULL,"
          " device INTEGER NOT NULL,"
          " file INTEGER NOT NULL,"
          " size INTEGER NOT NULL,"
          " modified_ns INTEGER NOT NULL)",
          "CREATE INDEX trashed_by_step ON trashed (step)",
      },
      {
          "ALTER TABLE photos ADD COLUMN latitude REAL",
          "ALTER TABLE photos ADD COLUMN longitude REAL",
          "ALTER TABLE photos ADD COLUMN reading INTEGER NOT NULL DEFAULT 0",
          "CREATE TABLE tags ("
          " number INTEGER PRIMARY KEY,"
          " type INTEGER NOT NULL,"
          " name TEXT NOT NULL,"
          " UNIQUE (type, name))",
          "CREATE TABLE photo_tags ("
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " tag INTEGER NOT NULL REFERENCES tags (number),"
          " PRIMARY KEY (photo, tag)) WITHOUT ROWID",
          "CREATE INDEX photo_tags_by_tag ON photo_tags (tag)",
          "CREATE TABLE tag_changes ("
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " tag INTEGER NOT NULL REFERENCES tags (number),"
          " added INTEGER NOT NULL CHECK (added IN (0, 1)),"
          " PRIMARY KEY (step, photo, tag)) WITHOUT ROWID",
      },
      {
          "ALTER TABLE steps ADD COLUMN kind INTEGER NOT NULL DEFAULT 0",
          "UPDATE steps SET kind = CASE WHEN moves IS NOT NULL THEN 1"
          " WHEN EXISTS (SELECT 1 FROM trashed t WHERE t.step = steps.number) THEN 3"
          " WHEN EXISTS (SELECT 1 FROM tag_changes c WHERE c.step = steps.number) THEN 4"
          " ELSE 2 END",
          // What is older than the counting of days is as old as its first day.
          "ALTER TABLE steps ADD COLUMN day INTEGER NOT NULL DEFAULT 0",
          // Of a sidecar that is edited along with its photo: the photo's change.
          "ALTER TABLE changes ADD COLUMN goes_with INTEGER",
          // Of what is kept of a photo that others gave another ending since.
          "ALTER TABLE changes ADD COLUMN kept_ending TEXT",
          "CREATE TABLE days_of_use ("
          " one INTEGER PRIMARY KEY CHECK (one = 1),"
          " count INTEGER NOT NULL,"
          " last TEXT NOT NULL)",
          "ALTER TABLE photos ADD COLUMN edges BLOB",
          "ALTER TABLE photos ADD COLUMN content BLOB",
          "ALTER TABLE photos ADD COLUMN camera_id TEXT",
          "ALTER TABLE photos ADD COLUMN tail BLOB",
          "CREATE INDEX photos_by_edges ON photos (edges) WHERE edges IS NOT NULL",
          "CREATE INDEX photos_by_camera_id ON photos (camera_id) WHERE camera_id IS NOT NULL",
          "CREATE TABLE volumes ("
          " path BLOB PRIMARY KEY,"
          " id TEXT NOT NULL) WITHOUT ROWID",
          "CREATE TABLE link_changes ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " path BLOB NOT NULL,"
          " side BLOB NOT NULL,"
          " target_before BLOB NOT NULL,"
          " target_after BLOB NOT NULL)",
          "CREATE INDEX link_changes_by_step ON link_changes (step)",
          "CREATE TABLE imported ("
          " number INTEGER PRIMARY KEY AUTOINCREMENT,"
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " path BLOB NOT NULL,"
          " source BLOB NOT NULL,"
          " size INTEGER NOT NULL,"
          " modified_ns INTEGER NOT NULL,"
          " digest BLOB NOT NULL)",
          "CREATE INDEX imported_by_step ON imported (step)",
          "CREATE TABLE album_changes ("
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " album_id TEXT NOT NULL,"
          " name TEXT NOT NULL,"
          " first_day TEXT,"
          " created INTEGER NOT NULL CHECK (created IN (0, 1)),"
          " PRIMARY KEY (step, album_id)) WITHOUT ROWID",
          "CREATE TABLE album_change_photos ("
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " album_id TEXT NOT NULL,"
          " position INTEGER NOT NULL,"
          " photo INTEGER NOT NULL REFERENCES photos (number),"
          " PRIMARY KEY (step, album_id, position)) WITHOUT ROWID",
          "CREATE TABLE album_change_attributes ("
          " step INTEGER NOT NULL REFERENCES steps (number) ON DELETE CASCADE,"
          " album_id TEXT NOT NULL,"
          " attribute INTEGER NOT NULL,"
          " value TEXT NOT NULL,"
          " PRIMARY KEY (step, album_id, attribute)) WITHOUT ROWID",
          // A preview may have been left over from another picture: what is known so far is to be compared.
          "ALTER TABLE features ADD COLUMN checked INTEGER NOT NULL DEFAULT 0 CHECK (checked IN (0, 1))",
          "CREATE TABLE origins ("
          " photo INTEGER PRIMARY KEY REFERENCES photos (number) ON DELETE CASCADE,"
          " size INTEGER NOT NULL,"
          " modified_ns INTEGER NOT NULL,"
          " version INTEGER NOT NULL,"
          " degradation TEXT NOT NULL,"
          " flags INTEGER NOT NULL,"
          " quantisation REAL NOT NULL,"
          " bytes_per_pixel REAL NOT NULL)",
          "CREATE TABLE verdicts ("
          " photo INTEGER NOT NULL REFERENCES photos (number) ON DELETE CASCADE,"
          " kept INTEGER NOT NULL REFERENCES photos (number) ON DELETE CASCADE,"
          " photo_size INTEGER NOT NULL,"
          " photo_modified_ns INTEGER NOT NULL,"
          " kept_size INTEGER NOT NULL,"
          " kept_modified_ns INTEGER NOT NULL,"
          " version INTEGER NOT NULL,"
          " verdict INTEGER NOT NULL,"
          " why TEXT NOT NULL,"
          " worst REAL NOT NULL,"
          " PRIMARY KEY (photo, kept)) WITHOUT ROWID",
          "CREATE INDEX verdicts_by_kept ON verdicts (kept)",
      },
      // The columns are the same. Digests by which photos are known again have another form, in which older
      // programs would find none.
      {},
  };
  static_assert(kCatalogueApplicationId == 1280132184, "the first migration writes it");
  CHECK_EQ(migrations.size(), static_cast<std::size_t>(Catalogue::kSchemaVersion));
  return migrations.at(static_cast<std::size_t>(fromVersion));
}

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
      for (const char* statement : Migration(identity.version)) {
        database.Execute(statement);
      }
      database.Execute(("PRAGMA user_version = " + std::to_string(identity.version + 1)).c_str());
      transaction.Commit();
    }
  }
  TurnOnWriteAheadLog(database);
}

namespace {

constexpr std::size_t kTokenLength = 13;
const char* const kDraftMark = ".new-";

/// A draft of this catalogue, or what SQLite makes beside one.
bool IsDraftName(const std::string& name, const std::string& ofCatalogue) {
  const std::string begin = ofCatalogue + kDraftMark;
  if (name.compare(0, begin.size(), begin) != 0) {
    return false;
  }
  const std::string token = name.substr(begin.size(), kTokenLength);
  const std::string end = name.substr(begin.size() + token.size());
  return token.size() == kTokenLength && token.find_first_not_of("0123456789abcdef-") == std::string::npos &&
         (end.empty() || end == "-journal" || end == "-wal" || end == "-shm");
}

/// What runs left that were killed while they made the catalogue. It is there now: nobody needs a draft, and
/// who still works on one finds that out.
void RemoveDrafts(const ioPath& file) {
  std::error_code ignored;
  const ioPath folder = file.parent_path().empty() ? ioPath(".") : file.parent_path();
  const std::string name = file.filename().utf8string();
  for (const FolderEntry& entry : ReadFolderEntries(folder, EntryChoice::All, ignored)) {
    if (entry.kind == FolderEntry::Kind::File && IsDraftName(entry.name.utf8string(), name)) {
      (folder / entry.name).remove();
    }
  }
}

void MakeByDraft(const ioPath& file) {
  const std::string token = Tavolin::GenerateUuid().left(static_cast<int>(kTokenLength)).toStdString();
  const ioPath draft(file.utf8string() + kDraftMark + token);
  const auto require = [&file](const std::error_code& error) {
    if (error) {
      ThrowCatalogueError(file, "it cannot be created (" + ErrorText(error) + ")");
    }
  };
  NewFile made;
  require(made.Create(draft));
  require(made.Close(false));
  // SQLite gives the files beside it the same rights.
  MakePrivate(draft);
  BringUpToDate(
      CatalogueDatabase(draft, CatalogueDatabase::Access::ReadWrite, Catalogue::kBusyTimeoutMs, file));
  const std::error_code error = MoveToFreeName(draft, file);
  if (!error) {
    made.Release();
    SyncFolderOf(file);
  } else if (error != std::errc::file_exists) {
    require(error);
  }
}

}  // namespace

void MakeNewCatalogue(const ioPath& file) {
  try {
    MakeByDraft(file);
  } catch (const HostError&) {
    // Another process was faster, and has cleared this one's draft away.
    if (QueryFile(file).kind != FileState::Kind::File) {
      throw;
    }
  }
  RemoveDrafts(file);
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
